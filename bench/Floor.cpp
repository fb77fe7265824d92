#include "bench/Floor.h"

#include <algorithm>

namespace GleanerSvc::Bench {

FloorRows RowsOf(const Models::GridModel& oGrid) {
    FloorRows aoRows;
    aoRows.reserve(static_cast<std::size_t>(oGrid.Rows()));
    const auto Cell = [&](std::int32_t lRow, std::int32_t lCol) {
        return std::string(oGrid.Text(lRow, lCol));
    };
    for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); ++lRow) {
        aoRows.push_back({Cell(lRow, 1), Cell(lRow, 2), Cell(lRow, 3), Cell(lRow, 4)});
    }
    return aoRows;
}

void MoveEverySecond(FloorRows& aoRows) {
    const auto Stays = [](const FloorRow& oRow) { return (oRow.sKey.back() - '0') % 2 == 0; };
    std::stable_partition(aoRows.begin(), aoRows.end(), Stays);
}

} // namespace GleanerSvc::Bench
