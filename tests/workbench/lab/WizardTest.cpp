// The wizard over a lab: the study gets all of a run or nothing, and the rooms around the pages do their
// part.
#include <gtest/gtest.h>

#include "pagebind/ParameterKeys.h"
#include "tests/workbench/lab/LabScene.h"
#include "workbench/lab/Wizard.h"
#include "workbench/lab/WorkbenchPlatform.h"

namespace GleanerSvc::Workbench {
namespace {

class QuietPlatform final : public WorkbenchPlatform {
  public:
    std::int32_t ShowMessage(std::string_view sText, std::int32_t lStyle,
                             std::string_view /*sTitle*/) override {
        sShown += sText;
        return lStyle == MessageStyle::QuestionYesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    void ShowPopup(PopupMenu& /*oMenu*/, std::int16_t /*iFlags*/) override {}
    void YieldOnce() override {}
    std::string sShown;
};

struct WizardScene : LabScene {
    WizardScene() {
        oOrder.bWithFaults = false;
        MakePlate();
        oLibraries->Utility().OnShown = [this](const LogRow& oEntry) { sShown += oEntry.sProcedure; };
    }
    // To the end of the run over the first three samples of the list.
    Ref<Wizard> Analyzed() {
        auto oWizard = std::make_shared<Wizard>(oLibraries, oPlatform, Wizard::Start{Task::Analyze, "First"});
        auto& oGrid = dynamic_cast<Models::GridModel&>(*oWizard->oSamples->ctlGleaner.grdAvailable);
        oGrid.DragRows(1, 3);
        oWizard->oSamples->ctlGleaner.cmdAddSingle.Press();
        oWizard->Host().PressNext();
        oWizard->oLoci->optAlleleIDType[0].Press();
        oWizard->Host().PressNext();
        oWizard->oAnalysis->cmdAnalyze.Press();
        return oWizard;
    }

    std::size_t InStudy() const {
        const auto oStudy = oLab->FindStudy("First");
        return oStudy ? oLab->ResultsOfStudy(oStudy->lStudyID).size() : 0;
    }

