#include "workbench/calling/SouthernSizing.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/SyntheticTrace.h"

namespace GleanerSvc::Workbench {
namespace {

double HyperbolaScan(double dSize) { return 40000 * (dSize + 200) / (dSize + 3000) - 1000; }
double LineScan(double dSize) { return 12 * dSize + 2000; }

// The method is exact on a hyperbola, and on a line as the least bent one.
TEST(SouthernSizingTest, SizesAreExactAndScansTheirInverse) {
    for (auto* const pScan : {&HyperbolaScan, &LineScan}) {
        std::vector<StandardPoint> aoPoints;
        for (const double dSize : StandardFragments()) aoPoints.push_back({dSize, pScan(dSize)});
        aoPoints[7].dScan -= 30; // the anomalous fragments have no say
        aoPoints[9].dScan -= 9;
        const SouthernCurve oCurve(aoPoints);
        for (double dSize = 50; dSize <= 500; dSize += 0.7) {
            ASSERT_NEAR(oCurve.SizeAt(pScan(dSize)).value(), dSize, 1e-6);
            ASSERT_NEAR(oCurve.ScanAt(dSize).value(), pScan(dSize), 1e-6);
        }
        for (const double dScan : {pScan(49.9), pScan(500.1), std::nan("")})
            EXPECT_FALSE(oCurve.SizeAt(dScan));
        for (const double dSize : {49.9, 500.1, std::nan("")}) EXPECT_FALSE(oCurve.ScanAt(dSize));
    }
    const SouthernCurve oTooFew({{100, 1000}, {200, 2000}, {250, 2500}, {340, 3400}});
    EXPECT_FALSE(oTooFew.SizeAt(1500) || oTooFew.ScanAt(150));
}

} // namespace
} // namespace GleanerSvc::Workbench
