#include "workbench/window/StartWindow.h"

#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QUrl>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/lab/Table.h"
#include "workbench/window/ImportPane.h"
#include "workbench/window/LogPane.h"
#include "workbench/window/LogTable.h"
#include "workbench/window/StartActions.h"
#include "workbench/window/StudyPane.h"

namespace GleanerSvc::Workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class StartWindowTest : public testing::Test {
  public:
    StartWindowTest() {
        oWindow.OnTrouble = [this](const std::string& sText) { asTroubles.push_back(sText); };
        oWindow.OnAsk = [this](const std::string& sQuestion) {
            asQuestions.push_back(sQuestion);
            return bAnswer;
        };
        oWindow.OnChooseFiles = [this](StartFiles) { return asChosen; };
        oSubscriptions.On(oWindow.OnAnalyze,
                          [this](const Wizard::Start& oStart) { aoStarts.push_back(oStart); });
        oSubscriptions.On(oWindow.OnShowResult, [this](std::int32_t lID) { alShown.push_back(lID); });
        oWindow.show();
        oWindow.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&oWindow));
    }

    std::filesystem::path LabFile() const { return oFolder.Path() / "lab.sqlite"; }
    bool OpenLab(LabMode eMode = LabMode::CreateIfMissing) {
        return oWindow.OpenLab(LabFile().string(), eMode);
    }
    SimulatedRun Run() const { return {{"Trial", "P1"}}; }

    // Three results of three wells in the study "First", and one of another sample in no study.
    void MakeStudy() {
        ASSERT_TRUE(oWindow.Simulate(Run()));
        Lab& oLab = *oWindow.OwnLab();
        const auto lStudyID = oLab.AddStudy("First");
        std::vector<std::int32_t> alSamples;
        oLab.ForEachSample(AllProjectsID, [&](const SampleRow& o) { alSamples.push_back(o.lSampleID); });
        for (std::size_t nSample = 1; nSample <= 4; ++nSample) {
            NewResult oResult;
            oResult.lSampleID = alSamples[nSample];
            oResult.sDescription = "PASS";
            oResult.oSized.aoPeaks = {Peak{}};
            oResult.oCalled.aoCalls = {{"S01", "12", 0}};
            const auto lResultID = oLab.AddResult(oResult);
            if (nSample < 4) oLab.AddStudyResult(lStudyID, lResultID, true);
        }
        oWindow.Reload();
        ASSERT_TRUE(oWindow.ChooseStudy("First"));
    }
    // A simulated plate's files in a folder, the ladder and two samples.
    std::filesystem::path MakeTraces() const {
        const auto oTraces = oFolder.Path() / "traces" / "deeper";
        std::filesystem::create_directories(oTraces);
        for (const auto& oWell : SimulatePlate(OrderOf(Run()))) {
            if (oWell.sWell == "A1" || oWell.sWell == "B2" || oWell.sWell == "C2")
                WriteBytes(oTraces / oWell.sFile, oWell.abContent);
        }
        return oTraces.parent_path();
    }

    template<class Widget>
    Widget* Find(const QString& sName, QWidget* pIn = nullptr) {
        for (auto* pWidget : (pIn ? pIn : &oWindow)->findChildren<Widget*>()) {
            if (pWidget->accessibleName() == sName && pWidget->isVisible()) return pWidget;
        }
        ADD_FAILURE() << "no " << sName.toStdString() << " is shown";
        return nullptr;
    }
    void Press(Qt::Key eKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier) {
        QWidget* pFocus = QApplication::focusWidget();
        QTest::keyClick(pFocus ? pFocus : &oWindow, eKey, eModifiers);
        // A button that its letter has pressed comes up again by itself.
        EXPECT_TRUE(QTest::qWaitFor([] {
            const auto apWidgets = QApplication::allWidgets();
            return std::none_of(apWidgets.begin(), apWidgets.end(), [](const QWidget* pWidget) {
                const auto* pButton = dynamic_cast<const QAbstractButton*>(pWidget);
                return pButton && pButton->isDown();
            });
        }));
    }
    QDialog* Dialog() {
        for (auto* pDialog : oWindow.findChildren<QDialog*>()) {
            const auto fnHasFocus = [&] { return pDialog->isAncestorOf(QApplication::focusWidget()); };
            if (pDialog->isVisible() && QTest::qWaitFor(fnHasFocus)) return pDialog;
        }
        return nullptr;
    }
    std::vector<std::string> Outcomes() const {
        std::vector<std::string> asOutcomes;
        for (const auto& oFile : oWindow.Imported().Files()) asOutcomes.push_back(OutcomeText(oFile));
        return asOutcomes;
    }
    void Drop(const std::vector<std::filesystem::path>& aoFiles) {
        QMimeData oDropped;
        QList<QUrl> aoUrls;
        for (const auto& oFile : aoFiles)
            aoUrls.append(QUrl::fromLocalFile(QString::fromStdString(oFile.string())));
        oDropped.setUrls(aoUrls);
        QDragEnterEvent oEnter({50, 50}, Qt::CopyAction, &oDropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&oWindow, &oEnter);
        EXPECT_TRUE(oEnter.isAccepted());
        QDropEvent oDrop({50, 50}, Qt::CopyAction, &oDropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&oWindow, &oDrop);
        QTest::qWait(10);
    }

    struct Prepared {
        Prepared() { EnsureApplication(); }
    } oPrepared;
    TemporaryFolder oFolder;
    Appearance oAppearance;
    StartWindow oWindow{oAppearance};
    std::vector<std::string> asTroubles;
    std::vector<std::string> asQuestions;
    bool bAnswer = false; // No
    std::vector<std::string> asChosen;
    std::vector<Wizard::Start> aoStarts;
    std::vector<std::int32_t> alShown;
    Subscriptions oSubscriptions;
};

