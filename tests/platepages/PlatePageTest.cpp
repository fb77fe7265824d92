#include "platepages/PlatePage.h"

#include <gtest/gtest.h>

#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {
namespace {

TEST(PlatePage, BothPagesShowThePlateInTheirOwnTerms) {
    const auto Shown = [](const auto& oScene) {
        oScene.Enter();
        std::string sShown = oScene.oHost->Title() + ", " + oScene.oPage->ToString();
        for (const char* sWell : {"A1", "A2", "A3", "H12"}) sShown += "|" + oScene.Well(sWell).ToolTip();
        sShown += "|" + oScene.oPage->frmLegend.Caption();
        return sShown + "|" + oScene.oPage->lblLegend[1].Caption() + "|" +
               oScene.oPage->lblLegend[3].Caption();
    };
    EXPECT_EQ(Shown(ResultScene()),
              "Select Result Data, ResultSelectionPage tab=1 plate=P1 wells=[A1 A2! B1] listed=[] selected=0"
              "|R1|R3|(A,3) is empty|(H,12) is empty|Result Legend:|Most Recent Result Selected|One Result "
              "Available");
    EXPECT_EQ(
        Shown(SampleScene()),
        "Select Raw Data, SampleSelectionPage tab=1 plate=P1 wells=[A1! A2! A3 B1!] listed=[] selected=0"
        "|A1|A2|A3|(H,12) is empty|Raw Data Legend:|Selected For Re-Analysis|Data Available");
}

TEST(PlatePage, WellsStandOnTheGridOfTheDrawing) {
    SampleScene oScene;
    oScene.Enter();
    EXPECT_EQ(oScene.Well("A1").Place(), (Bounds{567, 1075, 360, 360}));
    EXPECT_EQ(oScene.Well("A12").Place(), (Bounds{4549, 1075, 360, 360}));
    EXPECT_EQ(oScene.Well("H12").Place(), (Bounds{4549, 3910, 360, 360}));
    EXPECT_EQ(oScene.oPage->picWell.Size(), 97);
    EXPECT_FALSE(oScene.oPage->picWell[0].Visible());
    EXPECT_TRUE(oScene.Well("H12").IsOnShow());
    EXPECT_EQ(oScene.oPage->lblNumber[11].ToolTip(), "Select entire row by clicking on this number.");
    EXPECT_EQ(oScene.oPage->imgLegend[3].Picture(), oScene.oPage->picRaw.Picture());
}

TEST(PlatePage, AClickListsTheOneRecordOfItsWell) {
    ResultScene oScene;
    oScene.Enter();
    EXPECT_EQ(oScene.Calls(R"(ApplyGridType\("grdWells", .*)"),
              "ApplyGridType(grdWells, object, False, False, False, empty); ");
    oScene.Well("A1").ClickIt();
    oScene.Journal().Clear();
    oScene.Well("A3").ClickIt(); // empty: not even a refresh
    EXPECT_EQ(oScene.Calls("GridHelper.ClearGrid"), "");
    EXPECT_EQ(oScene.List().Text(1, 5), "1001");
    EXPECT_EQ(oScene.List().Text(0, 5), "ResID");
    EXPECT_EQ(oScene.List().Text(1, 2), "2026-01-06");
    EXPECT_TRUE(oScene.List().IsColumnHidden(4) && oScene.List().IsColumnHidden(5));
}

TEST(PlatePage, TheMenuOfAWellNeverBringsBackWhatRemoveHid) {
    SampleScene oScene;
    oScene.Enter();
    oScene.ChooseInMenu("A1", "Select");
    oScene.ChooseInMenu("A1", "mnuDeSelect");
    EXPECT_EQ(oScene.State(), "wells=[A1! A2! A3 B1!] listed=[] selected=0");
    oScene.Well("C1").ClickIt(MouseButton::Right); // an empty well has no menu
    oScene.Well("A1").ClickIt(MouseButton::Middle);
    oScene.Well("A1").ClickIt();
    oScene.List().ClickRight(1, 1);
    oScene.Well("A1").ClickIt(MouseButton::Right);
    std::string sMenus;
    for (const auto& oPopup : oScene.Platform().Popups()) sMenus += oPopup.sShown + "; ";
    EXPECT_EQ(sMenus,
              "Select, -, (De-Select); (Select), -, De-Select; Select, -, (De-Select); Remove; (Select); ");
    EXPECT_EQ(oScene.Platform().Popups()[0].iFlags, 2);
}

TEST(PlatePage, AHeadingSortsUntilTheNextGesture) {
    SampleScene oScene;
    oScene.Enter();
    oScene.oPage->picAllWells.ClickIt();
    oScene.List().ClickLeft(0, 1); // the first click sorts downwards
    const std::string sDown = "wells=[A1!* A2!* A3* B1!*] listed=[A4 A3 A2 A1] selected=4";
    EXPECT_EQ(oScene.State(), sDown);
    oScene.List().ClickLeft(2, 1); // turns the direction round as well
    oScene.List().ClickLeft(0, 2);
    EXPECT_EQ(oScene.State(), sDown);
    oScene.List().ClickLeft(0, 0); // sorts nothing
    oScene.List().ClickLeft(0, 1);
    EXPECT_EQ(oScene.State(), sDown);
    oScene.Well("B1").ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!] listed=[A1 A2 A3] selected=3");
    EXPECT_FALSE(oScene.List().IsLocked());
    oScene.List().PressKey(Models::GridKey::Down);
    EXPECT_FALSE(oScene.List().IsKeySelectionOn());
}

