#include "pagebind/KeyedCollection.h"

#include <gtest/gtest.h>

#include <random>

#include "pagebind/Text.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

TEST(KeyedCollectionTest, RefusedCallsNameTheKeyAndChangeNothing) {
    KeyedCollection colItems;
    for (const char* sKey : {"Samples", "<<Skip"}) colItems.Add(sKey, sKey);
    colItems.Add(7);
    ExpectTroubles({
        {[&] { colItems.Add(1, "SAMPLES"); },
         "457 Collection: This key is already associated with an element of this collection: \"SAMPLES\"."},
        {[&] { colItems.Item("1"); }, "5 Collection: The collection has no item under the key: \"1\"."},
        {[&] { colItems.Item(0); }, "9 Collection: The collection has no item at place 0."},
        {[&] { colItems.Remove(4); }, "9 Collection: The collection has no item at place 4."},
        {[&] { colItems.Item(Value(nullptr)); }, "13 GleanerSvc: Type mismatch"},
    });
    EXPECT_EQ(colItems.ToString(), "samples <<skip *");
}

// Even numbers have a key, which is looked for in another case. There are as many removals as make the
// collection close its gaps, several times over.
TEST(KeyedCollectionTest, HoldsWhatAPlainListHolds) {
    const auto KeyOf = [](std::int32_t lItem) { return "kEY" + DecimalText(lItem); };
    std::mt19937 oRandom(1);
    KeyedCollection colItems;
    std::vector<std::int32_t> alPlain;
    for (std::int32_t lStep = 0; lStep < 20000; ++lStep) {
        const bool bGrows = lStep / 5000 % 2 == 0;
        if (alPlain.empty() || oRandom() % 10 < (bGrows ? 8U : 1U)) {
            alPlain.push_back(lStep);
            lStep % 2 == 0 ? colItems.Add(lStep, "Key" + DecimalText(lStep)) : colItems.Add(lStep);
        } else {
            const auto itItem = alPlain.begin() + static_cast<std::ptrdiff_t>(oRandom() % alPlain.size());
            const auto lPlace = static_cast<std::int32_t>(itItem - alPlain.begin()) + 1;
            colItems.Remove(*itItem % 2 == 0 ? Value(KeyOf(*itItem)) : Value(lPlace));
            ASSERT_FALSE(colItems.Holds(KeyOf(*itItem)));
            alPlain.erase(itItem);
        }
        ASSERT_EQ(colItems.Count(), std::ssize(alPlain));
        for (std::int32_t lPlace = 1; lStep % 500 == 0 && lPlace <= colItems.Count(); ++lPlace) {
            const std::int32_t lItem = alPlain[static_cast<std::size_t>(lPlace) - 1];
            ASSERT_EQ(colItems.Item(lPlace).ToInt32(), lItem);
            ASSERT_TRUE(lItem % 2 != 0 || colItems.Item(KeyOf(lItem)).ToInt32() == lItem);
        }
    }
}

} // namespace
} // namespace GleanerSvc
