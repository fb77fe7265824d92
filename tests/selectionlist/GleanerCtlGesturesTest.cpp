#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

using Models::GridKey;

constexpr std::string_view Unsorted = "Alpha: c2@2026-03-02 a3@2026-03-03 b1@2026-03-01";

struct Unordered : ListScene {
    Unordered() : ListScene(Unsorted, "Raw Data") {}
    std::string Available() const { return Column(ListScene::Available(), 1); }
    Models::GridModel& Grid() const { return ListScene::Available(); }
};

TEST(GleanerCtlGestures, EveryLeftClickTurnsTheNextHeadingSortRound) {
    Unordered oScene;
    oScene.Grid().ClickLeft(0, 1); // the first click turns the flag on
    EXPECT_EQ(oScene.Available(), "c2 b1 a3");
    oScene.Grid().ClickLeft(0, 1);
    EXPECT_EQ(oScene.Available(), "a3 b1 c2");
    oScene.Grid().ClickLeft(2, 1); // a click on a data row between makes the two sorts run the same way
    oScene.Grid().ClickLeft(0, 1);
    EXPECT_EQ(oScene.Available(), "a3 b1 c2");
    oScene.Selected().ClickLeft(0, 1); // the flag is shared by the two lists
    oScene.Grid().ClickLeft(0, 1);
    EXPECT_EQ(oScene.Available(), "a3 b1 c2");
}

TEST(GleanerCtlGestures, ASortAsksForTwoKeysWithTheClickedColumnSecond) {
    Unordered oScene;
    oScene.Journal().Clear();
    oScene.Grid().ClickLeft(0, 2);
    std::string sSort;
    for (const auto& sEntry : oScene.Journal().EntriesOf("grdAvailable.SortInfo."))
        sSort += sEntry.substr(22) + " ";
    EXPECT_EQ(sSort,
              "nRC(1) SortType(2) bCase(True) SortOrder(1) nRC(2) SortType(3) bCase(True) SortOrder(1) ");
    EXPECT_EQ(oScene.Journal().EntriesOf("grdAvailable.CreateSortInfo").size(), 3U);
    oScene.Journal().Clear();
    oScene.Grid().ClickLeft(0, 2);
    EXPECT_EQ(oScene.Journal().EntriesOf("grdAvailable.SortInfo.SortOrder").size(),
              0U); // ascending leaves it unset
    EXPECT_EQ(oScene.Journal().EntriesOf("grdAvailable.SortInfo.bCase(False)").size(), 2U);
}

TEST(GleanerCtlGestures, AGestureInOneListClearsTheOther) {
    ListScene oScene("Alpha: A1 A2 A3 A4", "Raw Data");
    oScene.Highlight(oScene.Available(), {1, 2});
    oScene.oList.cmdAddSingle.Press();
    oScene.Available().ClickLeft(2, 1);
    EXPECT_EQ(oScene.Buttons(), "add addAll removeAll");
    oScene.Selected().Focus();
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "");
    EXPECT_EQ(oScene.Buttons(), "addAll removeAll");
    oScene.Selected().ClickLeft(1, 1);
    EXPECT_EQ(oScene.Buttons(), "addAll remove removeAll");
    oScene.Available().NotifyA();
    EXPECT_EQ(oScene.Buttons(), "addAll removeAll");
    oScene.Selected().ClickLeft(2, 1);
    oScene.Available().NotifyB();
    EXPECT_EQ(ListScene::Highlighted(oScene.Selected()), "");
    oScene.Selected().ClickLeft(0, 1); // a heading has no row in focus
    EXPECT_EQ(oScene.Buttons(), "addAll removeAll");
}

TEST(GleanerCtlGestures, ADoubleClickMovesWhatIsHighlighted) {
    ListScene oScene("Alpha: A1 A2 A3 A4", "Raw Data");
    oScene.Highlight(oScene.Available(), {2, 3});
    EXPECT_EQ(oScene.Available().DoubleClick(3, 1).vValue.ToInt32(), -1);
    EXPECT_EQ(oScene.Lists(), "A1 A4 | A3 A2");
    oScene.Selected().DoubleClick(1, 2);
    EXPECT_EQ(oScene.Lists(), "A1 A4 A3 | A2");
    EXPECT_EQ(oScene.Available().DoubleClick(0, 1).vValue.ToInt32(), -1); // a heading moves nothing
    EXPECT_EQ(oScene.Selected().Rows(), 1);
}

TEST(GleanerCtlGestures, OnlyTheRowHeadingsKeepTheirWidth) {
    Unordered oScene;
    const auto lBefore = oScene.Grid().ColumnWidth(0);
    EXPECT_EQ(oScene.Grid().DragColumnWidth(0, 3000).vValue.ToInt32(), 0);
    EXPECT_EQ(oScene.Grid().ColumnWidth(0), lBefore);
    EXPECT_TRUE(oScene.Grid().DragColumnWidth(1, 3000).vValue.IsEmpty());
    EXPECT_EQ(oScene.Grid().ColumnWidth(1), 3000);
}

TEST(GleanerCtlGestures, OnlyTheSelectedListKeepsKeySelectionOnAfterAKey) {
    ListScene oScene("Alpha: A1 A2", "Raw Data");
    oScene.Available().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Press();
    oScene.Available().PressKey(GridKey::Down);
    EXPECT_FALSE(oScene.Available().IsKeySelectionOn());
    oScene.Selected().PressKey(GridKey::Down);
    EXPECT_TRUE(oScene.Selected().IsKeySelectionOn());
    oScene.oList.RefreshView();
    EXPECT_FALSE(oScene.Selected().IsKeySelectionOn());
}

