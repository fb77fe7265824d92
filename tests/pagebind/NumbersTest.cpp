#include "pagebind/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(NumbersTest, NarrowingRoundsHalfToEvenAndFailsBeyondTheWidth) {
    const struct {
        double dNumber;
        const char* sInt16;
        const char* sInt32;
    } aoCases[] = {
        {1.5, "2", "2"},
        {2.5, "2", "2"},
        {-0.5, "0", "0"},
        {2.5000001, "3", "3"},
        {32767.49, "32767", "32767"},
        {32767.5, "Overflow", "32768"},
        {-32768.5, "-32768", "-32768"},
        {-32768.51, "Overflow", "-32769"},
        {2147483647.49, "Overflow", "2147483647"},
        {2147483647.5, "Overflow", "Overflow"},
        {-2147483648.5, "Overflow", "-2147483648"},
        {-2147483649.0, "Overflow", "Overflow"},
        {std::nan(""), "Overflow", "Overflow"},
        {std::numeric_limits<double>::infinity(), "Overflow", "Overflow"},
    };
    for (const auto& oCase : aoCases) {
        SCOPED_TRACE(oCase.dNumber);
        EXPECT_EQ(OutcomeOf([&] { return ToInt16(oCase.dNumber); }), oCase.sInt16);
        EXPECT_EQ(OutcomeOf([&] { return ToInt32(oCase.dNumber); }), oCase.sInt32);
    }
}

TEST(NumbersTest, TextReadsAsTheNumberThatItSpells) {
    for (const char* sText : {"7.25", "  7.25 ", "+7.25", "725e-2", "0.725E1", "007.250"}) {
        EXPECT_EQ(ToNumber(sText), 7.25) << sText;
    }
    EXPECT_EQ(ToNumber("-.5"), -0.5);
    EXPECT_EQ(FailureOf([] { ToNumber("12px"); }).Description(), "Type mismatch: \"12px\" is no number.");
    for (const char* sText :
         {"", "  ", "+", "+-1", "++1", "1 2", "1,5", "12px", "0x10", "inf", "nan", "\t1"}) {
        EXPECT_EQ(OutcomeOf([&] { return ToNumber(sText); }), "Type mismatch") << sText;
    }
    for (const char* sText : {"1e999", "-1e999"}) {
        EXPECT_EQ(OutcomeOf([&] { return ToNumber(sText); }), "Overflow") << sText;
    }
}

TEST(NumbersTest, TextReadsAsAnIntegerOfThirtyTwoBits) {
    EXPECT_EQ(ToInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInt32(" 2.5"), 2);
    EXPECT_EQ(OutcomeOf([] { return ToInt32("2147483648"); }), "Overflow");
}

} // namespace
} // namespace GleanerSvc
