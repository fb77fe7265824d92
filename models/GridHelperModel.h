// The grid helper over grid models. A grid of another filling fails with type mismatch.
#pragma once

#include <map>

#include "models/GridModel.h"
#include "pagebind/GridHelper.h"

namespace GleanerSvc::Models {

// Its journal entries stand under "GridHelper"; what it does inside a grid makes none.
class GridHelperModel final : public IGridHelper, Journaled {
  public:
    explicit GridHelperModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "GridHelper") {}

    // Headings empty, every column of default width and on show; rows and counts stay.
    void SetGridDefaults(IGrid& oGrid, bool bFlag, const Value& vFurther) override;

    // Headings and widths of the record's columns; the column count is left to the page. A record of
    // another type fails with type mismatch, nothing with object not set.
    void ApplyGridType(IGrid& oGrid, const Ref<IObject>& oGridType, bool bFirst, bool bSecond, bool bThird,
                       const Value& vFurther) override;

    // A row that does not exist leaves none highlighted, like row 0.
    void HighlightRow(IGrid& oGrid, std::int32_t lRow, const Value& vFurther) override;
    bool IsRowHighlighted(IGrid& oGrid, double dRow) override; // False for a row that does not exist
    std::int32_t GetHighlightedRowCount(IGrid& oGrid) override;
    void ClearGrid(IGrid& oGrid) override; // the highlight goes, the rows stay

    // What was set for the code; otherwise "PASS" for 0 and "FAIL", a blank and the code for any other.
    std::string StatusText(Value& vStatus) override;
    // Black on a light background, white on a dark one.
    std::int32_t ContrastColor(std::int32_t& lColor) override;

    // Sets the text of a status code.
    void StatusText(std::int32_t lCode, std::string sText) { m_oTexts[lCode] = std::move(sText); }

  private:
    std::map<std::int32_t, std::string> m_oTexts;
};

} // namespace GleanerSvc::Models
