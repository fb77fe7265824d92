// What the two plate pages do as the wizard enters, leaves and commits.
#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/platepages/PlateScene.h"

namespace GleanerSvc {
namespace {

TEST(SampleSelectionPage, HandsOnItsSelectionOrTheMarkForNone) {
    SampleScene oScene;
    oScene.colParameters->Add(SkipValue, ParameterKey::SkipBackward);
    oScene.Enter();
    EXPECT_FALSE(oScene.colParameters->Holds(ParameterKey::SkipBackward)); // ends a backward pass
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.colParameters->ToString(), "study project skip>>");
    EXPECT_EQ(oScene.colParameters->Item(ParameterKey::Project).ToText(), "Alpha");
    oScene.oHost->PressBack(); // before the analysis page has taken the mark
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.colParameters->ToString(), "study project skip>>");
    oScene.oHost->PressBack();
    EXPECT_EQ(oScene.colParameters->ToString(), "study skip>>");
    oScene.Well("A3").ClickIt();
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.colParameters->ToString(), "study project samples");
    const auto colSamples = ItemAs<IKeyedCollection>(*oScene.colParameters, ParameterKey::Samples);
    EXPECT_EQ(ItemAs<ISample>(*colSamples, "103")->SampleID(), 103);
    oScene.oHost->PressBack();
    EXPECT_EQ(oScene.colParameters->ToString(), "study");
    EXPECT_EQ(oScene.State(), "wells=[A1! A2! A3* B1!] listed=[A3] selected=1");
    oScene.Well("A1").ClickIt(); // the object handed on is the page's own
    EXPECT_EQ(colSamples->Count(), 2);
    EXPECT_TRUE(oScene.oHost->Failures().empty());
}

TEST(SampleSelectionPage, LeavingForTheSingleViewWritesNothing) {
    SampleScene oScene;
    oScene.Enter(0);
    oScene.oPage->ctlGleaner.m_bShowSingleSample = true;
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.colParameters->ToString(), "study");
    EXPECT_FALSE(oScene.oPage->ctlGleaner.m_bShowSingleSample);
    oScene.oHost->PressBack();
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.colParameters->Item(ParameterKey::Project).ToText(),
              AllProjectsName); // of the list's tab
}

TEST(SampleSelectionPage, AStoredProjectIsTakenOver) {
    for (const std::string sProject : {"Beta", "[all projects]"}) {
        SampleScene oScene;
        oScene.colParameters->Add(sProject, ParameterKey::Project);
        oScene.Enter(0);
        const bool bAll = sProject != "Beta";
        EXPECT_EQ(oScene.oPage->ctlGleaner.Project(), bAll ? AllProjectsName : "Beta");
        EXPECT_EQ(oScene.oPage->cmbProjects.Text(), bAll ? "Alpha" : "Beta");
        EXPECT_FALSE(oScene.colParameters->Holds(ParameterKey::Project));
    }
}

TEST(ResultSelectionPage, TheStudyIsTheStartAndGetsWhatIsNew) {
    ResultScene oScene(TwoPlates, {1003, 1005});
    oScene.Enter();
    EXPECT_EQ(oScene.State(), "wells=[A1 A2!* B1] listed=[R3] selected=2");
    oScene.Well("A2").ClickIt(); // taken out: it stays in the study all the same
    oScene.Well("A1").ClickIt();
    oScene.Events().Save.Raise();
    EXPECT_EQ(oScene.oStudy->ToString(), "1 StudyResults: 1003 1005 1001");
    oScene.Well("A2").ClickIt();
    oScene.Events().Save.Raise(); // what is new goes in once more
    EXPECT_EQ(oScene.oStudy->ToString(), "1 StudyResults: 1003 1005 1001 1001");
    EXPECT_EQ(oScene.oLibraries->Journal().EntriesOf("StudyResult.ResultFlag(False)").size(), 2U);
}

