#include "models/GridModel.h"

#include <algorithm>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pagebind/Text.h"
#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::int16_t ByText = GridConst::SortByText;
constexpr std::int16_t ByValue = GridConst::SortByNumberOrDate;

// A grid of three columns with the rows A1 to A5, and another that shares the focus with it.
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
    Ref<IGridRange> Range(double dLeft, double dTop, double dRight, double dBottom) {
        auto oRange = m_oGrid.CreateRangeObject();
        oRange->InitRange(dLeft, dTop, dRight, dBottom);
        return oRange;
    }
    Ref<IGridRange> Table() {
        auto oRange = m_oGrid.CreateRangeObject();
        oRange->SetTable();
        return oRange;
    }
    void Select(double dTop, double dBottom, bool bSelect = true) {
        m_oGrid.SelectRange(Range(0, dTop, 4, dBottom), bSelect);
    }
    void Paint(const Ref<IGridRange>& oRange, std::int32_t lColor) {
        auto oStyle = m_oGrid.CreateStyleObject();
        oStyle->SetInterior(lColor);
        m_oGrid.SetStyleRange(oRange, oStyle, GridConst::StyleOverride);
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
        m_oGrid.SortRows(Table(), GridConst::SortRowsMode, aoKeys, static_cast<std::int16_t>(aoKeys.size()));
    }

    template<class F>
    static std::string FailureText(F&& fnCall) {
        return FailureOf(fnCall).ToString();
    }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<InputFocus> m_oFocus = std::make_shared<InputFocus>();
    Container m_oPage{nullptr, "page", {}};
    Control m_oSite{&m_oPage, "grdAvailable", {}};
    Control m_oOtherSite{&m_oPage, "grdSelected", {}};
    GridModel m_oGrid{m_oJournal, m_oFocus, m_oSite};
    GridModel m_oOther{m_oJournal, m_oFocus, m_oOtherSite};
};

TEST_F(GridModelTest, RowsWrittenAheadComeToLightWhenTheCountGrowsOverThem) {
    Write(7, 1, "A7");
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5]");
    m_oGrid.RemoveRows(1, 1); // what was written ahead moves up as well
    m_oGrid.SetRowCount(6);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, A4, A5, , A7]");
    m_oGrid.RemoveRows(6, 99);
    m_oGrid.RemoveRows(6, 6);
    m_oGrid.RemoveRows(3, 2);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, A4, A5, ]");
    Write(8, 1, "gone");
    m_oGrid.SetRowCount(2); // drops every row beyond, those ahead as well
    m_oGrid.NumRows(8);
    EXPECT_EQ(m_oGrid.ToString(), "[A2, A3, , , , , , ]");
    m_oGrid.RemoveRows(1, 1);
    EXPECT_EQ(m_oGrid.GetCellText(1, 1), "A3");
    m_oGrid.SetRowCount(0);
    m_oGrid.RemoveRows(1, 0);
    EXPECT_EQ(m_oGrid.ToString(), "[]");
    Write(1, 1, "new");
    m_oGrid.SetRowCount(1);
    EXPECT_EQ(m_oGrid.ToString(), "[new]");
}

