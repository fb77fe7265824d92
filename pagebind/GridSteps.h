// Steps that every page and list takes on its grids in the same way. None has a trap of its own: a failure
// belongs to the procedure that takes the step.
#pragma once

#include <cstdint>
#include <vector>

#include "pagebind/Grid.h"
#include "pagebind/RowIndex.h"

namespace GleanerSvc {

// Deselects the whole table, then turns selection off and fully on again, which leaves no range behind.
void ClearSelection(IGrid& oGrid);

// Fixes rows, columns and display for the operator. One grid takes another last setting than the others.
void SetStaticOptions(IGrid& oGrid, std::int16_t iLast);

// Sorts all rows by column 1 as text, then by another column as number or date, both in one direction.
void SortRows(IGrid& oGrid, double dColumn, bool bDescending, bool bCase);

// The rows of a list's first so many ranges, each as its own key and value.
void FillRowIndex(IRowIndex& oRowIndex, IGridRangeList& oRanges, std::int32_t lRanges);
// The value at a place of the index, from 1: avKeys is what its Keys gave. Fails with subscript beyond them.
Value RowAt(IRowIndex& oRowIndex, const std::vector<Value>& avKeys, std::int32_t lPlace);

} // namespace GleanerSvc
