// Checked conversions between the widths and from text. Every narrowing that can overflow goes through here.
#pragma once

#include <cstdint>
#include <string_view>

namespace GleanerSvc {

// Round half to even, then narrow; out of range (or not a number) fails with overflow.
std::int16_t ToInt16(double dNumber);
std::int32_t ToInt32(double dNumber);

// A decimal number with optional sign, fraction and exponent; blanks around it are allowed. Text that is
// no number fails with type mismatch.
double ToNumber(std::string_view sText);

// The same as an integer of 32 bits.
std::int32_t ToInt32(std::string_view sText);

} // namespace GleanerSvc
