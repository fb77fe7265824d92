// A well of a 96-well plate. Rows 0 to 7 are shown as A to H, columns 0 to 11 as 1 to 12.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace GleanerSvc {

inline constexpr std::int32_t PlateCols = 12;
inline constexpr std::int32_t PlateRows = 8;
inline constexpr std::int16_t PlateWells = PlateCols * PlateRows;

struct Well {
    std::int32_t iCol = 0;
    std::int32_t iRow = 0;

    friend bool operator==(const Well&, const Well&) = default;
};

// Row by row from 1: 1 is A1, 12 is A12, 13 is B1, 96 is H12. A well that no plate has fails with subscript,
// naming column and row.
std::int16_t WellIndex(const Well& oWell);
// The well of an index from 1 to 96.
Well WellAt(std::int16_t iIndex);

inline char RowLetter(std::int32_t iRow) { return static_cast<char>('A' + iRow); }
// "C5" is row 2, column 4. Reading yields nothing for any text but "A1" to "H12".
std::string WellText(const Well& oWell);
std::optional<Well> ReadWell(std::string_view sText);

} // namespace GleanerSvc
