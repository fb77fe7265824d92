#include <gtest/gtest.h>

#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;

TEST(AnalysisPage, APlainAnalysisLoadsItsSamples) {
    AnalysisScene oScene(3);
    EXPECT_EQ(oScene.Column(0), "-1|-1|-1");
    EXPECT_EQ(oScene.Column(1), "S1|S2|S3");
    EXPECT_EQ(oScene.Column(2), "2026-03-01|2026-03-01|2026-03-01");
    EXPECT_EQ(oScene.oPage->lblParameterName.Caption(), "Standard");
    EXPECT_FALSE(oScene.oPage->lbTotalResults2.Visible());
    EXPECT_EQ(oScene.Store().SharedJournal()->EntriesOf("Platform.ScreenCursor(").at(1),
              "Platform.ScreenCursor(11)");
    EXPECT_EQ(oScene.Grid().StaticOption(27), 0);
    EXPECT_EQ(oScene.Grid().StyleAt(3, 3).lControl, 52513);
    EXPECT_FALSE(oScene.Grid().StyleAt(3, 4).lControl.has_value());
}

TEST(AnalysisPage, TheActionDecidesTitleGridTypeAndButtons) {
    const struct {
        const char* sAction;
        const char* sTitle;
        const char* sGridTypes;
        const char* sWhere;
    } aCases[] = {
        {"", "Analyze Data", "17; ", "2 Back"}, // Next waits for the run
        {"reanalyze", "Reanalyze Data", "17; ", "2 Back Next"},
        {"OptimizedReAnalyze", "Reanalyze Data", "17; ", "2 Back Next"},
        {"ReAnalyzeAlleleID", "Reanalyze Data", "17; 25; ", "2 Back"},
        {"Something", "", "17; ", "2 Back Next"}, // the title stays as the host had it
    };
    for (const auto& [sAction, sTitle, sGridTypes, sWhere] : aCases) {
        SCOPED_TRACE(sAction);
        AnalysisScene oScene(2, sAction, false);
        const bool bAlleles = sAction == std::string(ActionCode::ReAnalyzeAlleleID);
        if (bAlleles) oScene.AddWork(true, 1);
        oScene.EnterWithSamples();
        EXPECT_EQ(oScene.oHost->Title(), sTitle);
        EXPECT_EQ(oScene.State(), std::string("0 0 0, on off &Analyze, ") + sWhere);
        EXPECT_EQ(oScene.Calls(R"(SetGridDefaults\(.*)"), "SetGridDefaults(grdAnalyzeItems, True, empty); ");
        EXPECT_EQ(oScene.Calls("(17|25)(?=\", 0)"), sGridTypes);
        EXPECT_EQ(oScene.Column(3), bAlleles ? "Pending" : "Unanalyzed|Unanalyzed");
        EXPECT_EQ(oScene.oPage->lbTotalResults.Caption(), bAlleles ? "Total Results:" : "Total Samples:");
        EXPECT_EQ(oScene.oPage->lblParameterName.Visible(), !bAlleles);
        EXPECT_EQ(oScene.oPage->lblAnalysisParameter.Visible(), !bAlleles);
    }
}

TEST(AnalysisPage, WithoutWorkThePagePassesOn) {
    AnalysisScene oScene(0, "", false);
    oScene.Enter(); // no "Samples"
    EXPECT_EQ(oScene.Where(), "3 Finish Back");
    EXPECT_EQ(AnalysisScene(2, "ReAnalyzeAlleleID").Where(), "3 Finish Back");
    AnalysisScene oNone(0); // an empty collection is work, though nothing can be started
    EXPECT_EQ(oNone.State(), "0 0 0, off off &Analyze, 2 Back");
    EXPECT_EQ(oNone.oPage->lbTotalResults2.Caption(), "0");
}

TEST(AnalysisPage, LeavingHandsOnTheResultsAndEndsTheRunForGood) {
    AnalysisScene oScene(3);
    oScene.Analyze(AnalyzerScript().Complete(0, 1001, Passed).Complete(1, 1002, Passed), 1);
    const auto oAnalyzer = oScene.oLibraries->LastAnalyzer();
    oScene.oHost->EnableButton(HostButton::Next, true); // the host lets the operator go
    oScene.oHost->PressNext();
    EXPECT_EQ(oAnalyzer->StopCount(), 1);
    EXPECT_EQ(ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::AnalyzedResults)->Count(), 1);
    oScene.oHost->PressBack();
    EXPECT_FALSE(oScene.Parameters().Holds(ParameterKey::AnalyzedResults)); // an older one is taken out again
    EXPECT_EQ(oScene.Column(3), "Unanalyzed|Unanalyzed|Unanalyzed");
    EXPECT_EQ(oScene.Column(4), "||"); // the rows are new ones
    oScene.Analyze(AnalyzerScript().Update(0, "again").Complete(0, 1002, Passed).Complete(2, 1003, Passed),
                   3);
    EXPECT_EQ(oScene.Details(), "again"); // updates show, completions are ignored from now on
    EXPECT_EQ(oScene.State(), "1 1 0, off on &Analyze, 2"); // the labels keep their old figures
}

TEST(AnalysisPage, OnlyInitializeForgetsAStopAndTheProgress) {
    AnalysisScene oScene(2);
    oScene.Analyze(AnalyzerScript().Update(0, "a").Complete(0, 1001, Passed));
    oScene.oPage->cmdStop.Press();
    oScene.Analyzer().PlayAll();
    oScene.oPage->grdAnalyzeItems.Height(100);
    oScene.Events().Initialize.Raise(nullptr);
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 0.0F);
    EXPECT_EQ(oScene.Details(), "");
    EXPECT_EQ(oScene.oPage->grdAnalyzeItems.Place().lHeight, 2775);
    oScene.Events().Activate.Raise();
    oScene.Analyze(AnalyzerScript().Update(0, "b"), 1);
    EXPECT_EQ(oScene.oPage->ProgressBar1.Value(), 1.0F);
    EXPECT_TRUE(oScene.oPage->cmdStop.Enabled());
}

} // namespace
} // namespace GleanerSvc
