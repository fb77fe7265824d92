#include "models/AnalyzerModel.h"

#include <gtest/gtest.h>

#include <functional>

namespace GleanerSvc::Models {
namespace {

AnalyzerScript TwoItems() {
    AnalyzerScript oScript;
    return oScript.Update(0, "x").Update(-1, "y").Complete(0, 501, 1).Update(1, "z").Complete(1, 0, 2);
}

// A page's place: it holds an analyzer, writes its events down and does what a test has hung on one of them.
struct Listener {
    explicit Listener(AnalyzerScript oScript)
        : oAnalyzer(std::make_shared<AnalyzerModel>(std::make_shared<Journal>(), std::move(oScript))) {
        aoSubscriptions.push_back(
            oAnalyzer->Events().OnStatusUpdate.Subscribe([this](std::int32_t lIndex, std::string_view sText) {
                Tell(std::to_string(lIndex) + std::string(sText));
            }));
        aoSubscriptions.push_back(oAnalyzer->Events().OnComplete.Subscribe(
            [this](std::int32_t lIndex, std::int32_t lResultID, std::int32_t lStatus) {
                Tell(std::to_string(lIndex) + "=" + std::to_string(lResultID) + "/" +
                     std::to_string(lStatus));
            }));
    }

    void Tell(const std::string& sEvent) {
        sLog += sEvent + " ";
        if (sEvent == sHooked) fnHook();
    }

    Ref<AnalyzerModel> oAnalyzer;
    std::vector<Subscription> aoSubscriptions;
    std::string sLog;
    std::string sHooked;
    std::function<void()> fnHook;
};

TEST(AnalyzerModelTest, PlaysInsideTheCall) {
    Listener oListener(TwoItems());
    EXPECT_EQ("idle", oListener.oAnalyzer->ToString());
    oListener.oAnalyzer->AnalyzeSamples(Int32Array{11, 12}, 7);
    EXPECT_EQ("0x -1y 0=501/1 1z 1=0/2 ", oListener.sLog);
    EXPECT_EQ("AnalyzeSamples([11, 12], 7) played=5/5 stops=0 ended", oListener.oAnalyzer->ToString());
    oListener.sLog.clear();
    oListener.oAnalyzer->ReanalyzeResults(Int32Array{5}, 7);
    EXPECT_EQ("0x -1y 0=501/1 1z 1=0/2 ", oListener.sLog) << "each operation begins anew";
}

TEST(AnalyzerModelTest, PlaysStepByStep) {
    AnalyzerScript oScript = TwoItems();
    oScript.ePlay = PlayMode::StepByStep;
    Listener oListener(oScript);
    EXPECT_FALSE(oListener.oAnalyzer->PlayNext());
    oListener.oAnalyzer->ReanalyzeAlleles(ObjectArray{nullptr, nullptr}, nullptr, nullptr, 0);
    EXPECT_TRUE(oListener.oAnalyzer->PlayNext());
    EXPECT_EQ("0x ", oListener.sLog);
    EXPECT_EQ("ReanalyzeAlleles(2 objects, nothing, nothing, 0) played=1/5 stops=0",
              oListener.oAnalyzer->ToString());
    oListener.oAnalyzer->PlayAll();
    EXPECT_EQ("0x -1y 0=501/1 1z 1=0/2 ", oListener.sLog);
    EXPECT_FALSE(oListener.oAnalyzer->PlayNext());
}

TEST(AnalyzerModelTest, StopsAsItIsTold) {
    struct Case {
        StopMode eStop;
        const char* sStopAt;
        const char* sLog;
    };
    const Case aoCases[] = {{StopMode::AtOnce, "0x", "0x "},
                            {StopMode::AfterItem, "1z", "0x -1y 0=501/1 1z "},
                            {StopMode::AfterItem, "0x", "0x -1y 0=501/1 "},
                            {StopMode::AfterItem, "0=501/1", "0x -1y 0=501/1 "},
                            {StopMode::Ignored, "0x", "0x -1y 0=501/1 1z 2next 1=0/2 "}};
    for (const auto& oCase : aoCases) {
        AnalyzerScript oScript = TwoItems();
        oScript.aoSteps.pop_back();
        oScript.Update(2, "next").Complete(1, 0, 2);
        oScript.eStop = oCase.eStop;
        Listener oListener(oScript);
        oListener.sHooked = oCase.sStopAt;
        oListener.fnHook = [&] { oListener.oAnalyzer->Stop(); };
        oListener.oAnalyzer->AnalyzeSamples(Int32Array{}, 7);
        EXPECT_EQ(oCase.sLog, oListener.sLog);
        EXPECT_EQ(1, oListener.oAnalyzer->StopCount());
        EXPECT_TRUE(oListener.oAnalyzer->HasEnded());
    }
}

TEST(AnalyzerModelTest, AFailureOfAHandlerReachesTheAnalyzer) {
    for (const auto eFailure : {HandlerFailure::End, HandlerFailure::GoOn}) {
        AnalyzerScript oScript = TwoItems();
        oScript.eFailure = eFailure;
        Listener oListener(oScript);
        oListener.sHooked = "0=501/1";
        oListener.fnHook = [] { throw Failure::Of(FailureNumber::DuplicateKey); };
        oListener.oAnalyzer->AnalyzeSamples(Int32Array{}, 7);
        EXPECT_EQ(eFailure == HandlerFailure::End ? "0x -1y 0=501/1 " : "0x -1y 0=501/1 1z 1=0/2 ",
                  oListener.sLog);
        EXPECT_EQ(Failure::Of(FailureNumber::DuplicateKey), oListener.oAnalyzer->LastFailure());
        EXPECT_TRUE(oListener.oAnalyzer->HasEnded());
    }
}

TEST(AnalyzerModelTest, SurvivesTheLossOfItsLastReferenceInAnEvent) {
    for (const auto ePlay : {PlayMode::InsideCall, PlayMode::StepByStep}) {
        AnalyzerScript oScript = TwoItems();
        oScript.ePlay = ePlay;
        Listener oListener(oScript);
        const std::weak_ptr<AnalyzerModel> oWeak = oListener.oAnalyzer;
        oListener.sHooked = "0x";
        oListener.fnHook = [&] { oListener.oAnalyzer.reset(); };
        oListener.oAnalyzer->AnalyzeSamples(Int32Array{}, 7);
        if (auto* pAnalyzer = oListener.oAnalyzer.get()) pAnalyzer->PlayNext();
        EXPECT_EQ(ePlay == PlayMode::InsideCall ? "0x -1y 0=501/1 1z 1=0/2 " : "0x ", oListener.sLog);
        EXPECT_TRUE(oWeak.expired());
    }
}

} // namespace
} // namespace GleanerSvc::Models
