// The locus tag page and the analysis page in one wizard, between stand-ins for the pages of samples and
// results.
#include <gtest/gtest.h>

#include "analysispage/AnalysisPage.h"
#include "locuspage/LocusTagSelectPage.h"
#include "models/ModelLibraries.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"
#include "tests/PlainPage.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;
using Models::PlayMode;

constexpr std::int32_t Passed = 0;
constexpr std::int32_t Bad = 5;
enum Place : std::int32_t { Samples = 1, Locus, Analysis, Results };

struct Road {
    explicit Road(std::string_view sAction = "") {
        oLibraries->Store().Fill("Alpha: A1 A2 A3\nAlpha results: R1 of A1 R2 of A2 R3 of A3");
        if (!sAction.empty()) Parameters().Add(sAction, ParameterKey::Action);
        for (const auto& oPage : {Ref<IPageAccess>(oSamples), Ref<IPageAccess>(oLocus),
                                  Ref<IPageAccess>(oAnalysis), Ref<IPageAccess>(oResults)}) {
            oHost->AddPage(oPage);
        }
        Select({101, 102, 103});
    }

    void Select(const std::vector<std::int32_t>& alSampleIDs) {
        colSamples = std::make_shared<KeyedCollection>();
        for (const std::int32_t lID : alSampleIDs) {
            colSamples->Add(oLibraries->Store().Samples().Find(lID), DecimalText(lID));
        }
    }
    // Forward over the choice of a type to the analysis page.
    void GoToAnalysis() {
        oHost->Start();
        oHost->PressNext();
        oLocus->optAlleleIDType[0].Press();
        oHost->PressNext();
    }
    // The first sample passes with a stored result, the second fails, the third passes without one.
    static AnalyzerScript Run() {
        return AnalyzerScript()
            .Update(0, "first ")
            .Complete(0, 1001, Passed)
            .Update(1, "second ")
            .Complete(1, 0, Bad)
            .Update(2, "third ")
            .Complete(2, 0, Passed);
    }
    void Analyze(PlayMode ePlay) {
        auto oScript = Run();
        oScript.ePlay = ePlay;
        oLibraries->Script(std::move(oScript));
        oAnalysis->cmdAnalyze.Press();
    }

    KeyedCollection& Parameters() const { return *colParameters; }
    // Those that are there, in the order of the run.
    std::string Keys() const {
        std::string sKeys;
        for (const auto sKey :
             {ParameterKey::Samples, ParameterKey::SkipForward, ParameterKey::SkipBackward,
              ParameterKey::AlleleIDType, ParameterKey::AnalysisParameter, ParameterKey::AnalyzedResults}) {
            if (Parameters().Holds(sKey)) sKeys.append(sKeys.empty() ? "" : " ").append(sKey);
        }
        return sKeys;
    }
    // "3 Finish Next": the page and the buttons that can be pressed but Cancel.
    std::string Where() const {
        std::string sText = DecimalText(oHost->CurrentPage());
        if (oHost->IsEnabled(HostButton::Finish)) sText += " Finish";
        if (oHost->IsEnabled(HostButton::Back)) sText += " Back";
        if (oHost->IsEnabled(HostButton::Next)) sText += " Next";
        return sText;
    }
    std::string Counts() const {
        return oAnalysis->lbAnalyzed2.Caption() + " " + oAnalysis->lbPass2.Caption() + " " +
               oAnalysis->lbFail2.Caption();
    }

    Ref<Models::ModelLibraries> oLibraries = Models::ModelLibraries::Create();
    Ref<Apartment> oApartment = oLibraries->MakeApartment();
    Ref<KeyedCollection> colSamples;
    Ref<KeyedCollection> colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> oHost =
        std::make_shared<Models::WizardHost>(oLibraries->Store().SharedJournal(), colParameters);
    // Stores the samples or the mark for none, and takes both marks back.
    Ref<PlainPage> oSamples = std::make_shared<PlainPage>(
        oApartment,
        [](IKeyedCollection& colStore) {
            for (const auto sKey : {ParameterKey::SkipBackward, ParameterKey::Samples}) {
                if (colStore.Holds(sKey)) colStore.Remove(sKey);
            }
        },
        [this](IKeyedCollection& colStore) {
            if (colSamples->Count() > 0) {
                colStore.Add(colSamples, ParameterKey::Samples);
            } else {
                colStore.Add(SkipValue, ParameterKey::SkipForward);
            }
        });
    Ref<LocusTagSelectPage> oLocus = std::make_shared<LocusTagSelectPage>(oApartment);
    Ref<AnalysisPage> oAnalysis = std::make_shared<AnalysisPage>(oApartment);
    Ref<PlainPage> oResults = std::make_shared<PlainPage>(oApartment);
};

