// One row of a grid: the texts and the looks of its cells.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "models/GridStyle.h"
#include "pagebind/Object.h"

namespace GleanerSvc::Models {

// Columns count from 0. The texts of a row stand in one block: a usual row costs one allocation, and texts
// stay where they are when the row moves.
class GridRow {
  public:
    // "" for a cell that was never written. Stands until the row changes.
    std::string_view Text(std::size_t nCol) const;
    // The text may be one of the row's own. One of 4 GB or more fails with overflow.
    void Write(std::size_t nCol, std::string_view sText);

    using Looks = std::vector<CellStyle>; // by column; unset beyond the last

    // Rows that look the same share one object, which is never changed; nothing for default looks.
    const Ref<const Looks>& SharedLooks() const { return m_oLooks; }
    void ShareLooks(Ref<const Looks> oLooks) { m_oLooks = std::move(oLooks); }

    // Drops the cells of the columns from nCols up.
    void CutColumns(std::size_t nCols);

  private:
    // Each cell in turn: the length of its text in four bytes, then the text.
    std::string m_sCells;
    Ref<const Looks> m_oLooks;
};

} // namespace GleanerSvc::Models
