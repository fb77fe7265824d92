// The floor that the operations are measured against: the same rows in a bare vector.
#pragma once

#include <string>
#include <vector>

#include "models/GridModel.h"

namespace GleanerSvc::Bench {

// The four cells of a row.
struct FloorRow {
    std::string sName;
    std::string sDate;
    std::string sProjectID;
    std::string sKey;
};
using FloorRows = std::vector<FloorRow>;

FloorRows RowsOf(const Models::GridModel& oGrid);

// Rows 1, 3, 5... go behind the others; each half keeps its order. Rows stand by their keys, which count
// from 1.
//
// The one floor of all operations, so that their ratios compare with each other. It is the strictest that
// still moves rows: whole rows change their place by pointers, no text is written or read but the last digit
// of a key, and no record, no key table and no second list is kept. A partition shifts every row, whether
// half or all of them change sides, so it serves Add All as it serves the moving of every second row.
void MoveEverySecond(FloorRows& aoRows);

} // namespace GleanerSvc::Bench
