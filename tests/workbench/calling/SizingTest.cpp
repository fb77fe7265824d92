#include "workbench/calling/Sizing.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/SyntheticTrace.h"

namespace GleanerSvc::Workbench {
namespace {

// Twelve peaks from 100 bp on in four dyes, each 10 RFU above the one before.
Trace Twelve(double dHeight = 600) {
    std::vector<Fragment> aoFragments;
    for (std::size_t n = 0; n < 12; ++n) {
        const auto dNumber = static_cast<double>(n);
        aoFragments.push_back({n / 3, 100 + 31.3 * dNumber, dHeight + 10 * dNumber});
    }
    return TraceOf(aoFragments);
}

TEST(SizingTest, PeaksAreSizedWithinATenth) {
    const auto oSized = SizeTrace(Twelve());
    ASSERT_EQ(oSized.aoPeaks.size(), 12U + 15U);
    for (std::size_t n = 0; n < 12; ++n) { // by dye, then scan
        EXPECT_NEAR(oSized.aoPeaks[n].dSize.value(), 100 + 31.3 * static_cast<double>(n), 0.1);
    }
    EXPECT_EQ(oSized.StandardDye(), 4U);
    for (double dSize = 50.1; dSize < 500; dSize += 3.7) {
        ASSERT_NEAR(SizeAt(oSized.oFit, ScanAt(oSized.oFit, dSize).value()).value(), dSize, 0.01);
    }
    EXPECT_FALSE(SizeAt(SizeFit(), 4000));
}

TEST(SizingTest, EachFaultHasItsStatus) {
    auto oNoScans = Twelve();
    for (auto& oDye : oNoScans.aoDyes) oDye.aiValues.clear();
    auto oLevel = Twelve();
    for (auto& oDye : oLevel.aoDyes) oDye.aiValues.assign(8600, 12);
    auto oNoStandard = Twelve();
    oNoStandard.aoDyes[4] = oLevel.aoDyes[4];
    auto oBadStandard = Twelve(); // the run ended too early
    for (auto& oDye : oBadStandard.aoDyes) oDye.aiValues.resize(6000);
    auto oOffScale = Twelve();
    oOffScale.alOffScale = {8599, 2957, 2956};
    auto oPrimersOffScale = Twelve(); // and between the peaks
    oPrimersOffScale.alOffScale = {1, 2400, 2450, 3100, 8599};
    const std::tuple<Trace, Status, std::string> aoCases[] = {
        {Trace(), Status::NoData, "0 dyes, wanted 2 or more"},
        {oNoScans, Status::NoData, "no scans"},
        {oLevel, Status::NoData, "no peak in any dye"},
        {oNoStandard, Status::NoSizeStandard, "0 peaks where the standard has 15 fragments"},
        {oBadStandard, Status::BadSizeStandard, "11 of 15 fragments, wanted 12"},
        {oOffScale, Status::OffScale, "off scale at scan 2956, 100.0 bp"},
        {Twelve(120), Status::LowSignal, "tenth-highest peak of 140 RFU, wanted 150"},
        {TraceOf({}), Status::LowSignal, "0 peaks, wanted 10"},
        {oPrimersOffScale, Status::Pass, "15 of 15 fragments, R2 0.99998"},
    };
    EXPECT_EQ(StatusText(-1), "UNKNOWN STATUS -1");
    for (const auto& [oTrace, eStatus, sReason] : aoCases) {
        const auto oSized = SizeTrace(oTrace);
        EXPECT_EQ(oSized.eStatus, eStatus) << sReason;
        EXPECT_EQ(oSized.sReason, sReason);
        EXPECT_EQ(oSized.IsSized(), eStatus > Status::BadSizeStandard || eStatus == Status::Pass) << sReason;
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
