#include "pagebind/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace GleanerSvc {

namespace {

char Lower(char cLetter) {
    return cLetter >= 'A' && cLetter <= 'Z' ? static_cast<char>(cLetter - 'A' + 'a') : cLetter;
}

char Upper(char cLetter) {
    return cLetter >= 'a' && cLetter <= 'z' ? static_cast<char>(cLetter - 'a' + 'A') : cLetter;
}

} // namespace

bool EqualsIgnoringCase(std::string_view sLeft, std::string_view sRight) {
    return std::equal(sLeft.begin(), sLeft.end(), sRight.begin(), sRight.end(),
                      [](char cLeft, char cRight) { return Lower(cLeft) == Lower(cRight); });
}

std::string_view RightTrim(std::string_view sText) {
    return sText.substr(0, sText.find_last_not_of(' ') + 1);
}

std::string FoldCase(std::string_view sText) {
    std::string sFolded(sText);
    std::transform(sFolded.begin(), sFolded.end(), sFolded.begin(), Lower);
    return sFolded;
}

std::string UpperCase(std::string_view sText) {
    std::string sUpper(sText);
    std::transform(sUpper.begin(), sUpper.end(), sUpper.begin(), Upper);
    return sUpper;
}

std::string DecimalText(std::int64_t lNumber) {
    std::array<char, 24> aDigits{};
    char* pEnd = std::to_chars(aDigits.data(), aDigits.data() + aDigits.size(), lNumber).ptr;
    return {aDigits.data(), pEnd};
}

} // namespace GleanerSvc
