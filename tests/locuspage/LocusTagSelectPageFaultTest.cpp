// Lets every closed call of every event and gesture fail in turn, and looks at who reports it, at who is
// told, and at what the same event brings about when it comes again.
#include <gtest/gtest.h>

#include <functional>
#include <iostream>

#include "tests/FaultChain.h"
#include "tests/locuspage/LocusScene.h"

namespace GleanerSvc {
namespace {

using Scene = LocusScene;
using Step = std::function<void(Scene&)>;

const std::vector<Procedure> Procedures = {
    {"m_oPageBase_Initialize", "", ".CreateRecord( .CreateParameterDefinition( .LoadParameters("},
    {"m_oPageBase_Save", "m_oPageBase_Deactivate", ".SaveParameters("},
    {"m_oPageBase_Deactivate", "", "Parameters.Remove("},
};

struct Gesture {
    const char* sName;
    const char* sType; // under "AlleleIDType" before the run
    const char* sEnds;
    Step fnPrepare;
    Step fnMake;
};

void Start(Scene& o) { o.oHost->Start(); }
void Finish(Scene& o) { o.oHost->PressFinish(); }
void Choose(Scene& o) { o.oPage->optAlleleIDType[1].Press(); }
void Chosen(Scene& o) {
    Start(o);
    Choose(o);
}

const std::vector<Gesture> Gestures = {
    {"Initialize, open", nullptr, "m_oPageBase_Initialize^", [](Scene&) {}, Start},
    {"Initialize, fixed", "snp", "m_oPageBase_Initialize^", [](Scene&) {}, Start},
    {"choice", nullptr, "^", Start, Choose},
    {"leave and save", nullptr, "m_oPageBase_Save^ m_oPageBase_Deactivate^", Chosen, Finish},
};

struct Walk {
    FaultChain oChain{"LocusTagSelectPage", Procedures};
    int nFailures = 0;

    // Lets that call fail. False when the gesture has no such call.
    bool Fail(const Gesture& oGesture, std::int64_t nCall) {
        Scene oScene(oGesture.sType);
        oScene.oLibraries->Journal().Recording(false);
        oGesture.fnPrepare(oScene);
        const Injection oInjection = Inject(
            oScene.oLibraries->Journal(), nCall, [&] { oGesture.fnMake(oScene); },
            [&] { return !oScene.oHost->Failures().empty(); });
        SCOPED_TRACE(std::string(oGesture.sName) + ": " + oInjection.sCall);
        EXPECT_EQ(oChain.Trouble(oScene.oLibraries->Utility().Reports(), oInjection, oGesture.sEnds), "");
        ExpectRecovery(oScene, oGesture);
        return !oInjection.sCall.empty();
    }

    // Initialized, chosen and left once more, the page hands on what it should.
    static void ExpectRecovery(Scene& oScene, const Gesture& oGesture) {
        oScene.Events().Initialize.Raise(nullptr);
        EXPECT_EQ(oScene.State(), oGesture.sType ? "SNP tab=1 1 snpActive fixed" : "none tab=0 open");
        Choose(oScene);
        EXPECT_EQ(oScene.State().substr(0, 22), "SNP tab=1 1 snpActive ");
        oScene.Events().Deactivate.Raise();
        EXPECT_EQ(oScene.Stored(), oGesture.sType ? oGesture.sType : "none");
        EXPECT_EQ(oScene.colParameters->Count(), 2);
        EXPECT_TRUE(ItemAs<IParameterDefinition>(*oScene.colParameters, ParameterKey::AnalysisParameter));
    }
};

TEST(LocusTagSelectPageFault, EveryCallOfEveryEventAndGestureMayFail) {
    Walk oWalk;
    for (const auto& oGesture : Gestures) {
        for (std::int64_t nCall = 1; oWalk.Fail(oGesture, nCall); ++nCall) ++oWalk.nFailures;
    }
    std::cout << Gestures.size() << " gestures, " << oWalk.nFailures << " injected failures\n";
    EXPECT_EQ(oWalk.oChain.Reporters(),
              WordsOf("m_oPageBase_Initialize m_oPageBase_Save m_oPageBase_Deactivate"));
}

} // namespace
} // namespace GleanerSvc
