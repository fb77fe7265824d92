// The platform's serial date: whole days since 30 December 1899, and the time as a fraction of the day.
// Arithmetic only; the text form of a date is the platform service's.
#pragma once

#include <compare>
#include <cstdint>

namespace GleanerSvc {

// A date taken apart: the proleptic Gregorian calendar, to the second.
struct CivilTime {
    std::int32_t lYear = 1899;
    std::int32_t lMonth = 12; // 1 to 12
    std::int32_t lDay = 30;   // 1 to 31
    std::int32_t lHour = 0;
    std::int32_t lMinute = 0;
    std::int32_t lSecond = 0;

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

class Date {
  public:
    constexpr Date() = default;
    constexpr explicit Date(double dSerial) : m_dSerial(dSerial) {}

    // Fails with invalid call when a field is out of its range, the day of the month included. Years run
    // from 100 to 9999.
    static Date Of(const CivilTime& oTime);

    // Days since 30 December 1899. The fraction always counts forward from the day's start, before that
    // day too, so that dates compare as their serials do.
    constexpr double Serial() const { return m_dSerial; }

    // Rounded to the nearest second.
    CivilTime Civil() const;

    // The same day at midnight.
    Date Day() const;

    // NOLINTNEXTLINE(modernize-use-nullptr): the 0 that it sees is of the compiler's own making
    friend constexpr auto operator<=>(const Date&, const Date&) = default;

  private:
    double m_dSerial = 0;
};

} // namespace GleanerSvc
