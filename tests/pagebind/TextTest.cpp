#include "pagebind/Text.h"

#include <gtest/gtest.h>

namespace GleanerSvc {
namespace {

TEST(TextTest, CaseIsThatOfTheLettersAToZ) {
    EXPECT_TRUE(EqualsIgnoringCase("<<Skip", "<<sKIP"));
    EXPECT_FALSE(EqualsIgnoringCase("Skip", "Skip "));
    EXPECT_FALSE(EqualsIgnoringCase("[", "{")); // as far apart as a letter from its capital
    EXPECT_EQ(FoldCase("AZ az @[ \u00C4"), "az az @[ \u00C4");
    EXPECT_EQ(UpperCase("AZ az `{ \u00E4"), "AZ AZ `{ \u00E4");
}

TEST(TextTest, RightTrimCutsBlanksAtTheEndAndNothingElse) {
    EXPECT_EQ(RightTrim("  two\t   "), "  two\t");
    EXPECT_EQ(RightTrim("   "), "");
}

} // namespace
} // namespace GleanerSvc
