// A hash table that keeps its entries in the order of adding, for tables of a million short keys.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <numeric>
#include <utility>
#include <vector>

namespace GleanerSvc::Models {

// Key is what an entry keeps, View what it is looked for by; Rules bring Hash(View), Equal(View, View) and
// Less(View, View). Open addressing with linear probing; at most half of the slots are in use.
template<class Key, class View, class Mapped, class Rules>
class KeyTable {
  public:
    struct Entry {
        Key oKey;
        Mapped oMapped;
    };

    std::size_t Size() const { return m_aoEntries.size(); }

    void Clear() {
        m_aoEntries.clear();
        m_anSlots.clear();
    }

    // None when absent.
    const Entry* Find(View oKey) const {
        if (m_anSlots.empty()) return nullptr;
        const auto nEntry = m_anSlots[SlotOf(oKey)];
        return nEntry == Free ? nullptr : &m_aoEntries[nEntry];
    }

    // A key that is there keeps what it maps to, unless it is to be replaced.
    void Add(View oKey, const Mapped& oMapped, bool bReplace) {
        if (2 * (m_aoEntries.size() + 1) > m_anSlots.size()) Grow();
        auto& nEntry = m_anSlots[SlotOf(oKey)];
        if (nEntry == Free) {
            nEntry = static_cast<std::uint32_t>(m_aoEntries.size());
            m_aoEntries.push_back({Key(oKey), oMapped});
        } else if (bReplace) {
            m_aoEntries[nEntry].oMapped = oMapped;
        }
    }

    // Calls fnVisit with each entry, in ascending order of the keys.
    template<class F>
    void ForEachSorted(F&& fnVisit) const {
        std::vector<std::uint32_t> anOrder(m_aoEntries.size());
        std::iota(anOrder.begin(), anOrder.end(), 0U);
        const auto IsLess = [&](std::uint32_t nLeft, std::uint32_t nRight) {
            return Rules::Less(m_aoEntries[nLeft].oKey, m_aoEntries[nRight].oKey);
        };
        if (!std::is_sorted(anOrder.begin(), anOrder.end(), IsLess)) {
            std::sort(anOrder.begin(), anOrder.end(), IsLess);
        }
        for (const auto nEntry : anOrder) fnVisit(m_aoEntries[nEntry]);
    }

  private:
    static constexpr std::uint32_t Free = 0xFFFFFFFF;
    static constexpr std::size_t FirstSlots = 16; // the number of slots is a power of 2

    // The slot of the key's entry, or the free one where it belongs.
    std::size_t SlotOf(View oKey) const {
        const std::size_t nMask = m_anSlots.size() - 1;
        std::size_t nSlot = Rules::Hash(oKey) & nMask;
        while (m_anSlots[nSlot] != Free && !Rules::Equal(m_aoEntries[m_anSlots[nSlot]].oKey, oKey)) {
            nSlot = (nSlot + 1) & nMask;
        }
        return nSlot;
    }

    void Grow() {
        m_anSlots.assign(std::max(FirstSlots, 2 * m_anSlots.size()), Free);
        for (std::uint32_t nEntry = 0; nEntry < m_aoEntries.size(); ++nEntry) {
            m_anSlots[SlotOf(m_aoEntries[nEntry].oKey)] = nEntry;
        }
    }

    std::deque<Entry> m_aoEntries;
    std::vector<std::uint32_t> m_anSlots; // places of entries
};

} // namespace GleanerSvc::Models