TEST(WizardRoad, SamplesAreAnalyzedForwardBackwardAndForwardAgain) {
    Road oRoad;
    oRoad.oHost->Start();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "2 Back"); // a type must be chosen first
    oRoad.oLocus->optAlleleIDType[1].Press();
    EXPECT_EQ(oRoad.Where(), "2 Back Next");
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "3 Back");
    EXPECT_EQ(oRoad.oHost->Title(), "Analyze Data");
    EXPECT_EQ(oRoad.Keys(), "Samples AlleleIDType AnalysisParameter");
    oRoad.Analyze(PlayMode::InsideCall);
    EXPECT_EQ(oRoad.Where(), "3 Next");
    EXPECT_EQ(oRoad.Counts(), "3 2 1");
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "4 Finish Back");
    EXPECT_EQ(oRoad.Keys(), "Samples AlleleIDType AnalysisParameter AnalyzedResults");

    oRoad.oHost->PressBack(); // the page takes its own results out again
    EXPECT_EQ(oRoad.Keys(), "Samples AlleleIDType AnalysisParameter");
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.Where(), "2 Back Next"); // the type is still chosen
    oRoad.oHost->PressBack();
    oRoad.Select({102});
    oRoad.oHost->PressNext();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.oAnalysis->lbTotalResults2.Caption(), "1");
    EXPECT_EQ(oRoad.oLibraries->Grid("grdAnalyzeItems").Text(1, 1), "A2");
    EXPECT_FALSE(oRoad.oAnalysis->cmdAnalyze.Visible()); // as the finished run left it
    EXPECT_TRUE(oRoad.oHost->Failures().empty());
    EXPECT_TRUE(oRoad.oLibraries->Utility().Reports().empty());
}

TEST(WizardRoad, WithoutSamplesTheAnalysisIsPassedInBothDirections) {
    Road oRoad;
    oRoad.Select({});
    oRoad.GoToAnalysis();
    EXPECT_EQ(oRoad.oHost->CurrentPage(), Results);
    EXPECT_EQ(oRoad.Keys(), "<<Skip AlleleIDType AnalysisParameter");
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.oHost->CurrentPage(), Locus);
    oRoad.oHost->PressBack();
    EXPECT_EQ(oRoad.Keys(), "AlleleIDType AnalysisParameter");
    oRoad.Select({101});
    oRoad.oHost->PressNext();
    oRoad.oHost->PressNext();
    EXPECT_EQ(oRoad.Where(), "3 Back");
    oRoad.Analyze(PlayMode::InsideCall); // the script has more items than the page: all of one row
    EXPECT_EQ(oRoad.Where(), "3 Next");
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
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sAction);
        Road oRoad(oCase.sAction);
        const bool bAlleles = std::string(oCase.sAction) == ActionCode::ReAnalyzeAlleleID;
        const auto colWork = std::make_shared<KeyedCollection>();
        for (const std::int32_t lID : {101, 102, 103}) {
            if (bAlleles) colWork->Add(oRoad.oLibraries->Store().Samples().Find(lID)->SampleData());
        }
        for (const std::int32_t lID : {1001, 1002}) {
            if (!bAlleles) colWork->Add(oRoad.oLibraries->Store().Results().Find(lID));
        }
        oRoad.Parameters().Add(colWork, ParameterKey::ReAnalyzeResults);
        oRoad.GoToAnalysis();
        EXPECT_EQ(oRoad.oHost->Title(), *oCase.sAction ? "Reanalyze Data" : "Analyze Data");
        EXPECT_EQ(oRoad.Where(), oCase.sBefore);
        oRoad.Analyze(PlayMode::StepByStep);
        const auto oAnalyzer = oRoad.oLibraries->LastAnalyzer();
        EXPECT_TRUE(oAnalyzer->LastCall()->ToString().starts_with(oCase.sCall)) << oAnalyzer->ToString();
        oAnalyzer->PlayAll();
        EXPECT_EQ(oRoad.Where(), oCase.sAfter);
        if (!oRoad.oHost->IsEnabled(HostButton::Finish)) continue;
        oRoad.oHost->PressFinish(); // commits: the locus page saves once more
        EXPECT_EQ(oRoad.oLibraries->StrSelector().Saved().size(), 2U);
        EXPECT_EQ(oRoad.Parameters().Holds(ParameterKey::AnalyzedResults), !bAlleles);
    }
}

// One queued gesture a yield: a click on the first row, a stop, and leaving after the stopped run.
TEST(WizardRoad, GesturesComeInTheYieldsOfEitherAnalyzer) {
    for (const PlayMode ePlay : {PlayMode::InsideCall, PlayMode::StepByStep}) {
        Road oRoad;
        oRoad.GoToAnalysis();
        auto& oPlatform = oRoad.oLibraries->Platform();
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
        EXPECT_EQ(oRoad.Counts(), "2 1 1");
        EXPECT_EQ(oRoad.oHost->CurrentPage(), Results);
        EXPECT_EQ(oRoad.Keys(), "Samples AlleleIDType AnalysisParameter AnalyzedResults");
        EXPECT_EQ(oRoad.oLibraries->LastAnalyzer(), nullptr);
        EXPECT_TRUE(oRoad.oLibraries->Utility().Reports().empty());
    }
}

} // namespace
} // namespace GleanerSvc
