// The analyzer over simulated plates: what was made is what is called, in order, stored before it is told.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/workbench/lab/LabScene.h"
#include "workbench/lab/FragmentAnalyzer.h"
#include "workbench/store/SampleDataRecord.h"

namespace GleanerSvc::Workbench {
namespace {

// How many seeds of each kind of plate are tried; more by hand.
std::uint64_t Seeds() {
    const char* const szSeeds = std::getenv("GLEANER_SEEDS");
    return szSeeds ? std::strtoull(szSeeds, nullptr, 10) : 2;
}

struct Completed {
    std::int32_t nIndex;
    std::int32_t lResultID;
    std::int32_t lStatus;
};

struct AnalyzerScene : LabScene {
    explicit AnalyzerScene(AlleleType eOfType = AlleleType::Str) : LabScene(eOfType) {
        oEvents.On(oAnalyzer->Events().OnStatusUpdate, [this](std::int32_t nIndex, std::string_view sText) {
            if (nIndex < -1) sRefused += sText;
            if (nIndex < 0) return;
            ++nUpdates;
            sTold += sText;
        });
        oEvents.On(oAnalyzer->Events().OnComplete,
                   [this](std::int32_t nIndex, std::int32_t lResultID, std::int32_t lStatus) {
                       EXPECT_TRUE(oLab->FindResult(lResultID)); // on disk by then
                       aoCompleted.push_back({nIndex, lResultID, lStatus});
                       if (aoCompleted.size() == nStopAt) oAnalyzer->Stop();
                   });
    }
    void Analyze(const std::vector<std::int32_t>& alSampleIDs) {
        lParameterID = oLab->AddParameter({0, "all", eType, {}});
        oAnalyzer->AnalyzeSamples(alSampleIDs, lParameterID);
    }
    // Every item in its order, with the status that its well was made for; a passed one with its genotype.
    void ExpectWhatWasMade() {
        ASSERT_EQ(aoCompleted.size(), aoSamples.size());
        for (std::size_t nItem = 0; nItem < aoSamples.size(); ++nItem) {
            const SimulatedWell& oMade = Made(aoSamples[nItem]);
            EXPECT_EQ(aoCompleted[nItem].nIndex, static_cast<std::int32_t>(nItem));
            EXPECT_EQ(StatusText(aoCompleted[nItem].lStatus), oMade.sStatus)
                << "seed " << oOrder.nSeed << " well " << oMade.sWell << ": "
                << oLab->FindResult(aoCompleted[nItem].lResultID)->sDescription;
            if (oMade.sStatus == "PASS") {
                EXPECT_EQ(Called(aoCompleted[nItem].lResultID), oMade.aoGenotype)
                    << "seed " << oOrder.nSeed << " well " << oMade.sWell;
            }
            // What could be called is there with these statuses too.
            if (oMade.sStatus == "OFF SCALE" || oMade.sStatus == "LOW SIGNAL") {
                EXPECT_FALSE(Called(aoCompleted[nItem].lResultID).empty()) << oMade.sStatus;
            }
        }
    }

