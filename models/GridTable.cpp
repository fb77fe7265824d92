#include "models/GridTable.h"

#include <algorithm>

namespace GleanerSvc::Models {

namespace {

Ref<const GridRow::Looks> WithStyle(const Ref<const GridRow::Looks>& oOld, std::size_t nFirstCol,
                                    std::size_t nLastCol, const CellStyle& oStyle) {
    const auto oNew = oOld ? std::make_shared<GridRow::Looks>(*oOld) : std::make_shared<GridRow::Looks>();
    oNew->resize(std::max(oNew->size(), nLastCol + 1));
    for (std::size_t nCol = nFirstCol; nCol <= nLastCol; ++nCol) (*oNew)[nCol].Lay(oStyle);
    return oNew;
}

} // namespace

void GridTable::Rows(std::size_t nRows) {
    if (nRows < m_nRows) ForgetFound();
    if (nRows < m_nRows || nRows > m_aoRows.Size()) m_aoRows.Resize(nRows);
    m_nRows = nRows;
}

void GridTable::Cols(std::size_t nCols) {
    if (nCols < m_nCols) {
        m_oHeadings.CutColumns(nCols + 1);
        for (std::size_t nPlace = 0; nPlace < m_aoRows.Size(); ++nPlace)
            m_aoRows[nPlace].CutColumns(nCols + 1);
    }
    m_nCols = nCols;
}

void GridTable::Write(std::size_t nRow, std::size_t nCol, std::string_view sText) {
    if (nRow > m_aoRows.Size()) m_aoRows.Resize(nRow);
    FindRow(nRow).Write(nCol, sText);
}

void GridTable::Remove(RowSpan oSpan) {
    if (oSpan.IsEmpty()) return;
    ForgetFound();
    const std::size_t nRemoved = oSpan.nBottom - oSpan.nTop + 1;
    m_nRows -= nRemoved;
    if (nRemoved == m_aoRows.Size()) return m_aoRows.Clear();
    // From the front while it is the front that goes, so that no gap has to be counted.
    for (std::size_t nLeft = nRemoved; nLeft > 0; --nLeft) {
        m_aoRows.EraseAt(oSpan.nTop == 1 ? 0 : oSpan.nTop + nLeft - 2);
    }
}

void GridTable::LayStyle(RowSpan oRows, std::size_t nFirstCol, std::size_t nLastCol,
                         const CellStyle& oStyle) {
    if (oStyle.IsEmpty() || oRows.IsEmpty() || nLastCol < nFirstCol) return;
    if (oRows.nBottom > m_aoRows.Size()) m_aoRows.Resize(oRows.nBottom);
    Ref<const GridRow::Looks> oOld;
    Ref<const GridRow::Looks> oNew = WithStyle(oOld, nFirstCol, nLastCol, oStyle);
    for (std::size_t nRow = oRows.nTop; nRow <= oRows.nBottom; ++nRow) {
        GridRow& oRow = FindRow(nRow);
        if (oRow.SharedLooks() != oOld) {
            oOld = oRow.SharedLooks();
            oNew = WithStyle(oOld, nFirstCol, nLastCol, oStyle);
        }
        oRow.ShareLooks(oNew);
    }
}

CellStyle GridTable::StyleAt(std::size_t nRow, std::size_t nCol) const {
    const auto& oLooks = Row(nRow).SharedLooks();
    return oLooks && nCol < oLooks->size() ? (*oLooks)[nCol] : CellStyle();
}

void GridTable::Sort(RowSpan oSpan, const std::vector<SortKey>& aoKeys) {
    if (oSpan.IsEmpty()) return;
    ForgetFound();
    const std::size_t nFirst = oSpan.nTop - 1;
    const auto anOrder =
        SortedOrder(oSpan.nBottom - nFirst, aoKeys, [&](std::size_t nPlace, const SortKey& oKey) {
            return m_aoRows[nFirst + nPlace].Text(static_cast<std::size_t>(oKey.dCol));
        });
    m_aoRows.Permute(nFirst, anOrder);
}

GridRow& GridTable::FindRow(std::size_t nRow) {
    if (nRow == 0) return m_oHeadings;
    if (nRow != m_nFoundRow) {
        m_nFoundSlot = m_aoRows.SlotAt(nRow - 1);
        m_nFoundRow = nRow;
    }
    return m_aoRows.AtSlot(m_nFoundSlot);
}

} // namespace GleanerSvc::Models
