// Text as the pages use it. All text is UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace GleanerSvc {

// Equal without regard to case. Folds the letters A to Z only: names, modes, action codes and keys that
// the library compares are of those.
bool EqualsIgnoringCase(std::string_view sLeft, std::string_view sRight);

// Cuts trailing blanks, and blanks only: stored names are padded with them.
std::string_view RightTrim(std::string_view sText);

// The text with the letters A to Z in lower case: what a keyed collection compares keys by.
std::string FoldCase(std::string_view sText);

// The text with the letters a to z in upper case.
std::string UpperCase(std::string_view sText);

// "-1", "40000": decimal, no blanks, no separators. The key form of a record ID.
std::string DecimalText(std::int64_t lNumber);

} // namespace GleanerSvc