    Ref<FragmentAnalyzer> oAnalyzer = std::make_shared<FragmentAnalyzer>(oLab, 2);
    Subscriptions oEvents;
    std::size_t nStopAt = 0;
    std::int32_t lParameterID = 0;
    std::string sRefused;
    std::string sTold; // of the items
    int nUpdates = 0;
    std::vector<Completed> aoCompleted;
};

TEST(FragmentAnalyzer, CallsTheGenotypesThatWereMadeAndTellsEachFailure) {
    for (std::uint64_t nSeed = 1; nSeed <= Seeds(); ++nSeed) {
        for (const auto eType : {AlleleType::Str, AlleleType::Snp}) {
            AnalyzerScene oRun(eType);
            oRun.oOrder.nSeed = nSeed;
            oRun.MakePlate();
            oRun.Analyze(oRun.SampleIDs());
            oRun.ExpectWhatWasMade();
        }
    }
}

TEST(FragmentAnalyzer, WithoutAWholeLadderNoSampleIsCalled) {
    for (const auto eLadder : {LadderState::Missing, LadderState::Broken}) {
        AnalyzerScene oRun;
        oRun.oOrder.eLadder = eLadder;
        oRun.oOrder.bWithFaults = false;
        oRun.MakePlate();
        oRun.Analyze(oRun.SampleIDs());
        oRun.ExpectWhatWasMade();
    }
}

TEST(FragmentAnalyzer, StopsBeforeTheNextResultIsStored) {
    AnalyzerScene oRun;
    oRun.MakePlate();
    oRun.nStopAt = 5;
    oRun.Analyze(oRun.SampleIDs());
    EXPECT_EQ(oRun.aoCompleted.size(), 5U);
    std::size_t nStored = 0;
    oRun.oLab->ForEachResult(AllProjectsID, [&](ResultRow&&) { ++nStored; });
    EXPECT_EQ(nStored, 5U);
}

TEST(FragmentAnalyzer, AHandlerMayLetGoOfItInTheMiddleOfARun) {
    AnalyzerScene oRun;
    oRun.MakePlate();
    const std::weak_ptr<FragmentAnalyzer> oWeak = oRun.oAnalyzer;
    std::size_t nTold = 0;
    oRun.oEvents.Clear();
    oRun.oEvents.On(oRun.oAnalyzer->Events().OnComplete, [&](std::int32_t, std::int32_t, std::int32_t) {
        if (++nTold < 2) return;
        oWeak.lock()->Stop();
        oRun.oEvents.Clear();
    });
    Ref<FragmentAnalyzer> oRunning = std::move(oRun.oAnalyzer);
    const std::int32_t lParameterID = oRun.oLab->AddParameter({0, "all", AlleleType::Str, {}});
    oRunning->AnalyzeSamples(oRun.SampleIDs(), lParameterID);
    EXPECT_EQ(nTold, 2U);
}

TEST(FragmentAnalyzer, CallsAgainOnStoredSizesWithOtherLoci) {
    AnalyzerScene oRun;
    oRun.oOrder.bWithFaults = false;
    oRun.MakePlate();
    const std::vector<std::int32_t> alTwo = {oRun.aoSamples[1].lSampleID, oRun.aoSamples[2].lSampleID};
    oRun.Analyze(alTwo);
    EXPECT_EQ(oRun.nUpdates, 2 * 150); // what the page's progress bar counts on
    const std::int32_t lFirst = oRun.aoCompleted[0].lResultID;
    const auto oDefinition = std::make_shared<ParameterDefinition>(oRun.oLab);
    oDefinition->Choose(AlleleType::Str, {"S02"});
    const auto fnData = [&](std::int32_t lSampleID, std::int32_t lResultID) -> Ref<IObject> {
        return std::make_shared<SampleDataRecord>(oRun.oLab, lSampleID, lResultID, "", Date());
    };
    // A result, a sample by its latest result, one that was never analyzed, and nothing.
    oRun.oAnalyzer->ReanalyzeAlleles(ObjectArray{fnData(alTwo[0], lFirst), fnData(alTwo[1], 0),
                                                 fnData(oRun.aoSamples[3].lSampleID, 0), nullptr},
                                     oDefinition, oDefinition, 0);
    ASSERT_EQ(oRun.aoCompleted.size(), 4U);
    const std::int32_t lAgain = oRun.aoCompleted[2].lResultID;
    EXPECT_EQ(oRun.Called(lAgain), std::vector<KnownGenotype>{oRun.Made(oRun.aoSamples[1]).aoGenotype[1]});
    EXPECT_EQ(oRun.oLab->SizedOf(lAgain), oRun.oLab->SizedOf(lFirst));
    EXPECT_NE(oRun.sTold.find("Reading P1_B01.fsa"), std::string::npos) << oRun.sTold;
    EXPECT_NE(oRun.sTold.find("Using the sizes of result " + std::to_string(lFirst) + "\r"),
              std::string::npos);
    EXPECT_NE(oRun.sRefused.find("never analyzed"), std::string::npos);
    EXPECT_NE(oRun.sRefused.find("item 4"), std::string::npos);
}

TEST(FragmentAnalyzer, RefusesRecordsThatTheLabDoesNotHave) {
    AnalyzerScene oRun;
    oRun.oOrder.bWithFaults = false;
    oRun.MakePlate();
    oRun.Analyze({oRun.aoSamples[1].lSampleID, 4711});
    EXPECT_NE(oRun.sRefused.find("no sample 4711"), std::string::npos);
    oRun.oAnalyzer->ReanalyzeResults(Int32Array{0, oRun.aoCompleted[0].lResultID}, oRun.lParameterID);
    EXPECT_NE(oRun.sRefused.find("no result 0"), std::string::npos);
    ASSERT_EQ(oRun.aoCompleted.size(), 2U);
    EXPECT_EQ(oRun.aoCompleted[1].nIndex, 1);
    EXPECT_EQ(oRun.Called(oRun.aoCompleted[1].lResultID), oRun.Called(oRun.aoCompleted[0].lResultID));
    EXPECT_THROW(oRun.oAnalyzer->AnalyzeSamples(Int32Array{}, 99), Failure);
}

} // namespace
} // namespace GleanerSvc::Workbench
