// The text form of dates in this filling: "2026-11-22" for midnight, otherwise "2026-11-22 14:05:09".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pagebind/Date.h"

namespace GleanerSvc::Models {

// To the nearest second. A date outside the years 100 to 9999 fails with overflow, naming its serial.
std::string WriteDateText(Date dtValue);

// Both forms, and nothing else: no value for a text that is no date, or names an impossible day or time.
// Raises no failure.
std::optional<Date> ReadDateText(std::string_view sText);

} // namespace GleanerSvc::Models
