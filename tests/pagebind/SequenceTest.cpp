#include "pagebind/Sequence.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <random>
#include <vector>

namespace GleanerSvc {
namespace {

// The same random changes to a sequence and to a vector. Places are the first, the last or any.
class Twins {
  public:
    explicit Twins(unsigned nSeed) : m_oRandom(nSeed) {}

    void Append(std::size_t nTimes) {
        for (; nTimes > 0; --nTimes) {
            m_oSequence.Append(m_nNext);
            m_anPlain.push_back(m_nNext++);
        }
    }
    void Erase(std::size_t nTimes) {
        for (; nTimes > 0 && !m_anPlain.empty(); --nTimes) {
            const std::size_t nPlace = AnyPlace();
            m_oSequence.EraseAt(nPlace);
            m_anPlain.erase(PlainAt(nPlace));
        }
    }
    void Resize(std::size_t nSize) {
        m_oSequence.Resize(nSize);
        m_anPlain.resize(nSize);
    }
    void Sort() {
        const std::size_t nFirst = Below(Size());
        const std::size_t nLast = nFirst + Below(Size() - nFirst);
        const auto fnLess = [](int nLeft, int nRight) { return nLeft % 97 < nRight % 97; };
        m_oSequence.Sort(nFirst, nLast, fnLess);
        std::stable_sort(PlainAt(nFirst), PlainAt(nLast), fnLess);
    }
    void Step() {
        if (Size() < 200) return Append(3500);
        const std::size_t nChoice = Below(12);
        if (nChoice == 0) return Resize(Size() - Below(Size() / 8) + Below(100));
        if (nChoice == 1) return Sort();
        if (nChoice == 2) return Erase(Below(1200));
        m_oSequence[7] = m_anPlain[7] = -1;
        return Below(2) == 0 ? Append(Below(80)) : Erase(40);
    }
    bool AreEqual() const {
        std::size_t nPlace = 0;
        return m_oSequence.Size() == Size() && std::ranges::all_of(m_anPlain, [&](int nElement) {
                   return m_oSequence[nPlace++] == nElement;
               });
    }
    std::size_t Size() const { return m_anPlain.size(); }

  private:
    std::size_t Below(std::size_t nEnd) {
        return std::uniform_int_distribution<std::size_t>(0, nEnd - 1)(m_oRandom);
    }
    std::size_t AnyPlace() { return std::array{std::size_t{0}, Size() - 1, Below(Size())}[Below(3)]; }
    std::vector<int>::iterator PlainAt(std::size_t nPlace) {
        return m_anPlain.begin() + static_cast<std::ptrdiff_t>(nPlace);
    }

    std::mt19937 m_oRandom;
    Sequence<int> m_oSequence;
    std::vector<int> m_anPlain;
    int m_nNext = 1;
};

TEST(SequenceTest, HoldsWhatAVectorHolds) {
    for (const unsigned nSeed : {1U, 2U, 3U}) {
        Twins oTwins(nSeed);
        for (int nStep = 0; nStep < 250; ++nStep) {
            oTwins.Step();
            ASSERT_TRUE(oTwins.AreEqual()) << "seed " << nSeed << ", step " << nStep;
        }
        oTwins.Resize(0);
        oTwins.Append(3);
        EXPECT_TRUE(oTwins.AreEqual());
        oTwins.Erase(3);
        oTwins.Append(3);
        EXPECT_TRUE(oTwins.AreEqual());
    }
}

TEST(SequenceTest, SlotsAreKeptUntilTheirElementIsToldToHaveMoved) {
    Sequence<int> oSequence;
    std::map<int, std::size_t> oSlots;
    int nTold = 0;
    for (int nElement = 0; nElement < 6000; ++nElement) oSlots[nElement] = oSequence.Append(nElement);
    for (int nElement = 0; nElement < 6000; ++nElement) {
        if (nElement % 3 == 1) continue;
        oSequence.EraseSlot(oSlots.at(nElement), [&](int nMoved, std::size_t nSlot) {
            oSlots.at(nMoved) = nSlot;
            ++nTold;
        });
        oSlots.erase(nElement);
        if (nElement % 500 == 0) {
            for (const auto& [nHeld, nSlot] : oSlots) ASSERT_EQ(oSequence.AtSlot(nSlot), nHeld);
        }
    }
    EXPECT_GT(nTold, 0);
    EXPECT_EQ(oSequence.Size(), 2000U);
    std::size_t nPlace = 0;
    for (const auto& [nElement, nSlot] : oSlots) {
        ASSERT_EQ(oSequence.AtSlot(nSlot), nElement);
        ASSERT_EQ(oSequence.SlotAt(nPlace++), nSlot);
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
