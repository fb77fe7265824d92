#include "platepages/PlatePage.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {
namespace {

template<class Scene>
std::string TipsOf(const Scene& oScene, const std::vector<std::string>& asWells) {
    std::string sTips;
    for (const auto& sWell : asWells) sTips += (sTips.empty() ? "" : "|") + oScene.Well(sWell).ToolTip();
    return sTips;
}

TEST(PlatePage, BothPagesShowThePlateInTheirOwnTerms) {
    ResultScene oResults;
    oResults.Enter();
    EXPECT_EQ(oResults.oPage->ToString(),
              "ResultSelectionPage tab=1 plate=P1 wells=[A1 A2! B1] listed=[] selected=0");
    EXPECT_EQ(TipsOf(oResults, {"A1", "A2", "A3", "H12"}), "R1|R3|(A,3) is empty|(H,12) is empty");
    EXPECT_EQ(oResults.oHost->Title(), "Select Result Data");
    EXPECT_EQ(oResults.oPage->frmLegend.Caption(), "Result Legend:");
    EXPECT_EQ(oResults.oPage->lblLegend[1].Caption(), "Most Recent Result Selected");
    SampleScene oSamples;
    oSamples.Enter();
    EXPECT_EQ(oSamples.oPage->ToString(),
              "SampleSelectionPage tab=1 plate=P1 wells=[A1! A2! A3 B1!] listed=[] selected=0");
    EXPECT_EQ(TipsOf(oSamples, {"A1", "A3", "C1"}), "A1|A3|(C,1) is empty");
    EXPECT_EQ(oSamples.oHost->Title(), "Select Raw Data");
    EXPECT_EQ(oSamples.oPage->lblLegend[3].Caption(), "Data Available");
    EXPECT_EQ(oSamples.oPage->imgLegend[3].Picture(), oSamples.oPage->picRaw.Picture());
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
}

TEST(PlatePage, AClickTogglesTheOneRecordOfItsWell) {
    ResultScene oScene;
    oScene.Enter();
    oScene.Well("A2").ClickIt();
    oScene.Well("A1").ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1* A2!* B1] listed=[R3 R1] selected=2");
    oScene.Well("A2").ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1* A2! B1] listed=[R1] selected=1");
    const auto lMessages = oScene.oLibraries->Journal().EntriesOf("GridHelper.ClearGrid").size();
    oScene.Well("A3").ClickIt(); // empty: not even a refresh
    EXPECT_EQ(oScene.oLibraries->Journal().EntriesOf("GridHelper.ClearGrid").size(), lMessages);
    EXPECT_EQ(oScene.List().Text(1, 5), "1001");
    EXPECT_EQ(oScene.List().Text(0, 5), "ResID");
    EXPECT_EQ(oScene.List().Text(1, 2), "2026-01-06");
    EXPECT_TRUE(oScene.List().IsColumnHidden(4) && oScene.List().IsColumnHidden(5));
}

// A set that is wholly selected is cleared, any other is selected as a whole.
TEST(PlatePage, LettersNumbersAndTheCornerTakeTheirWells) {
    SampleScene oScene;
    oScene.Enter();
    oScene.Well("A2").ClickIt();
    oScene.oPage->lblLetter[0].ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!] listed=[A2 A1 A3] selected=3");
    oScene.oPage->lblNumber[0].ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!*] listed=[A2 A1 A3 A4] selected=4");
    oScene.oPage->lblNumber[0].ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1! A2!* A3* B1!] listed=[A2 A3] selected=2");
    oScene.oPage->picAllWells.ClickIt();
    oScene.oPage->lblLetter[7].ClickIt(); // a row of empty wells
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!*] listed=[A2 A3 A1 A4] selected=4");
    oScene.oPage->cmbPlates.Choose(1);
    oScene.oPage->picAllWells.ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!*] listed=[A5] selected=5");
    oScene.oPage->picAllWells.ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!] listed=[] selected=4"); // those of the other plate stay
    EXPECT_EQ(oScene.oPage->cmbPlates.ToolTip(), "P2");
}

