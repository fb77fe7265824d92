// The four pages in one wizard.
#include <gtest/gtest.h>

#include "locuspage/LocusTagSelectPage.h"
#include "platepages/ResultSelectionPage.h"
#include "platepages/SampleSelectionPage.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::PlayMode;

// A1 to A3 lie on plate P1 with a result each, A4 stands on no plate. The study holds R4.
struct Road : WizardScene {
    explicit Road(std::string_view sAction = "") {
        Store().Fill("Alpha: A1#P1.A1 A2#P1.A2 A3#P1.B1 A4\n"
                     "Alpha results: R1 of A1 R2 of A2 R3 of A3 R4 of A4");
        oStudy = Store().AddStudy(1, {1004});
        Parameters().Add(oStudy, ParameterKey::Study);
        if (!sAction.empty()) Parameters().Add(sAction, ParameterKey::Action);
        for (const auto& oPage : std::vector<Ref<IPageAccess>>{oSamples, oLocus, oAnalysis, oResults})
            oHost->AddPage(oPage);
        oHost->Start();
    }

    // On the plate, from the first page.
    void PickWholePlate() const {
        oSamples->tabPage.ChooseTab(1);
        oSamples->picAllWells.ClickIt();
    }
    // Forward over the choice of a type to the analysis page.
    void GoToAnalysis() const {
        oHost->PressNext();
        oLocus->optAlleleIDType[0].Press();
        oHost->PressNext();
    }
    // The first sample passes with a stored result, the second fails, the third passes without one.
    void Analyze(PlayMode ePlay) const {
        Models::AnalyzerScript oScript;
        oScript.Update(0, "a").Complete(0, 1001, Passed).Update(1, "b").Complete(1, 0, Bad);
        oScript.Update(2, "c").Complete(2, 0, Passed);
        oScript.ePlay = ePlay;
        oLibraries->Script(std::move(oScript));
        oAnalysis->cmdAnalyze.Press();
    }

    // Both selection pages have grids of the same names.
    static Models::GridModel& Model(const GridControl& oGrid) {
        return dynamic_cast<Models::GridModel&>(*oGrid);
    }
    std::string Counts() const {
        return oAnalysis->lbAnalyzed2.Caption() + oAnalysis->lbPass2.Caption() + oAnalysis->lbFail2.Caption();
    }
    // Behind where the wizard stands, all that has gone wrong so far.
    std::string Where() const {
        return WizardScene::Where() + Utility().Chain() + (HasFailed() ? " with failures" : "");
    }

    Ref<SampleSelectionPage> oSamples = std::make_shared<SampleSelectionPage>(oApartment);
    Ref<LocusTagSelectPage> oLocus = std::make_shared<LocusTagSelectPage>(oApartment);
    Ref<AnalysisPage> oAnalysis = std::make_shared<AnalysisPage>(oApartment);
    Ref<ResultSelectionPage> oResults = std::make_shared<ResultSelectionPage>(oApartment);
    Ref<Models::StudyRecord> oStudy;
};

TEST(WizardRoad, FromTheSamplesOfAPlateToTheResultsOfAStudy) {
    Road oRoad;
    oRoad.PickWholePlate();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "2 Back"); // a type must be chosen first
    oRoad.oLocus->optAlleleIDType[1].Press();
    EXPECT_EQ(oRoad.Where(), "2 Back Next");
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "3 Back");
    oRoad.Analyze(PlayMode::InsideCall);
    EXPECT_EQ(oRoad.Where(), "3 Next");
    EXPECT_EQ(oRoad.Counts(), "321");
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "4 Finish"); // no way back but over a skipped run
    EXPECT_NE(oRoad.oResults->ctlGleaner.ToString().find("selected=[R4 R1]"), std::string::npos);
    EXPECT_EQ(oRoad.Keys(), "study samples analysisparameter alleleidtype");
    oRoad.oHost->PressFinish();
    EXPECT_EQ(oRoad.oStudy->ToString(), "1 StudyResults: 1004 1001");
}

TEST(WizardRoad, SamplesOfTheListGoForwardBackwardAndForwardAgain) {
    Road oRoad;
    oRoad.oSamples->ctlGleaner.cmdAddAll.Press();
    oRoad.GoToAnalysis();
    EXPECT_EQ(oRoad.oAnalysis->lbTotalResults2.Caption(), "4");
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.Where(), "2 Back Next"); // the type is still chosen
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.oHost->Title(), "Select Raw Data");
    Road::Model(oRoad.oSamples->ctlGleaner.grdSelected).DoubleClick(1, 1);
    oRoad.oHost->PressNext();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.oAnalysis->lbTotalResults2.Caption(), "3");
    EXPECT_EQ(oRoad.oLibraries->Grid("grdAnalyzeItems").Text(1, 1), "A2");
    EXPECT_EQ(oRoad.Where(), "3 Back");
}

