#include "selectionlist/GleanerCtl.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

constexpr std::string_view Content = "Alpha: A1@2026-03-01 A2@2026-03-02 A3\nBeta: B1 B2\n"
                                     "Beta results: R1@2026-03-01 of B1 R2@2026-03-02 of B2";

// Alpha's samples beside Beta's, which are selected.
struct BothLists : ListScene {
    BothLists() : ListScene(Content, "Raw Data") {
        ChooseProject(2);
        oList.cmdAddAll.Press();
        ChooseProject(1);
        Journal().Clear();
    }
};

TEST(GleanerCtl, TheSourceDecidesOnLayoutAndRecords) {
    for (const bool bRaw : {true, false}) {
        ListScene oScene(Content, bRaw ? "rAW dATA" : "Result Data");
        GleanerCtl& oList = oScene.oList;
        EXPECT_EQ(oScene.Calls("(Defaults|GridType)\\(.*"),
                  "Defaults(grdAvailable, True, empty); Defaults(grdSelected, True, empty); "
                  "GridType(grdAvailable, object, False, False, False, empty); "
                  "GridType(grdSelected, object, False, False, False, empty); ");
        EXPECT_EQ(oScene.Calls("TypeID.*"), bRaw ? "TypeID, 8, 0, True); TypeID, 9, 0, True); "
                                                 : "TypeID, 4, 0, True); TypeID, 5, 0, True); ");
        EXPECT_EQ(oList.fraAvailableItems.Caption(), bRaw ? "rAW dATA" : "Result Data");
        EXPECT_EQ(oList.fraFilterByDate.ToolTip(), "This will filter the projects by start and end date.");
        EXPECT_TRUE(oList.imgRawData.Visible() == bRaw && oList.imgResultData.Visible() != bRaw);
        oScene.Available().DoubleClick(1, 1);
        oList.RefreshView();
        std::string sCells; // of heading and first row; in hidden columns behind their width
        for (const auto* pGrid : {&oScene.Available(), &oScene.Selected()})
            for (std::int32_t lCol = 1; lCol <= pGrid->Cols(); ++lCol) {
                if (pGrid->IsColumnHidden(lCol)) sCells += std::to_string(pGrid->ColumnWidth(lCol)) + "-";
                sCells.append(pGrid->Text(0, lCol)).append("/").append(pGrid->Text(1, lCol)).append("/");
            }
        EXPECT_EQ(sCells, bRaw ? "Name/A2                  /Date/2026-03-02/20-ProjID/-1/20-ResID/102/"
                                 "Name/A1                  /Date/2026-03-01/20-ProjID/1/20-ResID/101/"
                               : "Name/R2                  /Date/2026-03-02/Description/about R2            /"
                                 "20-ProjID/-1/20-ResID/2002/Name/R1                  /Date/2026-03-01/"
                                 "Description/about R1            /20-ProjID/2/20-ResID/2001/");
    }
}

TEST(GleanerCtl, BadProjectsFailUnderTheNameOfTheIndex) {
    ListScene oScene(Content, "Raw Data");
    GleanerCtl& oList = oScene.oList;
    EXPECT_EQ(oList.cmbProjects.ToString(), "cmbProjects items=[[All Projects]*, Alpha, Beta]");
    ExpectTroubles({
        {[&] { oList.SetProjectIndex(32767); }, "6 GleanerSvc: Overflow"},
        {[&] { oList.SetProjectIndex(2); }, "9 cmbProjects: cmbProjects has no item at place 3."},
        {[&] { oList.Project("Gamma"); }, "383 cmbProjects: cmbProjects has no item \"Gamma\"."},
    });
    EXPECT_EQ(oScene.Utility().Chain(),
              "SetProjectIndex (Let) -> SetProjectIndex (Let) -> SetProjectIndex (Let)");
    oList.Project("beta");
    EXPECT_EQ(oList.Project() + oScene.Lists(), "Beta[B1,B2][]");
}

TEST(GleanerCtl, OneProjectIsFetchedOnceUntilItChanges) {
    BothLists oScene;
    oScene.Store().AddSample({.lSampleID = 104, .lProjectID = 1, .sName = "A4"});
    oScene.oList.RefreshView();
    EXPECT_EQ(oScene.Lists(), "[A1,A2,A3][B1,B2]");
    for (const std::int32_t lPlace : {2, 1}) oScene.ChooseProject(lPlace);
    EXPECT_EQ(oScene.Lists(), "[A1,A2,A3,A4][B1,B2]");
    EXPECT_EQ(oScene.Calls("ByProjectID.*"), "ByProjectID, ProjectID, 2, , 0, True); "
                                             "ByProjectID, ProjectID, 1, , 0, True); ");
}

