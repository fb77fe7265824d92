#include "pagebind/Date.h"

#include <chrono>
#include <cmath>

#include "pagebind/Failure.h"

namespace GleanerSvc {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t SecondsPerDay = 86400;
constexpr sys_days Epoch{std::chrono::year{1899} / 12 / 30};

year_month_day CalendarDay(const CivilTime& oTime) {
    return {std::chrono::year{oTime.lYear}, std::chrono::month{static_cast<unsigned>(oTime.lMonth)},
            std::chrono::day{static_cast<unsigned>(oTime.lDay)}};
}

bool IsWithin(std::int32_t lNumber, std::int32_t lFirst, std::int32_t lLast) {
    return lNumber >= lFirst && lNumber <= lLast;
}

bool IsValid(const CivilTime& oTime) {
    return IsWithin(oTime.lYear, 100, 9999) && IsWithin(oTime.lMonth, 1, 12) && IsWithin(oTime.lDay, 1, 31) &&
           CalendarDay(oTime).ok() && IsWithin(oTime.lHour, 0, 23) && IsWithin(oTime.lMinute, 0, 59) &&
           IsWithin(oTime.lSecond, 0, 59);
}

} // namespace

Date Date::Of(const CivilTime& oTime) {
    if (!IsValid(oTime)) throw Failure::Of(FailureNumber::InvalidCall);
    const auto lDays = (sys_days{CalendarDay(oTime)} - Epoch).count();
    const auto lSeconds = (oTime.lHour * 60 + oTime.lMinute) * 60 + oTime.lSecond;
    return Date(static_cast<double>(lDays) +
                static_cast<double>(lSeconds) / static_cast<double>(SecondsPerDay));
}

CivilTime Date::Civil() const {
    const auto lSeconds = std::llround(m_dSerial * static_cast<double>(SecondsPerDay));
    const auto lDays = lSeconds / SecondsPerDay - (lSeconds % SecondsPerDay < 0 ? 1 : 0);
    const auto lOfDay = static_cast<std::int32_t>(lSeconds - lDays * SecondsPerDay);
    const year_month_day oDay{Epoch + std::chrono::days{lDays}};
    return {static_cast<int>(oDay.year()),
            static_cast<std::int32_t>(static_cast<unsigned>(oDay.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(oDay.day())),
            lOfDay / 3600,
            lOfDay / 60 % 60,
            lOfDay % 60};
}

Date Date::Day() const { return Date(std::floor(m_dSerial)); }

} // namespace GleanerSvc
