// Lets every closed call of every event and gesture fail in turn, and looks at who reports it, at who is
// told, and at what the same event brings about when it comes again.
#include <gtest/gtest.h>

#include "tests/FaultChain.h"
#include "tests/locuspage/LocusScene.h"

namespace GleanerSvc {
namespace {

const std::vector<Procedure> LocusProcedures = {
    {"m_oPageBase_Initialize", "", ".CreateRecord( .CreateParameterDefinition( .LoadParameters("},
    {"m_oPageBase_Save", "m_oPageBase_Deactivate", ".SaveParameters("},
    {"m_oPageBase_Deactivate", "", "Parameters.Remove("},
};

void OnLocusPage(LocusScene& o) { o.Enter(); }
void Fixed(LocusScene& o) { o.Parameters().Add("snp", ParameterKey::AlleleIDType); }
void ChooseKind(LocusScene& o) { o.Choose(1); }

const std::vector<Gesture<LocusScene>> LocusGestures = {
    {"Initialize, open", "m_oPageBase_Initialize^", {}, OnLocusPage},
    {"Initialize, fixed", "m_oPageBase_Initialize^", {Fixed}, OnLocusPage},
    {"choice", "^", {OnLocusPage}, ChooseKind},
    {"leave and save",
     "m_oPageBase_Save^ m_oPageBase_Deactivate^",
     {OnLocusPage, ChooseKind},
     [](LocusScene& o) {
         o.oHost->PressNext();
         o.oHost->PressFinish();
     }},
};

// Initialized, chosen and left once more, the page hands on what it should.
void ExpectLocusRecovery(LocusScene& oScene, const Gesture<LocusScene>& oGesture, const Injection& /*o*/) {
    const bool bFixed = oGesture.sName.ends_with("fixed");
    oScene.Events().Initialize.Raise(nullptr);
    EXPECT_EQ(oScene.State(), bFixed ? "SNP tab=1 1 snpActive fixed" : "none tab=0 open");
    ChooseKind(oScene);
    EXPECT_EQ(oScene.State(), std::string("SNP tab=1 1 snpActive ") + (bFixed ? "fixed" : "open"));
    oScene.Events().Deactivate.Raise();
    EXPECT_EQ(oScene.Stored(), bFixed ? "snp" : "none");
    EXPECT_EQ(oScene.Parameters().Count(), 2);
    EXPECT_TRUE(ItemAs<IParameterDefinition>(oScene.Parameters(), ParameterKey::AnalysisParameter));
}

TEST(LocusTagSelectPageFault, EveryCallOfEveryEventAndGestureMayFail) {
    FaultChain oChain("LocusTagSelectPage", LocusProcedures);
    for (const auto& oGesture : LocusGestures) Walk(oChain, oGesture, ExpectLocusRecovery);
    EXPECT_EQ(oChain.Silent(), Words());
}

} // namespace
} // namespace GleanerSvc
