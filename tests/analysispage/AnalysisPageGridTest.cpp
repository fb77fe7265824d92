#include <gtest/gtest.h>

#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

// A finished run of lItems in which the given items, from row 1, failed.
struct FinishedRun : AnalysisScene {
    FinishedRun(std::int32_t lItems, const IDs& alFailed) : AnalysisScene(lItems) {
        Models::AnalyzerScript oScript;
        for (std::int32_t lRow = 1; lRow <= lItems; ++lRow) {
            const bool bFailed = std::find(alFailed.begin(), alFailed.end(), lRow) != alFailed.end();
            oScript.Complete(lRow - 1, bFailed ? 0 : 1000 + lRow, bFailed ? Bad : Passed);
        }
        Analyze(std::move(oScript), lItems);
    }
    // "<" and ">" are presses of the two buttons, a number is a click on that row.
    void Do(const std::string& sStep) const {
        if (sStep == "<") return oPage->cmdFailPrevious.Press();
        if (sStep == ">") return oPage->cmdFailNext.Press();
        Grid().ClickLeft(std::stoi(sStep), 1);
    }
};

// A click between failures belongs to the earlier one.
TEST(AnalysisPageGrid, FailuresAreSteppedThrough) {
    const struct {
        std::int32_t lItems;
        IDs alFailed;
        const char* sSteps;
        const char* sPlaces; // at the end of the run, and after each step
    } aCases[] = {
        {10, {2, 5, 9}, "< < < > >", "10< 9< 5<> 2> 5<> 9<"},
        {10, {2, 5, 9}, "1 >", "10< 1> 2>"},
        {10, {2, 5, 9}, "2 >", "10< 2> 5<>"},
        {10, {2, 5, 9}, "5 >", "10< 5<> 9<"},
        {10, {2, 5, 9}, "5 <", "10< 5<> 2>"},
        {10, {2, 5, 9}, "7 >", "10< 7<> 9<"},
        {10, {2, 5, 9}, "7 <", "10< 7<> 5<>"},
        {10, {2, 5, 9}, "9 <", "10< 9< 5<>"},
        {10, {2, 5, 9}, "10 <", "10< 10< 9<"},
        {3, {}, "", "3hidden"},
        {3, {3}, "", "3"}, // it is on show already
        {3, {2}, "< 1 > 3", "3< 2 1> 2 3<"},
    };
    for (const auto& [lItems, alFailed, sSteps, sPlaces] : aCases) {
        FinishedRun oScene(lItems, alFailed);
        std::string sShown = oScene.Place();
        std::istringstream oSteps(sSteps);
        for (std::string sStep; oSteps >> sStep;) {
            oScene.Do(sStep);
            sShown += " " + oScene.Place();
        }
        EXPECT_EQ(sShown, sPlaces);
    }
}

TEST(AnalysisPageGrid, DetailsOfARowComeFromItsStoredResult) {
    FinishedRun oScene(3, {2});
    oScene.Grid().ClickLeft(3, 1); // the second result stored
    EXPECT_EQ(oScene.Details(), "details of R3");
    EXPECT_EQ(oScene.oPage->txtDetails.SelStart(), 13U);
    oScene.oPage->cmdFailPrevious.Press();
    EXPECT_EQ(oScene.Details(), "Result was not stored");
    oScene.Grid().DragRows(1, 1); // by the moved selection, once the run has ended
    EXPECT_EQ(oScene.Details(), "details of R1");
    EXPECT_TRUE(oScene.Grid().DoubleClick(2, 1).vValue.ToBool());
    EXPECT_TRUE(oScene.Grid().MoveMouse44(2, 1).vValue.ToBool());
}

} // namespace
} // namespace GleanerSvc