TEST(PlatePage, TheProjectFollowsFromTabToTabAndThePlateStays) {
    SampleScene oScene;
    oScene.Enter();
    oScene.oPage->cmbPlates.Choose(1);
    oScene.oPage->tabPage.ChooseTab(0);
    EXPECT_TRUE(oScene.oPage->ctlGleaner.IsOnShow());
    EXPECT_EQ(oScene.oPage->ctlGleaner.Project(), "Alpha"); // no "[All Projects]" any more
    oScene.oPage->ctlGleaner.cmdAddAll.Press();
    oScene.oPage->ctlGleaner.DateDataCollected.Press();
    oScene.oPage->tabPage.ChooseTab(1);
    EXPECT_EQ(oScene.State(), "wells=[A1!*] listed=[A5] selected=5"); // of P2
    EXPECT_EQ(oScene.oPage->cmbPlates.ToolTip(), "P2");
    EXPECT_EQ(oScene.List().Text(1, 2), "2025-01-05"); // the date chosen in the list
    oScene.oPage->tabPage.ChooseTab(0);
    oScene.oPage->ctlGleaner.cmbProjects.Choose(2);
    oScene.oPage->tabPage.ChooseTab(1);
    EXPECT_EQ(oScene.State(), "wells=[H12!] listed=[] selected=5");
    EXPECT_EQ(oScene.oPage->cmbProjects.ToolTip(), "Beta");
    oScene.oPage->cmbProjects.Choose(2); // no plates
    EXPECT_EQ(oScene.oPage->ToString(), "SampleSelectionPage tab=1 plate= wells=[] listed=[] selected=5");
    EXPECT_EQ(oScene.Well("H12").ToolTip(), "(H,12) is empty");
    EXPECT_TRUE(oScene.oPage->frmPlate.Visible());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
    EXPECT_EQ(oScene.Utility().Chain(), "");
}

