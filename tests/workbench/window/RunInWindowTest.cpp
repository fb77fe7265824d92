// A wizard and the start window beside it: what may be done while an analysis runs, how each of them ends,
// and that what breaks leaves a way out.
#include <gtest/gtest.h>

#include <QAction>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <gmock/gmock.h>

#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/window/Desktop.h"
#include "workbench/window/PageView.h"
#include "workbench/window/StartActions.h"

namespace GleanerSvc::Workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// The timer's turn comes in the middle of the analysis, when the first results are there.
struct RunScene {
    RunScene() {
        oDesktop.OnTrouble =
            oDesktop.Start().OnTrouble = [this](const std::string& sText) { asTroubles.push_back(sText); };
        oDesktop.OnAsk = [this](const std::string& sQuestion) {
            asQuestions.push_back(sQuestion);
            return bAnswer;
        };
        EXPECT_TRUE(oDesktop.Start().OpenLab(LabFile(), LabMode::CreateIfMissing));
        EXPECT_TRUE(oDesktop.Start().Simulate({{"Trial", "P1"}}));
        oDesktop.Start().show();
    }
    std::string LabFile() const { return (oFolder.Path() / "lab.sqlite").string(); }
    Lab& OwnLab() { return *oDesktop.Start().OwnLab(); }
    const StartActions& Actions() { return oDesktop.Start().Actions(); }
    std::size_t Results() {
        std::size_t nResults = 0;
        OwnLab().ForEachResult(AllProjectsID, [&](ResultRow&&) { ++nResults; });
        return nResults;
    }
    WizardWindow& Begin() {
        oDesktop.Start().Analyze("First");
        return *oDesktop.OpenWizard();
    }
    // With the twelve wells of a row, as far as the analysis.
    WizardWindow& BeginAnalysis() {
        WizardWindow& oWindow = Begin();
        Wizard& oWizard = oWindow.OwnWizard();
        oWizard.oSamples->tabPage.ChooseTab(1);
        oWizard.oSamples->lblLetter[2].ClickIt();
        oWizard.Host().PressNext();
        oWizard.oLoci->optAlleleIDType[0].Press();
        oWizard.Host().PressNext();
        EXPECT_EQ(oWizard.Host().CurrentPage(), 3);
        return oWindow;
    }
    void Analyze(WizardWindow& oWindow, const std::function<void()>& fnMeanwhile) {
        const AnalysisPage& oPage = *oWindow.OwnWizard().oAnalysis;
        QTimer oLook;
        QObject::connect(&oLook, &QTimer::timeout, [&] {
            if (oPage.lbAnalyzed2.Caption() != "3") return;
            oLook.stop();
            fnMeanwhile();
        });
        oLook.start(0);
        QTest::mouseClick(oWindow.ViewOf(3).WidgetOf(oPage.cmdAnalyze), Qt::LeftButton);
        EXPECT_FALSE(oLook.isActive());
    }
    static void Turn() {
        for (int nTurn = 0; nTurn < 3; ++nTurn) QCoreApplication::processEvents();
    }
    // The program until it ends by itself; False when it does not.
    static bool EndsBy(const std::function<void()>& fnDo) {
        constexpr int Patience = 5000; // ms
        QTimer::singleShot(0, fnDo);
        QTimer oTooLong;
        QObject::connect(&oTooLong, &QTimer::timeout, [] { QCoreApplication::exit(1); });
        oTooLong.start(Patience);
        return QApplication::exec() == 0;
    }

    struct Prepared {
        Prepared() { EnsureApplication(); }
    } oPrepared;
    TemporaryFolder oFolder;
    Appearance oAppearance{false};
    Desktop oDesktop{oAppearance};
    std::vector<std::string> asTroubles;
    std::vector<std::string> asQuestions;
    bool bAnswer = false;
};