TEST(WizardRoad, WithoutSamplesTheAnalysisIsPassedInBothDirections) {
    Road oRoad;
    oRoad.GoToAnalysis();
    EXPECT_EQ(oRoad.Where(), "4 Finish Back"); // passed over, so Back is open
    EXPECT_EQ(oRoad.Keys(), "study analysisparameter alleleidtype <<skip");
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.Where(), "2 Back Next");
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.Keys(), "study analysisparameter alleleidtype");
    oRoad.PickWholePlate();
    oRoad.oHost->PressNext();
    oRoad.oHost->PressNext();
    oRoad.Analyze(PlayMode::InsideCall);
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "4 Finish");
}

// Away from the page for the view of one sample, and back.
TEST(WizardRoad, TheSingleSampleViewLeavesTheSamplePageAsItIs) {
    Road oRoad;
    oRoad.Platform().Choose("mnuShowSingleSample");
    Road::Model(oRoad.oSamples->ctlGleaner.grdAvailable).ClickRight(2, 1);
    EXPECT_EQ(oRoad.oLibraries->Launcher().Opened().size(), 1U);
    oRoad.oHost->PressNext(); // the host leaves the page for it
    EXPECT_EQ(oRoad.Keys(), "study alleleidtype");
    oRoad.oHost->PressBack();
    oRoad.PickWholePlate();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Keys(), "study analysisparameter alleleidtype project samples");
    EXPECT_EQ(oRoad.Where(), "2 Back");
}

TEST(WizardRoad, EachActionRunsToItsOwnEnd) {
    const struct {
        const char* sAction;
        const char* sCall;
        const char* sBefore;
        const char* sAfter;
    } aCases[] = {
        {"", "AnalyzeSamples([101, 102, 103], ", "3 Back", "3 Next"},
        {"ReAnalyze", "AnalyzeSamples([101, 102, 103], ", "3 Back Next", "3 Finish Next"},
        {"OptimizedReAnalyze", "ReanalyzeResults([1001, 1002, 0], ", "3 Back Next", "3 Finish Next"},
        {"ReAnalyzeAlleleID", "ReanalyzeAlleles(3 objects, object, object, 0)", "3 Back", "3 Finish"},
    };
    for (const auto& [sAction, sCall, sBefore, sAfter] : aCases) {
        SCOPED_TRACE(sAction);
        Road oRoad(sAction);
        const bool bAlleles = sAction == std::string(ActionCode::ReAnalyzeAlleleID);
        oRoad.AddWork(bAlleles, bAlleles ? 3 : 2);
        oRoad.PickWholePlate();
        oRoad.GoToAnalysis();
        EXPECT_EQ(oRoad.Where(), sBefore);
        oRoad.Analyze(PlayMode::StepByStep);
        const auto oAnalyzer = oRoad.oLibraries->LastAnalyzer();
        EXPECT_TRUE(oAnalyzer->LastCall()->ToString().starts_with(sCall)) << oAnalyzer->ToString();
        oAnalyzer->PlayAll();
        EXPECT_EQ(oRoad.Where(), sAfter);
        if (!oRoad.oHost->IsEnabled(HostButton::Finish)) continue;
        oRoad.oHost->PressFinish(); // commits: the locus page saves once more
        EXPECT_EQ(oRoad.oLibraries->StrSelector().Saved().size(), 2U);
        EXPECT_EQ(oRoad.Parameters().Holds(ParameterKey::AnalyzedResults), !bAlleles);
        EXPECT_FALSE(oRoad.HasFailed());
    }
}

// One queued gesture a yield: a click on the first row, a stop, and leaving after the stopped run.
TEST(WizardRoad, GesturesComeInTheYieldsOfEitherAnalyzer) {
    for (const PlayMode ePlay : {PlayMode::InsideCall, PlayMode::StepByStep}) {
        Road oRoad;
        oRoad.PickWholePlate();
        oRoad.GoToAnalysis();
        auto& oPlatform = oRoad.Platform();
        std::string sDetails;
        oPlatform.OnYield([] {});
        oPlatform.OnYield([&] {
            oRoad.oLibraries->Grid("grdAnalyzeItems").ClickLeft(1, 1);
            sDetails = oRoad.oAnalysis->txtDetails.Text();
        });
        oPlatform.OnYield([&] { oRoad.oAnalysis->cmdStop.Press(); });
        oPlatform.OnYield([&] { oRoad.oHost->PressNext(); });
        oRoad.Analyze(ePlay);
        if (const auto oAnalyzer = oRoad.oLibraries->LastAnalyzer()) oAnalyzer->PlayAll();
        EXPECT_EQ(sDetails, "details of R1");
        EXPECT_EQ(oRoad.Counts(), "211");
        EXPECT_EQ(oRoad.Where(), "4 Finish");
        EXPECT_EQ(oRoad.oLibraries->LastAnalyzer(), nullptr);
    }
}

} // namespace
} // namespace GleanerSvc
