#include "pagebind/SlotIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace GleanerSvc {
namespace {

constexpr std::size_t Slots = 300;

// Few hashes for many slots: most stand away from the cell that is theirs. Some hashes differ in their upper
// bits only, and those of 15 begin at the last cell of a small table.
std::size_t HashOf(std::size_t nSlot) { return nSlot % 3 == 0 ? 15 : (nSlot % 11) << (nSlot % 5 * 4); }

std::size_t Find(const SlotIndex& oIndex, std::size_t nSlot) {
    return oIndex.Find(HashOf(nSlot), [nSlot](std::size_t nFound) { return nFound == nSlot; });
}

void ExpectHolds(const SlotIndex& oIndex, const std::set<std::size_t>& oSlots) {
    for (std::size_t nSlot = 0; nSlot < Slots; ++nSlot) {
        ASSERT_EQ(Find(oIndex, nSlot), oSlots.contains(nSlot) ? nSlot : SlotIndex::NoSlot) << nSlot;
    }
}

TEST(SlotIndexTest, HoldsWhatASetHolds) {
    std::mt19937 oRandom(1);
    SlotIndex oIndex;
    std::set<std::size_t> oSlots;
    ExpectHolds(oIndex, oSlots);
    for (std::size_t nStep = 0; nStep < 4000; ++nStep) {
        SCOPED_TRACE(nStep);
        // Small at first, so that the end of the table is met often.
        const std::size_t nSlot =
            std::uniform_int_distribution<std::size_t>(0, nStep < 2000 ? 7 : Slots - 1)(oRandom);
        if (oSlots.erase(nSlot) > 0) {
            oIndex.Remove(HashOf(nSlot), nSlot);
        } else {
            oIndex.MakeRoom();
            oIndex.Add(HashOf(nSlot), nSlot);
            oSlots.insert(nSlot);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectHolds(oIndex, oSlots));
    }
    oIndex.Clear();
    ExpectHolds(oIndex, {});
}

} // namespace
} // namespace GleanerSvc