TEST(RunInWindow, ACloseInItsMiddleAsksAndThenStopsIt) {
    RunScene oScene;
    WizardWindow& oWindow = oScene.BeginAnalysis();
    oScene.Analyze(oWindow, [&] {
        EXPECT_FALSE(oWindow.close()); // the answer is No
        EXPECT_FALSE(oWindow.IsClosing());
        oScene.bAnswer = true;
        EXPECT_FALSE(oWindow.close());
        EXPECT_TRUE(oWindow.isVisible()) << "the run is at work still";
    });
    RunScene::Turn();
    EXPECT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
    EXPECT_EQ(oScene.asQuestions, std::vector<std::string>(2, "The analysis is running. Stop it and close?"));
    EXPECT_GE(oScene.Results(), 3U);
    EXPECT_LT(oScene.Results(), 12U);
    EXPECT_FALSE(oScene.OwnLab().FindStudy("First"));
}

TEST(RunInWindow, NothingComesIntoTheLabMeanwhile) {
    RunScene oScene;
    WizardWindow& oWindow = oScene.BeginAnalysis();
    const auto& oActions = oScene.Actions();
    const QAction* const apHeld[] = {oActions.pNewLab,     oActions.pOpenLab, oActions.pReadLab,
                                     oActions.pUsualLab,   oActions.pImport,  oActions.pImportKit,
                                     oActions.pAnalyzeNew, oActions.pSimulate};
    const auto fnExpect = [&](bool bEnabled) {
        for (const QAction* pHeld : apHeld)
            EXPECT_EQ(pHeld->isEnabled(), bEnabled) << pHeld->text().toStdString();
    };
    fnExpect(true);
    oScene.Analyze(oWindow, [&] {
        fnExpect(false);
        EXPECT_FALSE(oScene.oDesktop.Start().Simulate({{"Trial", "P2"}})); // of a form that was open before
    });
    EXPECT_THAT(oScene.asTroubles, ElementsAre(HasSubstr("An analysis is running.")));
    fnExpect(true);
    EXPECT_EQ(oScene.Results(), 12U);
}

TEST(RunInWindow, OneThatBreaksLeavesAWayOut) {
    RunScene oScene;
    WizardWindow& oWindow = oScene.BeginAnalysis();
    oScene.Analyze(oWindow, [&] { oScene.OwnLab().LimitSize(0.01); });
    ASSERT_FALSE(oScene.asTroubles.empty());
    EXPECT_THAT(oScene.asTroubles.front(), HasSubstr("no room"));
    oScene.OwnLab().LimitSize(0);
    EXPECT_FALSE(oWindow.findChild<QPushButton*>("Cancel")->isEnabled());
    EXPECT_TRUE(oScene.Actions().pImport->isEnabled());
    EXPECT_TRUE(oWindow.close());
    RunScene::Turn();
    EXPECT_THAT(oScene.asQuestions, ElementsAre());
    ASSERT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
    EXPECT_TRUE(oScene.Begin().isVisible());
}

TEST(RunInWindow, AStudyThatTheLabRefusesAtLastCanBeFinishedAgain) {
    RunScene oScene;
    WizardWindow& oWindow = oScene.BeginAnalysis();
    oScene.Analyze(oWindow, [] {});
    oWindow.OwnWizard().Host().PressNext();
    const auto fnRun = [&](const QStringList& asStatements) {
        auto oBeside = QSqlDatabase::addDatabase("QSQLITE", "beside");
        oBeside.setDatabaseName(QString::fromStdString(oScene.LabFile()));
        ASSERT_TRUE(oBeside.open());
        for (const auto& sStatement : asStatements) EXPECT_TRUE(QSqlQuery(oBeside).exec(sStatement));
        oBeside = {};
        QSqlDatabase::removeDatabase("beside");
    };
    // Found out when all is put on disk, and not before.
    fnRun({"CREATE TABLE held (id INTEGER REFERENCES studies DEFERRABLE INITIALLY DEFERRED)",
           "CREATE TRIGGER late AFTER INSERT ON study_results BEGIN INSERT INTO held VALUES (-1); END"});
    auto* const pFinish = oWindow.findChild<QPushButton*>("Finish");
    QTimer::singleShot(50, [] { QApplication::activeModalWidget()->close(); });
    QTest::mouseClick(pFinish, Qt::LeftButton);
    RunScene::Turn();
    ASSERT_EQ(oScene.oDesktop.OpenWizard(), &oWindow);
    EXPECT_EQ(oWindow.OwnWizard().Host().Failures().size(), 1U);
    EXPECT_FALSE(oScene.OwnLab().FindStudy("First"));
    fnRun({"DROP TRIGGER late"});
    QTest::mouseClick(pFinish, Qt::LeftButton);
    RunScene::Turn();
    EXPECT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
    EXPECT_EQ(oScene.OwnLab().FindStudy("First")->lResults, 12);
}

