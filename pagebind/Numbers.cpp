#include "pagebind/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "pagebind/Failure.h"

namespace GleanerSvc {

namespace {

template<class T>
T Narrow(double dNumber) {
    const double dRounded = std::nearbyint(dNumber); // the default rounding mode is half to even
    const bool bFits = dRounded >= std::numeric_limits<T>::min() && dRounded <= std::numeric_limits<T>::max();
    if (!bFits) throw Failure::Of(FailureNumber::Overflow);
    return static_cast<T>(dRounded);
}

std::string_view TrimBlanks(std::string_view sText) {
    const auto nFirst = sText.find_first_not_of(' ');
    if (nFirst == std::string_view::npos) return {};
    return sText.substr(nFirst, sText.find_last_not_of(' ') - nFirst + 1);
}

Failure NoNumber(std::string_view sText) {
    return Failure(FailureNumber::TypeMismatch, "GleanerSvc",
                   "Type mismatch: \"" + std::string(sText) + "\" is no number.");
}

// The plain case, an integer that stands alone, needs no floating point.
bool ReadInteger(std::string_view sText, std::int32_t& lNumber) {
    const char* pEnd = sText.data() + sText.size();
    const auto oRead = std::from_chars(sText.data(), pEnd, lNumber);
    return oRead.ec == std::errc() && oRead.ptr == pEnd;
}

} // namespace

std::int16_t ToInt16(double dNumber) { return Narrow<std::int16_t>(dNumber); }

std::int32_t ToInt32(double dNumber) { return Narrow<std::int32_t>(dNumber); }

double ToNumber(std::string_view sText) {
    std::string_view sDigits = TrimBlanks(sText);
    if (sDigits.size() > 1 && sDigits.front() == '+' && sDigits[1] != '-') sDigits.remove_prefix(1);
    double dNumber = 0;
    const char* pEnd = sDigits.data() + sDigits.size();
    const auto oRead = std::from_chars(sDigits.data(), pEnd, dNumber);
    if (oRead.ec == std::errc::result_out_of_range) throw Failure::Of(FailureNumber::Overflow);
    const bool bWhole = oRead.ec == std::errc() && oRead.ptr == pEnd && std::isfinite(dNumber);
    if (!bWhole) throw NoNumber(sText);
    return dNumber;
}

std::int32_t ToInt32(std::string_view sText) {
    std::int32_t lNumber = 0;
    return ReadInteger(sText, lNumber) ? lNumber : ToInt32(ToNumber(sText));
}

} // namespace GleanerSvc
