#include "models/GridModel.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "pagebind/Text.h"
#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

constexpr std::int16_t ByText = GridConst::SortByText;
constexpr std::int16_t ByValue = GridConst::SortByNumberOrDate;

// A grid of three columns with the rows A1 to A5.
class GridModelTest : public testing::Test {
  protected:
    GridModelTest() {
        m_oJournal->Recording(false);
        m_oGrid.NumCols(3);
        Fill({"A1", "A2", "A3", "A4", "A5"});
    }

    void Write(double dRow, double dCol, std::string_view sText) {
        m_oGrid.SetCellText(dRow, dCol, sText, GridConst::WriteText);
    }
    void Fill(const std::vector<std::string>& asNames) {
        m_oGrid.SetRowCount(0);
        double dRow = 0;
        for (const auto& sName : asNames) Write(++dRow, 1, sName);
        m_oGrid.SetRowCount(dRow);
    }
    // Of all columns.
    Ref<IGridRange> Rows(std::size_t nTop, std::size_t nBottom) {
        auto oRange = m_oGrid.CreateRangeObject();
        oRange->InitRange(0, static_cast<double>(nTop), 4, static_cast<double>(nBottom));
        return oRange;
    }
    Ref<ISortInfo> Key(double dCol, std::int16_t iType, bool bDescending = false, bool bCase = false) {
        auto oKey = m_oGrid.CreateSortInfo();
        oKey->nRC(dCol);
        oKey->SortType(iType);
        oKey->bCase(bCase);
        if (bDescending) oKey->SortOrder(GridConst::SortDescending);
        return oKey;
    }
    void Sort(const std::vector<Ref<ISortInfo>>& aoKeys) {
        auto oTable = m_oGrid.CreateRangeObject();
        oTable->SetTable();
        m_oGrid.SortRows(oTable, GridConst::SortRowsMode, aoKeys, static_cast<std::int16_t>(aoKeys.size()));
    }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Control m_oSite{nullptr, "grdAvailable", {}};
    GridModel m_oGrid{m_oJournal, std::make_shared<InputFocus>(), m_oSite};
};

TEST_F(GridModelTest, RowsWrittenAheadComeToLightWhenTheCountGrowsOverThem) {
    Write(7, 1, "A7");
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5]");
    m_oGrid.RemoveRows(1, 1); // what was written ahead moves up as well
    m_oGrid.SetRowCount(6);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, A4, A5, , A7]");
    m_oGrid.RemoveRows(5, 99);
    m_oGrid.RemoveRows(3, 2);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, A4, A5]");
    Write(8, 1, "gone");
    m_oGrid.SetRowCount(2); // drops every row beyond, those ahead as well
    m_oGrid.NumRows(8);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, , , , , , ]");
}

TEST_F(GridModelTest, APlaceOutsideTheTableFailsNamingGridAndPlace) {
    ExpectTroubles({
        {[&] { m_oGrid.GetCellText(6, 1); },
         "9 grdAvailable: grdAvailable has no row 6; it has 5 rows and 3 columns."},
        {[&] { m_oGrid.GetCellText(0, 5); }, "no column 5;"},
        {[&] { Write(-2, 1, ""); }, "no row -2;"},
        {[&] { m_oGrid.RemoveRows(0, 2); }, "its heading row;"},
        {[&] { m_oGrid.SetRowCount(-1); }, "no count of rows -1;"},
        {[&] { m_oGrid.Redraw(1); }, "Redraw knows the constant 2 and not 1."},
    });
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5]");
    EXPECT_EQ(m_oGrid.GetCellText(5, 4), ""); // one column past the last can be read
}

TEST_F(GridModelTest, SortsByTextOrByNumbersThenDatesThenText) {
    Fill({"b10", "B2", "a", "C", "", "b2"});
    m_oGrid.SelectRange(Rows(1, 2), true);
    Sort({Key(1, ByText)});
    EXPECT_EQ(m_oGrid.ToString(), "[*, a*, b10, B2, b2, C]"); // the highlight stays with the row numbers
    Sort({Key(1, ByText, true, true)});
    EXPECT_EQ(m_oGrid.ToString(), "[b2*, b10*, a, C, B2, ]");
    m_oGrid.ClearHighlight();
    Fill({"x", "2026-11-22 10:00:00", "10", "2026-11-22", " 9 ", "", "1e1", "-3", "2026-02-29", "inf"});
    Sort({Key(1, ByValue)});
    EXPECT_EQ(m_oGrid.ToString(),
              "[-3,  9 , 10, 1e1, 2026-11-22, 2026-11-22 10:00:00, , 2026-02-29, inf, x]");
}

TEST_F(GridModelTest, TheLockIsAFlagAndARedrawWhileLockedPaintsNothing) {
    for (const bool bLock : {true, true, false}) { // two locks, yet one lets go
        m_oGrid.LockUpdate(bLock);
        m_oGrid.Redraw(GridConst::RedrawAll);
    }
    EXPECT_FALSE(m_oGrid.IsLocked());
    EXPECT_EQ(m_oGrid.RedrawCount(), 1);
}

TEST_F(GridModelTest, AViewIsToldTheFirstChangeAndEachLock) {
    int nTold = 0;
    const auto oTold = m_oGrid.OnChanged.Subscribe([&] { ++nTold; });
    m_oGrid.MarkShown();
    Write(1, 1, "a");
    Write(2, 1, "b");
    EXPECT_EQ(nTold, 1);
    m_oGrid.LockUpdate(true);
    Write(1, 1, "c");
    m_oGrid.LockUpdate(false);
    EXPECT_EQ(nTold, 2);
}

