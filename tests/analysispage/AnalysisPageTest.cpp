#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

TEST(AnalysisPage, APlainAnalysisLoadsItsSamples) {
    AnalysisScene oScene(3);
    EXPECT_EQ(oScene.oHost->Title(), "Analyze Data");
    EXPECT_EQ(oScene.Column(1), "S1|S2|S3");
    EXPECT_EQ(oScene.Column(2), "2026-03-01|2026-03-01|2026-03-01");
    EXPECT_EQ(oScene.Column(3), "Unanalyzed|Unanalyzed|Unanalyzed");
    EXPECT_EQ(oScene.Column(0), "-1|-1|-1");
    EXPECT_EQ(oScene.oPage->lblParameterName.Caption(), "Standard");
    EXPECT_EQ(oScene.oPage->lbTotalResults2.Caption(), "3");
    EXPECT_FALSE(oScene.oPage->lbTotalResults2.Visible());
    EXPECT_EQ(oScene.Buttons(), "on off &Analyze");
    EXPECT_EQ(oScene.HostButtons(), "24"); // Next waits for the run
    EXPECT_EQ(oScene.Grid().StaticOption(27), 0);
    EXPECT_EQ(oScene.Grid().StyleAt(3, 3).lControl, 52513);
    EXPECT_FALSE(oScene.Grid().StyleAt(3, 4).lControl.has_value());
    EXPECT_FALSE(oScene.Grid().IsLocked());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
}

TEST(AnalysisPage, TheActionDecidesTitleGridTypeAndButtons) {
    const struct {
        const char* sAction;
        const char* sTitle;
        const char* sGridTypes;
        const char* sHostButtons;
    } aCases[] = {
        {"reanalyze", "Reanalyze Data", "17", "245"},
        {"OptimizedReAnalyze", "Reanalyze Data", "17", "245"},
        {"ReAnalyzeAlleleID", "Reanalyze Data", "17 25", "24"},
        {"Something", "", "17", "245"}, // the title stays as the host had it
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sAction);
        AnalysisScene oScene(2, oCase.sAction, false);
        if (EqualsIgnoringCase(oCase.sAction, ActionCode::ReAnalyzeAlleleID)) oScene.AddAlleles(1);
        oScene.Enter();
        EXPECT_EQ(oScene.oHost->Title(), oCase.sTitle);
        EXPECT_EQ(oScene.HostButtons(), oCase.sHostButtons);
        std::string sGridTypes;
        for (const auto& sEntry :
             oScene.oLibraries->Journal().EntriesOf("DataFactory.GetRecord(\"GridType\"")) {
            sGridTypes += (sGridTypes.empty() ? "" : " ") + sEntry.substr(49, sEntry.find('"', 49) - 49);
        }
        EXPECT_EQ(sGridTypes, oCase.sGridTypes);
        const bool bAlleles = oScene.Grid().Rows() == 1;
        EXPECT_EQ(oScene.Column(3), bAlleles ? "Pending" : "Unanalyzed|Unanalyzed");
        EXPECT_EQ(oScene.oPage->lbTotalResults.Caption(), bAlleles ? "Total Results:" : "Total Samples:");
        EXPECT_EQ(oScene.oPage->lblParameterName.Visible(), !bAlleles);
        EXPECT_EQ(oScene.oPage->lblAnalysisParameter.Visible(), !bAlleles);
    }
}

TEST(AnalysisPage, TheSkipMarksPassOverThePage) {
    AnalysisScene oScene(2, "", false);
    oScene.Parameters().Add(SkipValue, ParameterKey::SkipForward);
    oScene.Start();
    EXPECT_EQ(oScene.oHost->CurrentPage(), 3);
    EXPECT_FALSE(oScene.Parameters().Holds(ParameterKey::SkipForward));
    EXPECT_EQ(oScene.Parameters().Item(ParameterKey::SkipBackward).ToText(), "SKIP");
    EXPECT_EQ(oScene.Grid().Rows(), 0);
    oScene.oHost->PressBack(); // bounces on to the first page
    EXPECT_EQ(oScene.oHost->CurrentPage(), 1);
    EXPECT_TRUE(oScene.Parameters().Holds(ParameterKey::SkipBackward));
    oScene.Parameters().Add(SkipValue, ParameterKey::SkipForward); // beside the other: a duplicate key
    oScene.oHost->PressNext();
    ASSERT_EQ(oScene.oHost->Failures().size(), 1U);
    EXPECT_TRUE(oScene.oHost->Failures()[0].oFailure.Is(FailureNumber::DuplicateKey));
    EXPECT_EQ(oScene.Utility().Chain(), "m_oPageBase_Activate");
}

