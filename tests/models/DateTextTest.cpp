#include "models/DateText.h"

#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

TEST(DateTextTest, WritesAndReadsBothForms) {
    const std::pair<CivilTime, const char*> aoCases[] = {
        {{2026, 11, 22}, "2026-11-22"},
        {{2026, 11, 22, 14, 5, 9}, "2026-11-22 14:05:09"},
        {{2024, 2, 29, 0, 0, 1}, "2024-02-29 00:00:01"},
        {{1899, 12, 29, 23, 59, 59}, "1899-12-29 23:59:59"}, // before the serials' first day
        {{100, 1, 1}, "0100-01-01"},
        {{9999, 12, 31, 23, 59, 59}, "9999-12-31 23:59:59"},
    };
    for (const auto& [oTime, sText] : aoCases) {
        EXPECT_EQ(WriteDateText(Date::Of(oTime)), sText);
        EXPECT_EQ(ReadDateText(sText), Date::Of(oTime)) << sText;
    }
    EXPECT_EQ(ReadDateText("2026-11-22 00:00:00"), Date::Of({2026, 11, 22}));
}

TEST(DateTextTest, AFractionOfASecondDoesNotShow) {
    const double dSecond = 1.0 / 86400;
    EXPECT_EQ(WriteDateText(Date(46348 - 0.4 * dSecond)), WriteDateText(Date(46348)));
    EXPECT_EQ(WriteDateText(Date(46348 + 0.4 * dSecond)), WriteDateText(Date(46348)));
}

TEST(DateTextTest, ReadsNoValueFromWhatIsNoDate) {
    std::istringstream oTexts(
        "A1|2026-11-2|2026-11-22 | 2026-11-22|2026-11-22x|2026/11/22|2026-11-22 10:00|"
        "2026-11-22 10:00:00 23:59:59|2026-11-22T10:00:00|2026-11-22 1:00:00 |2026-13-01|"
        "2026-00-10|2026-02-29|2026-04-31|2026-11-00|0099-11-22|2026-11-22 24:00:00|"
        "2026-11-22 10:60:00|2026-11-22 10:00:60|20a6-11-22|-026-11-22||");
    for (std::string sText; std::getline(oTexts, sText, '|');) {
        EXPECT_FALSE(ReadDateText(sText)) << '"' << sText << '"';
    }
}

TEST(DateTextTest, ADateOfNoYearFailsByItsSerial) {
    for (const double dSerial : {-657435.0, 2958466.0, 1e300, std::nan("")}) {
        EXPECT_TRUE(FailureOf([&] { WriteDateText(Date(dSerial)); }).Is(FailureNumber::Overflow)) << dSerial;
    }
    EXPECT_EQ(FailureOf([] { WriteDateText(Date(-657435)); }).Description(),
              "The date with the serial -657435 lies outside the years 100 to 9999.");
}

} // namespace
} // namespace GleanerSvc::Models
