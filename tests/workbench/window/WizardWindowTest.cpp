// The wizard in its window, driven by mouse and keys as an operator would; what came of it is read from the
// models.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QtTest/QTest>

#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/window/GridTable.h"
#include "workbench/window/HotZone.h"
#include "workbench/window/PageView.h"
#include "workbench/window/WizardWindow.h"

namespace GleanerSvc::Workbench {
namespace {

struct WindowScene : LabScene {
    WindowScene() {
        EnsureApplication();
        MakePlate();
        oAppearance = std::make_unique<Appearance>(false);
        oWindow =
            std::make_unique<WizardWindow>(oLibraries, Wizard::Start{Task::Analyze, "First"}, *oAppearance);
        oWindow->show();
        oWindow->activateWindow();
        QCoreApplication::processEvents();
    }
    Wizard& OwnWizard() const { return oWindow->OwnWizard(); }
    std::int32_t Page() const { return OwnWizard().Host().CurrentPage(); }
    QWidget& Of(const Control& oControl) const { return *oWindow->ViewOf(Page()).WidgetOf(oControl); }
    Models::GridModel& Grid(const GridControl& oGrid) const {
        return dynamic_cast<Models::GridModel&>(*oGrid);
    }
    GridTable& Table(const GridControl& oGrid) const { return dynamic_cast<GridTable&>(Of(oGrid)); }

    void Click(const Control& oControl) const {
        QTest::mouseClick(&Of(oControl), Qt::LeftButton, Qt::NoModifier,
                          oControl.Place().lWidth > 600 ? QPoint(12, Of(oControl).height() / 2) : QPoint());
    }
    void Press(const char* szButton) const {
        QTest::mouseClick(oWindow->findChild<QPushButton*>(szButton), Qt::LeftButton);
    }
    void ClickTab(const Control& oTabs, int nTab) const {
        auto* pBar = Of(oTabs).findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        QTest::mouseClick(pBar, Qt::LeftButton, Qt::NoModifier, pBar->tabRect(nTab).center());
    }
    void ClickCell(const GridControl& oGrid, int nRow, Qt::MouseButton eButton = Qt::LeftButton,
                   Qt::KeyboardModifiers eKeys = Qt::NoModifier) const {
        GridTable& oTable = Table(oGrid);
        QTest::mouseClick(oTable.viewport(), eButton, eKeys,
                          oTable.visualRect(oTable.model()->index(nRow - 1, 1)).center());
    }
    // Wells B2 to B4 of the plate, and on to the run.
    void GoToAnalysis() const {
        const auto& oPage = *OwnWizard().oSamples;
        ClickTab(oPage.tabPage, 1);
        for (std::int16_t iWell = 14; iWell <= 16; ++iWell) Click(oPage.picWell[iWell]);
        Press("Next");
        Click(OwnWizard().oLoci->optAlleleIDType[0]);
        Press("Next");
    }

