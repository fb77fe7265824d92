#include "workbench/calling/LadderCalibration.h"

#include <gtest/gtest.h>

#include "tests/workbench/calling/TwoLoci.h"

namespace GleanerSvc::Workbench {
namespace {

TEST(LadderCalibrationTest, AllelesAreFoundWhereverTheRunPutsThem) {
    auto aoFragments = TwoLociLadder();
    aoFragments.insert(aoFragments.begin(), {{0, 114, 150}, {0, 124.0, 150}, {0, 128.2, 90}}); // stutter
    aoFragments.push_back({1, 217.5, 45});                                                     // noise
    aoFragments.push_back({1, 197.0, 590}); // a stranger: more is explained without it
    const auto oLadder = CalibrateLadder(SizedPeaks(aoFragments), TwoLoci());
    EXPECT_TRUE(oLadder.IsComplete());
    EXPECT_EQ(oLadder.nExpected, 10U);
    const std::pair<std::string, double> aoOffsets[] = {{"8", -2},    {"9", -1.95}, {"9.3", -1.9},
                                                        {"10", -1.9}, {"11", -1.8}, {"20", -0.8}};
    for (const auto& [sAllele, dOffset] : aoOffsets) {
        EXPECT_NEAR(oLadder.oLoci.at("D1").oOffsets.at(sAllele), dOffset, 1e-6) << sAllele;
    }
    EXPECT_NEAR(oLadder.oLoci.at("D2").oOffsets.at("15"), 1.5, 1e-6);
}

TEST(LadderCalibrationTest, AMissingAlleleIsNotReplaced) {
    const auto oPanel = TwoLoci();
    for (const std::size_t nOut : {0U, 2U, 3U, 5U, 6U, 8U}) {
        auto aoFragments = TwoLociLadder();
        aoFragments.erase(aoFragments.begin() + static_cast<std::ptrdiff_t>(nOut));
        const auto oLadder = CalibrateLadder(SizedPeaks(aoFragments), oPanel);
        EXPECT_EQ(oLadder.nFound, 9U) << nOut;
        const auto& oLocus = oPanel.aoLoci[nOut < 6 ? 0 : 1];
        const auto& sAllele = oLocus.asLadder[nOut < 6 ? nOut : nOut - 6];
        EXPECT_FALSE(oLadder.oLoci.at(oLocus.sName).oOffsets.contains(sAllele)) << sAllele;
    }
}

TEST(LadderCalibrationTest, WhatIsNotSizedHasNoLadder) {
    auto oSized = SizedPeaks(TwoLociLadder());
    for (auto& oPeak : oSized.aoPeaks) oPeak.dSize.reset();
    EXPECT_EQ(CalibrateLadder(oSized, TwoLoci()).nFound, 0U);
    EXPECT_FALSE(CalibrateLadder(SizedPeaks({}), Panel()).IsComplete());
}

} // namespace
} // namespace GleanerSvc::Workbench
