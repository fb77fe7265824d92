#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;

// The grid's highlighted row.
std::string ListedRow(const AnalysisScene& oScene) {
    const auto alRows = oScene.Grid().HighlightedRows();
    return alRows.size() == 1 ? DecimalText(alRows[0]) : "several or none";
}

// What the page has stored, as it leaves.
Ref<IKeyedCollection> Stored(const AnalysisScene& oScene) {
    oScene.oHost->PressButton(HostButton::Next);
    return ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::AnalyzedResults);
}

TEST(AnalysisPageEvents, ARunShowsItsItemsAndFinishes) {
    AnalysisScene oScene(2);
    oScene.oLibraries->GridHelper().StatusText(3, "pass");
    oScene.Analyze(AnalyzerScript()
                       .Update(0, "reading ")
                       .Update(-1, "nobody sees this")
                       .Update(0, "sizing")
                       .Complete(0, 1001, 3)
                       .Update(1, "reading")
                       .Complete(1, 0, Bad));
    auto& oAnalyzer = oScene.Analyzer();
    for (int nStep = 0; nStep < 3; ++nStep) oAnalyzer.PlayNext();
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "reading sizing");
    EXPECT_EQ(oScene.oPage->txtDetails.SelStart(), 14U);
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 2.0F); // the message for no item does not count
    EXPECT_EQ(ListedRow(oScene), "1");
    oAnalyzer.PlayNext();
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), ""); // each item begins with a clean box
    EXPECT_EQ(oScene.Counts(), "1 1 0");
    EXPECT_EQ(oScene.Grid().StyleAt(1, 3).lInterior, 65280);
    EXPECT_EQ(oScene.Grid().StyleAt(1, 3).lTextColor, 0); // black reads well on green
    EXPECT_FALSE(oScene.Grid().StyleAt(1, 2).lInterior.has_value());
    oScene.Platform().Advance(60);
    oAnalyzer.PlayAll();
    EXPECT_EQ(oScene.Column(3), "pass|FAIL 5");
    EXPECT_EQ(oScene.Column(4), "2026-11-22 14:05:09|2026-11-22 14:06:09");
    EXPECT_EQ(oScene.Column(0), "1|-1");
    EXPECT_EQ(oScene.Grid().StyleAt(2, 3).lInterior, 255);
    EXPECT_EQ(oScene.Counts(), "2 1 1");
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "reading\r\n");
    EXPECT_EQ(oScene.Buttons(), "- - Finished");
    EXPECT_FALSE(oScene.oPage->ProgressBar1.Visible());
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), oScene.oPage->ProgressBar1.Max());
    EXPECT_EQ(oScene.oPage->txtDetails.Place().lHeight, 6120 - 3480);
    EXPECT_EQ(oScene.HostButtons(), "25");
    EXPECT_EQ(oScene.Platform().YieldCount(), 6);
    EXPECT_EQ(ItemAs<IResult>(*Stored(oScene), "1001")->ResultID(), 1001);
}

// The four endings of the wizard's buttons, in the order in which they are set.
TEST(AnalysisPageEvents, TheEndSetsTheWizardsButtonsInOrder) {
    const struct {
        const char* sAction;
        bool bStop;
        std::vector<std::string> asButtons;
    } aCases[] = {
        {"", false, {"4, False", "2, True", "5, True"}},
        {"ReAnalyze", false, {"4, False", "2, True", "1, True"}},
        {"", true, {"5, True", "2, True"}},
        {"ReAnalyze", true, {"1, True", "2, True"}},
    };
    for (const auto& oCase : aCases) {
        AnalysisScene oScene(2, oCase.sAction);
        oScene.Analyze(AnalyzerScript().Complete(0, 0, Passed).Complete(1, 0, Passed));
        if (oCase.bStop) {
            oScene.oPage->cmdStop.Press();
        } else {
            oScene.Analyzer().PlayNext();
        }
        oScene.oLibraries->Journal().Clear();
        oScene.Analyzer().PlayNext();
        std::vector<std::string> asButtons;
        for (const auto& sEntry : oScene.oLibraries->Journal().EntriesOf("Host.EnableButton(")) {
            asButtons.push_back(sEntry.substr(18, sEntry.size() - 19));
        }
        EXPECT_EQ(asButtons, oCase.asButtons);
    }
}

TEST(AnalysisPageEvents, AStopShowsInTheRowAndASecondRunStopsAtOnce) {
    AnalysisScene oScene(3);
    oScene.Analyze(AnalyzerScript().Update(0, "a").Update(0, "b").Complete(0, 0, Passed));
    oScene.Analyzer().PlayNext();
    oScene.oPage->cmdStop.Press();
    oScene.Analyzer().PlayNext();
    EXPECT_EQ(oScene.Buttons(), "off off Stopped");
    EXPECT_EQ(oScene.Column(3), "Stopping|Unanalyzed|Unanalyzed");
    oScene.Analyzer().PlayNext();
    EXPECT_EQ(oScene.Column(3), "PASS|Unanalyzed|Unanalyzed");
    oScene.oPage->cmdAnalyze.Enabled(true); // as a page entered again has it
    const auto oFirst = oScene.oLibraries->LastAnalyzer();
    oScene.Analyze(AnalyzerScript().Update(0, "c").Complete(0, 0, Passed).Complete(1, 0, Passed));
    oFirst->Events().OnStatusUpdate.Raise(0, "late"); // nobody listens to the analyzer before
    oScene.Grid().DragRows(1, 1);                     // the run is open again: no details
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "ab\r\n");
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
        sSeen = oScene.oPage->txtDetails.Text() + " " +
                DecimalText(static_cast<int>(oScene.oPage->ProgressBar1.Value())) +
                " stops=" + DecimalText(oScene.Analyzer().StopCount());
    });
    oScene.Analyzer().PlayNext();
    EXPECT_EQ(sSeen, "no trace 1 stops=0");
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
    oScene.Analyze(std::move(oScript));
    oScene.Analyzer().PlayAll();
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 150.0F);
    EXPECT_FALSE(oScene.Analyzer().LastFailure().has_value());
}

