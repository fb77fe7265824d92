#include "selectionlist/GleanerCtl.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

constexpr std::string_view TwoProjects =
    "Alpha: A1 A2 A3\nDefault: D1 D2\nDefault results: R1 of D1 R2 of D2";

std::string Projects(const GleanerCtl& oList) {
    std::string sProjects;
    for (std::int32_t lPlace = 0; lPlace < oList.cmbProjects.ListCount(); ++lPlace) {
        sProjects +=
            oList.cmbProjects.List(lPlace) + "=" + DecimalText(oList.cmbProjects.ItemData(lPlace)) + ";";
    }
    return sProjects;
}

TEST(GleanerCtl, StartsOnAllProjectsForRawDataAndForResults) {
    const struct {
        const char* sSource;
        bool bRaw;
        const char* sLists;
        const char* sHeadings;
    } aCases[] = {{"rAW dATA", true, "A1 A2 A3 D1 D2 | ", "ProjID ResID"},
                  {"Result Data", false, "R1 R2 | ", "ProjID ResID"},
                  {"", false, "R1 R2 | ", "ProjID ResID"}};
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sSource);
        ListScene oScene(TwoProjects, oCase.sSource);
        GleanerCtl& oList = oScene.oList;
        EXPECT_EQ(oScene.Lists(), oCase.sLists);
        EXPECT_EQ(Projects(oList), "[All Projects]=-1;Alpha=1;Default=2;");
        EXPECT_EQ(oList.Project(), "[All Projects]"); // a project named Default gets no preference
        EXPECT_EQ(oList.fraAvailableItems.Caption(), oCase.sSource);
        EXPECT_EQ(oList.imgRawData.Visible(), oCase.bRaw);
        EXPECT_EQ(oList.imgResultData.Visible(), !oCase.bRaw);
        const std::int32_t lProjectCol = oCase.bRaw ? 3 : 4;
        for (auto* pGrid : {&oScene.Available(), &oScene.Selected()}) {
            EXPECT_EQ(pGrid->Cols(), lProjectCol + 1);
            EXPECT_EQ(std::string(pGrid->Text(0, lProjectCol)) + " " +
                          std::string(pGrid->Text(0, lProjectCol + 1)),
                      oCase.sHeadings);
            EXPECT_TRUE(pGrid->IsColumnHidden(lProjectCol) && pGrid->IsColumnHidden(lProjectCol + 1));
            EXPECT_FALSE(pGrid->IsColumnHidden(lProjectCol - 1));
            EXPECT_EQ(pGrid->ColumnWidth(lProjectCol), 20);
            EXPECT_FALSE(pGrid->IsLocked());
        }
        EXPECT_EQ(ListScene::Column(oScene.Available(), lProjectCol),
                  oCase.bRaw ? "-1 -1 -1 -1 -1" : "-1 -1");
        EXPECT_TRUE(oList.DateLastModified.Value());
        EXPECT_FALSE(oList.DateDataCollected.Value());
        EXPECT_FALSE(oList.DTPicker1.Enabled() || oList.DTPicker2.Enabled());
        EXPECT_EQ(oList.DTPicker2.Value(), Date::Of({2026, 11, 22})); // today, without the time of day
        EXPECT_EQ(oScene.Buttons(), "addAll");
        EXPECT_EQ(oList.lblSelectedCount.Caption(), "");
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
    }
}

TEST(GleanerCtl, LaysTheListsOutFromTheirGridTypes) {
    for (const bool bRaw : {true, false}) {
        ListScene oScene(TwoProjects, bRaw ? "Raw Data" : "Result Data");
        std::string sSetUp;
        for (const auto& sEntry : oScene.Journal().Entries()) {
            if (sEntry.starts_with("DataFactory.GetRecord") || sEntry.starts_with("GridHelper"))
                sSetUp += sEntry + "\n";
        }
        const auto Defaults = [](const std::string& sGrid) {
            return "GridHelper.SetGridDefaults(\"" + sGrid + "\", True, empty)\n";
        };
        const auto Layout = [](const std::string& sGrid, const std::string& sID) {
            return "DataFactory.GetRecord(\"GridType\", \"GridTypeID\", \"" + sID + "\", 0, True)\n" +
                   "GridHelper.ApplyGridType(\"" + sGrid + "\", object, False, False, False, empty)\n";
        };
        EXPECT_EQ(sSetUp, Defaults("grdAvailable") + Defaults("grdSelected") +
                              Layout("grdAvailable", bRaw ? "8" : "4") +
                              Layout("grdSelected", bRaw ? "9" : "5"));
    }
}

