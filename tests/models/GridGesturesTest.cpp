#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "models/GridModel.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto Mouse(const char* sEvent) {
    return [sEvent](double dRow, double dCol, GestureResult&) {
        return sEvent + (" " + Value(dRow).ToText()) + "," + Value(dCol).ToText();
    };
}

auto Key(const char* sEvent) {
    return [sEvent](std::int32_t lKey, GestureResult&) { return sEvent + (" " + DecimalText(lKey)); };
}

// A grid of three columns with the rows A1 to A5, watched, and another that shares the focus with it.
class GridGesturesTest : public testing::Test {
  protected:
    GridGesturesTest() {
        m_oGrid.NumCols(3);
        m_oGrid.SetRowCount(5);
        for (int nRow = 1; nRow <= 5; ++nRow) m_oGrid.SetCellValue(nRow, 1, "A" + DecimalText(nRow));
        auto& oEvents = m_oGrid.Events();
        Watch(oEvents.GotFocus, [] { return "focus"; });
        Watch(oEvents.OnStartSelection, Mouse("start"));
        Watch(oEvents.OnLButtonClickedRowCol, Mouse("click"));
        Watch(oEvents.OnLButtonDblClkRowCol, Mouse("double"));
        Watch(oEvents.OnRButtonClickedRowCol, Mouse("right"));
        Watch(oEvents.OnMouseEvent44, Mouse("mouse"));
        Watch(oEvents.OnGridKeyDown, Key("down"));
        Watch(oEvents.OnGridKeyUp, Key("up"));
        Watch(oEvents.OnGridNotifyA, [](GestureResult&) { return "A"; });
        Watch(oEvents.OnGridNotifyB, [](GestureResult&) { return "B"; });
        Watch(oEvents.OnSelectionMoved, [](const Ref<IGridRange>& oRange) {
            return "moved " + Value(oRange->Top()).ToText() + "-" + Value(oRange->Bottom()).ToText();
        });
    }

    // Notes the text that fnText makes of each raising.
    template<class... Args, class F>
    void Watch(Event<Args...>& oEvent, F fnText) {
        m_aoWatches.push_back(
            oEvent.Subscribe([this, fnText](Args... args) { m_asEvents.emplace_back(fnText(args...)); }));
    }
    std::vector<std::string> TakeEvents() { return std::exchange(m_asEvents, {}); }

    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<InputFocus> m_oFocus = std::make_shared<InputFocus>();
    Container m_oPage{nullptr, "page", {}};
    Control m_oSite{&m_oPage, "grdAvailable", {}};
    Control m_oOtherSite{&m_oPage, "grdSelected", {}};
    GridModel m_oGrid{m_oJournal, m_oFocus, m_oSite};
    GridModel m_oOther{m_oJournal, m_oFocus, m_oOtherSite};
    std::vector<std::string> m_asEvents;
    std::vector<Subscription> m_aoWatches;
};

