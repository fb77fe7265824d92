#include "models/DateText.h"

#include <chrono>
#include <cmath>

#include "pagebind/Failure.h"
#include "pagebind/Value.h"

namespace GleanerSvc::Models {

namespace {

constexpr std::string_view DayForm = "0000-00-00"; // a 0 stands for any digit
constexpr std::string_view TimeForm = "0000-00-00 00:00:00";
constexpr double BeyondAllYears = 4e6; // days; keeps the calendar's arithmetic in range

void WriteDigits(std::string& sText, std::size_t nPlace, std::size_t nDigits, std::int32_t lNumber) {
    for (std::size_t nDigit = nPlace + nDigits; nDigit-- > nPlace; lNumber /= 10) {
        sText[nDigit] = static_cast<char>('0' + lNumber % 10);
    }
}

std::int32_t ReadDigits(std::string_view sText, std::size_t nPlace, std::size_t nDigits) {
    std::int32_t lNumber = 0;
    for (const char cDigit : sText.substr(nPlace, nDigits)) lNumber = lNumber * 10 + (cDigit - '0');
    return lNumber;
}

bool Matches(std::string_view sText, std::string_view sForm) {
    for (std::size_t nPlace = 0; nPlace < sForm.size(); ++nPlace) {
        const bool bDigit = sText[nPlace] >= '0' && sText[nPlace] <= '9';
        if (sForm[nPlace] == '0' ? !bDigit : sText[nPlace] != sForm[nPlace]) return false;
    }
    return true;
}

bool IsPossible(const CivilTime& oTime) {
    const std::chrono::year_month_day oDay{std::chrono::year{oTime.lYear},
                                           std::chrono::month{static_cast<unsigned>(oTime.lMonth)},
                                           std::chrono::day{static_cast<unsigned>(oTime.lDay)}};
    return oTime.lYear >= 100 && oDay.ok() && oTime.lHour < 24 && oTime.lMinute < 60 && oTime.lSecond < 60;
}

CivilTime CheckedCivil(Date dtValue) {
    const CivilTime oTime = std::abs(dtValue.Serial()) < BeyondAllYears ? dtValue.Civil() : CivilTime{0};
    if (oTime.lYear >= 100 && oTime.lYear <= 9999) return oTime;
    throw Failure(FailureNumber::Overflow, "DateText",
                  "The date with the serial " + Value(dtValue.Serial()).ToText() +
                      " lies outside the years 100 to 9999.");
}

} // namespace

std::string WriteDateText(Date dtValue) {
    const CivilTime oTime = CheckedCivil(dtValue);
    const bool bMidnight = oTime.lHour == 0 && oTime.lMinute == 0 && oTime.lSecond == 0;
    std::string sText(bMidnight ? DayForm : TimeForm);
    WriteDigits(sText, 0, 4, oTime.lYear);
    WriteDigits(sText, 5, 2, oTime.lMonth);
    WriteDigits(sText, 8, 2, oTime.lDay);
    if (bMidnight) return sText;
    WriteDigits(sText, 11, 2, oTime.lHour);
    WriteDigits(sText, 14, 2, oTime.lMinute);
    WriteDigits(sText, 17, 2, oTime.lSecond);
    return sText;
}

std::optional<Date> ReadDateText(std::string_view sText) {
    const bool bTime = sText.size() == TimeForm.size();
    if (!bTime && sText.size() != DayForm.size()) return std::nullopt;
    if (!Matches(sText, bTime ? TimeForm : DayForm)) return std::nullopt;
    CivilTime oTime{ReadDigits(sText, 0, 4), ReadDigits(sText, 5, 2), ReadDigits(sText, 8, 2)};
    if (bTime) {
        oTime.lHour = ReadDigits(sText, 11, 2);
        oTime.lMinute = ReadDigits(sText, 14, 2);
        oTime.lSecond = ReadDigits(sText, 17, 2);
    }
    if (!IsPossible(oTime)) return std::nullopt;
    return Date::Of(oTime);
}

} // namespace GleanerSvc::Models
