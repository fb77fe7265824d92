// Real traces of an allelic ladder and a sample, each injected twice, and of a sample of no panel.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/workbench/traces/RealTraces.h"
#include "workbench/calling/Calling.h"
#include "workbench/traces/PanelTables.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {
namespace {

class RealTracesTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!m_oFolder) GTEST_SKIP() << "GLEANER_REAL_TRACES names no folder of real traces";
    }

    Trace Read(const std::string& sFile) const { return ReadTraceFile(*m_oFolder / sFile); }

    TableText Table(const std::string& sFile) const {
        TableText oTable{sFile, {}};
        for (const auto b : ReadBytes(*m_oFolder / sFile)) oTable.sText += std::to_integer<char>(b);
        return oTable;
    }

    std::optional<std::filesystem::path> m_oFolder = RealTraces();
};

TEST_F(RealTracesTest, TheSampleHasTheSameAllelesInEachInjectionAndAgainstEachLadder) {
    const auto aoPanels = ReadPanelTables(Table("NGM_Pa.txt"), Table("NGM_Bins.txt"));
    std::set<std::string> asSeen;
    for (const std::string sLadder : {"1", "2"}) {
        const auto oTrace = Read(sLadder + "_0000206138_C01_005.fsa");
        const auto oPanel = std::ranges::find(aoPanels, oTrace.sPanel, &Panel::sName);
        const auto oSized = SizeTrace(oTrace);
        const auto oLadder = CalibrateLadder(oSized, *oPanel);
        EXPECT_EQ(oLadder.nExpected, 205U);
        EXPECT_TRUE(oLadder.IsComplete());
        EXPECT_EQ(CallAlleles(oSized, {&*oPanel, nullptr, {}, oTrace.IsLadder()}).eStatus, Status::Pass);
        for (const std::string sSample : {"1", "2"}) {
            const auto oSample = SizeTrace(Read(sSample + "_FAC321_0000205983_B02_004.fsa"));
            EXPECT_EQ(oSample.oFit.aoPoints.size(), 15U);
            const auto oCalled = CallAlleles(oSample, {&*oPanel, &oLadder, {}, false});
            EXPECT_EQ(oCalled.eStatus, Status::Pass);
            EXPECT_EQ(oCalled.sReason, "16 loci, 28 peaks");
            std::string sAlleles;
            for (const auto& oCall : oCalled.aoCalls) sAlleles += oCall.sLocus + " " + oCall.sAllele + " ";
            asSeen.insert(sAlleles);
        }
    }
    EXPECT_EQ(asSeen.size(), 1U);
}

TEST_F(RealTracesTest, ATraceWithoutPanelIsSizedAllTheSame) {
    const auto oSized = SizeTrace(Read("samplefsa2ps.fsa"));
    EXPECT_EQ(oSized.oFit.aoPoints.size(), 15U);
    EXPECT_EQ(CallAlleles(oSized, {}).eStatus, Status::NoPanel);
}

TEST_F(RealTracesTest, NoOtherDyeOfTheLadderIsTakenForTheStandard) {
    for (std::size_t nDye = 0; nDye < 4; ++nDye) {
        auto oTrace = Read("2_0000206138_C01_005.fsa");
        std::swap(oTrace.aoDyes[nDye], oTrace.aoDyes[4]);
        EXPECT_EQ(SizeTrace(oTrace).eStatus, Status::BadSizeStandard) << nDye;
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