TEST_F(GridGesturesTest, AClickTakesTheFocusAndHighlightsAsTheKeysSay) {
    m_oGrid.ClickLeft(2, 1);
    EXPECT_THAT(TakeEvents(), ElementsAre("focus", "start 2,1", "click 2,1"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2*, A3, A4, A5]");
    struct Case {
        int nRow;
        Keys eKeys;
        const char* sRows;
    };
    for (const Case& oCase : {Case{4, Keys::Ctrl, "[A1, A2*, A3, A4*, A5]"},
                              {2, Keys::Ctrl, "[A1, A2, A3, A4*, A5]"},
                              {5, Keys::Shift, "[A1, A2*, A3*, A4*, A5*]"},
                              {1, Keys::Shift, "[A1*, A2*, A3, A4, A5]"}, // still from row 2
                              {0, Keys::None, "[A1*, A2*, A3, A4, A5]"},
                              {3, Keys::None, "[A1, A2, A3*, A4, A5]"}}) {
        m_oGrid.ClickLeft(oCase.nRow, 2, oCase.eKeys);
        EXPECT_EQ(m_oGrid.ToString(), oCase.sRows);
        EXPECT_EQ(TakeEvents().size(), 2U); // the focus is here already
    }
    m_oOther.Focus();
    EXPECT_FALSE(m_oGrid.HasFocus());
    m_oGrid.ClickRight(5, 3);
    EXPECT_THAT(TakeEvents(), ElementsAre("focus", "right 5,3"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3*, A4, A5]");
}

TEST_F(GridGesturesTest, ADragAndADoubleClickHighlightRows) {
    m_oGrid.DragRows(4, 2);
    EXPECT_THAT(TakeEvents(), ElementsAre("focus", "start 4,1", "moved 2-4"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2*, A3*, A4*, A5]");
    m_oGrid.DoubleClick(3, 1);
    EXPECT_THAT(TakeEvents(), ElementsAre("start 3,1", "click 3,1", "double 3,1"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2*, A3*, A4*, A5]");
    m_oGrid.DoubleClick(5, 1);
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5*]");
}

TEST_F(GridGesturesTest, AKeyMovesTheHighlightOnlyWhileKeySelectionIsOn) {
    m_oGrid.PressKey(GridKey::Down);
    EXPECT_THAT(TakeEvents(), ElementsAre("focus", "down 40", "up 40"));
    EXPECT_EQ(m_oGrid.CurrentRow(), 1);
    EXPECT_FALSE(m_oGrid.HasSelection());

    const auto oDown = m_oGrid.Events().OnGridKeyDown.Subscribe(
        [&](std::int32_t, GestureResult&) { m_oGrid.KeySelection(true); });
    m_oGrid.PressKey(GridKey::Down);
    EXPECT_THAT(TakeEvents(), ElementsAre("down 40", "moved 2-2", "up 40"));
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2*, A3, A4, A5]");
    for (const GridKey eKey : {GridKey::Up, GridKey::Up, GridKey::Space})
        m_oGrid.PressKey(eKey); // one row above
    EXPECT_THAT(TakeEvents(),
                ElementsAre("down 38", "moved 1-1", "up 38", "down 38", "up 38", "down 32", "up 32"));

    m_oGrid.SetCurrentCell(5, 1);
    m_oGrid.RemoveRows(4, 5);
    m_oGrid.PressKey(GridKey::Up); // from the last row that is left
    EXPECT_EQ(m_oGrid.CurrentRow(), 2);
}

TEST_F(GridGesturesTest, AHandlerCanRefuseAColumnWidth) {
    const auto oTrack =
        m_oGrid.Events().OnTrackColWidthEnd.Subscribe([](double dCol, GestureResult& oResult) {
            if (dCol < 1) oResult.vValue = 0;
        });
    EXPECT_EQ(m_oGrid.DragColumnWidth(0, 500).vValue.ToInt32(), 0);
    m_oGrid.DragColumnWidth(2, 500);
    EXPECT_EQ(m_oGrid.ColumnWidth(0), GridModel::DefaultColWidth);
    EXPECT_EQ(m_oGrid.ColumnWidth(2), 500);
}

TEST_F(GridGesturesTest, AGestureOutOfReachDoesNothing) {
    const auto PointAt = [&](double dRow, double dCol) {
        m_oGrid.ClickLeft(dRow, dCol);
        m_oGrid.DoubleClick(dRow, dCol);
        m_oGrid.ClickRight(dRow, dCol);
        m_oGrid.MoveMouse44(dRow, dCol);
    };
    const auto MakeAll = [&] {
        PointAt(1, 1);
        m_oGrid.DragRows(1, 2);
        m_oGrid.PressKey(GridKey::Down);
        m_oGrid.DragColumnWidth(1, 500);
        m_oGrid.Focus();
        m_oGrid.NotifyA();
        m_oGrid.NotifyB();
    };
    m_oGrid.HideCols(3, 3, true);
    for (const auto& [dRow, dCol] : {std::pair(6, 1), {-1, 1}, {1, 4}, {1, -1}, {0, 3}}) PointAt(dRow, dCol);
    for (const int nFirst : {0, 6}) m_oGrid.DragRows(nFirst, 2);
    for (Control* pControl : {&m_oSite, static_cast<Control*>(&m_oPage)}) {
        pControl->Enabled(false);
        MakeAll();
        pControl->Enabled(true);
        pControl->Visible(false);
        MakeAll();
        pControl->Visible(true);
    }
    EXPECT_THAT(TakeEvents(), IsEmpty());
    EXPECT_EQ(m_oGrid.ColumnWidth(1), GridModel::DefaultColWidth);
    EXPECT_EQ(m_oGrid.ToString(), "[A1, A2, A3, A4, A5]");

    MakeAll();
    EXPECT_THAT(TakeEvents(), ElementsAre("focus", "start 1,1", "click 1,1", "start 1,1", "click 1,1",
                                          "double 1,1", "right 1,1", "mouse 1,1", "start 1,1", "moved 1-2",
                                          "down 40", "up 40", "A", "B"));
}

} // namespace
} // namespace GleanerSvc::Models
