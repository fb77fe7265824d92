#include "pagebind/Date.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(DateTest, IsDaysAndFractionSinceTheEndOf1899AndBack) {
    const std::pair<CivilTime, double> aoCases[] = {
        {{1899, 12, 31, 6}, 1.25},
        {{1899, 12, 29, 18}, -0.25},  // a day before the first: its fraction counts forward too
        {{1900, 3, 1}, 61},           // 1900 was no leap year
        {{2000, 2, 29, 12}, 36585.5}, // 2000 was one
        {{100, 1, 1}, -657434},
        {{9999, 12, 31, 23, 59, 59}, 2958465 + 86399.0 / 86400},
    };
    for (const auto& [oTime, dSerial] : aoCases) {
        EXPECT_DOUBLE_EQ(Date::Of(oTime).Serial(), dSerial);
        EXPECT_EQ(Date(dSerial).Civil(), oTime) << dSerial;
    }
    EXPECT_EQ(Date(10 - 0.4 / 86400).Civil(), (CivilTime{1900, 1, 9})); // to the nearest second
}

TEST(DateTest, EachSecondOfADayComesBack) {
    for (const double dDay : {-657434.0, -1.0, 0.0, 40000.0, 2958465.0}) {
        for (int nSecond = 0; nSecond < 86400; nSecond += 7) {
            const CivilTime oDay = Date(dDay).Civil();
            const CivilTime oTime{oDay.lYear,     oDay.lMonth,       oDay.lDay,
                                  nSecond / 3600, nSecond / 60 % 60, nSecond % 60};
            ASSERT_EQ(Date::Of(oTime).Civil(), oTime) << dDay << " " << nSecond;
            ASSERT_EQ(Date::Of(oTime).Day(), Date(dDay)) << dDay << " " << nSecond;
        }
    }
}

TEST(DateTest, FieldOutOfItsRangeFails) {
    const CivilTime aoTimes[] = {
        {2023, 2, 29},    {1900, 2, 29},       {2024, 4, 31},         {2024, 13, 1}, {2024, 0, 1},
        {2024, 1, 0},     {2024, 1, 257},      {99, 12, 31},          {10000, 1, 1}, {2024, 1, 1, 24},
        {2024, 1, 1, -1}, {2024, 1, 1, 0, 60}, {2024, 1, 1, 0, 0, 60}};
    for (const auto& oTime : aoTimes)
        EXPECT_TRUE(FailureOf([&] { Date::Of(oTime); }).Is(FailureNumber::InvalidCall)) << oTime.lYear;
}

} // namespace
} // namespace GleanerSvc
