// Steps that every page and list takes on its grids in the same way. Neither has a trap of its own: a failure
// belongs to the procedure that takes the step.
#pragma once

#include <cstdint>

#include "pagebind/Grid.h"

namespace GleanerSvc {

// Deselects the whole table, then turns selection off and fully on again, which leaves no range behind.
void ClearSelection(IGrid& oGrid);

// Fixes rows, columns and display for the operator. One grid takes another last setting than the others.
void SetStaticOptions(IGrid& oGrid, std::int16_t iLast);

} // namespace GleanerSvc