    Ref<LabLibraries> oLibraries = std::make_shared<LabLibraries>(oLab, 2);
    Ref<QuietPlatform> oPlatform = std::make_shared<QuietPlatform>();
    std::string sShown;
};

TEST(Wizard, HandsARunToTheStudyAndTheNextOneAddsToIt) {
    WizardScene oScene;
    auto oWizard = oScene.Analyzed();
    EXPECT_EQ(oWizard->oAnalysis->lbPass2.Caption(), "3");
    oWizard->Host().PressNext();
    EXPECT_TRUE(oWizard->PressFinish());
    EXPECT_EQ(oScene.InStudy(), 3U);
    oWizard = oScene.Analyzed();
    oWizard->Host().PressNext();
    EXPECT_TRUE(oWizard->PressFinish());
    EXPECT_EQ(oScene.InStudy(), 6U);
    EXPECT_EQ(oScene.sShown, "");
}

TEST(Wizard, AnalyzesResultsAgainAndKeepsThoseThatWereThere) {
    WizardScene oScene;
    oScene.Analyzed();
    const auto oOfFirst = oScene.oLab->SizedOf(1);
    for (const auto eTask : {Task::ReanalyzeResults, Task::ReanalyzeAlleles}) {
        const Wizard oWizard(oScene.oLibraries, oScene.oPlatform, {eTask, "", {1, 3}});
        EXPECT_FALSE(oWizard.oSamples || oWizard.Host().IsEnabled(HostButton::Next));
        oWizard.oLoci->optAlleleIDType[0].Press();
        oWizard.Host().PressNext();
        oWizard.oAnalysis->cmdAnalyze.Press();
        EXPECT_EQ(oWizard.oAnalysis->lbPass2.Caption(), "2");
    }
    std::vector<std::int32_t> alSamples;
    oScene.oLab->ForEachResult(AllProjectsID,
                               [&](ResultRow&& oResult) { alSamples.push_back(oResult.lSampleID); });
    EXPECT_EQ(alSamples, (std::vector<std::int32_t>{3, 2, 1, 3, 1, 3, 1}));
    EXPECT_EQ(oScene.oLab->SizedOf(1), oOfFirst);
}

TEST(Wizard, MoreResultsThanTheSettingsLetInCannotBeFinished) {
    WizardScene oScene;
    oScene.oLab->ChangeSetting("MaximumResults", 2);
    const auto oWizard = oScene.Analyzed();
    oWizard->Host().PressNext();
    EXPECT_FALSE(oWizard->PressFinish());
    EXPECT_TRUE(oWizard->Host().IsRunning());
    EXPECT_FALSE(oScene.oLab->FindStudy("First"));
}

TEST(Wizard, ASaveThatFailsHalfWayLeavesTheStudyAsItWas) {
    WizardScene oScene;
    const std::int32_t lStudyID = oScene.oLab->AddStudy("First");
    const auto oWizard = oScene.Analyzed();
    oWizard->Host().PressNext();
    // Another way has put the second result into the study meanwhile, so that it cannot join once more.
    oScene.oLab->AddStudyResult(lStudyID, 2, false);
    EXPECT_FALSE(oWizard->PressFinish());
    EXPECT_EQ(oWizard->Host().Failures().size(), 1U);
    EXPECT_EQ(oScene.InStudy(), 1U);
    EXPECT_FALSE(oScene.oLab->LogEntries(10).empty());
}

TEST(LabUtility, KeepsEveryArgumentOfAReportAndShowsWhatTheOperatorIsToSee) {
    WizardScene oScene;
    auto& oUtility = oScene.oLibraries->Utility();
    oUtility.LogError("App", "Object", "Quiet", Failure(5, "Source", "Text", "help.chm", 7), "extra", false);
    oUtility.LogError("App", "Object", "Loud", Failure::Of(FailureNumber::Overflow), "", true);
    EXPECT_EQ(oScene.sShown, "Loud");
    const auto aoEntries = oScene.oLab->LogEntries(10);
    ASSERT_EQ(aoEntries.size(), 2U);
    const LogRow& oKept = aoEntries[0];
    EXPECT_EQ(oKept.sAppTitle + oKept.sObjectType + oKept.sProcedure + oKept.sExtra, "AppObjectQuietextra");
    EXPECT_EQ(oKept.oFailure, Failure(5, "Source", "Text", "help.chm", 7));
    EXPECT_EQ(oKept.bShowUser, false);
    EXPECT_EQ(aoEntries[1].bShowUser, true);
}

TEST(LabUtility, TheSizeGatesGoByTheLabsRealSize) {
    WizardScene oScene;
    EXPECT_FALSE(oScene.oLibraries->Utility().WillDatabaseOverflow(100));
    EXPECT_TRUE(oScene.oLibraries->Utility().WillDatabaseOverflow(2'000'000'000));
    std::int32_t lSizeMB = 0;
    EXPECT_FALSE(oScene.oLibraries->Utility().IsDatabaseLarge(lSizeMB));
    EXPECT_EQ(lSizeMB, WarningSizeMB);
    oScene.oLab->ChangeSetting("WarningSizeMB", 1);
    EXPECT_TRUE(oScene.oLibraries->Utility().IsDatabaseLarge(lSizeMB));
    const auto oWizard = oScene.Analyzed(); // the question is answered No
    EXPECT_NE(oScene.oPlatform->sShown.find("greater than 1 MB."), std::string::npos);
    EXPECT_EQ(oWizard->oAnalysis->lbAnalyzed2.Caption(), "0");
}

TEST(TagSelector, PicksLociSingleAllOrNoneAndSavesThemWhileActive) {
    WizardScene oScene;
    const Wizard oWizard(oScene.oLibraries, oScene.oPlatform, {Task::Analyze, "First"});
    auto& oSelector = oWizard.StrSelector();
    const auto fnSaved = [&] {
        const auto oDefinition = std::make_shared<ParameterDefinition>(oScene.oLab);
        Ref<IObject> oRecord = oDefinition;
        oSelector.SaveParameters(oRecord);
        return oDefinition->ToString();
    };
    EXPECT_EQ(fnSaved(), "none"); // not the type in play
    oWizard.Host().PressNext();
    oWizard.oLoci->optAlleleIDType[0].Press();
    EXPECT_EQ(oSelector.lblLoci.Caption(), "16 of 16 loci: every locus of a sample's panel is called.");
    EXPECT_EQ(fnSaved(), "STR"); // whatever panel it is
    oSelector.cmdNone.Press();
    EXPECT_EQ(oSelector.lblLoci.Caption(), "No locus is picked: every locus of a sample's panel is called.");
    oSelector.aoLocusBoxes[2]->Press();
    EXPECT_EQ(oSelector.lblLoci.Caption(), "1 of 16 loci");
    EXPECT_EQ(fnSaved(), "STR S03");
    EXPECT_THROW(oSelector.Pick({"S01", "Q9"}), Failure);
    EXPECT_EQ(fnSaved(), "STR S03");
    const auto fnLoad = [&](std::vector<std::string> asLoci) {
        const auto oDefinition = std::make_shared<ParameterDefinition>(oScene.oLab);
        oDefinition->Choose(AlleleType::Str, std::move(asLoci));
        Ref<IObject> oRecord = oDefinition;
        oSelector.LoadParameters(oRecord);
        return oSelector.PickedLoci().size();
    };
    EXPECT_EQ(fnLoad({}), 16U);
    EXPECT_EQ(fnLoad({"S04", "S01"}), 2U);
    EXPECT_EQ(fnLoad({"S01", "Q9"}), 16U) << "no panel has both";
    oSelector.cmdNone.Press();
    EXPECT_EQ(fnSaved(), "STR");
    oSelector.cmdAll.Press();
    EXPECT_EQ(oSelector.lblLoci.Caption(), "16 of 16 loci");
    EXPECT_EQ(fnSaved().substr(0, 15), "STR S01 S02 S03") << "of this panel, whatever a sample's is";
    EXPECT_EQ(oWizard.SnpSelector().lblLoci.Caption(), "No kit of this type is in the lab.");
}

TEST(TraceImport, TakesATraceOnceAndADamagedOneNotAtAll) {
    LabScene oScene;
    oScene.aoWells = SimulatePlate(oScene.oOrder);
    const SimulatedWell& oWell = oScene.aoWells[0];
    const auto oFirst = ImportTrace(*oScene.oLab, {"Trial"}, oWell.sFile, oWell.abContent);
    EXPECT_FALSE(oFirst.bWasThere);
    EXPECT_EQ(WellText(*oFirst.oSample.oWell), oWell.sWell);
    EXPECT_EQ(oScene.oLab->Plates(oFirst.oSample.lProjectID).front().sName, "P1"); // as the trace names it
    const auto oAgain = ImportTrace(*oScene.oLab, {"Trial", "Other"}, oWell.sFile, oWell.abContent);
    EXPECT_TRUE(oAgain.bWasThere);
    EXPECT_EQ(oAgain.oSample.lSampleID, oFirst.oSample.lSampleID);
    EXPECT_FALSE(ImportTrace(*oScene.oLab, {"Beta"}, oWell.sFile, oWell.abContent).bWasThere);
    const std::vector<std::byte> abHalf(oWell.abContent.begin(), oWell.abContent.begin() + 900);
    EXPECT_THROW(ImportTrace(*oScene.oLab, {"Gamma"}, oWell.sFile, abHalf), InputError);
    EXPECT_FALSE(oScene.oLab->FindProject("Gamma"));
}

TEST(TraceImport, RefusesAWellThatNoPlateHas) {
    LabScene oScene;
    Trace oTrace = ReadTrace("t.fsa", SimulatePlate(oScene.oOrder)[0].abContent);
    oTrace.sWell = "I13";
    try {
        ImportTrace(*oScene.oLab, {"Trial"}, "t.fsa", WriteTrace(oTrace));
        ADD_FAILURE() << "it went in";
    } catch (const InputError& oError) {
        EXPECT_STREQ(oError.what(), "t.fsa: well \"I13\": a plate has the wells A1 to H12");
    }
}

// A trace that was cut short tells no longer which plate it is of.
TEST(SimulatedPlate, ASecondOneOfTheSameSeedHasAllItsWells) {
    LabScene oScene;
    oScene.MakePlate();
    oScene.oOrder.sPlate = "P2";
    const auto aoWells = SimulatePlate(oScene.oOrder);
    EXPECT_EQ(ImportPlate(*oScene.oLab, {"Trial", "P2"}, oScene.oKit, aoWells), 96);
    EXPECT_EQ(ImportPlate(*oScene.oLab, {"Trial", "P2"}, oScene.oKit, aoWells), 0);
}

TEST(WizardLauncher, OpensTheViewsOfASingleRecordAndCountsThoseThatAreHeld) {
    WizardLauncher oLauncher;
    std::string sSeen;
    Ref<FurtherWizard> oHeld;
    const auto oSubscription = oLauncher.OnOpened.Subscribe([&](const Ref<FurtherWizard>& oWizard) {
        oHeld = oWizard;
        sSeen += oWizard->Name();
    });
    const auto fnOpen = [&](std::string_view sName) {
        return oLauncher.OpenWizard(sName, nullptr, nullptr, 1, true, 1, 0, true, true, "", false, true);
    };
    fnOpen("SingleSample")->Title("Single Sample View - A1");
    EXPECT_EQ(sSeen + oHeld->Title(), "SingleSampleSingle Sample View - A1");
    EXPECT_EQ(oLauncher.OpenCount(), 1);
    oHeld.reset();
    EXPECT_EQ(oLauncher.OpenCount(), 0);
    EXPECT_THROW(fnOpen("Nothing"), Failure);
}

} // namespace
} // namespace GleanerSvc::Workbench