    Ref<LabLibraries> oLibraries = std::make_shared<LabLibraries>(oLab, 2);
    std::unique_ptr<Appearance> oAppearance;
    std::unique_ptr<WizardWindow> oWindow;
};

TEST(WizardWindow, TheMouseWalksFromThePlateToTheStudy) {
    const WindowScene oScene;
    oScene.GoToAnalysis();
    const auto& oAnalysis = *oScene.OwnWizard().oAnalysis;
    oScene.Click(oAnalysis.cmdAnalyze);
    EXPECT_EQ(oAnalysis.lbAnalyzed2.Caption(), "3");
    oScene.Press("Next");
    EXPECT_EQ(oScene.Page(), 4);
    bool bEnded = false;
    const auto oEnded = oScene.oWindow->OnEnded.Subscribe([&] { bEnded = true; });
    oScene.Press("Finish");
    EXPECT_TRUE(bEnded && !oScene.oWindow->isVisible());
    EXPECT_EQ(oScene.oLab->FindStudy("First")->lResults, 3);
}

TEST(WizardWindow, StopIsServedDuringARunAndFailuresAreSteppedThrough) {
    const WindowScene oScene;
    const auto& oPage = *oScene.OwnWizard().oSamples;
    oScene.ClickTab(oPage.tabPage, 1);
    oScene.Click(oPage.picAllWells);
    oScene.Press("Next");
    oScene.Click(oScene.OwnWizard().oLoci->optAlleleIDType[0]);
    oScene.Press("Next");
    const auto& oAnalysis = *oScene.OwnWizard().oAnalysis;
    QTimer oStop;
    QObject::connect(&oStop, &QTimer::timeout, [&] {
        if (std::stoi(oAnalysis.lbAnalyzed2.Caption()) >= 30)
            QTest::mouseClick(&oScene.Of(oAnalysis.cmdStop), Qt::LeftButton);
    });
    oStop.start(1);
    oScene.Click(oAnalysis.cmdAnalyze);
    oStop.stop();
    const int nAnalyzed = std::stoi(oAnalysis.lbAnalyzed2.Caption());
    EXPECT_GE(nAnalyzed, 30);
    EXPECT_LT(nAnalyzed, 96);
    const auto& oGrid = oScene.Grid(oAnalysis.grdAnalyzeItems);
    EXPECT_GT(std::stoi(oAnalysis.lbFail2.Caption()), 0);
    oScene.Click(oAnalysis.cmdFailPrevious);
    const auto lFailed = oGrid.CurrentRow();
    EXPECT_NE(oGrid.Text(lFailed, 3), "PASS");
    EXPECT_TRUE(
        oScene.Table(oAnalysis.grdAnalyzeItems)
            .viewport()
            ->rect()
            .intersects(
                oScene.Table(oAnalysis.grdAnalyzeItems)
                    .visualRect(oScene.Table(oAnalysis.grdAnalyzeItems).model()->index(lFailed - 1, 1))));
}

TEST(WizardWindow, TheListIsSortedFilteredAndMovedByMouseAndMenu) {
    const WindowScene oScene;
    auto& oList = oScene.OwnWizard().oSamples->ctlGleaner;
    oScene.ClickTab(oScene.OwnWizard().oSamples->tabPage, 0);
    const auto& oAvailable = oScene.Grid(oList.grdAvailable);
    auto& oTable = oScene.Table(oList.grdAvailable);
    QCoreApplication::processEvents();
    ASSERT_EQ(oTable.model()->rowCount(), 96);
    QTest::mouseClick(oTable.horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(oTable.columnViewportPosition(1) + 20, 8));
    QCoreApplication::processEvents();
    const std::string sFirst(oAvailable.Text(1, 1));
    EXPECT_TRUE(sFirst == "Ladder" || sFirst == "P1-H12") << sFirst;
    oScene.ClickCell(oList.grdAvailable, 2);
    oScene.ClickCell(oList.grdAvailable, 4, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(oAvailable.HighlightedRowCount(), 3);
    ChooseFromMenu("Add");
    oScene.ClickCell(oList.grdAvailable, 3, Qt::RightButton);
    EXPECT_EQ(oScene.Grid(oList.grdSelected).Rows(), 3);
    EXPECT_EQ(oTable.model()->rowCount(), 96) << "as announced";
    QCoreApplication::processEvents();
    EXPECT_EQ(oTable.model()->rowCount(), 93);
    oScene.Click(oList.chkFragFilter);
    EXPECT_EQ(oList.chkFragFilter.Value(), CheckState::Checked);
    QTest::keyClick(&oScene.Of(oList.DTPicker2), Qt::Key_Down, Qt::NoModifier);
    EXPECT_LT(oList.DTPicker2.Value(), Date(Date::Of({2100, 1, 1, 0, 0, 0})));
}

TEST(WizardWindow, TheMenuOpensTheViewOfASingleSample) {
    const WindowScene oScene;
    std::string sOpened;
    const auto oOpened = oScene.oLibraries->Launcher().OnOpened.Subscribe(
        [&](const Ref<FurtherWizard>& oWizard) { sOpened = oWizard->Name(); });
    auto& oList = oScene.OwnWizard().oSamples->ctlGleaner;
    oScene.ClickTab(oScene.OwnWizard().oSamples->tabPage, 0);
    oScene.ClickCell(oList.grdAvailable, 2);
    ChooseFromMenu("Show Single Sample View...");
    oScene.ClickCell(oList.grdAvailable, 2, Qt::RightButton);
    EXPECT_EQ(sOpened, "SingleRawSample");
}

// What has the focus, after so many steps with Tab, first is the control that is looked for.
bool TabTo(QWidget& oWindow, const QWidget& oGoal) {
    for (int nStep = 0; nStep < 200; ++nStep) {
        if (QApplication::focusWidget() == &oGoal || oGoal.isAncestorOf(QApplication::focusWidget()))
            return true;
        QTest::keyClick(&oWindow, Qt::Key_Tab);
    }
    return false;
}

TEST(WizardWindow, TheKeyboardAloneWalksFromThePlateToTheStudy) {
    const WindowScene oScene;
    const auto Key = [](int nKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(nKey), eModifiers);
    };
    // A button that is pressed by its letter is seen to go down first.
    const auto Alt = [&](Qt::Key eKey) {
        QTest::keyClick(oScene.oWindow.get(), eKey, Qt::AltModifier);
        QTest::qWait(200);
    };
    const auto& oPage = *oScene.OwnWizard().oSamples;
    Alt(Qt::Key_P);
    ASSERT_EQ(oPage.tabPage.Tab(), 1);
    oScene.oWindow->activateWindow();
    // To the corner, then by arrows to the letter A, along its row to A2, and down to B2.
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oPage.picAllWells)) ||
                dynamic_cast<HotZone*>(QApplication::focusWidget()));
    oScene.Of(oPage.picWell[1]).setFocus();
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &oScene.Of(oPage.picWell[14]));
    Key(Qt::Key_Space);
    EXPECT_EQ(oScene.Grid(oPage.grdWells).Rows(), 1);
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget(), &oScene.Of(oPage.lblLetter[1]));
    Key(Qt::Key_Space);
    EXPECT_EQ(oScene.Grid(oPage.grdWells).Rows(), 12);
    Alt(Qt::Key_N);
    ASSERT_EQ(oScene.Page(), 2);
    Alt(Qt::Key_T);
    Alt(Qt::Key_N);
    ASSERT_EQ(oScene.Page(), 3);
    Alt(Qt::Key_A);
    EXPECT_EQ(oScene.OwnWizard().oAnalysis->lbAnalyzed2.Caption(), "12");
    Alt(Qt::Key_N);
    Alt(Qt::Key_F);
    EXPECT_EQ(oScene.oLab->FindStudy("First")->lResults, 12);
}

