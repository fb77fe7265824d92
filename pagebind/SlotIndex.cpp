#include "pagebind/SlotIndex.h"

#include <algorithm>

namespace GleanerSvc {

namespace {
constexpr std::size_t FirstCells = 16;
}

void SlotIndex::MakeRoom() {
    if (2 * (m_nUsed + 1) <= m_aoCells.size()) return;
    std::vector<Cell> aoOld(std::max(FirstCells, 2 * m_aoCells.size()));
    m_aoCells.swap(aoOld);
    for (const Cell& oCell : aoOld) {
        if (oCell.nSlot != NoSlot) Put(oCell);
    }
}

void SlotIndex::Remove(std::size_t nHash, std::size_t nSlot) {
    std::size_t nGap = Home(Cut(nHash));
    while (m_aoCells[nGap].nSlot != nSlot) nGap = Next(nGap);
    // What stands behind the gap because its own cell was taken moves up: a search ends at the first gap.
    for (std::size_t nCell = Next(nGap); !IsFree(nCell); nCell = Next(nCell)) {
        const std::size_t nHome = Home(m_aoCells[nCell].nHash);
        if (Distance(nHome, nCell) < Distance(nGap, nCell)) continue;
        m_aoCells[nGap] = m_aoCells[nCell];
        nGap = nCell;
    }
    m_aoCells[nGap] = Cell();
    --m_nUsed;
}

void SlotIndex::Clear() {
    std::fill(m_aoCells.begin(), m_aoCells.end(), Cell());
    m_nUsed = 0;
}

} // namespace GleanerSvc
