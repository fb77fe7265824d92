#include <gtest/gtest.h>

#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;

TEST(AnalysisPageEvents, ARunShowsItsItemsAndFinishes) {
    AnalysisScene oScene(2);
    oScene.oLibraries->GridHelper().StatusText(3, "pass");
    oScene.oLibraries->GridHelper().StatusText(Bad, "PASS with remarks"); // the text alone decides, the whole
    oScene.Analyze(AnalyzerScript()
                       .Update(0, "reading ")
                       .Update(-1, "nobody sees this")
                       .Update(0, "sizing")
                       .Complete(0, 1001, 3)
                       .Update(1, "reading")
                       .Complete(1, 0, Bad),
                   3);
    const AnalysisPage& oPage = *oScene.oPage;
    EXPECT_EQ(oScene.Details(), "reading sizing");
    EXPECT_EQ(oPage.txtDetails.SelStart(), 14U);
    EXPECT_EQ(oPage.ProgressBar1.Value(), 2.0F); // the message for no item does not count
    oScene.Play(1);
    EXPECT_EQ(oScene.Details(), ""); // each item begins with a clean box
    EXPECT_EQ(oScene.State(), "1 1 0, off on &Analyze, 2");
    EXPECT_EQ(oScene.Grid().StyleAt(1, 3).lInterior, 65280);
    EXPECT_EQ(oScene.Grid().StyleAt(1, 3).lTextColor, 0); // black reads well on green
    EXPECT_FALSE(oScene.Grid().StyleAt(1, 2).lInterior.has_value());
    oScene.Platform().Advance(60);
    oScene.Play(2);
    EXPECT_EQ(oScene.Column(0), "1|-1");
    EXPECT_EQ(oScene.Column(3), "pass|PASS with remarks");
    EXPECT_EQ(oScene.Column(4), "2026-11-22 14:05:09|2026-11-22 14:06:09");
    EXPECT_EQ(oScene.Grid().StyleAt(2, 3).lInterior, 255);
    EXPECT_EQ(oScene.Details(), "reading\r\n");
    EXPECT_EQ(oScene.State(), "2 1 1, - - Finished, 2 Next");
    EXPECT_FALSE(oPage.ProgressBar1.Visible());
    EXPECT_EQ(oPage.ProgressBar1.Value(), oPage.ProgressBar1.Max());
    EXPECT_EQ(oPage.txtDetails.Place().lHeight, 6120 - 3480);
    EXPECT_EQ(oScene.Platform().YieldCount(), 6);
}

// The four endings of the wizard's buttons, in the order in which they are set.
TEST(AnalysisPageEvents, TheEndSetsTheWizardsButtonsInOrder) {
    const std::tuple<const char*, bool, const char*> aCases[] = {
        {"", false, "4, False); 2, True); 5, True); "},
        {"ReAnalyze", false, "4, False); 2, True); 1, True); "},
        {"", true, "5, True); 2, True); "},
        {"ReAnalyze", true, "1, True); 2, True); "},
    };
    for (const auto& [sAction, bStop, sButtons] : aCases) {
        AnalysisScene oScene(2, sAction);
        oScene.Analyze(AnalyzerScript().Complete(bStop ? 0 : 1, 0, Passed));
        if (bStop) oScene.oPage->cmdStop.Press();
        oScene.Journal().Clear();
        oScene.Play(1);
        EXPECT_EQ(oScene.Calls("., (True|False)\\)"), sButtons);
    }
}

TEST(AnalysisPageEvents, AStopShowsInTheRowAndASecondRunStopsAtOnce) {
    AnalysisScene oScene(3);
    oScene.Analyze(AnalyzerScript().Update(0, "a").Update(0, "b").Complete(0, 0, Passed), 1);
    oScene.oPage->cmdStop.Press();
    oScene.Play(1);
    EXPECT_EQ(oScene.Buttons(), "off off Stopped");
    EXPECT_EQ(oScene.Column(3), "Stopping|Unanalyzed|Unanalyzed");
    oScene.Play(1);
    EXPECT_EQ(oScene.Column(3), "PASS|Unanalyzed|Unanalyzed");
    oScene.oPage->cmdAnalyze.Enabled(true); // as a page entered again has it
    const auto oFirst = oScene.oLibraries->LastAnalyzer();
    oScene.Analyze(AnalyzerScript().Update(0, "c").Complete(0, 0, Passed).Complete(1, 0, Passed));
    oFirst->Events().OnStatusUpdate.Raise(0, "late"); // nobody listens to the analyzer before
    oScene.Grid().DragRows(1, 1);                     // the run is open again: no details
    EXPECT_EQ(oScene.Details(), "ab\r\n");
    oScene.Analyzer().PlayAll();
    EXPECT_EQ(oScene.Analyzer().StopCount(), 1);
    EXPECT_EQ(oScene.Counts(), "1 1 0");
}