TEST_F(StartWindowTest, ALabIsMadeByKeyAndOpenedAgain) {
    EXPECT_EQ(oWindow.OwnLab(), nullptr);
    asChosen = {LabFile().string()};
    Press(Qt::Key_N, Qt::AltModifier); // the button's letter
    ASSERT_NE(oWindow.OwnLab(), nullptr);
    EXPECT_EQ(oWindow.OwnLab()->File(), LabFile());
    EXPECT_EQ(Find<QLabel>("Lab")->text().toStdString(), LabFile().string());
    EXPECT_EQ(oWindow.windowTitle().toStdString(), "lab.sqlite – Gleaner Workbench");
    Press(Qt::Key_O, Qt::ControlModifier); // the lab that is open is no other program's
    EXPECT_NE(oWindow.OwnLab(), nullptr);
    EXPECT_THAT(asTroubles, ElementsAre());
}

TEST_F(StartWindowTest, ALabThatCannotBeOpenedIsToldAndLeavesTheWindowUsable) {
    std::ofstream(LabFile()) << "this is no lab at all";
    EXPECT_FALSE(OpenLab());
    EXPECT_FALSE(oWindow.OpenLab((oFolder.Path() / "none.sqlite").string(), LabMode::Existing));
    std::filesystem::remove(LabFile());
    ASSERT_EQ(asTroubles.size(), 2U);
    for (const auto& sTrouble : asTroubles) EXPECT_THAT(sTrouble, HasSubstr(oFolder.Path().string()));
    EXPECT_EQ(oWindow.OwnLab(), nullptr);
    oWindow.Reload();
    EXPECT_EQ(oWindow.Import({"x.fsa"}, {"Trial"}), 0);
    EXPECT_THAT(asTroubles.back(), HasSubstr("no lab is open"));
    EXPECT_TRUE(OpenLab());
    EXPECT_FALSE(oWindow.OpenLab(oFolder.Path().string(), LabMode::Existing));
    EXPECT_EQ(oWindow.OwnLab()->File(), LabFile()); // the one that was open stays
}

TEST_F(StartWindowTest, ALabThatAnotherProgramHoldsCanBeOpenedForReading) {
    const auto oOther = Lab::Open(LabFile(), LabMode::CreateIfMissing);
    EXPECT_FALSE(OpenLab());
    EXPECT_THAT(asQuestions, ElementsAre(HasSubstr("another program uses the lab " + LabFile().string())));
    EXPECT_EQ(oWindow.OwnLab(), nullptr);
    asChosen = {LabFile().string()};
    Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(oWindow.OwnLab(), nullptr);
    EXPECT_FALSE(oWindow.Actions().pImport->isEnabled());
    bAnswer = true;
    EXPECT_TRUE(OpenLab());
    EXPECT_EQ(asQuestions.size(), 2U);
    EXPECT_THROW(oWindow.OwnLab()->AddStudy("First"), LabError);
    EXPECT_THAT(asTroubles, ElementsAre());
}