TEST(PlatePage, TheMenuOfAWellTogglesItAndNeverBringsBackWhatRemoveHid) {
    SampleScene oScene;
    oScene.Enter();
    oScene.ChooseInMenu("A1", "Select");
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3 B1!] listed=[A1] selected=1");
    oScene.ChooseInMenu("A1", "mnuDeSelect");
    EXPECT_EQ(oScene.State(), "wells=[A1! A2! A3 B1!] listed=[] selected=0");
    oScene.Well("C1").ClickIt(MouseButton::Right); // an empty well has no menu
    oScene.Well("A1").ClickIt(MouseButton::Middle);
    oScene.Well("A1").ClickIt();
    oScene.List().ClickRight(1, 1);
    oScene.Well("A1").ClickIt(MouseButton::Right);
    std::vector<std::string> asMenus;
    for (const auto& oPopup : oScene.Platform().Popups()) asMenus.push_back(oPopup.sShown);
    EXPECT_EQ(asMenus, (std::vector<std::string>{"Select, -, (De-Select)", "(Select), -, De-Select",
                                                 "Select, -, (De-Select)", "Remove", "(Select)"}));
    EXPECT_EQ(oScene.Platform().Popups()[0].iFlags, 2);
}

TEST(PlatePage, RemoveTakesPlacesOfTheSelectionOrTheTextOfColumnFour) {
    SampleScene oScene;
    oScene.Enter();
    oScene.oPage->picAllWells.ClickIt(); // A1 A2 A3 A4
    oScene.Platform().Choose("Remove");
    oScene.List().ClickRight(2, 1); // no range: by the key in column 4
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3* B1!*] listed=[A1 A3 A4] selected=3");
    oScene.List().DragRows(1, 2);
    oScene.Platform().Choose("Remove");
    oScene.List().ClickRight(1, 1);
    EXPECT_EQ(oScene.State(), "wells=[A1! A2! A3 B1!*] listed=[A4] selected=1");
    oScene.oPage->cmbPlates.Choose(1);
    oScene.Well("A1").ClickIt();
    oScene.List().DragRows(1, 1);
    oScene.Platform().Choose("Remove");
    oScene.List().ClickRight(1, 1); // the first place, which lies on the other plate
    EXPECT_EQ(oScene.State(), "wells=[A1!*] listed=[A5] selected=1");
    ResultScene oResults;
    oResults.Enter();
    oResults.Well("A1").ClickIt();
    oResults.Platform().Choose("Remove");
    oResults.List().ClickRight(1, 1); // column 4 is the project here
    EXPECT_EQ(oResults.Utility().Chain(), "mnuRemove_Click!");
    EXPECT_EQ(oResults.State(), "wells=[A1* A2! B1] listed=[R1] selected=1");
}

TEST(PlatePage, AHeadingSortsUntilTheNextGesture) {
    SampleScene oScene;
    oScene.Enter();
    oScene.oPage->picAllWells.ClickIt();
    oScene.List().ClickLeft(0, 1); // the first click sorts downwards
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!*] listed=[A4 A3 A2 A1] selected=4");
    oScene.List().ClickLeft(2, 1); // turns the direction round as well
    oScene.List().ClickLeft(0, 2);
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!*] listed=[A4 A3 A2 A1] selected=4");
    oScene.List().ClickLeft(0, 0); // sorts nothing
    oScene.List().ClickLeft(0, 1);
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2!* A3* B1!*] listed=[A4 A3 A2 A1] selected=4");
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
    EXPECT_EQ(oScene.oPage->ToString(),
              "SampleSelectionPage tab=1 plate=P2 wells=[A1!*] listed=[A5] selected=5");
    EXPECT_EQ(oScene.List().Text(1, 2), "2025-01-05"); // the date chosen in the list
    oScene.oPage->tabPage.ChooseTab(0);
    oScene.oPage->ctlGleaner.cmbProjects.Choose(2);
    oScene.oPage->tabPage.ChooseTab(1);
    EXPECT_EQ(oScene.oPage->ToString(),
              "SampleSelectionPage tab=1 plate=P3 wells=[H12!] listed=[] selected=5");
    EXPECT_EQ(oScene.oPage->cmbProjects.ToolTip(), "Beta");
    oScene.oPage->cmbProjects.Choose(2); // no plates
    EXPECT_EQ(oScene.oPage->ToString(), "SampleSelectionPage tab=1 plate= wells=[] listed=[] selected=5");
    EXPECT_EQ(oScene.Well("H12").ToolTip(), "(H,12) is empty");
    EXPECT_TRUE(oScene.oPage->frmPlate.Visible());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
    EXPECT_TRUE(oScene.Utility().Reports().empty());
}

