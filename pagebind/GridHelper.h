// The closed helper that sets grids up and highlights their rows; one for an apartment.
#pragma once

#include <cstdint>
#include <string>

#include "pagebind/Grid.h"

namespace GleanerSvc {

class IGridHelper : public virtual IObject {
  public:
    // First set-up of a grid, before ApplyGridType. The library passes no further value: empty.
    virtual void SetGridDefaults(IGrid& oGrid, bool bFlag, const Value& vFurther) = 0;

    // Lays out columns and headings from a grid type record. Three flags, all False, and one further value.
    virtual void ApplyGridType(IGrid& oGrid, const Ref<IObject>& oGridType, bool bFirst, bool bSecond,
                               bool bThird, const Value& vFurther) = 0;

    // Highlights that row and no other. Row 0 leaves no data row highlighted.
    virtual void HighlightRow(IGrid& oGrid, std::int32_t lRow, const Value& vFurther) = 0;
    virtual bool IsRowHighlighted(IGrid& oGrid, double dRow) = 0;
    virtual std::int32_t GetHighlightedRowCount(IGrid& oGrid) = 0;

    // Leaves rows that were just written standing.
    virtual void ClearGrid(IGrid& oGrid) = 0;

    // Display text of an analysis status.
    virtual std::string StatusText(Value& vStatus) = 0;

    // A readable text colour on that background. Colours: red in the lowest byte.
    virtual std::int32_t ContrastColor(std::int32_t& lColor) = 0;
};

} // namespace GleanerSvc
