#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

// A finished run of lItems in which the given items, from row 1, failed.
struct FinishedRun : AnalysisScene {
    FinishedRun(std::int32_t lItems, const std::vector<std::int32_t>& alFailed) : AnalysisScene(lItems) {
        Models::AnalyzerScript oScript;
        for (std::int32_t lRow = 1; lRow <= lItems; ++lRow) {
            const bool bFailed = std::find(alFailed.begin(), alFailed.end(), lRow) != alFailed.end();
            oScript.Complete(lRow - 1, bFailed ? 0 : 1000 + lRow, bFailed ? Bad : Passed);
        }
        Analyze(std::move(oScript));
        Analyzer().PlayAll();
    }
    // "9<>": the row on show and the buttons that can be pressed.
    std::string Place() const {
        const auto alRows = Grid().HighlightedRows();
        return (alRows.size() == 1 ? DecimalText(alRows[0]) : "?") + FailureButtons();
    }
    std::string Press(const std::string& sButtons) const {
        std::string sPlaces;
        for (const char cButton : sButtons) {
            (cButton == '<' ? oPage->cmdFailPrevious : oPage->cmdFailNext).Press();
            sPlaces += Place() + " ";
        }
        return sPlaces;
    }
};

TEST(AnalysisPageGrid, FailuresAreSteppedThrough) {
    FinishedRun oScene(10, {2, 5, 9});
    EXPECT_EQ(oScene.Place(), "10<");
    EXPECT_EQ(oScene.Press("<"), "9< ");
    EXPECT_EQ(oScene.Press("<<>>"), "5<> 2> 5<> 9< ");
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "Result was not stored");
}

TEST(AnalysisPageGrid, AClickBetweenFailuresBelongsToTheEarlierOne) {
    const struct {
        std::int32_t lRow;
        const char* sPlace;
        const char* sNext;
        const char* sPrevious;
    } aCases[] = {
        {1, "1>", "2> ", ""},     {2, "2>", "5<> ", ""}, {7, "7<>", "9< ", "5<> "},
        {5, "5<>", "9< ", "2> "}, {9, "9<", "", "5<> "}, {10, "10<", "", "9< "},
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.lRow);
        for (const bool bForward : {true, false}) {
            FinishedRun oScene(10, {2, 5, 9});
            oScene.Grid().ClickLeft(oCase.lRow, 1);
            EXPECT_EQ(oScene.Place(), oCase.sPlace);
            const std::string sExpected = bForward ? oCase.sNext : oCase.sPrevious;
            EXPECT_EQ(sExpected.empty() ? "" : oScene.Press(bForward ? ">" : "<"), sExpected);
        }
    }
}

TEST(AnalysisPageGrid, ASingleFailureHasAtMostOneWay) {
    EXPECT_EQ(FinishedRun(3, {}).FailureButtons(), "hidden");
    EXPECT_EQ(FinishedRun(3, {3}).Place(), "3"); // it is on show already
    FinishedRun oScene(3, {2});
    EXPECT_EQ(oScene.Place(), "3<");
    EXPECT_EQ(oScene.Press("<"), "2 ");
    oScene.Grid().ClickLeft(1, 1);
    EXPECT_EQ(oScene.Place(), "1>");
    EXPECT_EQ(oScene.Press(">"), "2 ");
    oScene.Grid().ClickLeft(3, 1);
    EXPECT_EQ(oScene.Place(), "3<");
}

TEST(AnalysisPageGrid, DetailsOfARowComeFromItsStoredResult) {
    FinishedRun oScene(3, {2});
    oScene.Grid().ClickLeft(3, 1); // the second result stored
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "details 3");
    EXPECT_EQ(oScene.oPage->txtDetails.SelStart(), 9U);
    oScene.Grid().ClickLeft(2, 1);
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "Result was not stored");
    oScene.Grid().DragRows(1, 1); // by the moved selection, once the run has ended
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "details 1");
    EXPECT_TRUE(oScene.Grid().DoubleClick(2, 1).vValue.ToBool());
    EXPECT_TRUE(oScene.Grid().MoveMouse44(2, 1).vValue.ToBool());
}

TEST(AnalysisPageGrid, DuringARunOnlyAClickShowsDetails) {
    AnalysisScene oScene(3);
    oScene.Analyze(Models::AnalyzerScript().Complete(0, 1001, Passed).Complete(1, 1002, Bad));
    oScene.Analyzer().PlayNext();
    oScene.Grid().DragRows(1, 1);
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "");
    oScene.Grid().ClickLeft(1, 1);
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "details 1");
    EXPECT_EQ(oScene.FailureButtons(), "hidden");
    oScene.Grid().PressKey(Models::GridKey::Space);
    EXPECT_FALSE(oScene.Grid().IsKeySelectionOn());
}

TEST(AnalysisPageGrid, AStatusPassesByItsTextAlone) {
    const struct {
        const char* sText;
        bool bPasses;
    } aCases[] = {{"PASS", true}, {"pAsS", true}, {"PASS with remarks", false}, {"", false}};
    for (const auto& oCase : aCases) {
        AnalysisScene oScene(2);
        oScene.oLibraries->GridHelper().StatusText(0, oCase.sText);
        oScene.Analyze(Models::AnalyzerScript().Complete(0, 1001, 0));
        oScene.Analyzer().PlayAll();
        EXPECT_EQ(oScene.Counts(), oCase.bPasses ? "1 1 0" : "1 0 1") << oCase.sText;
    }
}

} // namespace
} // namespace GleanerSvc
