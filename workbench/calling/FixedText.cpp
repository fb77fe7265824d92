#include "workbench/calling/FixedText.h"

#include <array>
#include <charconv>

namespace GleanerSvc::Workbench {

std::string FixedText(double dValue, int nDigits) {
    std::array<char, 400> acText{}; // the largest double has 309 digits before its point
    const auto oEnd = std::to_chars(acText.data(), acText.data() + acText.size(), dValue,
                                    std::chars_format::fixed, nDigits);
    return {acText.data(), oEnd.ptr};
}

} // namespace GleanerSvc::Workbench