TEST(RunInWindow, TheLabStaysWithItsWizard) {
    RunScene oScene;
    const auto oOther = (oScene.oFolder.Path() / "other.sqlite").string();
    WizardWindow& oWindow = oScene.Begin();
    StartWindow& oStart = oScene.oDesktop.Start();
    EXPECT_TRUE(oStart.OpenLab(oScene.LabFile(), LabMode::Existing));
    EXPECT_EQ(oStart.Libraries(), oWindow.Libraries());
    for (const auto eMode : {LabMode::CreateIfMissing, LabMode::Reading})
        EXPECT_FALSE(oStart.OpenLab(eMode == LabMode::Reading ? oScene.LabFile() : oOther, eMode));
    ASSERT_EQ(oScene.asTroubles.size(), 2U);
    EXPECT_THAT(oScene.asTroubles[0],
                testing::AllOf(HasSubstr(oOther), HasSubstr("Finish or cancel it first")));
    EXPECT_EQ(oStart.Libraries(), oWindow.Libraries());
    oWindow.close();
    RunScene::Turn();
    EXPECT_TRUE(oStart.OpenLab(oOther, LabMode::CreateIfMissing));
}

TEST(RunInWindow, TheProgramEndsWithItsLastWindow) {
    RunScene oScene;
    WizardWindow& oWindow = oScene.Begin();
    EXPECT_TRUE(RunScene::EndsBy([&] {
        EXPECT_TRUE(oScene.oDesktop.Start().close());
        EXPECT_TRUE(oWindow.isVisible());
        QTest::mouseClick(oWindow.findChild<QPushButton*>("Cancel"), Qt::LeftButton);
    }));
    EXPECT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
}

TEST(RunInWindow, QuitAsksForAnOpenWizardAndStopsItsRun) {
    RunScene oScene;
    StartWindow& oStart = oScene.oDesktop.Start();
    const auto fnQuit = [&] {
        oStart.activateWindow();
        QCoreApplication::processEvents();
        QTest::keyClick(&oStart, Qt::Key_Q, Qt::ControlModifier);
    };
    WizardWindow& oWindow = oScene.BeginAnalysis();
    fnQuit();
    RunScene::Turn();
    EXPECT_TRUE(oWindow.isVisible() && oStart.isVisible());
    oScene.bAnswer = true;
    EXPECT_TRUE(RunScene::EndsBy([&] { oScene.Analyze(oWindow, fnQuit); }));
    EXPECT_THAT(oScene.asQuestions, ElementsAre(HasSubstr("A wizard is open."), HasSubstr("Stop it")));
    EXPECT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
    EXPECT_FALSE(oStart.isVisible());
    EXPECT_LT(oScene.Results(), 12U);
}

TEST(RunInWindow, AWizardThatCannotBeginLeavesNothingBehind) {
    RunScene oScene;
    oScene.oDesktop.Start().OnAnalyze.Raise({Task::ReanalyzeResults, "", {999}});
    EXPECT_EQ(oScene.asTroubles.size(), 1U);
    EXPECT_EQ(oScene.oDesktop.OpenWizard(), nullptr);
    WizardWindow& oWindow = oScene.BeginAnalysis();
    oWindow.Libraries()->Launcher().OpenWizard("SingleSample", nullptr, nullptr, 1, true, 1, 0, true, true,
                                               "", false, true);
    RunScene::Turn();
    EXPECT_EQ(oScene.oDesktop.Records().size(), 1U);
    oScene.Analyze(oWindow, [] {});
    oWindow.close();
    RunScene::Turn();
    oScene.oDesktop.Start().OnAnalyze.Raise({Task::ReanalyzeResults, "", {1}});
    ASSERT_NE(oScene.oDesktop.OpenWizard(), nullptr);
    EXPECT_THAT(oScene.oDesktop.OpenWizard()->windowTitle().toStdString(),
                testing::StartsWith("Analyze Results Again"));
}

} // namespace
} // namespace GleanerSvc::Workbench
