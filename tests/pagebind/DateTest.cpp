#include "pagebind/Date.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(DateTest, IsDaysAndFractionSinceTheEndOf1899AndBack) {
    const struct {
        CivilTime oTime;
        double dSerial;
    } aoCases[] = {
        {{1899, 12, 30}, 0},
        {{1899, 12, 31, 6}, 1.25},
        {{1899, 12, 29, 18}, -0.25},  // a day before the first: its fraction counts forward too
        {{1900, 3, 1}, 61},           // 1900 was no leap year
        {{2000, 2, 29, 12}, 36585.5}, // 2000 was one
        {{2009, 7, 6, 23, 59, 59}, 40000 + 86399.0 / 86400},
        {{100, 1, 1}, -657434},
        {{1600, 2, 29, 0, 0, 1}, -109512 + 1.0 / 86400},
        {{9999, 12, 31, 23, 59, 59}, 2958465 + 86399.0 / 86400},
    };
    for (const auto& oCase : aoCases) {
        SCOPED_TRACE(oCase.dSerial);
        EXPECT_DOUBLE_EQ(Date::Of(oCase.oTime).Serial(), oCase.dSerial);
        EXPECT_EQ(Date(oCase.dSerial).Civil(), oCase.oTime);
    }
}

TEST(DateTest, EachSecondOfADayComesBack) {
    for (const double dDay : {-657434.0, -1.0, 0.0, 40000.0, 2958465.0}) {
        for (int nSecond = 0; nSecond < 86400; nSecond += 7) {
            CivilTime oTime = Date(dDay).Civil();
            oTime.lHour = nSecond / 3600;
            oTime.lMinute = nSecond / 60 % 60;
            oTime.lSecond = nSecond % 60;
            ASSERT_EQ(Date::Of(oTime).Civil(), oTime) << dDay << " " << nSecond;
            ASSERT_EQ(Date::Of(oTime).Day(), Date(dDay)) << dDay << " " << nSecond;
        }
    }
}

TEST(DateTest, RoundsToTheNearestSecondAcrossMidnight) {
    EXPECT_EQ(Date(10 - 0.4 / 86400).Civil(), (CivilTime{1900, 1, 9}));
    EXPECT_EQ(Date(10 - 0.6 / 86400).Civil(), (CivilTime{1900, 1, 8, 23, 59, 59}));
    EXPECT_EQ(Date(-0.4 / 86400).Civil(), (CivilTime{}));
    EXPECT_EQ(Date(-0.25).Day(), Date(-1));
    EXPECT_LT(Date(-0.25), Date(0));
}

TEST(DateTest, FieldOutOfItsRangeFails) {
    const CivilTime aoTimes[] = {
        {2023, 2, 29},    {1900, 2, 29},    {2024, 4, 31},       {2024, 13, 1},          {2024, 0, 1},
        {2024, 1, 0},     {2024, 1, 32},    {2024, 1, 257},      {99, 12, 31},           {10000, 1, 1},
        {2024, 1, 1, 24}, {2024, 1, 1, -1}, {2024, 1, 1, 0, 60}, {2024, 1, 1, 0, 0, 60},
    };
    for (const auto& oTime : aoTimes) {
        SCOPED_TRACE(testing::Message() << oTime.lYear << "-" << oTime.lMonth << "-" << oTime.lDay);
        EXPECT_TRUE(FailureOf([&] { Date::Of(oTime); }).Is(FailureNumber::InvalidCall));
    }
}

} // namespace
} // namespace GleanerSvc