// Nothing is rebuilt for a plate without records: rows go when nothing at all is selected.
TEST(PlatePage, APlateWithoutRecordsKeepsTheRowsWhileAnythingIsSelected) {
    SampleScene oScene;
    oScene.Store().AddPlate(20, 1, "P4");
    oScene.Enter();
    oScene.Well("A1").ClickIt();
    oScene.oPage->cmbPlates.Choose(2);
    EXPECT_EQ(oScene.State(), "wells=[] listed=[A1] selected=1");
    oScene.oPage->tabPage.ChooseTab(0);
    oScene.oPage->ctlGleaner.cmdRemoveAll.Press();
    oScene.oPage->tabPage.ChooseTab(1);
    EXPECT_EQ(oScene.State(), "wells=[] listed=[] selected=0");
}

TEST(PlatePage, TheProjectNamedDefaultIsChosenFirst) {
    const std::pair<std::vector<const char*>, int> aCases[] = {
        {{"Alpha", "Beta", "Gamma"}, 0},
        {{"Alpha", "default", "Gamma"}, 1},
        {{"Default", "default", "Gamma"}, 1},
        {{"Default", "Beta", "Default"}, 2}}; // the last one wins, also when they are spelled alike
    for (const auto& [asNames, nChosen] : aCases) {
        SampleScene oScene("");
        for (std::int32_t lID = 0; const char* sName : asNames) oScene.Store().AddProject(++lID, sName);
        oScene.oHost->Start();
        EXPECT_EQ(oScene.oPage->cmbProjects.ListIndex(), nChosen);
    }
}

TEST(PlatePage, WithoutProjectsInitializeFails) {
    SampleScene oScene("");
    oScene.oHost->Start();
    EXPECT_EQ(oScene.Utility().Chain(), "LoadProjects -> m_oPageBase_Initialize");
    EXPECT_TRUE(oScene.oHost->Failures().at(0).oFailure.Is(FailureNumber::Subscript));
    EXPECT_EQ(oScene.oPage->cmbProjects.ListCount(), 0);
}

// The frame stays hidden and the hourglass on; a state beyond 2 is drawn as empty but named.
TEST(PlatePage, AWellThatBreaksThePromiseOfTheStore) {
    for (const std::int32_t lState : {1, 2, 7}) {
        ResultScene oScene;
        oScene.Enter();
        const auto ShowAgain = [&] {
            for (const int nPlate : {1, 0}) oScene.oPage->cmbPlates.Choose(nPlate);
        };
        const auto oPlate = oScene.Store().Plates().Find(11);
        oPlate->OverrideResult({3, 0}, lState);
        ShowAgain();
        EXPECT_EQ(oScene.Utility().Chain(), "ShowPlate -> cmbPlates_Click!");
        EXPECT_TRUE(oScene.Utility().Reports()[0].oFailure.Is(FailureNumber::ObjectNotSet));
        EXPECT_FALSE(oScene.oPage->frmPlate.Visible());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Wait);
        oPlate->OverrideResult({3, 0}, 7, oScene.Store().Results().Find(1001));
        ShowAgain();
        EXPECT_EQ(oScene.State(), "wells=[A1 A2! B1] listed=[] selected=0");
        EXPECT_EQ(oScene.Well("A4").ToolTip(), "R1");
        EXPECT_TRUE(oScene.oPage->frmPlate.Visible());
    }
}

// A left click trusts the mark: one that the collection does not bear out fails, and a refresh puts it right.
TEST(PlatePage, AStaleMarkFailsTheClickAndIsClearedByTheRefresh) {
    SampleScene oScene;
    oScene.Enter();
    oScene.Store().Samples().Find(103)->IsSelected(true);
    oScene.Well("A3").ClickIt();
    EXPECT_EQ(oScene.Utility().Chain(), "picWell_Click!");
    oScene.Well("A1").ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3 B1!] listed=[A1] selected=1");
    oScene.Store().Samples().Find(101)->IsSelected(false);
    oScene.Well("A1").ClickIt(); // selected already: the key is there
    EXPECT_EQ(oScene.Utility().Chain(), "picWell_Click!; picWell_Click!");
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3 B1!] listed=[A1] selected=1");
}

} // namespace
} // namespace GleanerSvc
