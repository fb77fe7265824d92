#include "workbench/calling/SizeStandard.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/workbench/calling/SyntheticTrace.h"

namespace GleanerSvc::Workbench {
namespace {

// The standard's peaks without the fragments of some sizes, and with others at some scans.
std::vector<Peak> Candidates(const std::vector<double>& adMissing, const std::vector<double>& adExtra) {
    std::vector<Peak> aoPeaks;
    for (std::size_t n = 0; n < 15; ++n) {
        if (std::ranges::count(adMissing, StandardFragments()[n]) > 0) continue;
        aoPeaks.push_back({4, StandardBells()[n].dScan, 500, 9, {}});
    }
    for (const double dScan : adExtra) aoPeaks.push_back({4, dScan, 450, 9, {}});
    std::ranges::sort(aoPeaks, {}, &Peak::dScan);
    return aoPeaks;
}

TEST(SizeStandardTest, FragmentsAreFoundAmongMissingAndExtraPeaks) {
    const std::pair<std::vector<double>, std::vector<double>> aoCases[] = {
        {{}, {2250, 2310, 3200, 6400, 8000}}, // before, among and behind
        {{150}, {}},
        {{50, 75}, {2200}},
        {{450, 490, 500}, {}},
        {{200, 250}, {7600}},
        {{100, 300, 450}, {3500, 5100}},
    };
    for (const auto& [adMissing, adExtra] : aoCases) {
        const auto oFit = FitStandard(Candidates(adMissing, adExtra));
        ASSERT_EQ(oFit.aoPoints.size(), 15 - adMissing.size());
        EXPECT_EQ(FitFault(oFit), "");
        for (const auto& oPoint : oFit.aoPoints) {
            EXPECT_NEAR(oPoint.dScan, TrueScan(oPoint.dSize), IsAnomalous(oPoint) ? 40 : 1) << oPoint.dSize;
        }
    }
}

TEST(SizeStandardTest, WhatIsWrongWithAFitIsTold) {
    auto aoUneven = Candidates({}, {});
    for (std::size_t n = 0; n < aoUneven.size(); n += 2) aoUneven[n].dHeight = 1500;
    EXPECT_EQ(FitFault(FitStandard(aoUneven)), "heights vary by 0.48, wanted 0.40");
    EXPECT_EQ(FitFault(FitStandard(Candidates({}, {3000, 3300, 4000, 6400}))),
              "79 % of the peaks are fragments, wanted 80 %");
    EXPECT_EQ(FitFault(FitStandard(Candidates({50, 75, 490, 500}, {}))), "11 of 15 fragments, wanted 12");
    auto aoBent = Candidates({}, {});
    for (auto& oPeak : aoBent) oPeak.dScan += 80 * std::sin(oPeak.dScan / 400);
    EXPECT_EQ(FitFault(FitStandard(aoBent)), "R2 0.99911, wanted 0.9999");
}

TEST(SizeStandardTest, PeaksThatAreNoStandardAreRefused) {
    std::vector<Peak> aoLadder; // every 4 bp, as the alleles of a ladder
    for (double dSize = 60; dSize < 450; dSize += 4) aoLadder.push_back({0, TrueScan(dSize), 500, 9, {}});
    EXPECT_NE(FitFault(FitStandard(aoLadder)), "");
    EXPECT_TRUE(FitStandard(std::vector<Peak>(1000)).aoPoints.empty()); // and in no time
}

TEST(SizeStandardTest, CandidatesAreAsHighAsTheLatePeaks) {
    const std::vector<Peak> aoPeaks{{4, 1000, 9000, 30, {}}, {4, 1500, 400, 41, {}}, {4, 2000, 400, 9, {}},
                                    {4, 5000, 400, 9, {}},   {4, 6000, 99, 9, {}},   {4, 7000, 420, 9, {}}};
    const auto aoCandidates = StandardCandidates(aoPeaks, 8000);
    EXPECT_EQ(aoCandidates, (std::vector<Peak>{aoPeaks[2], aoPeaks[3], aoPeaks[5]}));
}

} // namespace
} // namespace GleanerSvc::Workbench