TEST(ResultSelectionPage, ResultsOfARunJoinTheSelectionOnce) {
    ResultScene oScene;
    const auto colResults = std::make_shared<KeyedCollection>();
    for (const std::int32_t lID : {1001, 1004})
        colResults->Add(oScene.oLibraries->Store().Results().Find(lID));
    oScene.colParameters->Add(colResults, ParameterKey::AnalyzedResults);
    oScene.Enter(0);
    EXPECT_EQ(oScene.oPage->ctlGleaner.ToString().find("selected=[R1 R4]") == std::string::npos, false);
    EXPECT_EQ(oScene.colParameters->ToString(), "study");
    EXPECT_FALSE(oScene.oHost->IsEnabled(HostButton::Back));
    oScene.oHost->PressNext();
    colResults->Add(oScene.oLibraries->Store().Results().Find(1005));
    colResults->Remove(2); // 1001 is selected already
    oScene.colParameters->Add(colResults, ParameterKey::AnalyzedResults);
    oScene.oHost->PressBack();
    EXPECT_TRUE(oScene.oHost->Failures().at(0).oFailure.Is(FailureNumber::DuplicateKey));
    EXPECT_EQ(oScene.Utility().Chain(), "m_oPageBase_Activate");
    EXPECT_TRUE(oScene.colParameters->Holds(ParameterKey::AnalyzedResults));
}

TEST(ResultSelectionPage, OnlyAWizardThatCameBackwardMayGoOnBackward) {
    ResultScene oScene;
    oScene.colParameters->Add(SkipValue, ParameterKey::SkipBackward);
    oScene.colParameters->Add(std::make_shared<KeyedCollection>(), ParameterKey::AnalyzedResults);
    oScene.Enter(0);
    EXPECT_TRUE(oScene.oHost->IsEnabled(HostButton::Back));
    EXPECT_EQ(oScene.colParameters->ToString(), "study <<skip analyzedresults");
    oScene.oPage->ctlGleaner.cmdAddAll.Press();
    EXPECT_TRUE(oScene.oHost->IsEnabled(HostButton::Back));
    oScene.oHost->PressNext();
    oScene.colParameters->Remove(ParameterKey::SkipBackward);
    oScene.oHost->PressBack();
    EXPECT_FALSE(oScene.oHost->IsEnabled(HostButton::Back));
    oScene.oPage->ctlGleaner.cmdRemoveAll
        .Press(); // the validation enables Back, the page's rule comes behind it
    EXPECT_FALSE(oScene.oHost->IsEnabled(HostButton::Back));
}

TEST(ResultSelectionPage, NoMoreResultsThanTheInstallationAllows) {
    ResultScene oScene;
    oScene.oLibraries->Settings().MaximumResults(2);
    oScene.Enter();
    oScene.Well("A1").ClickIt();
    oScene.Well("A2").ClickIt();
    oScene.Well("B1").ClickIt(); // a gesture on the plate does not validate
    EXPECT_TRUE(oScene.Platform().Messages().empty());
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.oHost->CurrentPage(), 2);
    EXPECT_EQ(
        oScene.Platform().Messages().at(0),
        (Models::ShownMessage{"You have selected results beyond the maximum allowed.\r\n\tMaximum results "
                              "allowed: 2\r\n\tCurrent selection count: 3",
                              0, ""}));
    oScene.Well("B1").ClickIt();
    oScene.oHost->PressNext();
    EXPECT_EQ(oScene.oHost->CurrentPage(), 3);
    EXPECT_EQ(oScene.Platform().Messages().size(), 1U);
}

TEST(ResultSelectionPage, WithoutAStudyNothingGoes) {
    ResultScene oScene;
    oScene.colParameters->Remove(ParameterKey::Study);
    oScene.Enter();
    EXPECT_THROW(oScene.Events().Save.Raise(), Failure);
    EXPECT_EQ(oScene.Utility().Chain(), "m_oPageBase_Initialize -> m_oPageBase_Activate -> m_oPageBase_Save");
}

} // namespace
} // namespace GleanerSvc
