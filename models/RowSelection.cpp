#include "models/RowSelection.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace GleanerSvc::Models {

void RowSelection::Enable(bool bOn) {
    m_bOn = bOn;
    if (!bOn) Clear();
}

void RowSelection::Clear() {
    m_oRanges.clear();
    m_nOffset = 0;
    Changed();
}

void RowSelection::Add(RowSpan oSpan) {
    if (!m_bOn || oSpan.IsEmpty()) return;
    const Row nTop = Stored(oSpan.nTop);
    const Row nBottom = Stored(oSpan.nBottom);
    const auto itThere = FirstReaching(nTop);
    if (itThere != m_oRanges.end() && itThere->nTop <= nTop && nBottom <= itThere->nBottom) return;
    TakeOut(oSpan);
    m_oRanges.insert({nTop, nBottom, ++m_nMade});
    Changed();
}

void RowSelection::TakeOut(RowSpan oSpan) {
    if (oSpan.IsEmpty()) return;
    const Row nTop = Stored(oSpan.nTop);
    const Row nBottom = Stored(oSpan.nBottom);
    auto itRange = FirstReaching(nTop);
    while (itRange != m_oRanges.end() && itRange->nTop <= nBottom) {
        const Range oCut = *itRange;
        itRange = m_oRanges.erase(itRange);
        if (oCut.nTop < nTop) m_oRanges.insert({oCut.nTop, nTop - 1, oCut.nMade});
        if (oCut.nBottom > nBottom) m_oRanges.insert({nBottom + 1, oCut.nBottom, oCut.nMade});
    }
    Changed();
}

void RowSelection::RowsRemoved(RowSpan oSpan) {
    if (oSpan.IsEmpty() || m_oRanges.empty()) return;
    TakeOut(oSpan);
    MoveUp(Stored(oSpan.nBottom), static_cast<Row>(oSpan.nBottom - oSpan.nTop + 1));
    JoinAt(Stored(oSpan.nTop));
    Changed();
}

bool RowSelection::Holds(std::size_t nRow) const {
    const Row nStored = Stored(nRow);
    const auto itRange = FirstReaching(nStored);
    return itRange != m_oRanges.end() && itRange->nTop <= nStored;
}

std::vector<RowSpan> RowSelection::Spans() const {
    std::vector<Range> aoRanges(m_oRanges.begin(), m_oRanges.end());
    std::stable_sort(aoRanges.begin(), aoRanges.end(),
                     [](const Range& oLeft, const Range& oRight) { return oLeft.nMade < oRight.nMade; });
    std::vector<RowSpan> aoSpans;
    aoSpans.reserve(aoRanges.size());
    for (const Range& oRange : aoRanges) aoSpans.push_back(Shown(oRange));
    return aoSpans;
}

std::size_t RowSelection::DataRowCount() const {
    return std::accumulate(m_oRanges.begin(), m_oRanges.end(), std::size_t{0},
                           [this](std::size_t nCount, const Range& oRange) {
                               const RowSpan oSpan = Shown(oRange);
                               return nCount + oSpan.nBottom + 1 - std::max<std::size_t>(oSpan.nTop, 1);
                           });
}

std::vector<std::size_t> RowSelection::DataRows() const {
    std::vector<std::size_t> anRows;
    for (const Range& oRange : m_oRanges) {
        const RowSpan oSpan = Shown(oRange);
        for (std::size_t nRow = std::max<std::size_t>(oSpan.nTop, 1); nRow <= oSpan.nBottom; ++nRow) {
            anRows.push_back(nRow);
        }
    }
    return anRows;
}

std::string RowSelection::ToString() const {
    if (!m_bOn) return "off";
    std::string sText;
    for (const RowSpan& oSpan : Spans()) {
        sText +=
            (sText.empty() ? "" : " ") + std::to_string(oSpan.nTop) + "-" + std::to_string(oSpan.nBottom);
    }
    return sText;
}

RowSpan RowSelection::Shown(const Range& oRange) const {
    return {static_cast<std::size_t>(oRange.nTop + m_nOffset),
            static_cast<std::size_t>(oRange.nBottom + m_nOffset)};
}

// The first range that ends at the row or below it.
RowSelection::Ranges::const_iterator RowSelection::FirstReaching(Row nRow) const {
    const auto itBelow = m_oRanges.upper_bound(nRow);
    if (itBelow == m_oRanges.begin()) return itBelow;
    const auto itAbove = std::prev(itBelow);
    return itAbove->nBottom >= nRow ? itAbove : itBelow;
}

// Moves the ranges below a row: those themselves, or all of them and the ones above back again, whichever
// are fewer.
void RowSelection::MoveUp(Row nFrom, Row nRows) {
    const auto itBelow = m_oRanges.upper_bound(nFrom);
    auto itFromFront = m_oRanges.begin();
    auto itFromBack = m_oRanges.end();
    while (itFromFront != itBelow && itFromBack != itBelow) {
        ++itFromFront;
        --itFromBack;
    }
    const auto Move = [](auto itFirst, auto itLast, Row nBy) {
        for (; itFirst != itLast; ++itFirst) {
            itFirst->nTop += nBy;
            itFirst->nBottom += nBy;
        }
    };
    if (itFromBack == itBelow) return Move(itBelow, m_oRanges.end(), -nRows);
    Move(m_oRanges.begin(), itBelow, nRows);
    m_nOffset -= nRows;
}

// Two parts of one range that meet at the row become one again.
void RowSelection::JoinAt(Row nRow) {
    const auto itBelow = m_oRanges.lower_bound(nRow);
    if (itBelow == m_oRanges.begin() || itBelow == m_oRanges.end()) return;
    const auto itAbove = std::prev(itBelow);
    if (itBelow->nTop != nRow || itAbove->nBottom != nRow - 1 || itAbove->nMade != itBelow->nMade) return;
    itAbove->nBottom = itBelow->nBottom;
    m_oRanges.erase(itBelow);
}

} // namespace GleanerSvc::Models