TEST(AnalysisPage, WithoutWorkThePagePassesOnAndWithoutParametersItFails) {
    AnalysisScene oEmpty(0, "", false);
    oEmpty.Start(); // no "Samples"
    EXPECT_EQ(oEmpty.oHost->CurrentPage(), 3);
    AnalysisScene oAlleles(2, "ReAnalyzeAlleleID");
    EXPECT_EQ(oAlleles.oHost->CurrentPage(), 3);
    AnalysisScene oNone(0);
    EXPECT_EQ(oNone.oHost->CurrentPage(), 2); // an empty collection is work, though nothing can be started
    EXPECT_FALSE(oNone.oPage->cmdAnalyze.Enabled());
    EXPECT_EQ(oNone.oPage->lbTotalResults2.Caption(), "0");
    AnalysisScene oScene(1, "", false);
    oScene.Parameters().Remove(ParameterKey::AnalysisParameter);
    oScene.Enter();
    ASSERT_EQ(oScene.oHost->Failures().size(), 1U);
    EXPECT_TRUE(oScene.oHost->Failures()[0].oFailure.Is(FailureNumber::InvalidCall));
    EXPECT_EQ(oScene.Utility().Chain(), "m_oPageBase_Activate");
}

TEST(AnalysisPage, LeavingHandsOnTheResultsAndEndsTheRunForGood) {
    AnalysisScene oScene(3);
    oScene.Analyze(Models::AnalyzerScript().Complete(0, 1001, Passed).Complete(1, 1002, Passed));
    oScene.Analyzer().PlayNext();
    const auto oAnalyzer = oScene.oLibraries->LastAnalyzer();
    oScene.oHost->EnableButton(HostButton::Next, true); // the host lets the operator go
    oScene.oHost->PressNext();
    EXPECT_EQ(oAnalyzer->StopCount(), 1);
    EXPECT_EQ(ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::AnalyzedResults)->Count(), 1);
    oScene.oHost->PressBack();
    EXPECT_FALSE(oScene.Parameters().Holds(ParameterKey::AnalyzedResults)); // an older one is taken out again
    EXPECT_EQ(oScene.Column(3), "Unanalyzed|Unanalyzed|Unanalyzed");
    EXPECT_EQ(oScene.Column(4), "||"); // the rows are new ones
    EXPECT_EQ(oScene.oPage->cmdAnalyze.Enabled(), true);
    oScene.Analyze(
        Models::AnalyzerScript().Update(0, "again").Complete(0, 1002, Passed).Complete(2, 1003, Passed));
    oScene.Analyzer().PlayAll();
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "again"); // updates show, completions are ignored from now on
    EXPECT_EQ(oScene.Counts(), "1 1 0");                 // the labels keep their old figures
    EXPECT_EQ(oScene.Buttons(), "off on &Analyze");
}

TEST(AnalysisPage, OnlyInitializeForgetsAStopAndTheProgress) {
    AnalysisScene oScene(2);
    oScene.Analyze(Models::AnalyzerScript().Update(0, "a").Complete(0, 1001, Passed));
    oScene.oPage->cmdStop.Press();
    oScene.Analyzer().PlayAll();
    oScene.oPage->grdAnalyzeItems.Height(100);
    auto& oEvents = Deref(Cast<IPageBase>(oScene.oPage->Page())).Events();
    oEvents.Initialize.Raise(nullptr);
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 0.0F);
    EXPECT_EQ(oScene.oPage->txtDetails.Text(), "");
    EXPECT_EQ(oScene.oPage->grdAnalyzeItems.Place().lHeight, 2775);
    oEvents.Activate.Raise();
    oScene.Analyze(Models::AnalyzerScript().Update(0, "b").Complete(0, 1001, Passed));
    oScene.Analyzer().PlayNext();
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 1.0F);
    EXPECT_EQ(oScene.oPage->cmdStop.Enabled(), true);
}

} // namespace
} // namespace GleanerSvc