// The folder that the program was begun in may be gone.
TEST_F(StartWindowTest, ALabsNameThatStandsNowhereIsToldAsAnyOtherTrouble) {
    const auto oBefore = std::filesystem::current_path();
    const auto oGone = oFolder.Path() / "gone";
    std::filesystem::create_directory(oGone);
    std::filesystem::current_path(oGone);
    std::filesystem::remove(oGone);
    EXPECT_FALSE(oWindow.OpenLab("lab.sqlite", LabMode::Existing));
    std::filesystem::current_path(oBefore);
    EXPECT_EQ(asTroubles.size(), 1U);
}

TEST_F(StartWindowTest, EachFileOfAnImportHasItsOutcome) {
    ASSERT_TRUE(OpenLab());
    const auto oTraces = MakeTraces();
    const auto oBroken = oFolder.Path() / "broken.fsa";
    const auto oEmpty = oFolder.Path() / "empty";
    std::ofstream(oBroken) << "ABIF";
    std::filesystem::create_directory(oEmpty);
    EXPECT_EQ(oWindow.Import({oBroken.string(), oTraces.string(), oEmpty.string()}, {"Trial"}), 3);
    EXPECT_THAT(Outcomes(), ElementsAre("refused", "imported", "imported", "imported", "refused"));
    EXPECT_THAT(oWindow.Imported().Files().front().sReason, HasSubstr(oBroken.string()));
    EXPECT_THAT(oWindow.Imported().Files().back().sReason, HasSubstr(oEmpty.string()));
    EXPECT_EQ(oWindow.statusBar()->currentMessage().toStdString(),
              "3 of 5 files imported, 0 there already, 2 refused.");
    auto* pFiles = Find<QTableView>("Files of the last import");
    auto* pSummary = Find<QLabel>("Summary of the last import");
    pFiles->selectRow(1);
    EXPECT_EQ(pSummary->text().toStdString(), oWindow.statusBar()->currentMessage().toStdString());
    pFiles->selectRow(4); // why, in full
    EXPECT_THAT(pSummary->text().toStdString(), HasSubstr("refused.\n" + oEmpty.string()));
    EXPECT_EQ(oWindow.Import({oTraces.string()}, {"Trial"}), 0);
    EXPECT_THAT(Outcomes(), ElementsAre("was there", "was there", "was there"));
    EXPECT_THAT(asTroubles, ElementsAre());
    // What the lab itself refuses ends the import, and is told with the file.
    oWindow.OwnLab()->LimitSize(0.01);
    EXPECT_EQ(oWindow.Import({oTraces.string()}, {"Other"}), 0);
    ASSERT_EQ(asTroubles.size(), 1U);
    EXPECT_THAT(asTroubles.front(), HasSubstr("ended at " + (oTraces / "deeper").string()));
}

TEST_F(StartWindowTest, DroppedFilesAndFoldersAreImportedIntoTheProjectThatIsNamed) {
    const auto oTraces = MakeTraces();
    Drop({oTraces});
    EXPECT_THAT(asTroubles, ElementsAre(HasSubstr("no lab is open")));
    ASSERT_TRUE(OpenLab());
    Drop({oTraces});
    QDialog* pDialog = Dialog();
    ASSERT_NE(pDialog, nullptr);
    EXPECT_FALSE(Find<QPushButton>("Import", pDialog)->isEnabled());
    auto* pProject = Find<QComboBox>("Project", pDialog);
    pProject->setFocus();
    QTest::keyClicks(pProject->lineEdit(), "Trial");
    QTest::keyClick(pProject->lineEdit(), Qt::Key_Return);
    EXPECT_THAT(Outcomes(), ElementsAre("imported", "imported", "imported"));
    EXPECT_TRUE(oWindow.OwnLab()->FindProject("Trial"));
}

