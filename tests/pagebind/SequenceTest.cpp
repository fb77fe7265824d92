#include "pagebind/Sequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <vector>

namespace GleanerSvc {
namespace {

// The same random changes to a sequence and to a vector, long enough for gaps to be counted and swept.
TEST(SequenceTest, HoldsWhatAVectorHolds) {
    std::mt19937 oRandom(1);
    const auto Below = [&](std::size_t nEnd) { return static_cast<std::size_t>(oRandom() % nEnd); };
    Sequence<int> oSequence;
    std::vector<int> anPlain;
    const auto PlainAt = [&](auto nPlace) { return anPlain.begin() + static_cast<std::ptrdiff_t>(nPlace); };
    const auto fnLess = [](int nLeft, int nRight) { return nLeft % 97 < nRight % 97; };
    for (int nStep = 0; nStep < 60000; ++nStep) {
        const std::size_t nSize = anPlain.size();
        const std::size_t nKind = Below(1000);
        if (nSize < 10 || nKind < (nStep / 6000 % 2 == 0 ? 900U : 100U)) {
            oSequence.Append(nStep);
            anPlain.push_back(nStep);
        } else if (nKind < 997) {
            const std::size_t nPlace = std::array{std::size_t{0}, nSize - 1, Below(nSize)}[Below(3)];
            oSequence.EraseAt(nPlace);
            anPlain.erase(PlainAt(nPlace));
        } else if (nKind < 998) {
            const std::size_t nFirst = Below(nSize);
            oSequence.Sort(nFirst, nSize, fnLess);
            std::stable_sort(PlainAt(nFirst), PlainAt(nSize), fnLess);
        } else {
            anPlain.resize(nSize - Below(9) + Below(9));
            oSequence.Resize(anPlain.size());
        }
        ASSERT_EQ(oSequence.Size(), anPlain.size());
        for (std::size_t nPlace = 0; nStep % 100 == 0 && nPlace < anPlain.size(); ++nPlace)
            ASSERT_EQ(oSequence[nPlace], anPlain[nPlace]) << "step " << nStep << ", place " << nPlace;
    }
}

// What was removed is let go at once and not when the gap is swept out.
TEST(SequenceTest, LetsGoOfARemovedElement) {
    Sequence<std::shared_ptr<int>> oSequence;
    const auto oShared = std::make_shared<int>(0);
    for (int n = 0; n < 5; ++n) oSequence.Append(oShared);
    for (const std::size_t nPlace : {2U, 0U, 2U}) oSequence.EraseAt(nPlace); // middle, first, last
    EXPECT_EQ(oShared.use_count(), 1 + 2);
}

} // namespace
} // namespace GleanerSvc