TEST_F(GridModelTest, APlaceOutsideTheTableFailsNamingGridAndPlace) {
    const auto Reading = [&](double dRow, double dCol) {
        return FailureText([&] { m_oGrid.GetCellText(dRow, dCol); });
    };
    EXPECT_EQ(Reading(6, 1), "9 grdAvailable: grdAvailable has no row 6; it has 5 rows and 3 columns.");
    EXPECT_THAT(Reading(-1, 1), HasSubstr("no row -1;"));
    EXPECT_THAT(Reading(1.5, 1), HasSubstr("no row 1.5;"));
    EXPECT_THAT(Reading(1e12, 1), HasSubstr("no row 1000000000000;"));
    EXPECT_THAT(Reading(1, -1), HasSubstr("no column -1;"));
    EXPECT_THAT(Reading(0, 5), HasSubstr("no column 5;"));
    EXPECT_EQ(m_oGrid.GetCellText(5, 4), ""); // one column past the last can be read

    EXPECT_THAT(FailureText([&] { Write(-2, 1, ""); }), HasSubstr("no row -2;"));
    EXPECT_THAT(FailureText([&] { m_oGrid.SetCellValue(1, 40000, ""); }), HasSubstr("no column 40000;"));
    EXPECT_THAT(FailureText([&] { m_oGrid.RemoveRows(0, 2); }), HasSubstr("its heading row;"));
    EXPECT_THAT(FailureText([&] { m_oGrid.SetRowCount(-1); }), HasSubstr("no count of rows -1;"));
    EXPECT_THAT(FailureText([&] { m_oGrid.SetCurrentCell(6, 1); }), HasSubstr("no row 6;"));
    EXPECT_THAT(FailureText([&] { Select(-1, 3); }), HasSubstr("no row -1;"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5]");
}

TEST_F(GridModelTest, TheSelectionFollowsItsRows) {
    struct Case {
        double dFirst, dLast; // removed
        const char* sLeft;    // of 0-0 2-4 8-9 6-6
    };
    for (const Case& oCase : {Case{1, 1, "0-0 1-3 7-8 5-5"}, Case{2, 4, "0-0 5-6 3-3"},
                              Case{3, 3, "0-0 2-3 7-8 5-5"}, Case{4, 8, "0-0 2-3 4-4"}, Case{1, 10, "0-0"},
                              Case{10, 10, "0-0 2-4 8-9 6-6"}, Case{9, 99, "0-0 2-4 8-8 6-6"}}) {
        m_oGrid.SetRowCount(10);
        m_oGrid.ClearHighlight();
        for (const auto& [dTop, dBottom] : {std::pair(0, 0), {2, 4}, {8, 9}, {6, 6}}) Select(dTop, dBottom);
        EXPECT_THAT(m_oGrid.HighlightedRows(), ElementsAre(2, 3, 4, 6, 8, 9));
        EXPECT_EQ(m_oGrid.HighlightedRowCount(), 6);
        m_oGrid.RemoveRows(oCase.dFirst, oCase.dLast);
        EXPECT_EQ(m_oGrid.Selection().ToString(), oCase.sLeft);
    }
    m_oGrid.SetRowCount(2);
    EXPECT_EQ(m_oGrid.Selection().ToString(), "0-0 2-2");
}

TEST_F(GridModelTest, SelectionOffClearsAndRefusesUntilItIsOnAgain) {
    Select(1, 2);
    m_oGrid.Params()->EnableSelection(GridConst::SelectionOff);
    Select(1, 1);
    EXPECT_FALSE(m_oGrid.HasSelection());
    m_oGrid.Params()->EnableSelection(GridConst::SelectionFull);
    Select(0, 0);
    EXPECT_TRUE(m_oGrid.HasSelection()); // the heading row is selected, yet no data row is highlighted
    EXPECT_EQ(m_oGrid.HighlightedRowCount(), 0);
    m_oGrid.SelectRange(Table(), false);
    EXPECT_FALSE(m_oGrid.HasSelection());
    m_oGrid.SelectRange(Table(), true);
    EXPECT_EQ(m_oGrid.Selection().ToString(), "1-5");
}

TEST_F(GridModelTest, SortsByTextWithAndWithoutRegardToCase) {
    Fill({"b10", "B2", "a", "C", "", "b2"});
    Select(1, 2);
    Sort({Key(1, ByText)});
    EXPECT_EQ(m_oGrid.ToString(), "[*, a*, b10, B2, b2, C]"); // the highlight stays with the row numbers
    Sort({Key(1, ByText, true, true)});
    EXPECT_EQ(m_oGrid.ToString(), "[b2*, b10*, a, C, B2, ]");
}

TEST_F(GridModelTest, SortsByValueNumbersThenDatesThenText) {
    Fill({"x", "2026-11-22 10:00:00", "10", "2026-11-22", " 9 ", "", "1e1", "-3", "2025-01-01", "inf"});
    Sort({Key(1, ByValue)});
    EXPECT_EQ(m_oGrid.ToString(),
              "[-3,  9 , 10, 1e1, 2025-01-01, 2026-11-22, 2026-11-22 10:00:00, , inf, x]");
    Sort({Key(1, ByValue, true)});
    EXPECT_EQ(m_oGrid.ToString(),
              "[x, inf, , 2026-11-22 10:00:00, 2026-11-22, 2025-01-01, 10, 1e1,  9 , -3]");
}

TEST_F(GridModelTest, RowsMoveWholeAndEqualRowsKeepTheirOrder) {
    Fill({"b", "a", "b", "a", "b"});
    for (int nRow = 1; nRow <= 5; ++nRow) {
        Write(nRow, 2, nRow < 3 ? "2" : "10");
        Write(nRow, 4, DecimalText(nRow)); // beyond the columns
        Paint(Range(1, nRow, 1, nRow), nRow);
    }
    const auto Order = [&] {
        std::string sOrder;
        for (int nRow = 1; nRow <= 5; ++nRow) {
            sOrder += m_oGrid.Text(nRow, 4);
            EXPECT_EQ(m_oGrid.StyleAt(nRow, 1).ToString(), "interior=" + std::string(m_oGrid.Text(nRow, 4)));
        }
        return sOrder;
    };
    Sort({Key(1, ByText)});
    EXPECT_EQ(Order(), "24135");
    Sort({Key(1, ByText), Key(2, ByValue, true)});
    EXPECT_EQ(Order(), "42351");
    m_oGrid.SortRows(Range(1, 0, 3, 3), GridConst::SortRowsMode, {Key(2, ByValue, true), nullptr}, 1);
    EXPECT_EQ(Order(), "43251");
}

TEST_F(GridModelTest, AStyleHoldsForRowsToComeAndMovesWithItsRow) {
    m_oGrid.SetRowCount(0);
    auto oStyle = m_oGrid.CreateStyleObject();
    m_oGrid.SetStyleRange(Range(1, 1, 2, 9), oStyle, GridConst::StyleOverride); // nothing is set in it
    oStyle->SetControl(GridConst::CellControl);
    m_oGrid.SetStyleRange(Range(1, 1, 2, 4), oStyle, GridConst::StyleOverride);
    EXPECT_EQ(m_oGrid.ToString(), "[]");
    m_oGrid.SetRowCount(5);
    Paint(Range(2, 3, 3, 3), 255);
    Paint(Range(1, 3, 1, 3), 7);
    m_oGrid.RemoveRows(2, 2);
    const auto Styles = [&](int nRow) {
        std::string sStyles;
        for (int nCol = 1; nCol <= 3; ++nCol) sStyles += m_oGrid.StyleAt(nRow, nCol).ToString() + "|";
        return sStyles;
    };
    EXPECT_EQ(Styles(1), "control=52513|control=52513||");
    EXPECT_EQ(Styles(2), "control=52513 interior=7|control=52513 interior=255|interior=255|");
    EXPECT_EQ(Styles(4), "|||"); // the fifth row before the removal
    oStyle->SetBitmap(GridConst::BitmapNumber);
    oStyle->SetTextColor(0);
    m_oGrid.SetStyleRange(Table(), oStyle, GridConst::StyleOverride);
    EXPECT_EQ(m_oGrid.StyleAt(2, 2).ToString(), "control=52513 interior=255 text=0 bitmap=2000");
    m_oGrid.NumCols(1);
    EXPECT_EQ(Styles(3), "control=52513 text=0 bitmap=2000|||");
    EXPECT_EQ(Styles(0), "|||");
}

TEST_F(GridModelTest, TheLockIsAFlagAndARedrawWhileLockedPaintsNothing) {
    for (const bool bLock : {true, true, false}) {
        m_oGrid.LockUpdate(bLock);
        m_oGrid.Redraw(GridConst::RedrawAll);
        EXPECT_EQ(m_oGrid.ToString(), std::string("[A1, A2, A3, A4, A5]") + (bLock ? " locked" : ""));
    }
    EXPECT_EQ(m_oGrid.RedrawCount(), 1);
    EXPECT_THAT(FailureText([&] { m_oGrid.Redraw(1); }), HasSubstr("Redraw knows the constant 2 and not 1."));
}

// The same operations on the grid and on a plain vector, long enough for the gaps that removals leave to be
// counted and swept.
class GridComparison : public GridModelTest {
  protected:
    struct Row {
        std::string sName, sNumber;
        bool bRed = false;
    };

    std::size_t Below(std::size_t nLimit) { return m_oRandom() % nLimit; }
    static auto At(auto& aoAny, std::size_t nPlace) {
        return aoAny.begin() + static_cast<std::ptrdiff_t>(nPlace);
    }

    void Append() {
        const Row oRow{std::string(1, static_cast<char>('a' + Below(20))), DecimalText(++m_lLastNumber),
                       Below(8) == 0};
        const auto dRow = static_cast<double>(m_aoRows.size() + 1);
        if (Below(2) == 0) m_oGrid.SetRowCount(dRow); // otherwise the cells are written ahead
        Write(dRow, 1, oRow.sName);
        Write(dRow, 2, oRow.sNumber);
        if (oRow.bRed) Paint(Range(1, dRow, 1, dRow), 255);
        m_oGrid.SetRowCount(dRow);
        m_aoRows.push_back(oRow);
        m_abHighlighted.push_back(false);
    }

    void Remove(std::size_t nFirst, std::size_t nCount) {
        m_oGrid.RemoveRows(static_cast<double>(nFirst + 1), static_cast<double>(nFirst + nCount));
        m_aoRows.erase(At(m_aoRows, nFirst), At(m_aoRows, nFirst + nCount));
        m_abHighlighted.erase(At(m_abHighlighted, nFirst), At(m_abHighlighted, nFirst + nCount));
    }

    void Shrink(std::size_t nRows) {
        m_oGrid.SetRowCount(static_cast<double>(nRows));
        m_aoRows.resize(nRows);
        m_abHighlighted.resize(nRows);
    }

    void SortBoth() {
        Sort({Key(1, ByText)});
        std::stable_sort(m_aoRows.begin(), m_aoRows.end(),
                         [](const Row& oLeft, const Row& oRight) { return oLeft.sName < oRight.sName; });
    }

    void Highlight(std::size_t nFirst, std::size_t nCount, bool bOn) {
        Select(static_cast<double>(nFirst + 1), static_cast<double>(nFirst + nCount), bOn);
        std::fill_n(At(m_abHighlighted, nFirst), nCount, bOn);
    }

    void Step(std::size_t nAppendShare) {
        const std::size_t nRow = Below(m_aoRows.size());
        const std::size_t nCount = 1 + Below(std::min<std::size_t>(m_aoRows.size() - nRow, 20));
        const std::size_t nKind = Below(120);
        if (nKind == 0) return SortBoth();
        if (nKind == 1) return Remove(nRow, nCount);
        if (nKind == 2) return Shrink(m_aoRows.size() - nCount);
        if (nKind <= 5) return Highlight(nRow, nCount, nKind != 3);
        if (Below(100) < nAppendShare) return Append();
        Remove(Below(4) == 0 ? 0 : nRow, 1);
    }

    void Compare() const {
        ASSERT_EQ(m_oGrid.Rows(), std::ssize(m_aoRows));
        for (std::int32_t lRow = 1; lRow <= m_oGrid.Rows(); ++lRow) {
            const auto nPlace = static_cast<std::size_t>(lRow) - 1;
            ASSERT_EQ(m_oGrid.Text(lRow, 1), m_aoRows[nPlace].sName) << lRow;
            ASSERT_EQ(m_oGrid.Text(lRow, 2), m_aoRows[nPlace].sNumber) << lRow;
            ASSERT_EQ(m_oGrid.StyleAt(lRow, 1).lInterior.has_value(), m_aoRows[nPlace].bRed) << lRow;
            ASSERT_EQ(m_oGrid.IsHighlighted(lRow), m_abHighlighted[nPlace]) << lRow;
        }
    }

    std::mt19937 m_oRandom{20261122};
    std::vector<Row> m_aoRows;
    std::vector<bool> m_abHighlighted;
    std::int32_t m_lLastNumber = 0;
};

TEST_F(GridComparison, BehavesAsAPlainVectorDoes) {
    Shrink(0);
    for (int nRow = 0; nRow < 4000; ++nRow) Append();
    for (const unsigned nAppendShare : {20U, 50U, 90U}) {
        for (int nStep = 0; nStep < 2500 && !HasFatalFailure(); ++nStep) {
            Step(nAppendShare);
            if (nStep % 250 == 0) Compare();
        }
    }
    Compare();
}

} // namespace
} // namespace GleanerSvc::Models