TEST_F(GridModelTest, TheOrderIsKnownUntilARowComesOrChangesInItsColumn) {
    const auto SortByTwo = [&] { Sort({Key(2, ByText, true), Key(1, ByText)}); };
    EXPECT_FALSE(m_oGrid.SortedBy());
    SortByTwo();
    ASSERT_TRUE(m_oGrid.SortedBy());
    EXPECT_TRUE(m_oGrid.SortedBy()->dCol == 2 && m_oGrid.SortedBy()->bDescending);
    Write(1, 1, "z");
    Write(0, 2, "Heading");
    m_oGrid.RemoveRows(2, 2);
    EXPECT_TRUE(m_oGrid.SortedBy());
    Write(1, 2, "z");
    EXPECT_FALSE(m_oGrid.SortedBy());
    SortByTwo();
    m_oGrid.NumRows(m_oGrid.NumRows() + 1);
    EXPECT_FALSE(m_oGrid.SortedBy());
    SortByTwo();
    m_oGrid.SortRows(Rows(2, 3), GridConst::SortRowsMode, {Key(1, ByText)}, 1);
    EXPECT_FALSE(m_oGrid.SortedBy()) << "only some of the rows";
}

// The same operations on the grid and on a plain vector, long enough for the gaps that removals leave to be
// counted and swept. Rows that are equal in all keys keep their order, and highlights stay with the row
// numbers when rows are sorted.
class GridComparison : public GridModelTest {
  protected:
    using Row = std::pair<std::string, std::int32_t>; // a letter, and a number of its own

    std::size_t Below(std::size_t nLimit) { return m_oRandom() % nLimit; }
    static auto At(auto& aoAny, std::size_t nPlace) {
        return aoAny.begin() + static_cast<std::ptrdiff_t>(nPlace);
    }

    void Append() {
        const auto& [sName, lNumber] =
            m_aoRows.emplace_back(std::string(1, static_cast<char>('a' + Below(20))), ++m_lLastNumber);
        m_abHighlighted.push_back(false);
        const auto dRow = static_cast<double>(m_aoRows.size());
        if (Below(2) == 0) m_oGrid.SetRowCount(dRow); // otherwise the cells are written ahead
        Write(dRow, 1, sName);
        Write(dRow, 2, DecimalText(lNumber));
        Write(dRow, 4, DecimalText(lNumber % 2)); // beyond the columns
        auto oStyle = m_oGrid.CreateStyleObject();
        if (lNumber % 8 == 0) oStyle->SetInterior(lNumber);
        m_oGrid.SetStyleRange(Rows(m_aoRows.size(), m_aoRows.size()), oStyle, GridConst::StyleOverride);
        m_oGrid.SetRowCount(dRow);
    }
    void Remove(std::size_t nFirst, std::size_t nCount) {
        m_oGrid.RemoveRows(static_cast<double>(nFirst + 1), static_cast<double>(nFirst + nCount));
        m_aoRows.erase(At(m_aoRows, nFirst), At(m_aoRows, nFirst + nCount));
        m_abHighlighted.erase(At(m_abHighlighted, nFirst), At(m_abHighlighted, nFirst + nCount));
    }
    void Step(std::size_t nAppendShare) {
        const std::size_t nRow = Below(m_aoRows.size());
        const std::size_t nCount = 1 + Below(std::min<std::size_t>(m_aoRows.size() - nRow, 20));
        const std::size_t nKind = Below(120);
        if (nKind == 0) {
            Sort({Key(1, ByText), Key(4, ByValue, true)});
            std::stable_sort(m_aoRows.begin(), m_aoRows.end(), [](const Row& oLeft, const Row& oRight) {
                return std::pair(oLeft.first, oRight.second % 2) < std::pair(oRight.first, oLeft.second % 2);
            });
        }
        if (nKind == 1) return Remove(nRow, nCount);
        if (nKind <= 5) {
            m_oGrid.SelectRange(Rows(nRow + 1, nRow + nCount), nKind > 2);
            std::fill_n(At(m_abHighlighted, nRow), nCount, nKind > 2);
        }
        Below(100) < nAppendShare ? Append() : Remove(Below(4) == 0 ? 0 : nRow, 1);
    }
    void Compare() const {
        ASSERT_EQ(m_oGrid.Rows(), std::ssize(m_aoRows));
        for (std::int32_t lRow = 1; lRow <= m_oGrid.Rows(); ++lRow) {
            const auto nRow = static_cast<std::size_t>(lRow) - 1;
            const auto& [sName, lNumber] = m_aoRows[nRow];
            ASSERT_EQ(m_oGrid.Text(lRow, 1), sName) << lRow;
            ASSERT_EQ(m_oGrid.Text(lRow, 2), DecimalText(lNumber)) << lRow;
            ASSERT_EQ(m_oGrid.StyleAt(lRow, 1).lInterior.value_or(0), lNumber % 8 == 0 ? lNumber : 0) << lRow;
            ASSERT_EQ(m_oGrid.IsHighlighted(lRow), m_abHighlighted[nRow]) << lRow;
        }
    }

    std::mt19937 m_oRandom{20261122};
    std::vector<Row> m_aoRows;
    std::vector<bool> m_abHighlighted;
    std::int32_t m_lLastNumber = 0;
};

TEST_F(GridComparison, BehavesAsAPlainVectorDoes) {
    m_oGrid.SetRowCount(0);
    for (int nRow = 0; nRow < 4000; ++nRow) Append();
    for (const unsigned nAppendShare : {20U, 50U, 90U}) {
        for (int nStep = 0; nStep < 2500 && !HasFatalFailure(); ++nStep) {
            Step(nAppendShare);
            if (nStep % 250 == 249) Compare();
        }
    }
}

} // namespace
} // namespace GleanerSvc::Models
