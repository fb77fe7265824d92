// The pictures of the plate view, by the names that a view draws them under. Wells are 24 by 24 pixels on a
// grey field of colour 988A8A (red, green, blue in hexadecimal).
#pragma once

#include <string>
#include <string_view>

#include "pagebind/controls/Picture.h"

namespace GleanerSvc {

namespace WellPicture {
inline constexpr std::string_view Empty = "WellEmpty"; // an open dark ring, the centre grey
inline constexpr std::string_view Raw = "WellRaw";     // solid dark, 69595A
inline constexpr std::string_view RawChecked =
    "WellRawChecked"; // dark rim, amber disc F89D0A and F8C508, grey spot
inline constexpr std::string_view Warning = "WellWarning"; // dark, with a small yellow triangle F8C508
inline constexpr std::string_view WarningChecked =
    "WellWarningChecked"; // an amber ring F89D0A, the centre dark
} // namespace WellPicture

inline Picture WellPictureOf(std::string_view sName) { return {std::string(sName), 360, 360}; }

// The ground that the wells stand on, with the letters A to H and the numbers 1 to 12: 329 by 265 pixels.
inline Picture PlateBackground() { return {"PlateBackground", 4935, 3975}; }
// The corner that stands for the whole plate: 16 by 13 pixels.
inline Picture AllWellsPicture() { return {"AllWells", 240, 195}; }

} // namespace GleanerSvc