TEST(GleanerCtl, OperationsThatNoGestureLeadsTo) {
    BothLists oScene;
    for (const char* sMenu : {"sOrT", "Nonsense"}) GleanerCtlProbe::ShowMenu(oScene.oList, sMenu);
    EXPECT_EQ(oScene.oList.mnuOptions.Shown(), "Sort Ascending, Sort Descending");
    oScene.Utility().Folder("images", "art");
    GleanerCtlProbe::AddBitmap(oScene.oList);
    EXPECT_EQ(oScene.Available().BitmapPath(2000), "art/new.bmp");
    EXPECT_EQ(oScene.Available().StyleAt(3, 1).lBitmap, 2000);
    EXPECT_TRUE(oScene.Available().StyleAt(3, 2).IsEmpty());
    const auto Highlight = [&](GridControl* pGrid, std::int32_t lRow) {
        GleanerCtlProbe::HighlightRow(oScene.oList, pGrid, lRow);
        return oScene.Lists();
    };
    GridControl* const pGrid = &oScene.oList.grdAvailable;
    EXPECT_EQ(Highlight(pGrid, 2), "[A1,A2*,A3][B1,B2]");
    EXPECT_EQ(Highlight(pGrid, 0), "[A1,A2,A3][B1,B2]");
    const std::string sInvalid = "-2147221504 Check Parameters: Invalid parameter ";
    ExpectTroubles({
        {[&] { Highlight(nullptr, 1); }, sInvalid + "oGrid; its empty."},
        {[&] { Highlight(pGrid, 4); }, sInvalid + "lRow; too big or less than zero.  lRow=4"},
        {[&] { Highlight(pGrid, -1); }, sInvalid + "lRow; too big or less than zero.  lRow=-1"},
    });
}

// From the bottom up, and taken as one block for the row that is highlighted then.
TEST(GleanerCtl, ABlockMovesInReverseInsideLockedLists) {
    const std::pair<Rows, const char*> aCases[] = {{{3, 4, 5}, "[A1,A2,A6*,A7][A5,A4,A3] 4"},
                                                   {{5, 6, 7}, "[A1,A2,A3,A4*][A7,A6,A5] 4"},
                                                   {{6, 2, 4}, "[A1,A3,A5,A7*][A6,A4,A2] 4"},
                                                   {{7}, "[A1,A2,A3,A4,A5,A6*][A7] 6"}};
    for (const auto& [alRows, sDue] : aCases) {
        ListScene oScene("Alpha: A1 A2 A3 A4 A5 A6 A7", "Raw Data");
        std::string sThen;
        const auto oChanges = oScene.oList.SelectionChanged.Subscribe([&] { sThen = oScene.Lists(); });
        oScene.Highlight(alRows);
        oScene.oList.cmdAddSingle.Press();
        EXPECT_TRUE(std::regex_match(sThen, std::regex(".*locked.*locked"))) << sThen;
        EXPECT_EQ(oScene.Lists() + " " + DecimalText(oScene.Focus()), sDue);
    }
}

TEST(GleanerCtl, SingleMovesLockInOneOrderEitherWay) {
    BothLists oScene;
    for (const bool bAvailable : {true, false}) {
        oScene.bAvailable = bAvailable;
        oScene.Journal().Clear();
        oScene.Single().Click.Raise(); // without a row in focus, as the page could
        EXPECT_EQ(
            oScene.Calls(".*(LockUpdate|Redraw).*"),
            "grdAvailable.LockUpdate(True); grdSelected.LockUpdate(True); grdAvailable.LockUpdate(False); "
            "grdAvailable.Redraw(2); grdSelected.LockUpdate(False); grdSelected.Redraw(2); ");
        EXPECT_EQ(oScene.Calls("., empty"), "0, empty; 1, empty; "); // rows to be highlighted
    }
    EXPECT_EQ(oScene.oList.ToString(), "GleanerCtl available=[A2 A3] selected=[B2 A1] add=off addAll=on "
                                       "remove=off removeAll=on");
}

TEST(GleanerCtl, AllMoveInOrder) {
    BothLists oScene;
    oScene.oList.cmdAddAll.Press();
    EXPECT_EQ(oScene.Lists() + oScene.Keys(), "[][B1,B2,A1,A2,A3]201 202 101 102 103");
    oScene.oList.cmdRemoveAll.Press();
    EXPECT_EQ(oScene.Lists(), "[A1,A2,A3][]");
    ListScene oEmpty("", "Raw Data");
    oEmpty.oList.cmdAddAll.Click.Raise();
    EXPECT_EQ(oEmpty.oList.lblSelectedCount.Caption(), "(0)"); // of this gesture alone
}

