// What the two plate pages do as the wizard enters, leaves and commits.
#include <gtest/gtest.h>

#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {
namespace {

TEST(SampleSelectionPage, HandsOnItsSelectionOrTheMarkForNone) {
    SampleScene oScene;
    auto& oHost = *oScene.oHost;
    oScene.Parameters().Add(SkipValue, ParameterKey::SkipBackward);
    oScene.Enter();
    EXPECT_EQ(oScene.Keys(), "study"); // ends a backward pass
    for (int nRound = 0; nRound < 2; ++nRound) {
        oHost.PressNext();
        EXPECT_EQ(oScene.Parameters().Item(ParameterKey::Project).ToText(), "Alpha");
        EXPECT_EQ(oScene.Keys(), "study project skip>>");
        oHost.PressBack(); // before the analysis page has taken the mark
    }
    oScene.Well("A3").ClickIt();
    oHost.PressNext();
    EXPECT_EQ(oScene.Keys(), "study project samples");
    const auto colSamples = ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::Samples);
    EXPECT_EQ(ItemAs<ISample>(*colSamples, "103")->SampleID(), 103);
    oHost.PressBack();
    EXPECT_EQ(oScene.Keys() + " " + oScene.State(), "study wells=[A1! A2! A3* B1!] listed=[A3] selected=1");
    oScene.Well("A1").ClickIt(); // the object handed on is the page's own
    EXPECT_EQ(colSamples->Count(), 2);
    EXPECT_FALSE(oScene.HasFailed());
}

TEST(SampleSelectionPage, LeavingForTheSingleViewWritesNothing) {
    SampleScene oScene;
    oScene.Enter(0);
    EXPECT_TRUE(oScene.oPage->ctlGleaner.IsOnShow());
    EXPECT_FALSE(oScene.oPage->frmPlate.IsOnShow() || oScene.oPage->cmbPlates.IsOnShow());
    oScene.oPage->ctlGleaner.m_bShowSingleSample = true;
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.Keys(), "study");
    EXPECT_FALSE(oScene.oPage->ctlGleaner.m_bShowSingleSample);
    oScene.oHost->PressBack();
    oScene.oHost->PressNext(); // with the project of the list's tab
    EXPECT_EQ(oScene.Parameters().Item(ParameterKey::Project).ToText(), AllProjectsName);
}

TEST(SampleSelectionPage, AStoredProjectIsTakenOver) {
    for (const std::string sProject : {"Beta", "[all projects]"}) {
        SampleScene oScene;
        oScene.Parameters().Add(sProject, ParameterKey::Project);
        oScene.Enter(0);
        EXPECT_EQ(oScene.oPage->ctlGleaner.Project(), sProject == "Beta" ? "Beta" : AllProjectsName);
        EXPECT_EQ(oScene.oPage->cmbProjects.Text(), sProject == "Beta" ? "Beta" : "Alpha");
        EXPECT_EQ(oScene.Keys(), "study");
    }
}

TEST(ResultSelectionPage, TheStudyIsTheStartAndGetsWhatIsNew) {
    ResultScene oScene(TwoPlates, {1003, 1005});
    oScene.Enter();
    EXPECT_EQ(oScene.State(), "wells=[A1 A2!* B1] listed=[R3] selected=2");
    oScene.Well("A2").ClickIt(); // taken out: it stays in the study all the same
    oScene.Well("A1").ClickIt();
    for (const char* sStudy : {"1 StudyResults: 1003 1005 1001", "1 StudyResults: 1003 1005 1001 1001"}) {
        oScene.Events().Save.Raise(); // what is new goes in each time
        EXPECT_EQ(oScene.oStudy->ToString(), sStudy);
    }
    EXPECT_EQ(oScene.Calls("StudyResult.ResultFlag.*"),
              "StudyResult.ResultFlag(False); StudyResult.ResultFlag(False); ");
}

TEST(ResultSelectionPage, OnlyAWizardThatCameBackwardMayGoOnBackward) {
    ResultScene oScene;
    auto& oList = oScene.oPage->ctlGleaner;
    oScene.Parameters().Add(SkipValue, ParameterKey::SkipBackward);
    oScene.Parameters().Add(std::make_shared<KeyedCollection>(), ParameterKey::AnalyzedResults);
    oScene.Enter(0);
    EXPECT_EQ(oScene.Where() + " " + oScene.Keys(), "2 Back Next study <<skip analyzedresults");
    oList.cmdAddAll.Press();
    EXPECT_EQ(oScene.Where(), "2 Back Next");
    oScene.oHost->PressNext();
    oScene.Parameters().Remove(ParameterKey::SkipBackward);
    oScene.oHost->PressBack();
    EXPECT_EQ(oScene.Where(), "2 Next");
    oList.cmdRemoveAll.Press(); // the validation enables Back, the page's rule comes behind it
    EXPECT_EQ(oScene.Where(), "2 Next");
}

TEST(ResultSelectionPage, NoMoreResultsThanTheInstallationAllows) {
    ResultScene oScene;
    oScene.oLibraries->Settings().MaximumResults(2);
    oScene.Enter();
    for (const char* sWell : {"A1", "A2", "B1"}) oScene.Well(sWell).ClickIt();
    EXPECT_TRUE(oScene.Platform().Messages().empty()); // a gesture on the plate does not validate
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.Where(), "2 Next");
    const Models::ShownMessage oExpected{"You have selected results beyond the maximum allowed.\r\n\tMaximum "
                                         "results allowed: 2\r\n\tCurrent selection count: 3",
                                         0, ""};
    oScene.Well("B1").ClickIt();
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.Where(), "3 Finish Back");
    EXPECT_EQ(oScene.Platform().Messages(), std::vector{oExpected});
}

TEST(ResultSelectionPage, WithoutAStudyNothingGoes) {
    ResultScene oScene;
    oScene.Parameters().Remove(ParameterKey::Study);
    oScene.Enter();
    EXPECT_THROW(oScene.Events().Save.Raise(), Failure);
    EXPECT_EQ(oScene.Utility().Chain(), "m_oPageBase_Initialize -> m_oPageBase_Activate -> m_oPageBase_Save");
}

} // namespace
} // namespace GleanerSvc
