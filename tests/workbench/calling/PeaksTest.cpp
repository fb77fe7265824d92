#include "workbench/calling/Peaks.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/SyntheticTrace.h"

namespace GleanerSvc::Workbench {
namespace {

TEST(PeaksTest, ApexHeightAndWidthAreThoseOfTheBell) {
    const std::vector<Bell> aoBells{{100.3, 1000}, {200.5, 31}, {300.8, 400, 6}};
    const auto aoPeaks = FindPeaks(Signal(400, aoBells), 2, {});
    ASSERT_EQ(aoPeaks.size(), 3U);
    for (std::size_t n = 0; n < 3; ++n) {
        EXPECT_EQ(aoPeaks[n].nDye, 2U);
        EXPECT_NEAR(aoPeaks[n].dScan, aoBells[n].dScan, 0.01);
        EXPECT_NEAR(aoPeaks[n].dHeight, aoBells[n].dHeight, 0.001 * aoBells[n].dHeight);
        EXPECT_NEAR(aoPeaks[n].dWidth, 2.3548 * aoBells[n].dSigma, 0.1);
    }
}

TEST(PeaksTest, NearPeaksMergeAndSpikesGo) {
    const std::pair<std::vector<Bell>, std::vector<double>> aoCases[] = {
        {{{100, 29}}, {}},                      // below the threshold
        {{{100, 500, 0.8}}, {}},                // a spike
        {{{100, 500}, {112, 400}}, {100, 112}}, // a valley deep enough
        {{{100, 500}, {109, 480}}, {100}},      // too shallow: the higher one stays
        {{{100, 480}, {109, 500}}, {109}},
        {{{100, 300}, {109, 320}, {118, 340}}, {118}}, // one after the other
        {{{100, 500, 1.5}, {104.2, 450, 1.5}}, {100}}, // too near, whatever the valley
        {{{100, 500, 1.5}, {105.8, 450, 1.5}}, {100, 106}},
    };
    for (const auto& [aoBells, adScans] : aoCases) {
        const auto aoPeaks = FindPeaks(Signal(400, aoBells), 0, {});
        ASSERT_EQ(aoPeaks.size(), adScans.size()) << aoBells.back().dScan;
        for (std::size_t n = 0; n < aoPeaks.size(); ++n) EXPECT_NEAR(aoPeaks[n].dScan, adScans[n], 2);
    }
    auto adFlat = Signal(200, {{100, 1000}});
    for (auto& dValue : adFlat) dValue = std::min(dValue, 800.0);
    EXPECT_EQ(FindPeaks(adFlat, 0, {}).at(0).dScan, 100); // the middle
    EXPECT_TRUE(FindPeaks({}, 0, {}).empty());
    EXPECT_TRUE(FindPeaks(std::vector<double>(50, 100.0), 0, {}).empty()); // level
}

} // namespace
} // namespace GleanerSvc::Workbench