TEST_F(StartWindowTest, AKitComesWithItsTablesAndIsRefusedByTheirPlace) {
    ASSERT_TRUE(OpenLab());
    const auto fnWrite = [&](const std::string& sName, const std::string& sText) {
        std::ofstream(oFolder.Path() / sName) << sText;
        return (oFolder.Path() / sName).string();
    };
    const KitTables oKit = SimulatedStrKit();
    const auto sPanels = fnWrite("panels.txt", oKit.oPanels.sText);
    const auto sBins = fnWrite("bins.txt", oKit.oBins.sText);
    EXPECT_FALSE(oWindow.ImportKit("Kit", fnWrite("bad.txt", "Panel\tX\nL1\tblue\tlow\t200\n"), sBins));
    EXPECT_THAT(asTroubles, ElementsAre(HasSubstr("bad.txt: line 2")));
    EXPECT_TRUE(oWindow.OwnLab()->Panels().empty());
    Press(Qt::Key_K, Qt::ControlModifier);
    QDialog* pDialog = Dialog();
    ASSERT_NE(pDialog, nullptr);
    QTest::keyClicks(Find<QLineEdit>("Kit", pDialog), "Kit");
    asChosen = {sPanels};
    Find<QPushButton>("Choose Panels", pDialog)->click();
    Find<QLineEdit>("Bins", pDialog)->setText(QString::fromStdString(sBins));
    Press(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(oWindow.OwnLab()->Panels().size(), 1U);
}

TEST_F(StartWindowTest, APlateIsSimulatedByKeyboardAlone) {
    ASSERT_TRUE(OpenLab());
    Press(Qt::Key_P, Qt::ControlModifier);
    QDialog* pDialog = Dialog();
    ASSERT_NE(pDialog, nullptr);
    const auto fnType = [&](const char* szText) { QTest::keyClicks(QApplication::focusWidget(), szText); };
    fnType("Trial");
    Press(Qt::Key_Return); // not all is filled in yet: nothing happens
    EXPECT_TRUE(pDialog->isVisible());
    Press(Qt::Key_P, Qt::AltModifier);
    fnType("P1");
    Press(Qt::Key_Return);
    const auto oProject = oWindow.OwnLab()->FindProject("Trial");
    ASSERT_TRUE(oProject);
    const auto oPlate = oWindow.OwnLab()->FindPlate(oProject->lProjectID, "P1");
    EXPECT_EQ(oWindow.OwnLab()->SamplesOfPlate(oPlate->lPlateID).size(), 96U);
}

TEST_F(StartWindowTest, AWizardBeginsForAStudyOrForItsResults) {
    ASSERT_TRUE(OpenLab());
    MakeStudy();
    Press(Qt::Key_R, Qt::ControlModifier);
    Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(Dialog(), nullptr);
    QTest::keyClicks(Find<QLineEdit>("Study", Dialog()), " Second ");
    Press(Qt::Key_Return);
    oWindow.activateWindow(); // on a desktop, its window manager does it
    ASSERT_TRUE(QTest::qWaitFor([&] { return oWindow.isAncestorOf(QApplication::focusWidget()); }));
    Press(Qt::Key_G, Qt::ControlModifier);
    auto* pResults = Find<QTableView>("Results");
    pResults->selectRow(2);
    Press(Qt::Key_E, Qt::AltModifier);
    ASSERT_EQ(aoStarts.size(), 4U);
    EXPECT_EQ(aoStarts[0].sStudy, "First");
    EXPECT_EQ(aoStarts[1].sStudy, "Second");
    EXPECT_EQ(aoStarts[2].eTask, Task::ReanalyzeResults);
    EXPECT_THAT(aoStarts[2].alResultIDs, ElementsAre(1, 2, 3));
    EXPECT_EQ(aoStarts[3].eTask, Task::ReanalyzeAlleles);
    EXPECT_THAT(aoStarts[3].alResultIDs, ElementsAre(3));
}

TEST_F(StartWindowTest, ResultsAreShownSortedAndOpenedOneByOne) {
    ASSERT_TRUE(OpenLab());
    MakeStudy();
    auto* pResults = Find<QTableView>("Results");
    EXPECT_EQ(pResults->model()->rowCount(), 3);
    pResults->selectRow(0);
    pResults->sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(pResults->model()->index(0, 0).data().toInt(), 3);
    EXPECT_EQ(pResults->currentIndex().row(), 2); // the selection goes with its row
    Press(Qt::Key_R, Qt::AltModifier);
    QTest::keyClick(pResults, Qt::Key_Return);
    QTest::keyClick(pResults, Qt::Key_Up);
    Press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_THAT(alShown, ElementsAre(1, 2));
    auto* pStudies = Find<QTableView>("Studies");
    Press(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(pStudies->hasFocus());
    Press(Qt::Key_Tab);
    EXPECT_FALSE(pStudies->hasFocus()) << "a table is no trap for the keyboard";
    pStudies->selectRow(0); // all results of the lab
    EXPECT_EQ(pResults->model()->rowCount(), 4);
    EXPECT_FALSE(oWindow.Actions().pAnalyze->isEnabled());
    oWindow.Reload();
    EXPECT_EQ(pStudies->currentIndex().row(), 0);
}

TEST_F(StartWindowTest, ANoteTellsWhatIsSelectedAndWhatThatMeans) {
    ASSERT_TRUE(OpenLab());
    auto* pNote = Find<QLabel>("Note on the results");
    EXPECT_THAT(pNote->text().toStdString(), HasSubstr("no results yet"));
    const auto& oActions = oWindow.Actions();
    const QAction* const apOfResults[] = {oActions.pAgainResults, oActions.pAgainAlleles, oActions.pExport,
                                          oActions.pShowResult};
    for (const QAction* pAction : apOfResults)
        EXPECT_FALSE(pAction->isEnabled()) << pAction->text().toStdString();
    MakeStudy();
    auto* pResults = Find<QTableView>("Results");
    const auto fnNote = [&] { return pNote->text().toStdString(); };
    EXPECT_EQ(fnNote(), "3 results. Analyzing again takes them all, unless some are selected.");
    pResults->selectRow(1);
    for (const QAction* pAction : apOfResults)
        EXPECT_TRUE(pAction->isEnabled()) << pAction->text().toStdString();
    EXPECT_EQ(fnNote(), "1 of 3 results is selected: PASS");
    QTest::keyClick(pResults, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(fnNote(), "2 of 3 results are selected. Analyzing again takes these.");
    pResults->clearSelection();
    EXPECT_THAT(fnNote(), HasSubstr("takes them all"));
}

TEST_F(StartWindowTest, AStudyIsExportedAsCsv) {
    ASSERT_TRUE(OpenLab());
    MakeStudy();
    const auto oFile = oFolder.Path() / "first.csv";
    asChosen = {oFile.string()};
    Press(Qt::Key_E, Qt::ControlModifier);
    std::stringstream oText;
    oText << std::ifstream(oFile).rdbuf();
    EXPECT_THAT(oText.str(),
                HasSubstr("\n1,P1-B01,P1,B1,PASS,S01,12,blue,,0.00\r\n2,P1-C01,P1,C1,PASS,S01,12,"));
    EXPECT_FALSE(oWindow.Export((oFolder.Path() / "none" / "first.csv").string()));
    EXPECT_THAT(asTroubles, ElementsAre(HasSubstr("none/first.csv")));
}

TEST_F(StartWindowTest, ALabForReadingShowsAllAndChangesNothing) {
    ASSERT_TRUE(OpenLab());
    MakeStudy();
    ASSERT_TRUE(OpenLab(LabMode::Reading));
    EXPECT_EQ(oWindow.Studies().Results().size(), 3U);
    EXPECT_EQ(Find<QLabel>("Lab")->text().toStdString(), LabFile().string() + " (for reading only)");
    EXPECT_TRUE(oWindow.Actions().pExport->isEnabled());
    for (const QAction* pAction : {oWindow.Actions().pImport, oWindow.Actions().pSimulate,
                                   oWindow.Actions().pAnalyze, oWindow.Actions().pAgainResults})
        EXPECT_FALSE(pAction->isEnabled()) << pAction->text().toStdString();
    EXPECT_FALSE(oWindow.Simulate({{"Trial", "P2"}}));
    EXPECT_EQ(asTroubles.size(), 1U);
}

TEST_F(StartWindowTest, TheErrorLogShowsTheLatestEntryFirst) {
    ASSERT_TRUE(OpenLab());
    for (const char* szWhat : {"the first", "the second"})
        oWindow.Libraries()->Utility().LogError("App", "Page", "Load", Failure(5, "Source", szWhat), "extra",
                                                false);
    Press(Qt::Key_3, Qt::ControlModifier);
    ASSERT_EQ(oWindow.Log().Entries().Count(), 2);
    EXPECT_EQ(oWindow.Log().Entries().RowAt(0).oFailure.Description(), "the second");
    EXPECT_THAT(LogTable::Details(oWindow.Log().Entries().RowAt(0)).toStdString(),
                testing::AllOf(HasSubstr("Description: the second"), HasSubstr("Extra: extra")));
}

TEST_F(StartWindowTest, ZoomAndThemeFollowTheKeys) {
    oAppearance.Zoom(1);
    QCoreApplication::processEvents();
    const int nUsual = oWindow.fontInfo().pixelSize();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_GT(oWindow.fontInfo().pixelSize(), nUsual);
    EXPECT_GT(oWindow.menuBar()->fontInfo().pixelSize(), nUsual);
    Press(Qt::Key_0, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_LT(oWindow.fontInfo().pixelSize(), nUsual);
    oAppearance.Zoom(1);
    Press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(oAppearance.ShownTheme(), Theme::Dark);
    Press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(oAppearance.ShownTheme(), Theme::Light);
}

// On each page: a name for the screen reader on all that takes the focus, and no letter twice.
TEST_F(StartWindowTest, EveryControlHasANameAndALetterOfItsOwn) {
    const auto fnCheck = [&](QWidget& oRoot, bool bWithMenu) {
        std::multiset<QChar> oLetters;
        const auto fnAdd = [&](const QString& sCaption) {
            const auto oKey = QKeySequence::mnemonic(sCaption);
            if (oKey.isEmpty()) return;
            const QChar oLetter = oKey.toString().back();
            EXPECT_EQ(oLetters.count(oLetter), 0U) << sCaption.toStdString();
            oLetters.insert(oLetter);
        };
        for (const auto* pWidget : oRoot.findChildren<QWidget*>()) {
            if (!pWidget->isVisibleTo(&oRoot)) continue;
            const bool bOwnWindow = pWidget->window() != oRoot.window();
            if (!bOwnWindow && (pWidget->focusPolicy() & Qt::TabFocus) != 0 &&
                pWidget->focusProxy() == nullptr && pWidget->objectName() != "qt_tabwidget_tabbar" &&
                pWidget->objectName() != "qt_spinbox_lineedit") {
                EXPECT_FALSE(pWidget->accessibleName().isEmpty()) << pWidget->metaObject()->className();
            }
            if (const auto* pButton = dynamic_cast<const QAbstractButton*>(pWidget)) fnAdd(pButton->text());
            if (const auto* pLabel = dynamic_cast<const QLabel*>(pWidget); pLabel && pLabel->buddy())
                fnAdd(pLabel->text());
            if (const auto* pTabs = dynamic_cast<const QTabWidget*>(pWidget)) {
                for (int nTab = 0; nTab < pTabs->count(); ++nTab) fnAdd(pTabs->tabText(nTab));
            }
        }
        if (!bWithMenu) return;
        for (const auto* pMenu : oWindow.menuBar()->actions()) fnAdd(pMenu->text());
    };
    fnCheck(oWindow, true);
    ASSERT_TRUE(OpenLab());
    for (QAction* pPage : {oWindow.Actions().pStudies, oWindow.Actions().pImported, oWindow.Actions().pLog}) {
        pPage->trigger();
        fnCheck(oWindow, true);
    }
    for (QAction* pAsks : {oWindow.Actions().pImport, oWindow.Actions().pImportKit,
                           oWindow.Actions().pSimulate, oWindow.Actions().pAnalyzeNew}) {
        pAsks->trigger();
        ASSERT_NE(Dialog(), nullptr);
        fnCheck(*Dialog(), false);
        Dialog()->close();
        QTest::qWait(1);
    }
    for (const auto* pMenu : oWindow.findChildren<QMenu*>()) {
        std::set<QString> asKeys;
        for (const auto* pAction : pMenu->actions()) {
            const auto oKey = QKeySequence::mnemonic(pAction->text());
            if (pAction->isSeparator()) continue;
            EXPECT_TRUE(asKeys.insert(oKey.toString()).second) << pAction->text().toStdString();
        }
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
