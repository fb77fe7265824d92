#include "workbench/calling/Calling.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/TwoLoci.h"

namespace GleanerSvc::Workbench {
namespace {

// "PASS: 2 loci, 3 peaks; D1 9.3 10; D2 17"
std::string Text(const CalledTrace& oCalled) {
    std::string sText = StatusText(static_cast<std::int32_t>(oCalled.eStatus)) + ": " + oCalled.sReason;
    std::string sLocus;
    for (const auto& oCall : oCalled.aoCalls) {
        if (oCall.sLocus != sLocus) sText += "; " + oCall.sLocus;
        sText += " " + oCall.sAllele;
        sLocus = oCall.sLocus;
    }
    return sText;
}

struct TwoLociRun {
    Panel oPanel = TwoLoci();
    Ladder oLadder = CalibrateLadder(SizedPeaks(TwoLociLadder()), oPanel);

    std::string Called(const std::vector<Fragment>& aoFragments,
                       const std::vector<std::string>& asLoci = {}) {
        return Text(CallAlleles(SizedPeaks(aoFragments), {&oPanel, &oLadder, asLoci, false}));
    }
};

TEST(CallingTest, PeaksFallIntoTheBinsAsTheLadderMovedThem) {
    TwoLociRun oRun;
    EXPECT_EQ(oRun.Called({{0, 125.2}, {0, 126.0}, {1, 209.1}}), "PASS: 2 loci, 3 peaks; D1 9.3 10; D2 17");
    EXPECT_EQ(oRun.Called({{0, 134.2}, {0, 167.6}, {1, 202}}), "PASS: 2 loci, 3 peaks; D1 12 20; D2 15");
    // A stutter below a quarter, a split peak, another dye, a range of nobody's, the standard's dye.
    EXPECT_EQ(oRun.Called(
                  {{0, 122, 149}, {0, 126.1}, {0, 126.5, 300}, {1, 126.1}, {1, 209.5}, {2, 209.5}, {1, 260}}),
              "PASS: 2 loci, 2 peaks; D1 10; D2 17");
    EXPECT_EQ(oRun.Called({{0, 122.0}}, {"D1"}), "PASS: 1 locus, 1 peak; D1 9");
}

TEST(CallingTest, EachFaultHasItsStatus) {
    TwoLociRun oRun;
    EXPECT_EQ(oRun.Called({{0, 122}}), "LOCUS MISSING: no peak at D2; D1 9");
    EXPECT_EQ(oRun.Called({{0, 122}, {1, 205.5, 49}}), "LOCUS MISSING: no peak at D2; D1 9");
    EXPECT_EQ(oRun.Called({{0, 122}}, {"D1", "D9"}), "LOCUS MISSING: panel Two has no locus D9; D1 9");
    EXPECT_EQ(oRun.Called({{0, 122}, {1, 207.5}}), "OFF LADDER: in no bin: D2 at 207.5 bp; D1 9; D2 OL");
    EXPECT_EQ(oRun.Called({{0, 118}, {0, 122}, {0, 130}, {1, 209.5}}),
              "TOO MANY PEAKS: more than two peaks: D1 with 3; D1 8 9 11; D2 17");

    const auto oSample = SizedPeaks({{0, 122}, {1, 209.5}});
    EXPECT_EQ(Text(CallAlleles(oSample, {})), "NO PANEL: no panel to call by");
    EXPECT_EQ(Text(CallAlleles(oSample, {&oRun.oPanel, nullptr, {}, false})),
              "NO LADDER: no ladder of the same run");
    oRun.oLadder.oLoci.at("D1").oOffsets.erase("11");
    EXPECT_EQ(Text(CallAlleles(oSample, {&oRun.oPanel, &oRun.oLadder, {}, false})),
              "LADDER INCOMPLETE: the ladder has no peak at D1 11; D1 9; D2 17");
    EXPECT_EQ(Text(CallAlleles(oSample, {&oRun.oPanel, &oRun.oLadder, {"D2"}, false})),
              "PASS: 1 locus, 1 peak; D2 17");

    auto oDim = oSample; // what sizing said comes first
    oDim.eStatus = Status::LowSignal;
    EXPECT_EQ(Text(CallAlleles(oDim, {nullptr, nullptr, {}, false})), "LOW SIGNAL: ");
}

TEST(CallingTest, TheLadderIsCalledByItsOwnPeaks) {
    const auto oPanel = TwoLoci();
    auto aoFragments = TwoLociLadder();
    const CallRequest oRequest{&oPanel, nullptr, {}, true};
    const auto oCalled = CallAlleles(SizedPeaks(aoFragments), oRequest);
    EXPECT_EQ(Text(oCalled), "PASS: 10 ladder alleles; D1 8 9 9.3 10 11 20; D2 15 16 17 18");
    EXPECT_EQ(oCalled.aoCalls[9].nPeak, 9U);
    aoFragments.erase(aoFragments.begin() + 4);
    EXPECT_EQ(Text(CallAlleles(SizedPeaks(aoFragments), oRequest)),
              "LADDER INCOMPLETE: no peak at D1 11; D1 8 9 9.3 10 20; D2 15 16 17 18");
}

// Where two loci of a dye overlap, the bin decides; in no bin, the nearer one.
TEST(CallingTest, OverlappingLociShareTheirPeaksByBin) {
    TwoLociRun oRun;
    oRun.oPanel.aoLoci.push_back(StrLocus("D3", "green", {{"5", 216}, {"6", 220}}));
    oRun.oLadder.oLoci["D3"].oOffsets = {{"5", 0}, {"6", 0}};
    EXPECT_EQ(oRun.Called({{0, 122}, {1, 213.4}, {1, 216.2}}), "PASS: 3 loci, 3 peaks; D1 9; D2 18; D3 5");
    EXPECT_EQ(oRun.Called({{0, 122}, {1, 213.4}, {1, 215.2}}),
              "OFF LADDER: in no bin: D3 at 215.2 bp; D1 9; D2 18; D3 OL");
}

TEST(CallingTest, AnSnpIsCalledByDyeAndSizeWithoutALadder) {
    Panel oPanel{"Snps", AlleleType::Snp, {}};
    oPanel.aoLoci.push_back({"rs1",
                             "blue",
                             70,
                             76,
                             0,
                             {},
                             {{"G", "blue", 72, 0, 0, false}, {"A", "green", 73, 0.8, 0.8, false}}});
    oPanel.aoLoci.push_back({"rs2", "yellow", 90, 94, 0, {}, {{"C", "yellow", 92, 0.5, 0.5, false}}});
    const auto Called = [&](const std::vector<Fragment>& aoFragments) {
        return Text(CallAlleles(SizedPeaks(aoFragments), {&oPanel, nullptr, {}, false}));
    };
    EXPECT_EQ(Called({{0, 72.4}, {1, 73.7}, {2, 92}}), "PASS: 2 loci, 3 peaks; rs1 G A; rs2 C");
    EXPECT_EQ(Called({{1, 73}, {2, 92}, {3, 73}}), "PASS: 2 loci, 2 peaks; rs1 A; rs2 C");
    EXPECT_EQ(Called({{1, 72}, {2, 92}}), "OFF LADDER: in no bin: rs1 at 72.0 bp; rs1 OL; rs2 C");
    EXPECT_EQ(Called({{2, 92}}), "LOCUS MISSING: no peak at rs1; rs2 C");
}

} // namespace
} // namespace GleanerSvc::Workbench