TEST(WizardWindow, EveryControlHasANameForAScreenReader) {
    const WindowScene oScene;
    for (std::int32_t lPage = 1; lPage <= 4; ++lPage) {
        for (const QWidget* pWidget : oScene.oWindow->ViewOf(lPage).widget()->findChildren<QWidget*>()) {
            if (pWidget->objectName().isEmpty() || pWidget->objectName().startsWith("qt_")) continue;
            EXPECT_FALSE(pWidget->accessibleName().isEmpty()) << pWidget->objectName().toStdString();
        }
    }
    const auto& oList = oScene.OwnWizard().oSamples->ctlGleaner;
    EXPECT_EQ(oScene.Of(oList.cmbProjects).accessibleName(), "Project");
    EXPECT_EQ(oScene.Of(oList.grdSelected).accessibleName(), "Selected");
    EXPECT_EQ(oScene.Of(oList.cmdAddAll).accessibleName(), "Add All");
}

TEST(WizardWindow, ControlsThatComeAndGoGainAndLoseTheirWidgets) {
    WindowScene oScene;
    KitTables oOther = oScene.oKit;
    for (std::string* pText : {&oOther.oPanels.sText, &oOther.oBins.sText})
        *pText = QString::fromStdString(*pText)
                     .replace("Simulated_STR", "Other_STR")
                     .replace("S0", "T0")
                     .toStdString();
    oScene.oLab->SaveKit("Other", oOther.oPanels, oOther.oBins);
    oScene.oWindow = std::make_unique<WizardWindow>(oScene.oLibraries, Wizard::Start{Task::Analyze, "First"},
                                                    *oScene.oAppearance);
    oScene.oWindow->show();
    auto& oSelector = oScene.OwnWizard().StrSelector();
    const auto FirstBox = [&] {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto apBoxes = oScene.oWindow->ViewOf(2).findChildren<QCheckBox*>("chkLocus");
        EXPECT_EQ(apBoxes.size(), 16);
        return apBoxes.isEmpty() ? std::string() : apBoxes.front()->text().toStdString();
    };
    EXPECT_EQ(FirstBox(), oSelector.aoLocusBoxes.front()->Caption());
    const auto sBefore = oSelector.aoLocusBoxes.front()->Caption();
    oSelector.cmbPanel.ListIndex(oSelector.cmbPanel.ListIndex() == 0 ? 1 : 0);
    ASSERT_NE(oSelector.aoLocusBoxes.front()->Caption(), sBefore);
    EXPECT_EQ(FirstBox(), oSelector.aoLocusBoxes.front()->Caption());
}

} // namespace
} // namespace GleanerSvc::Workbench