TEST(GleanerCtl, ADuplicateKeyLeavesRowLocksAndCursorUntilARefresh) {
    BothLists oScene;
    oScene.colSelected->Add(oScene.Store().Samples().Find(101), "101"); // behind the list's back
    oScene.Available().ClickLeft(1, 1);
    oScene.oList.cmdAddSingle.Press();
    EXPECT_EQ(oScene.Utility().Chain(), "MoveSingleRow -> cmdAddSingle_Click!");
    EXPECT_TRUE(oScene.Utility().Reports().back().oFailure.Is(FailureNumber::DuplicateKey));
    EXPECT_EQ(oScene.Lists(), "[A1*,A2,A3]locked[B1,B2,A1]locked");
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Wait);
    oScene.oList.RefreshView();
    EXPECT_EQ(oScene.Lists(), "[A2,A3][B1,B2,A1]");
}

// A host's collection that is asked for the first key before it knows it.
struct LateCollection final : HostCollection {
    using HostCollection::HostCollection;
    bool Holds(std::string_view s) const override {
        return std::exchange(bKnows, true) && HostCollection::Holds(s);
    }
    mutable bool bKnows = false;
};

TEST(GleanerCtl, AResultThatIsSelectedAlreadyIsToldAndLeftOut) {
    ListScene oScene(Content, "Raw Data");
    oScene.colSelected->Add(oScene.Store().Results().Find(2001), "2001");
    oScene.oList.Initialize(
        "Result Data", std::make_shared<LateCollection>(oScene.Store().SharedJournal(), oScene.colSelected));
    oScene.oList.cmdAddAll.Press();
    const Models::ShownMessage oExpected{
        "You have an item with a duplicate RECORD ID.\r\n\r\n\tRecord ID: 2001\r\n\tName: R1",
        MessageStyle::Information, "Duplicate Record ID Found"};
    EXPECT_EQ(oScene.Platform().Messages(), std::vector{oExpected});
    EXPECT_EQ(oScene.Lists() + oScene.Keys(), "[][R1,R2]2001 2002");
}

// Down with regard to case, up without. A click on a data row or in the corner counts as well.
TEST(GleanerCtl, EveryLeftClickTurnsTheNextHeadingSortRound) {
    ListScene oScene("Alpha: c2 a3 B1", "Raw Data");
    std::string sOrders;
    for (const auto& [lRow, lCol] : {std::pair(0, 1), {0, 1}, {2, 1}, {0, 1}, {0, 0}, {0, 1}, {0, 2}}) {
        oScene.Journal().Clear();
        oScene.Available().ClickLeft(lRow, lCol);
        sOrders += ListScene::Column(oScene.Available(), 1) + ", ";
    }
    oScene.Platform().Choose("Sort Ascending");
    oScene.Available().ClickRight(0, 1);
    sOrders += ListScene::Column(oScene.Available(), 1) + ", ";
    oScene.Platform().Choose("Sort Descending");
    oScene.Available().ClickRight(0, 1);
    EXPECT_EQ(sOrders + ListScene::Column(oScene.Available(), 1),
              "c2 a3 B1, a3 B1 c2, a3 B1 c2, a3 B1 c2, a3 B1 c2, a3 B1 c2, c2 a3 B1, a3 B1 c2, c2 a3 B1");
    EXPECT_EQ(
        oScene.Calls("(nRC|Type|Case|Order|SortRows)\\(.*"),
        "nRC(1); Type(2); Case(True); Order(1); nRC(2); Type(3); Case(True); Order(1); "
        "SortRows(object, 3, 4 objects, 2); nRC(1); Type(2); Case(False); nRC(1); Type(3); Case(False); "
        "SortRows(object, 3, 4 objects, 2); nRC(1); Type(2); Case(True); Order(1); nRC(1); Type(3); "
        "Case(True); Order(1); SortRows(object, 3, 4 objects, 2); ");
}

