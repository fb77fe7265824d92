#include "models/GridHelperModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "models/GridTypeRecord.h"
#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

using testing::ElementsAre;

// A grid of two columns with the rows 1 to 3.
class GridHelperModelTest : public testing::Test {
  protected:
    GridHelperModelTest() {
        m_oGrid.NumCols(2);
        m_oGrid.SetRowCount(3);
        m_oJournal->Clear();
    }

    void Highlight(std::int32_t lRow) { m_oHelper.HighlightRow(m_oGrid, lRow, Value()); }
    void Apply(const Ref<IObject>& oRecord) {
        m_oHelper.ApplyGridType(m_oGrid, oRecord, false, false, false, Value());
    }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Control m_oSite{nullptr, "grdWells", {}};
    GridModel m_oGrid{m_oJournal, std::make_shared<InputFocus>(), m_oSite};
    GridHelperModel m_oHelper{m_oJournal};
};

TEST_F(GridHelperModelTest, HighlightsOneRowAndNoOther) {
    Highlight(3);
    Highlight(2);
    EXPECT_EQ(m_oGrid.ToString(), "[, *, ]");
    EXPECT_TRUE(m_oHelper.IsRowHighlighted(m_oGrid, 2));
    EXPECT_FALSE(m_oHelper.IsRowHighlighted(m_oGrid, 3));
    EXPECT_FALSE(m_oHelper.IsRowHighlighted(m_oGrid, 0));
    EXPECT_FALSE(m_oHelper.IsRowHighlighted(m_oGrid, 99));
    for (const std::int32_t lNone : {0, 4, -1}) {
        Highlight(2);
        EXPECT_EQ(m_oHelper.GetHighlightedRowCount(m_oGrid), 1);
        Highlight(lNone);
        EXPECT_EQ(m_oHelper.GetHighlightedRowCount(m_oGrid), 0) << lNone;
    }
    Highlight(1);
    m_oHelper.ClearGrid(m_oGrid);
    EXPECT_EQ(m_oGrid.ToString(), "[, , ]");
}

TEST_F(GridHelperModelTest, LaysOutTheColumnsOfTheRecordAndWritesNothingElse) {
    m_oGrid.LayOutColumn(2, "old", 77);
    m_oGrid.HideCols(2, 2, true);
    m_oJournal->Clear();
    m_oHelper.SetGridDefaults(m_oGrid, true, Value());
    EXPECT_FALSE(m_oGrid.IsColumnHidden(2));
    EXPECT_EQ(m_oGrid.Text(0, 2), "");
    Apply(std::make_shared<GridTypeRecord>(
        4, std::vector<GridTypeRecord::Column>{{"Name", 2400}, {"Date", 1800}, {"Description", 3000}}));
    EXPECT_EQ(m_oGrid.Text(0, 1), "Name");
    EXPECT_EQ(m_oGrid.Text(0, 3), "Description"); // although the count of columns is the page's
    EXPECT_EQ(m_oGrid.ColumnWidth(2), 1800);
    EXPECT_EQ(m_oGrid.Cols(), 2);
    EXPECT_THAT(m_oJournal->Entries(),
                ElementsAre("GridHelper.SetGridDefaults(\"grdWells\", True, empty)",
                            "GridHelper.ApplyGridType(\"grdWells\", object, False, False, False, empty)"));
}

} // namespace
} // namespace GleanerSvc::Models
