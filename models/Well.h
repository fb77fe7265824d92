// A well of a 96-well plate, and its text: "C5" is row 2, column 4.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace GleanerSvc::Models {

inline constexpr std::int32_t PlateCols = 12;
inline constexpr std::int32_t PlateRows = 8;
inline constexpr std::size_t PlateWells = static_cast<std::size_t>(PlateCols) * PlateRows;

struct Well {
    std::int32_t iCol = 0; // 0 to 11
    std::int32_t iRow = 0; // 0 to 7

    friend bool operator==(const Well&, const Well&) = default;
};

// 0 to 95, row by row. A well that no plate has fails with subscript, naming column and row.
std::size_t WellPlace(const Well& oWell);

std::string WriteWell(const Well& oWell);
std::optional<Well> ReadWell(std::string_view sText); // "A1" to "H12", else nothing

} // namespace GleanerSvc::Models