// Nothing is rebuilt for a plate without records: rows go when nothing at all is selected.
TEST(PlatePage, APlateWithoutRecordsKeepsTheRowsWhileAnythingIsSelected) {
    SampleScene oScene;
    oScene.oLibraries->Store().AddPlate(20, 1, "P4");
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
    const struct {
        const char* sNames[3];
        int nChosen;
    } aCases[] = {{{"Alpha", "Beta", "Gamma"}, 0},
                  {{"Alpha", "default", "Gamma"}, 1},
                  {{"Default", "default", "Gamma"}, 1},
                  {{"Default", "Beta", "Default"}, 2}}; // the last one wins, also when they are spelled alike
    for (const auto& oCase : aCases) {
        SampleScene oScene("");
        std::int32_t lProjectID = 0;
        for (const char* sName : oCase.sNames) oScene.oLibraries->Store().AddProject(++lProjectID, sName);
        oScene.oHost->Start();
        EXPECT_EQ(oScene.oPage->cmbProjects.ListIndex(), oCase.nChosen);
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
        const auto oPlate = oScene.oLibraries->Store().Plates().Find(11);
        oPlate->OverrideResult({3, 0}, lState);
        oScene.oPage->cmbPlates.Choose(1);
        oScene.oPage->cmbPlates.Choose(0);
        EXPECT_EQ(oScene.Utility().Chain(), "ShowPlate -> cmbPlates_Click!");
        EXPECT_TRUE(oScene.Utility().Reports()[0].oFailure.Is(FailureNumber::ObjectNotSet));
        EXPECT_FALSE(oScene.oPage->frmPlate.Visible());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Wait);
        oPlate->OverrideResult({3, 0}, 7, oScene.oLibraries->Store().Results().Find(1001));
        oScene.oPage->cmbPlates.Choose(1);
        oScene.oPage->cmbPlates.Choose(0);
        EXPECT_EQ(oScene.State(), "wells=[A1 A2! B1] listed=[] selected=0");
        EXPECT_EQ(oScene.Well("A4").ToolTip(), "R1");
        EXPECT_TRUE(oScene.oPage->frmPlate.Visible());
    }
}

// A left click trusts the mark: one that the collection does not bear out fails, and a refresh puts it right.
TEST(PlatePage, AStaleMarkFailsTheClickAndIsClearedByTheRefresh) {
    SampleScene oScene;
    oScene.Enter();
    oScene.oLibraries->Store().Samples().Find(103)->IsSelected(true);
    oScene.Well("A3").ClickIt();
    EXPECT_EQ(oScene.Utility().Chain(), "picWell_Click!");
    oScene.Well("A1").ClickIt();
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3 B1!] listed=[A1] selected=1");
    oScene.oLibraries->Store().Samples().Find(101)->IsSelected(false);
    oScene.Well("A1").ClickIt(); // selected already: the key is there
    EXPECT_EQ(oScene.Utility().Chain(), "picWell_Click!; picWell_Click!");
    EXPECT_EQ(oScene.State(), "wells=[A1!* A2! A3 B1!] listed=[A1] selected=1");
}

} // namespace
} // namespace GleanerSvc