TEST(GleanerCtl, GesturesAnswerAndKeysHighlight) {
    BothLists oScene;
    for (auto* pGrid : {&oScene.Available(), &oScene.Selected()}) {
        EXPECT_EQ(pGrid->DoubleClick(0, 1).vValue.ToInt32(), -1);
        EXPECT_EQ(pGrid->DragColumnWidth(0, 3000).vValue.ToInt32(), 0);
        EXPECT_TRUE(pGrid->DragColumnWidth(1, 3000).vValue.IsEmpty());
        pGrid->ClickLeft(1, 1);
        pGrid->PressKey(Models::GridKey::Down);
        EXPECT_TRUE(pGrid->IsHighlighted(2));
        EXPECT_EQ(pGrid->IsKeySelectionOn(), pGrid == &oScene.Selected()); // of that list it stays on
    }
    oScene.oList.RefreshView();
    EXPECT_FALSE(oScene.Selected().IsKeySelectionOn());
}

TEST(GleanerCtl, RightClicksHighlightTheirRowAndRemoveCleansUp) {
    BothLists oScene;
    oScene.Highlight({2, 3});
    std::string sLists;
    for (const auto& [bAvailable, lRow] : {std::pair(true, 3), {true, 1}, {false, 1}, {false, 0}}) {
        oScene.bAvailable = bAvailable;
        oScene.Grid().ClickRight(lRow, 1);
        sLists += oScene.Lists() + " ";
    }
    EXPECT_EQ(sLists, "[A1,A2*,A3*][B1,B2] [A1*,A2,A3][B1,B2] [A1,A2,A3][B1*,B2] [A1,A2,A3][B1,B2] ");
    EXPECT_EQ(oScene.Platform().Popups().back().iFlags, 2);
    // Unlike Add, Remove by the menu goes on to take out of the available list what is still selected.
    oScene.Available().SetCellText(1, 4, "201", GridConst::WriteText);
    oScene.Available().DoubleClick(3, 1);
    EXPECT_EQ(oScene.Lists(), "[A1,A2*][B1,B2,A3]");
    oScene.Selected().DoubleClick(3, 1);
    EXPECT_EQ(oScene.Lists(), "[A2,A3][B1,B2*]");
}

// Raw data branches on the window's mode, results on its slot.
TEST(GleanerCtl, TheSingleSampleViewHasAWizardOfItsOwn) {
    for (const bool bRaw : {true, false}) {
        ListScene oScene(Content, bRaw ? "Raw Data" : "Result Data");
        oScene.oLibraries->Settings().WindowCount(4);
        oScene.Utility().WindowSlot(std::int16_t{7});
        oScene.Journal().Clear();
        oScene.Platform().Choose("mnuShowSingleSample");
        oScene.Available().ClickRight(2, 1);
        EXPECT_EQ(
            oScene.Calls("GetWindow.*|CreateDataFactory.*|OpenWizard.*|^Host.*"),
            bRaw ? "GetWindowSlot(5, 1); GetWindowMode(7); "
                   "OpenWizard(SingleRawSample, object, nothing, 1, True, 1, 0, True, True, , False, True); "
                   "Host.Title(Single Sample View - A2                  ); "
                 : "GetWindowSlot(5, 1); CreateDataFactory(); "
                   "OpenWizard(SingleSample, object, nothing, 1, True, 1, 0, True, True, , True, True); "
                   "Host.SetOwner(7); Host.Title(Single Sample View - B2                  ); Host.Show(); ");
        const auto& colParameters = *oScene.oLibraries->Launcher().Opened().at(0).colParameters;
        EXPECT_EQ(ItemAs<Models::SampleDataRecord>(colParameters, "SampleData")->ToString(),
                  bRaw ? "data of A2, 1 runs" : "data of B2, 1 runs");
        const auto oResult = ItemAs<Models::StudyResultRecord>(colParameters, "Result");
        EXPECT_EQ(oResult ? oResult->ToString() : "", bRaw ? "" : "result=2002 flag=False study=yes");
        EXPECT_TRUE(bRaw || oResult->WrittenStudy()->StudyResults()->Count() == 1);
    }
}

TEST(GleanerCtl, NoSingleSampleViewOpensWithoutASlotOrAHighlight) {
    BothLists oScene;
    oScene.oList.mnuShowSingleSample.Choose();
    EXPECT_FALSE(oScene.oList.m_bShowSingleSample);
    oScene.Utility().WindowSlot(std::int32_t{40000});
    oScene.Platform().Choose("mnuShowSingleSample");
    oScene.Available().ClickRight(1, 1);
    EXPECT_EQ(oScene.Utility().Chain(), "grdAvailable_OnRButtonClickedRowCol!"); // the view has no trap
    EXPECT_TRUE(oScene.Utility().Reports().at(0).oFailure.Is(FailureNumber::Overflow));
}

} // namespace
} // namespace GleanerSvc
