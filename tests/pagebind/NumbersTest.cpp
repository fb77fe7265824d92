#include "pagebind/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(NumbersTest, NarrowingRoundsHalfToEvenAndFailsBeyondTheWidth) {
    const std::pair<double, const char*> aoCases[] = {
        {1.5000001, "2 2"},
        {2.5, "2 2"},
        {32767.49, "32767 32767"},
        {32767.5, "Overflow 32768"},
        {-32768.5, "-32768 -32768"},
        {-32768.51, "Overflow -32769"},
        {2147483647.49, "Overflow 2147483647"},
        {2147483647.5, "Overflow Overflow"},
        {-2147483648.5, "Overflow -2147483648"},
        {-2147483648.51, "Overflow Overflow"},
        {std::nan(""), "Overflow Overflow"},
    };
    for (const auto& [dNumber, sOutcomes] : aoCases) {
        const double dGiven = dNumber;
        const std::string sInt16 = OutcomeOf([&] { return ToInt16(dGiven); });
        EXPECT_EQ(sInt16 + " " + OutcomeOf([&] { return ToInt32(dGiven); }), sOutcomes) << dGiven;
    }
}

TEST(NumbersTest, TextReadsAsTheNumberThatItSpells) {
    for (const char* sText : {"7.25", "  7.25 ", "+7.25", "725e-2", "0.725E1", "007.250"})
        EXPECT_EQ(ToNumber(sText), 7.25) << sText;
    EXPECT_EQ(FailureOf([] { ToNumber("12px"); }).Description(), "Type mismatch: \"12px\" is no number.");
    for (const char* sText : {"", "  ", "+", "+-1", "++1", "1 2", "1,5", "0x10", "inf", "nan", "\t1"})
        EXPECT_TRUE(FailureOf([&] { ToNumber(sText); }).Is(FailureNumber::TypeMismatch)) << sText;
    EXPECT_EQ(OutcomeOf([] { return ToNumber("-1e999"); }), "Overflow");
    EXPECT_EQ(OutcomeOf([] { return ToInt32(" 2.5"); }), "2");
    EXPECT_EQ(OutcomeOf([] { return ToInt32("2147483648"); }), "Overflow");
}

} // namespace
} // namespace GleanerSvc
