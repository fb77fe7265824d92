#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

// Modified and collected on days far apart, so that the two choices of date differ.
constexpr std::string_view Dated = "Alpha: A1@2026-03-01/2025-01-01 A2@2026-03-02T23:59:59/2025-01-02 "
                                   "A3@2026-03-03/2025-01-03\n"
                                   "Beta: B1@2026-03-02/2025-01-04 B2@2026-04-01/2025-01-05\n"
                                   "Alpha results: R1@2026-03-01 of A1";

TEST(GleanerCtlLoading, AProjectShowsItsRecordsAndItsIDInTheRows) {
    ListScene oScene(Dated, "Raw Data");
    oScene.ChooseProject(2);
    EXPECT_EQ(oScene.Lists(), "B1 B2 | ");
    EXPECT_EQ(ListScene::Column(oScene.Available(), 2), "2026-03-02 2026-04-01");
    EXPECT_EQ(ListScene::Column(oScene.Available(), 3), "2 2");
    EXPECT_EQ(ListScene::Column(oScene.Available(), 4), "201 202");
    EXPECT_EQ(oScene.Available().Text(1, 1), "B1                  "); // names are not trimmed
}

TEST(GleanerCtlLoading, ResultsShowTheirDescriptionUntrimmed) {
    ListScene oScene(Dated, "Result Data");
    EXPECT_EQ(oScene.Available().Text(1, 3), "about R1            ");
    EXPECT_EQ(ListScene::Column(oScene.Available(), 4) + " " + ListScene::Column(oScene.Available(), 5),
              "-1 1001");
}

TEST(GleanerCtlLoading, TheDateFilterTakesBothDaysWholly) {
    ListScene oScene(Dated, "Raw Data");
    oScene.oList.chkFragFilter.Press();
    EXPECT_EQ(oScene.Lists(), " | "); // today only
    EXPECT_TRUE(oScene.oList.lblFragStart.Enabled() && oScene.oList.DTPicker2.Enabled());
    oScene.PickDates({2026, 3, 2}, {2026, 3, 2});
    EXPECT_EQ(oScene.Lists(), "A2 B1 | "); // midnight of the first day and the last second of the last are in
    oScene.oList.DTPicker1.Pick(Date::Of({2026, 3, 1}));
    EXPECT_EQ(oScene.Lists(), "A1 A2 B1 | ");
    oScene.oList.DateDataCollected.Press();
    EXPECT_EQ(oScene.Lists(), " | ");
    oScene.oList.chkFragFilter.Press();
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 B1 B2 | ");
    EXPECT_EQ(ListScene::Column(oScene.Available(), 2),
              "2025-01-01 2025-01-02 2025-01-03 2025-01-04 2025-01-05");
    EXPECT_FALSE(oScene.oList.lblFragEnd.Enabled() || oScene.oList.DTPicker1.Enabled());
}

TEST(GleanerCtlLoading, ThePickerChangedLastWins) {
    ListScene oScene(Dated, "Raw Data");
    GleanerCtl& oList = oScene.oList;
    oList.chkFragFilter.Press();
    oScene.PickDates({2026, 3, 1}, {2026, 3, 3});
    oList.DTPicker1.Pick(Date::Of({2026, 4, 1}));
    EXPECT_EQ(oList.DTPicker2.Value(), Date::Of({2026, 4, 1}));
    EXPECT_EQ(oScene.Lists(), "B2 | ");
    oList.DTPicker2.Pick(Date::Of({2026, 3, 1}));
    EXPECT_EQ(oList.DTPicker1.Value(), Date::Of({2026, 3, 1}));
    EXPECT_EQ(oScene.Lists(), "A1 | ");
}

TEST(GleanerCtlLoading, OneProjectIsFetchedOnceUntilItChanges) {
    ListScene oScene(Dated, "Raw Data");
    oScene.ChooseProject(1);
    oScene.Journal().Clear();
    oScene.oLibraries->Store().AddSample({.lSampleID = 104, .lProjectID = 1, .sName = "A4"});
    oScene.oList.RefreshView();
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 | ");
    EXPECT_TRUE(oScene.Journal().EntriesOf("DataFactory.").empty());
    oScene.ChooseProject(2);
    oScene.ChooseProject(1);
    EXPECT_EQ(oScene.Lists(), "A1 A2 A3 A4 | ");
    EXPECT_EQ(oScene.Journal().EntriesOf("DataFactory.GetCollection").back(),
              "DataFactory.GetCollection(\"SamplesByProjectID\", \"ProjectID\", \"1\", \"\", 0, True)");
}

