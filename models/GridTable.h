// The cells behind a grid: rows that are shown, rows that were written ahead of them, and the heading row.
// Knows nothing of painting, selection or journals.
#pragma once

#include <string_view>

#include "models/GridRow.h"
#include "models/GridSort.h"
#include "models/RowSelection.h"
#include "pagebind/Sequence.h"

namespace GleanerSvc::Models {

// Rows count from 1 and row 0 is the heading row; columns count from 0. Places are the caller's to check:
// every row that is read lies from 0 to Rows. The heading row takes no part in counts, removals and sorts.
// Reading, writing, growing by a row and removing a row cost O(log n) at most.
class GridTable {
  public:
    std::size_t Rows() const { return m_nRows; }
    // Growing brings rows that were written ahead to light; shrinking drops every row beyond the new count,
    // those written ahead as well.
    void Rows(std::size_t nRows);

    std::size_t Cols() const { return m_nCols; }
    // The same for columns.
    void Cols(std::size_t nCols);

    // "" for a cell that was never written. Stands until the table is next written to or changed.
    std::string_view Text(std::size_t nRow, std::size_t nCol) const { return Row(nRow).Text(nCol); }
    std::string_view Text(std::size_t nRow, std::size_t nCol) { return FindRow(nRow).Text(nCol); }
    // Any place: what lies beyond the counts is kept. The text may be one of the table's own.
    void Write(std::size_t nRow, std::size_t nCol, std::string_view sText);

    // Rows below move up, also those written ahead. The span lies within the rows that are shown.
    void Remove(RowSpan oSpan);

    // Reaching past the rows writes ahead: the look holds for rows that come to light later.
    void LayStyle(RowSpan oRows, std::size_t nFirstCol, std::size_t nLastCol, const CellStyle& oStyle);
    CellStyle StyleAt(std::size_t nRow, std::size_t nCol) const;

    // Rows move whole. The span lies within the rows that are shown.
    void Sort(RowSpan oSpan, const std::vector<SortKey>& aoKeys);

  private:
    const GridRow& Row(std::size_t nRow) const { return nRow == 0 ? m_oHeadings : m_aoRows[nRow - 1]; }
    GridRow& FindRow(std::size_t nRow);
    void ForgetFound() { m_nFoundRow = 0; }

    GridRow m_oHeadings;
    Sequence<GridRow> m_aoRows; // row n at place n - 1; at least m_nRows, more when rows were written ahead
    std::size_t m_nRows = 0;
    std::size_t m_nCols = 0;
    std::size_t m_nFoundRow = 0;              // the data row found last and where it stands, since the cells
    Sequence<GridRow>::Slot m_nFoundSlot = 0; // of a row are read and written one after the other; 0 for none
};

} // namespace GleanerSvc::Models
