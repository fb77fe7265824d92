// A hash table from keys to the slots of a sequence, for a million short keys.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace GleanerSvc {

// Holds hashes and slots only; the keys stay in the sequence. Open addressing with linear probing, at most
// half of the cells are in use. Adding, finding and removing take constant time.
class SlotIndex {
  public:
    static constexpr std::size_t NoSlot = 0xFFFFFFFF; // and no slot is greater

    // The slot among those of that hash for which fnIsIt(slot) holds, or NoSlot.
    template<class F>
    std::size_t Find(std::size_t nHash, F&& fnIsIt) const {
        if (m_aoCells.empty()) return NoSlot;
        std::size_t nCell = Home(Cut(nHash));
        while (!IsFree(nCell) && !(m_aoCells[nCell].nHash == Cut(nHash) && fnIsIt(m_aoCells[nCell].nSlot))) {
            nCell = Next(nCell);
        }
        return m_aoCells[nCell].nSlot;
    }

    // Makes sure that the next Add succeeds.
    void MakeRoom();

    // Comes after MakeRoom.
    void Add(std::size_t nHash, std::size_t nSlot) {
        Put({Cut(nHash), static_cast<std::uint32_t>(nSlot)});
        ++m_nUsed;
    }

    // The pair is in the table.
    void Remove(std::size_t nHash, std::size_t nSlot);

    void Clear();

  private:
    struct Cell {
        std::uint32_t nHash = 0;
        std::uint32_t nSlot = static_cast<std::uint32_t>(NoSlot);
    };

    static std::uint32_t Cut(std::size_t nHash) { return static_cast<std::uint32_t>(nHash); }
    std::size_t Mask() const { return m_aoCells.size() - 1; }
    std::size_t Home(std::uint32_t nHash) const { return nHash & Mask(); }
    std::size_t Next(std::size_t nCell) const { return (nCell + 1) & Mask(); }
    std::size_t Distance(std::size_t nFrom, std::size_t nTo) const { return (nTo - nFrom) & Mask(); }
    bool IsFree(std::size_t nCell) const { return m_aoCells[nCell].nSlot == NoSlot; }

    void Put(const Cell& oCell) {
        std::size_t nCell = Home(oCell.nHash);
        while (!IsFree(nCell)) nCell = Next(nCell);
        m_aoCells[nCell] = oCell;
    }

    std::vector<Cell> m_aoCells; // their number is a power of 2, or 0
    std::size_t m_nUsed = 0;
};

} // namespace GleanerSvc