TEST(GleanerCtlLoading, SelectedRecordsStayOutOfAvailableWhateverIsOnShow) {
    ListScene oScene(Dated, "Raw Data");
    oScene.Highlight(oScene.Available(), {1, 4});
    oScene.oList.cmdAddSingle.Press();
    oScene.ChooseProject(1);
    EXPECT_EQ(oScene.Lists(), "A2 A3 | B1 A1");
    oScene.ChooseProject(2);
    EXPECT_EQ(oScene.Lists(), "B2 | B1 A1");
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 3), "2 1");
    EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), "(2)");
    oScene.oLibraries->Store().AddProject(3, "Empty");
    oScene.oList.Initialize("Raw Data", oScene.colSelected);
    oScene.oList.Project("Empty");
    EXPECT_EQ(oScene.Lists(), " | B1 A1");
    EXPECT_EQ(oScene.Buttons(), "removeAll");
}

TEST(GleanerCtlLoading, TheDateChoiceRewritesTheSelectedDates) {
    ListScene oScene(Dated, "Raw Data");
    oScene.ChooseProject(1);
    oScene.oList.cmdAddAll.Press();
    oScene.oList.DateDataCollected.Press();
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 2), "2025-01-01 2025-01-02 2025-01-03");
    oScene.ChooseProject(2);
    // The records on show do not hold those selected: no trap, so the failure reaches the platform.
    EXPECT_TRUE(FailureOf([&] { oScene.oList.DateLastModified.Press(); }).Is(FailureNumber::InvalidCall));
    EXPECT_TRUE(oScene.Utility().Reports().empty());
    EXPECT_EQ(ListScene::Column(oScene.Selected(), 2), "2026-03-01 2026-03-02 23:59:59 2026-03-03");
}

TEST(GleanerCtlLoading, AFailedLoadLeavesLockAndCursorAsTheyStood) {
    ListScene oScene(Dated, "Raw Data");
    oScene.Journal().Clear();
    const auto nCalls = oScene.Journal().Calls();
    oScene.ChooseProject(1);
    std::int64_t nQuery = 0;
    for (const auto& sEntry : oScene.Journal().Entries()) {
        ++nQuery;
        if (sEntry.starts_with("DataFactory.GetCollection")) break;
    }
    ASSERT_LT(nQuery, oScene.Journal().Calls() - nCalls);
    oScene.Journal().FailCall(nQuery, Failure(1234, "Store", "The store is away."));
    oScene.ChooseProject(2);
    EXPECT_EQ(oScene.Utility().Chain(), "LoadFragmentsByProject -> RefreshView -> cmbProjects_Click!");
    EXPECT_TRUE(oScene.Available().IsLocked() && oScene.Selected().IsLocked());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Wait);
    EXPECT_EQ(oScene.oList.Project(), "Beta");
    oScene.oList.RefreshView(); // the next refresh asks again
    EXPECT_EQ(oScene.Lists(), "B1 B2 | ");
    EXPECT_FALSE(oScene.Available().IsLocked() || oScene.Selected().IsLocked());
}

TEST(GleanerCtlLoading, AddBitmapRegistersThePictureUnderItsNumber) {
    ListScene oScene(Dated, "Raw Data");
    oScene.Utility().Folder("images", "art");
    GleanerCtlProbe::AddBitmap(oScene.oList);
    EXPECT_EQ(oScene.Available().BitmapPath(2000), "art/new.bmp");
    EXPECT_EQ(oScene.Available().StyleAt(5, 1).lBitmap, 2000);
    EXPECT_FALSE(oScene.Available().StyleAt(5, 2).lBitmap.has_value());
}

} // namespace
} // namespace GleanerSvc
