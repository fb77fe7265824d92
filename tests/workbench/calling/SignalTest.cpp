#include "workbench/calling/Signal.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/SyntheticTrace.h"

namespace GleanerSvc::Workbench {
namespace {

TEST(SignalTest, SmoothingKeepsAParabolaAndTakesNoise) {
    std::vector<double> adParabola;
    std::vector<double> adNoise;
    for (int n = 0; n < 40; ++n) {
        adParabola.push_back(3.0 * n * n - 50 * n + 7);
        adNoise.push_back(n % 2 == 0 ? 21 : -21);
    }
    const auto adSame = Smoothed(adParabola);
    const auto adQuiet = Smoothed(adNoise);
    for (std::size_t n = 0; n < 40; ++n) EXPECT_NEAR(adSame[n], adParabola[n], 1e-9) << n;
    for (std::size_t n = 3; n < 37; ++n) EXPECT_LE(std::abs(adQuiet[n]), 5) << n;
}

TEST(SignalTest, TheGroundGoesAndPeaksStay) {
    auto adSignal = Signal(2000, {{60, 800}, {700, 800}, {725, 300}, {1500, 90}, {1990, 400}});
    const auto adTrue = adSignal;
    for (std::size_t n = 0; n < 2000; ++n) adSignal[n] += n < 1000 ? 400 : 300 + 0.1 * static_cast<double>(n);
    const auto adCorrected = CorrectedSignal(Dye(adSignal));
    for (std::size_t n = 0; n < 2000; ++n) {
        const double dReach = n < 750 ? 1 : 14; // a slope is followed half a window late
        ASSERT_NEAR(adCorrected[n], adTrue[n], dReach + 0.05 * adTrue[n]) << n;
    }
    EXPECT_EQ(CorrectedSignal({"short", {7, 7, 9}}), (std::vector<double>{0, 0, 2})); // than any window
}

} // namespace
} // namespace GleanerSvc::Workbench
