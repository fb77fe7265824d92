#include "workbench/store/SizedContent.h"

#include "tests/workbench/store/LabStories.h"

namespace GleanerSvc::Workbench {

namespace {

TEST(SizedContent, WhatIsUnpackedEqualsWhatWasPacked) {
    auto oTrace = ResultOf(1).oSized;
    oTrace.eStatus = Status::LowSignal;
    EXPECT_EQ(UnpackSized(PackSized(oTrace)), oTrace);
    EXPECT_EQ(UnpackSized(PackSized({})), SizedTrace());
}

TEST(SizedContent, NoCutAndNoForeignByteIsReadAsATrace) {
    const auto abContent = PackSized(ResultOf(1).oSized);
    for (std::size_t nSize = 0; nSize < abContent.size(); ++nSize)
        EXPECT_THROW(UnpackSized(std::span(abContent).first(nSize)), LabError) << nSize;
    const auto Changed = [&](std::size_t nAt, unsigned char nByte) {
        auto abChanged = abContent;
        abChanged.at(nAt) = std::byte{nByte};
        return Refusal([&] { UnpackSized(abChanged); });
    };
    EXPECT_EQ(Changed(0, 7), "byte 1: the form 7 is not known");
    EXPECT_EQ(Changed(1, 200), "byte 2: there is no status 200");
    EXPECT_EQ(Changed(5, 0xFF), "byte 6: a text reaches beyond the end at 188");
    auto abLonger = abContent;
    abLonger.push_back({});
    EXPECT_EQ(Refusal([&] { UnpackSized(abLonger); }), "byte 188: more follows after the end");
}

} // namespace

} // namespace GleanerSvc::Workbench
