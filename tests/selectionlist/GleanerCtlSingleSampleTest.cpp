#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/selectionlist/ListScene.h"

namespace GleanerSvc {
namespace {

constexpr std::string_view Store = "Alpha: A1 A2\nBeta: B1\nAlpha results: R1 of A1 R2 of A2";

TEST(GleanerCtlSingleSample, RawDataBranchesOnTheWindowMode) {
    const struct {
        std::int16_t iMode;
        bool bShowNow;
    } aCases[] = {{1, false}, {3, true}};
    for (const auto& oCase : aCases) {
        ListScene oScene(Store, "Raw Data");
        oScene.oLibraries->Settings().WindowCount(4);
        oScene.Utility().WindowSlot(std::int16_t{7});
        oScene.Utility().WindowMode(oCase.iMode);
        oScene.Journal().Clear();
        oScene.Platform().Choose("mnuShowSingleSample");
        oScene.Available().ClickRight(2, 1);
        const auto& aoOpened = oScene.oLibraries->Launcher().Opened();
        ASSERT_EQ(aoOpened.size(), 1U);
        EXPECT_EQ(aoOpened[0].sName, "SingleRawSample");
        EXPECT_EQ(aoOpened[0].bShowNow, oCase.bShowNow);
        EXPECT_EQ(aoOpened[0].oHost->Title(), "Single Sample View - A2                  "); // not trimmed
        EXPECT_EQ(aoOpened[0].oHost->Owners(),
                  oCase.bShowNow ? std::vector<std::int16_t>{3} : std::vector<std::int16_t>{});
        EXPECT_EQ(aoOpened[0].oHost->ShowCount(), oCase.bShowNow ? 1 : 0);
        EXPECT_EQ(ItemAs<ISampleData>(*aoOpened[0].colParameters, "SampleData"),
                  oScene.oLibraries->Store().Samples().Find(102)->SampleData());
        EXPECT_EQ(aoOpened[0].colParameters->Item("Result").ToObject(), nullptr);
        EXPECT_EQ(aoOpened[0].colParameters->Count(), 2);
        EXPECT_EQ(oScene.Journal().EntriesOf("Utility.GetWindowSlot").at(0), "Utility.GetWindowSlot(5, 1)");
        EXPECT_EQ(oScene.Journal().EntriesOf("Utility.GetWindowMode").at(0), "Utility.GetWindowMode(7)");
        EXPECT_EQ(oScene.Journal().EntriesOf("Launcher.OpenWizard").at(0),
                  std::string(
                      "Launcher.OpenWizard(\"SingleRawSample\", object, nothing, 1, True, 1, 0, True, True, "
                      "\"\", ") +
                      (oCase.bShowNow ? "True" : "False") + ", True)");
        EXPECT_TRUE(oScene.oList.m_bShowSingleSample);
    }
}

TEST(GleanerCtlSingleSample, AResultBranchesOnTheSlotAndGetsRecordsOfItsOwn) {
    ListScene oScene(Store, "Result Data");
    oScene.Utility().WindowSlot(std::int16_t{2});
    oScene.Journal().Clear();
    for (int nTime = 0; nTime < 2; ++nTime) {
        oScene.Platform().Choose("mnuShowSingleSample");
        oScene.Available().ClickRight(1, 1);
    }
    const auto& aoOpened = oScene.oLibraries->Launcher().Opened();
    ASSERT_EQ(aoOpened.size(), 2U);
    EXPECT_EQ(aoOpened[0].sName, "SingleSample");
    EXPECT_EQ(aoOpened[0].oHost->Owners(), std::vector<std::int16_t>{2});
    EXPECT_EQ(aoOpened[0].oHost->ShowCount(), 1);
    const auto oFirst = ItemAs<Models::StudyResultRecord>(*aoOpened[0].colParameters, "Result");
    const auto oSecond = ItemAs<Models::StudyResultRecord>(*aoOpened[1].colParameters, "Result");
    EXPECT_NE(oFirst, oSecond);
    EXPECT_NE(oFirst->WrittenStudy(), oSecond->WrittenStudy());
    EXPECT_EQ(oFirst->RecordID(), 1001);
    EXPECT_EQ(oFirst->WrittenStudy()->StudyResults()->Count(), 1);
    EXPECT_EQ(ItemAs<ISampleData>(*aoOpened[0].colParameters, "SampleData"),
              oScene.oLibraries->Store().Samples().Find(101)->SampleData());
    EXPECT_TRUE(oScene.Journal().EntriesOf("Utility.GetWindowMode").empty());
    EXPECT_EQ(oScene.Journal().EntriesOf("Libraries.CreateDataFactory").size(), 2U);
    oScene.Utility().WindowSlot(std::int16_t{1});
    oScene.Platform().Choose("mnuShowSingleSample");
    oScene.Available().ClickRight(2, 1);
    EXPECT_FALSE(aoOpened[2].bShowNow);
    EXPECT_TRUE(aoOpened[2].oHost->Owners().empty());
    EXPECT_EQ(aoOpened[2].oHost->ShowCount(), 0);
}

TEST(GleanerCtlSingleSample, ASelectedRecordOfAnotherProjectOpens) {
    ListScene oScene(Store, "Raw Data");
    oScene.Available().ClickLeft(3, 1);
    oScene.oList.cmdAddSingle.Press();
    oScene.ChooseProject(1);
    oScene.Platform().Choose("mnuShowSingleSample");
    oScene.Selected().ClickRight(1, 1);
    EXPECT_EQ(oScene.oLibraries->Launcher().Opened().at(0).oHost->Title(),
              "Single Sample View - B1                  ");
    EXPECT_EQ(oScene.Keys(), "201");
}

// The view has no trap of its own: the right click reports its failure.
TEST(GleanerCtlSingleSample, AFailureIsReportedByTheRightClick) {
    ListScene oScene(Store, "Raw Data");
    oScene.Utility().WindowSlot(std::int32_t{40000});
    oScene.Platform().Choose("mnuShowSingleSample");
    oScene.Available().ClickRight(1, 1);
    EXPECT_EQ(oScene.Utility().Chain(), "grdAvailable_OnRButtonClickedRowCol!");
    EXPECT_TRUE(oScene.Utility().Reports().at(0).oFailure.Is(FailureNumber::Overflow));
    EXPECT_TRUE(oScene.oLibraries->Launcher().Opened().empty());
}

TEST(GleanerCtlSingleSample, NothingOpensWithoutAHighlight) {
    ListScene oScene(Store, "Raw Data");
    oScene.oList.mnuShowSingleSample.Choose();
    EXPECT_FALSE(oScene.oList.m_bShowSingleSample);
    EXPECT_TRUE(oScene.oLibraries->Launcher().Opened().empty());
}

} // namespace
} // namespace GleanerSvc