TEST(GleanerCtl, ShowsAtOnceWhatTheHostSelectedAlready) {
    ListScene oScene(TwoProjects);
    oScene.colSelected->Add(oScene.oLibraries->Store().Samples().Find(201), "201");
    oScene.oList.Initialize("Raw Data", oScene.colSelected);
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 D2 | D1");
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 3), "2"); // the record's own project
    EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(1)");
    EXPECT_EQ(oScene.oList.ToString(), "GleanerCtl available=[A1 A2 A3 D2] selected=[D1] add=off addAll=on "
                                       "remove=off removeAll=on");
}

TEST(GleanerCtl, InitializeAgainKeepsTheDateChoiceAndTheCheckBox) {
    ListScene oScene(TwoProjects, "Raw Data");
    GleanerCtl& oList = oScene.oList;
    oList.DateDataCollected.Press();
    oList.chkFragFilter.Press();
    oScene.ChooseProject(2);
    oList.m_bShowSingleSample = true;
    oList.Initialize("Raw Data", oScene.colSelected);
    EXPECT_EQ(oList.Project(), "[All Projects]");
    EXPECT_FALSE(oList.DateIsLastModified());
    EXPECT_TRUE(oList.DateDataCollected.Value());
    EXPECT_EQ(oList.chkFragFilter.Value(), CheckState::Checked); // checked, beside pickers that are off
    EXPECT_FALSE(oList.DTPicker1.Enabled());
    EXPECT_FALSE(oList.m_bShowSingleSample);
}

TEST(GleanerCtl, ProjectIndexLeavesOutAllProjects) {
    ListScene oScene(TwoProjects, "Raw Data");
    GleanerCtl& oList = oScene.oList;
    EXPECT_EQ(oList.GetProjectIndex().ToInt16(), 0);
    oList.SetProjectIndex(0);
    EXPECT_EQ(oList.Project(), "Alpha");
    EXPECT_EQ(oList.GetProjectIndex().ToInt16(), 0);
    oList.SetProjectIndex(1);
    EXPECT_EQ(oScene.Lists(), "D1 D2 | ");
    EXPECT_EQ(oList.GetProjectIndex().ToInt16(), 1);
    oList.SetProjectIndex(-1);
    EXPECT_EQ(oList.Project(), "[All Projects]");
    oList.Project("alpha");
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 | ");
}

TEST(GleanerCtl, BadProjectsFailUnderTheNamesOfTheIndexMembers) {
    ListScene oScene(TwoProjects, "Raw Data");
    GleanerCtl& oList = oScene.oList;
    EXPECT_TRUE(FailureOf([&] { oList.SetProjectIndex(32767); }).Is(FailureNumber::Overflow));
    EXPECT_TRUE(FailureOf([&] { oList.SetProjectIndex(2); }).Is(FailureNumber::Subscript));
    EXPECT_TRUE(FailureOf([&] { oList.Project("Gamma"); }).Is(FailureNumber::TextNotInList));
    for (const auto& oReport : oScene.Utility().Reports()) {
        EXPECT_EQ(oReport.sProcedure, "SetProjectIndex (Let)");
        EXPECT_EQ(oReport.sObjectType, "GleanerCtl");
        EXPECT_FALSE(oReport.bShowUser);
    }
    EXPECT_EQ(oScene.Utility().Reports().size(), 3U);
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 D1 D2 | ");
}

TEST(GleanerCtl, AMissingGridTypeReachesTheHostWithItsReport) {
    ListScene oScene(TwoProjects);
    const Failure oMissing(FailureNumber::InvalidCall, "Store", "no such grid type");
    oScene.Journal().Clear();
    ListScene oCounter(TwoProjects, "Raw Data"); // how many calls come before the second layout record
    std::int64_t nCall = 0;
    std::int64_t nBefore = 0;
    for (const auto& sEntry : oCounter.Journal().Entries()) {
        ++nCall;
        if (sEntry.find("\"GridTypeID\", \"9\"") != std::string::npos) nBefore = nCall;
    }
    oScene.Journal().FailCall(nBefore - (oCounter.Journal().Calls() - nCall), oMissing);
    EXPECT_EQ(FailureOf([&] { oScene.oList.Initialize("Raw Data", oScene.colSelected); }).ToString(),
              oMissing.ToString());
    EXPECT_EQ(oScene.Utility().Chain(), "Initialize");
}

TEST(GleanerCtl, AStoreWithoutProjectsStillLoadsAll) {
    ListScene oScene("", "Raw Data");
    EXPECT_EQ(Projects(oScene.oList), "[All Projects]=-1;");
    EXPECT_EQ(oScene.Lists(), " | ");
    EXPECT_EQ(oScene.Buttons(), "");
    EXPECT_EQ(oScene.Journal().EntriesOf("DataFactory.GetCollection").back(),
              "DataFactory.GetCollection(\"Samples\", \"\", \"\", \"\", 0, True)");
}

} // namespace
} // namespace GleanerSvc
