#include "models/RowIndexModel.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace GleanerSvc::Models {
namespace {

class RowIndexModelTest : public testing::Test {
  protected:
    std::int16_t Found(std::string_view sKey) {
        std::int16_t iFound = 7;
        m_oIndex.Find(sKey, iFound);
        return iFound;
    }
    FailureNumber ItemFailure(const Value& vKey) {
        try {
            m_oIndex.Item(vKey);
        } catch (const Failure& oFailure) {
            m_sTrouble = oFailure.Description();
            return static_cast<FailureNumber>(oFailure.Number());
        }
        return FailureNumber::None;
    }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    RowIndexModel m_oIndex{m_oJournal};
    std::string m_sTrouble;
};

TEST_F(RowIndexModelTest, OrdersNumbersBeforeTextsAndTextsWithoutRegardToCase) {
    for (const Value& vKey : {Value("b"), Value(10), Value("A"), Value(-3), Value("C"), Value(9)}) {
        m_oIndex.Add(vKey, Value(), true);
    }
    EXPECT_EQ(m_oIndex.ToString(), R"(-3=empty 9=empty 10=empty "A"=empty "b"=empty "C"=empty)");
    const auto avKeys = m_oIndex.Keys();
    ASSERT_EQ(m_oIndex.Count(), 6);
    ASSERT_EQ(avKeys.size(), 7U);
    EXPECT_TRUE(avKeys[0].IsEmpty());
    EXPECT_EQ(avKeys[1].ToInt32(), -3);
    EXPECT_EQ(avKeys[6].ToText(), "C");
    EXPECT_EQ(m_oJournal->Entries().front(), R"(RowIndex.Add("b", empty, True))");
}

TEST_F(RowIndexModelTest, KeepsOrReplacesTheValueOfAKeyThatIsThere) {
    for (const Value& vKey : {Value(1), Value("a")}) {
        m_oIndex.Add(vKey, 1, true);
        m_oIndex.Add(vKey, 2, true);
        EXPECT_EQ(m_oIndex.Item(vKey).ToInt32(), 1);
        m_oIndex.Add(vKey, 3, false);
        EXPECT_EQ(m_oIndex.Item(vKey).ToInt32(), 3);
    }
    m_oIndex.Add("A", 4, false);
    EXPECT_EQ(m_oIndex.ToString(), R"(1=3 "a"=4)");
    m_oIndex.Reset(false);
    EXPECT_EQ(m_oIndex.Count(), 0);
    EXPECT_EQ(m_oIndex.Keys().size(), 1U);
}

TEST_F(RowIndexModelTest, FindNeverGivesZeroForAKeyThatIsThere) {
    const std::vector<std::pair<Value, std::int16_t>> aCases = {
        {5, 5},         {Value(), -1}, {0, -1},     {0.4, -1},  {-32768, -32768},
        {32767, 32767}, {32768, -1},   {40000, -1}, {"12", -1},
    };
    for (const auto& [vValue, iExpected] : aCases) {
        m_oIndex.Add("key", vValue, false);
        EXPECT_EQ(Found("KEY"), iExpected) << vValue.ToString();
    }
    m_oIndex.Add(5, 5, true);
    EXPECT_EQ(Found("5"), 0);
}

TEST_F(RowIndexModelTest, HoldsFortyThousandRowsAddedInAnyOrder) {
    m_oJournal->Recording(false);
    std::vector<std::int32_t> alRows(40000);
    for (std::size_t nRow = 0; nRow < alRows.size(); ++nRow)
        alRows[nRow] = static_cast<std::int32_t>(nRow) + 1;
    std::shuffle(alRows.begin(), alRows.end(), std::mt19937(1));
    for (const auto lRow : alRows) {
        m_oIndex.Add(lRow, -lRow, false);
        m_oIndex.Add("row " + std::to_string(lRow), lRow, true);
    }
    const auto avKeys = m_oIndex.Keys();
    ASSERT_EQ(m_oIndex.Count(), 80000);
    for (std::int32_t lRow = 1; lRow <= 40000; ++lRow) {
        ASSERT_EQ(avKeys[static_cast<std::size_t>(lRow)].ToInt32(), lRow);
        ASSERT_EQ(m_oIndex.Item(lRow).ToInt32(), -lRow);
        ASSERT_EQ(Found("row " + std::to_string(lRow)), lRow <= 32767 ? lRow : -1);
    }
    EXPECT_EQ(Found("row 40001"), 0);
}

} // namespace
} // namespace GleanerSvc::Models