TEST(AnalysisPageEvents, ABadEventFailsIntoTheAnalyzerAndCountsNothing) {
    const struct {
        std::int32_t lIndex;
        std::int32_t lResultID;
        const char* sChain;
    } aCases[] = {
        {1, 999, "m_oZemFragmentAnalyzer_OnComplete"},  // a result that the store does not know
        {1, 1001, "m_oZemFragmentAnalyzer_OnComplete"}, // one that was stored already
        {50, 0, "m_oZemFragmentAnalyzer_OnComplete"},   // an item that the grid does not have
        {2147483647, 0, "m_oZemFragmentAnalyzer_OnComplete"},
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.lIndex + oCase.lResultID);
        AnalysisScene oScene(3);
        oScene.Analyze(
            AnalyzerScript().Complete(0, 1001, Passed).Complete(oCase.lIndex, oCase.lResultID, Passed));
        oScene.Analyzer().PlayAll();
        EXPECT_TRUE(oScene.Analyzer().LastFailure().has_value());
        EXPECT_EQ(oScene.Utility().Chain(), oCase.sChain);
        EXPECT_FALSE(oScene.Utility().Reports().at(0).bShowUser);
        EXPECT_EQ(oScene.Counts(), "1 1 0");
        EXPECT_EQ(oScene.Column(3), "PASS|Unanalyzed|Unanalyzed");
        EXPECT_EQ(oScene.Platform().YieldCount(), 1);
    }
}

// A click leaves its row in view until the next item is in work, and no key stays held.
TEST(AnalysisPageEvents, AnItemIsBroughtIntoViewOnce) {
    AnalysisScene oScene(3);
    oScene.Analyze(AnalyzerScript().Complete(0, 0, Bad).Update(1, "a").Update(1, "b").Complete(1, 0, Passed));
    oScene.Analyzer().PlayNext();
    oScene.Analyzer().PlayNext();
    EXPECT_EQ(ListedRow(oScene), "2");
    oScene.Grid().ClickLeft(3, 1);
    for (const char* sRow : {"3", "2"}) {
        oScene.oPage->grdAnalyzeItems->KeySelection(true);
        oScene.Analyzer().PlayNext();
        EXPECT_EQ(ListedRow(oScene), sRow);
        EXPECT_FALSE(oScene.Grid().IsKeySelectionOn());
    }
}

// Whatever the analyzer still raises then comes to nobody.
TEST(AnalysisPageEvents, LeavingInAYieldLetsTheAnalyzerGo) {
    AnalysisScene oScene(3);
    auto oScript = AnalyzerScript().Complete(0, 1001, Passed).Update(1, "late").Complete(1, 1002, Passed);
    oScript.eStop = Models::StopMode::Ignored;
    oScene.oLibraries->Script(std::move(oScript));
    oScene.Platform().OnYield([&] { oScene.oHost->PressButton(HostButton::Next); });
    oScene.oPage->cmdAnalyze.Press();
    EXPECT_EQ(oScene.oHost->CurrentPage(), 3);
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
    EXPECT_EQ(oScene.Counts(), "1 1 0");
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "");
    EXPECT_EQ(oScene.Column(3), "PASS|Unanalyzed|Unanalyzed");
    EXPECT_EQ(ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::AnalyzedResults)->Count(), 1);
}

// Wherever the operator stops, passed plus failed equal analyzed, and the run has ended once a completion
// came.
TEST(AnalysisPageEvents, AStopAnywhereLeavesTheCountersTrue) {
    for (std::int32_t lItems = 0; lItems <= 12; ++lItems) {
        const std::int32_t lYields = 3 * lItems;
        for (std::int32_t lStopAt = 0; lStopAt <= lYields; ++lStopAt) {
            AnalysisScene oScene(lItems);
            AnalyzerScript oScript;
            for (std::int32_t lItem = 0; lItem < lItems; ++lItem) {
                oScript.Update(lItem, "a")
                    .Update(lItem, "b")
                    .Complete(lItem, 1001 + lItem, lItem % 3 == 0 ? Bad : Passed);
            }
            oScene.oLibraries->Script(std::move(oScript));
            for (std::int32_t lYield = 1; lYield < lStopAt; ++lYield) oScene.Platform().OnYield([] {});
            if (lStopAt > 0) oScene.Platform().OnYield([&] { oScene.oPage->cmdStop.Press(); });
            oScene.oPage->cmdAnalyze.Press();
            const auto& oPage = *oScene.oPage;
            EXPECT_EQ(std::stoi(oPage.lbAnalyzed2.Caption()),
                      std::stoi(oPage.lbPass2.Caption()) + std::stoi(oPage.lbFail2.Caption()));
            if (lItems == 0) continue;
            // A stop in the yields of an item takes effect at its completion; in the last one it comes too
            // late.
            const std::int32_t lEndedAt = lStopAt == 0 ? lItems : std::min(lItems, lStopAt / 3 + 1);
            EXPECT_EQ(oPage.lbAnalyzed2.Caption(), DecimalText(lEndedAt))
                << lItems << " items, stop at " << lStopAt;
            EXPECT_NE(oPage.ToString().find(" ended"), std::string::npos);
            EXPECT_EQ(oPage.cmdAnalyze.Visible(), lEndedAt < lItems);
            EXPECT_EQ(oScene.HostButtons(), "25");
        }
    }
}

} // namespace
} // namespace GleanerSvc