TEST(GleanerCtlGestures, TheRightClickMenuFollowsThePlaceOfTheClick) {
    ListScene oScene("Alpha: A1 A2 A3 A4\nAlpha results: R1 of A1 R2 of A2", "Raw Data");
    const auto MenuAt = [&](Models::GridModel& oGrid, double dRow, double dCol) {
        const auto nBefore = oScene.Platform().Popups().size();
        oGrid.ClickRight(dRow, dCol);
        return oScene.Platform().Popups().size() == nBefore ? "none"
                                                            : oScene.Platform().Popups().back().sShown;
    };
    EXPECT_EQ(MenuAt(oScene.Selected(), 0, 1), "none"); // an empty list
    EXPECT_EQ(MenuAt(oScene.Available(), 0, 0), "none");
    oScene.Highlight(oScene.Available(), {2, 3});
    EXPECT_EQ(MenuAt(oScene.Available(), 3, 1), "Add, (Show Single Sample View...)");
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "2 3");
    EXPECT_EQ(MenuAt(oScene.Available(), 4, 1), "Add, Show Single Sample View...");
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "4");
    EXPECT_EQ(MenuAt(oScene.Available(), 0, 2), "Sort Ascending, Sort Descending");
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "");
    EXPECT_EQ(oScene.Platform().Popups().back().iFlags, 2);
    oScene.Available().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(MenuAt(oScene.Selected(), 1, 1), "Remove, Show Single Sample View...");
    oScene.oList.Initialize("Result Data", std::make_shared<KeyedCollection>());
    EXPECT_EQ(MenuAt(oScene.Available(), 1, 1), "Add, Show Single Result View...");
    GleanerCtlProbe::ShowMenu(oScene.oList, "sOrT");
    GleanerCtlProbe::ShowMenu(oScene.oList, "Nonsense");
    EXPECT_EQ(oScene.oList.mnuOptions.Shown(), "Sort Ascending, Sort Descending");
}

TEST(GleanerCtlGestures, MenuEntriesWorkOnTheListThatWasClicked) {
    Unordered oScene;
    oScene.Platform().Choose("Sort Ascending");
    oScene.Grid().ClickRight(0, 1);
    EXPECT_EQ(oScene.Available(), "a3 b1 c2");
    oScene.Platform().Choose("Sort Descending");
    oScene.Grid().ClickRight(0, 1);
    EXPECT_EQ(oScene.Available(), "c2 b1 a3");
    oScene.Platform().Choose("Add");
    oScene.Grid().ClickRight(2, 1);
    EXPECT_EQ(oScene.Lists(), "c2 a3 | b1");
    oScene.Platform().Choose("Remove");
    oScene.Selected().ClickRight(1, 1);
    EXPECT_EQ(oScene.Lists(), "c2 a3 b1 | ");
}

// Unlike Add, Remove by the menu goes on to take out of the available list what is still selected.
TEST(GleanerCtlGestures, RemoveByTheMenuCleansTheAvailableList) {
    ListScene oScene("Alpha: A1 A2 A3", "Raw Data");
    oScene.Highlight(oScene.Available(), {1, 2});
    oScene.oList.cmdAddSingle.Press();
    oScene.Available().SetCellText(1, 4, "101", GridConst::WriteText); // a row that stands where it must not
    oScene.Selected().ClickLeft(1, 1);
    oScene.oList.cmdRemoveSingle.Press();
    EXPECT_EQ(oScene.Available().Rows(), 2);
    oScene.Selected().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Enabled(true);
    oScene.Available().ClickLeft(2, 1);
    oScene.oList.cmdAddSingle.Press();
    oScene.Platform().Choose("Remove");
    oScene.Selected().ClickRight(2, 1);
    EXPECT_EQ(ListScene::Column(oScene.Available(), 4), "102");
}

TEST(GleanerCtlGestures, HighlightRowChecksItsArguments) {
    ListScene oScene("Alpha: A1 A2", "Raw Data");
    GleanerCtl& oList = oScene.oList;
    EXPECT_TRUE(GleanerCtlProbe::HighlightRow(oList, &oList.grdAvailable, 2));
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "2");
    EXPECT_TRUE(GleanerCtlProbe::HighlightRow(oList, &oList.grdAvailable, 0));
    EXPECT_EQ(ListScene::Highlighted(oScene.Available()), "");
    const auto Text = [&](GridControl* pGrid, std::int32_t lRow) {
        const Failure oFailure = FailureOf([&] { GleanerCtlProbe::HighlightRow(oList, pGrid, lRow); });
        EXPECT_EQ(oFailure.Number(), static_cast<std::int32_t>(0x80040000));
        EXPECT_EQ(oFailure.Source(), "Check Parameters");
        return oFailure.Description();
    };
    EXPECT_EQ(Text(nullptr, 1), "Invalid parameter oGrid; its empty.");
    EXPECT_EQ(Text(&oList.grdAvailable, 3), "Invalid parameter lRow; too big or less than zero.  lRow=3");
    EXPECT_EQ(Text(&oList.grdAvailable, -1), "Invalid parameter lRow; too big or less than zero.  lRow=-1");
    EXPECT_EQ(oScene.Utility().Chain(), "HighlightRow -> HighlightRow -> HighlightRow");
}

} // namespace
} // namespace GleanerSvc