TEST(AnalysisPageEvents, AnItemThatCannotBeAnalyzedIsToldAfterItIsCounted) {
    AnalysisScene oScene(2);
    auto oScript = AnalyzerScript().Update(-2, "no trace").Complete(0, 0, Bad).Complete(1, 0, Passed);
    oScript.eStop = Models::StopMode::Ignored;
    oScene.Analyze(std::move(oScript));
    std::string sSeen;
    oScene.Platform().Answer(MessageAnswer::Ok, [&] {
        sSeen = oScene.oPage->ProgressBar1.ToString() + oScene.Details() +
                DecimalText(oScene.Analyzer().StopCount());
    });
    oScene.Play(1);
    EXPECT_EQ(sSeen, "ProgressBar1 1/300no trace0");
    EXPECT_EQ(oScene.Platform().Messages().at(0),
              (Models::ShownMessage{"Sample cannot be analyzed.\r\nError: no trace", 16, "Analysis Error"}));
    EXPECT_EQ(oScene.Analyzer().StopCount(), 1);
    EXPECT_EQ(oScene.Buttons(), "off on &Analyze"); // no end by itself
    oScene.Analyzer().PlayAll();
    EXPECT_EQ(oScene.Buttons(), "- - Finished"); // the page has no memory of the failure
}

TEST(AnalysisPageEvents, TheBarNeverPassesItsMaximum) {
    AnalysisScene oScene(1);
    AnalyzerScript oScript;
    for (int nUpdate = 0; nUpdate < 160; ++nUpdate) oScript.Update(0, ".");
    oScene.Analyze(std::move(oScript), 160);
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 150.0F);
    EXPECT_FALSE(oScene.HasFailed());
}

TEST(AnalysisPageEvents, ABadEventFailsIntoTheAnalyzerAndCountsNothing) {
    const std::pair<std::int32_t, std::int32_t> aCases[] = {
        {1, 999},        // a result that the store does not know
        {1, 1001},       // one that was stored already
        {50, 0},         // an item that the grid does not have
        {2147483647, 0}, // one that no grid has
    };
    for (const auto& [lIndex, lResultID] : aCases) {
        AnalysisScene oScene(3);
        oScene.Analyze(AnalyzerScript().Complete(0, 1001, Passed).Complete(lIndex, lResultID, Passed), 2);
        EXPECT_TRUE(oScene.HasFailed());
        EXPECT_EQ(oScene.Utility().Chain(), "m_oZemFragmentAnalyzer_OnComplete");
        EXPECT_EQ(oScene.Counts() + oScene.Column(3), "1 1 0PASS|Unanalyzed|Unanalyzed");
        EXPECT_EQ(oScene.Platform().YieldCount(), 1);
    }
}

// A click leaves its row in view until the next item is in work, and no key stays held.
TEST(AnalysisPageEvents, AnItemIsBroughtIntoViewOnce) {
    AnalysisScene oScene(3);
    oScene.Analyze(AnalyzerScript().Complete(0, 0, Bad).Update(1, "a").Update(1, "b").Complete(1, 0, Passed),
                   2);
    EXPECT_EQ(oScene.Place(), "2hidden");
    oScene.Grid().ClickLeft(3, 1);
    for (const char* sPlace : {"3hidden", "2hidden"}) {
        oScene.oPage->grdAnalyzeItems->KeySelection(true);
        oScene.Play(1);
        EXPECT_EQ(oScene.Place(), sPlace);
        EXPECT_FALSE(oScene.Grid().IsKeySelectionOn());
    }
}

// Wherever the operator stops, the run has ended once a completion came.
TEST(AnalysisPageEvents, AStopAnywhereLeavesTheCountersTrue) {
    for (std::int32_t lItems = 1; lItems <= 12; ++lItems) {
        for (std::int32_t lStopAt = 0; lStopAt <= 3 * lItems; ++lStopAt) {
            AnalysisScene oScene(lItems);
            AnalyzerScript oScript;
            for (std::int32_t lItem = 0; lItem < lItems; ++lItem) {
                const std::int32_t eStatus = lItem % 3 == 0 ? Bad : Passed;
                oScript.Update(lItem, "a").Update(lItem, "b").Complete(lItem, 1001 + lItem, eStatus);
            }
            oScene.oLibraries->Script(std::move(oScript));
            for (std::int32_t lYield = 1; lYield < lStopAt; ++lYield) oScene.Platform().OnYield([] {});
            if (lStopAt > 0) oScene.Platform().OnYield([&] { oScene.oPage->cmdStop.Press(); });
            oScene.oPage->cmdAnalyze.Press();
            // A stop in the yields of an item takes effect at its completion; in the last one it comes too
            // late.
            const std::int32_t lEndedAt = lStopAt == 0 ? lItems : std::min(lItems, lStopAt / 3 + 1);
            const std::int32_t lFailed = (lEndedAt + 2) / 3;
            EXPECT_EQ(oScene.Counts(), DecimalText(lEndedAt) + " " + DecimalText(lEndedAt - lFailed) + " " +
                                           DecimalText(lFailed))
                << lItems << ", stop at " << lStopAt;
            EXPECT_NE(oScene.oPage->ToString().find(" ended"), std::string::npos);
            EXPECT_EQ(oScene.oPage->cmdAnalyze.Visible(), lEndedAt < lItems);
            EXPECT_EQ(oScene.Where(), "2 Next");
        }
    }
}

} // namespace
} // namespace GleanerSvc
