// The wizard in its window, driven by mouse and keys as an operator would; what came of it is read from the
// models.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
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
    WindowScene(const WindowScene&) = delete;
    WindowScene& operator=(const WindowScene&) = delete;
    ~WindowScene() {
        if (oWindow) Keep("end");
    }

    // What the window looked like in this test.
    void Keep(const std::string& sWhen) const {
        QCoreApplication::processEvents(); // what changed last is drawn by then
        const std::string sTest = testing::UnitTest::GetInstance()->current_test_info()->name();
        KeepPicture(oWindow->grab().toImage(), "wizard-" + sTest + "-" + sWhen);
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
        Keep("page" + std::to_string(Page()));
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

void Key(Qt::Key eKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), eKey, eModifiers);
    QCoreApplication::processEvents();
}

// Steps with Tab until the focus is where it is looked for.
bool TabTo(QWidget& oWindow, const std::function<bool(const QWidget&)>& fnIsGoal) {
    for (int nStep = 0; nStep < 200; ++nStep) {
        if (QApplication::focusWidget() && fnIsGoal(*QApplication::focusWidget())) return true;
        QTest::keyClick(&oWindow, Qt::Key_Tab);
    }
    return false;
}

bool TabTo(QWidget& oWindow, const QWidget& oGoal) {
    return TabTo(oWindow,
                 [&](const QWidget& oFocus) { return &oFocus == &oGoal || oGoal.isAncestorOf(&oFocus); });
}

// One zone of the plate is among the stops of the Tab key. From any of them Left and Up lead to the corner.
bool GoToCornerOfPlate(QWidget& oWindow) {
    if (!TabTo(oWindow,
               [](const QWidget& oFocus) { return dynamic_cast<const HotZone*>(&oFocus) != nullptr; }))
        return false;
    for (int nStep = 0; nStep < 12; ++nStep) Key(Qt::Key_Left);
    for (int nStep = 0; nStep < 8; ++nStep) Key(Qt::Key_Up);
    return true;
}

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
    const auto& oTable = oScene.Table(oAnalysis.grdAnalyzeItems);
    QCoreApplication::processEvents();
    EXPECT_TRUE(
        oTable.viewport()->rect().intersects(oTable.visualRect(oTable.model()->index(lFailed - 1, 1))));
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oAnalysis.cmdFailPrevious)));
    Key(Qt::Key_Space);
    EXPECT_LT(oGrid.CurrentRow(), lFailed);
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oAnalysis.cmdFailNext)));
    Key(Qt::Key_Space);
    EXPECT_EQ(oGrid.CurrentRow(), lFailed);
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
    QCoreApplication::processEvents();
    const int nToday = oTable.model()->rowCount();
    QTest::keyClick(&oScene.Of(oList.DTPicker2), Qt::Key_Down); // the year before, and both days with it
    QCoreApplication::processEvents();
    const int nLastYear = oTable.model()->rowCount();
    QTest::keyClick(&oScene.Of(oList.DTPicker2), Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(oTable.model()->rowCount(), 93);
    EXPECT_TRUE(nToday == 93 && nLastYear == 0) << nToday << " " << nLastYear;
}

TEST(WizardWindow, TheListAndItsMenusAreReachedByKey) {
    const WindowScene oScene;
    auto& oList = oScene.OwnWizard().oSamples->ctlGleaner;
    oScene.ClickTab(oScene.OwnWizard().oSamples->tabPage, 0);
    const auto& oSelected = oScene.Grid(oList.grdSelected);
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oList.grdAvailable)));
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    ChooseFromMenu("Add", By::Key);
    Key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(oSelected.Rows(), 2);
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oList.cmdAddAll)));
    Key(Qt::Key_Space);
    EXPECT_EQ(oSelected.Rows(), 96);
    ASSERT_TRUE(TabTo(*oScene.oWindow, oScene.Of(oList.grdSelected)));
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    ChooseFromMenu("Sort Descending", By::Key);
    Key(Qt::Key_Menu, Qt::ControlModifier);
    EXPECT_TRUE(oSelected.SortedBy() && oSelected.SortedBy()->bDescending);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(oSelected.Rows(), 95);
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

TEST(WizardWindow, TheKeyboardAloneWalksFromThePlateToTheStudy) {
    const WindowScene oScene;
    // A button that is pressed by its letter is seen to go down first.
    const auto Alt = [&](Qt::Key eKey) {
        QTest::keyClick(oScene.oWindow.get(), eKey, Qt::AltModifier);
        QTest::qWait(200);
    };
    const auto& oPage = *oScene.OwnWizard().oSamples;
    Alt(Qt::Key_P);
    ASSERT_EQ(oPage.tabPage.Tab(), 1);
    ASSERT_TRUE(GoToCornerOfPlate(*oScene.oWindow));
    EXPECT_EQ(QApplication::focusWidget(), &oScene.Of(oPage.picAllWells));
    for (const auto eKey : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right}) Key(eKey);
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

TEST(WizardWindow, TheKeyboardStaysOnShowOnAPageThatScrolls) {
    const WindowScene oScene;
    oScene.ClickTab(oScene.OwnWizard().oSamples->tabPage, 1);
    oScene.oAppearance->Zoom(2);
    oScene.oWindow->resize(800, 600);
    QCoreApplication::processEvents();
    ASSERT_TRUE(GoToCornerOfPlate(*oScene.oWindow));
    for (const auto eKey : {Qt::Key_Down, Qt::Key_Right}) {
        for (int nStep = 0; nStep < 13; ++nStep) {
            Key(eKey);
            const QWidget& oFocus = *QApplication::focusWidget();
            EXPECT_EQ(oFocus.visibleRegion().boundingRect(), oFocus.rect())
                << oFocus.accessibleName().toStdString();
        }
    }
}

void ForEachControl(const Container& oContainer, const std::function<void(const Control&)>& fnVisit) {
    for (const Control* pChild : oContainer.Children()) {
        fnVisit(*pChild);
        if (const auto* pInner = dynamic_cast<const Container*>(pChild)) ForEachControl(*pInner, fnVisit);
    }
}

// What a control says of itself; "&Stop" and "Project:" are "Stop" and "Project".
QStringList WordsOf(const Control& oControl) {
    std::vector<std::string> asWords{oControl.ToolTip()};
    if (const auto* pLabel = dynamic_cast<const Label*>(&oControl)) asWords.push_back(pLabel->Caption());
    if (const auto* pButton = dynamic_cast<const Button*>(&oControl)) asWords.push_back(pButton->Caption());
    if (const auto* pBox = dynamic_cast<const CheckBox*>(&oControl)) asWords.push_back(pBox->Caption());
    if (const auto* pOption = dynamic_cast<const OptionButton*>(&oControl))
        asWords.push_back(pOption->Caption());
    QStringList asShown;
    for (const std::string& sWords : asWords)
        if (!sWords.empty()) asShown += QString::fromStdString(sWords).remove(QRegularExpression("[&:]"));
    return asShown;
}

TEST(WizardWindow, WhatTakesTheKeyboardIsNamedByItsPage) {
    const WindowScene oScene;
    for (std::int32_t lPage = 1; lPage <= 4; ++lPage) {
        const auto& oPage = dynamic_cast<Container&>(oScene.OwnWizard().PageAt(lPage));
        QStringList asWords{"Analyze items", "Details"}; // where no label stands
        ForEachControl(oPage, [&](const Control& oControl) { asWords += WordsOf(oControl); });
        ForEachControl(oPage, [&](const Control& oControl) {
            const QWidget* pWidget = oScene.oWindow->ViewOf(lPage).WidgetOf(oControl);
            if (!pWidget || pWidget->focusPolicy() == Qt::NoFocus || dynamic_cast<const HotZone*>(pWidget))
                return;
            EXPECT_TRUE(asWords.contains(pWidget->accessibleName()))
                << oControl.Name() << " is " << pWidget->accessibleName().toStdString();
        });
    }
    const auto& oList = oScene.OwnWizard().oSamples->ctlGleaner;
    EXPECT_EQ(oScene.Of(oList.cmbProjects).accessibleName(), "Project");
    EXPECT_EQ(oScene.Of(oList.grdSelected).accessibleName(), "Selected");
    EXPECT_EQ(oScene.Of(oList.cmdAddAll).accessibleName(), "Add All");
    for (const char* szButton : {"Back", "Next", "Finish", "Cancel"})
        EXPECT_EQ(oScene.oWindow->findChild<QPushButton*>(szButton)->accessibleName(), szButton);
    QStringList asSteps;
    for (const QLabel* pStep :
         oScene.oWindow->centralWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
        asSteps += pStep->accessibleName();
    EXPECT_EQ(asSteps.join("; "), "1  Samples, current step; 2  Locus tags; 3  Analysis; 4  Results");
}

TEST(WizardWindow, EachControlStandsWhereItsModelSaysAtAnyZoom) {
    const WindowScene oScene;
    std::vector<int> anNameWidths; // of the three lists
    for (const double dZoom : {1.0, 2.0}) {
        oScene.oAppearance->Zoom(dZoom);
        const auto Pixels = [&](std::int32_t lTwips) { return oScene.oAppearance->Pixels(lTwips); };
        for (std::int32_t lPage = 1; lPage <= 4; ++lPage) {
            auto& oView = oScene.oWindow->ViewOf(lPage);
            auto& oPage = dynamic_cast<Container&>(oScene.OwnWizard().PageAt(lPage));
            EXPECT_EQ(oView.widget()->size(),
                      QSize(Pixels(oPage.Place().lWidth), Pixels(oPage.Place().lHeight)));
            ForEachControl(oPage, [&](const Control& oControl) {
                const QWidget* pWidget = oView.WidgetOf(oControl);
                if (!pWidget) return;
                const Bounds& oPlace = oControl.Place();
                EXPECT_LE(std::abs(pWidget->x() - Pixels(oPlace.lLeft)), 1) << oControl.Name();
                EXPECT_LE(std::abs(pWidget->y() - Pixels(oPlace.lTop)), 1) << oControl.Name();
                EXPECT_LE(std::abs(pWidget->width() - Pixels(oPlace.lWidth)), 1) << oControl.Name();
                EXPECT_LE(std::abs(pWidget->height() - Pixels(oPlace.lHeight)), 1) << oControl.Name();
                const auto* pTable = dynamic_cast<const GridTable*>(pWidget);
                if (pTable && lPage == 1) anNameWidths.push_back(pTable->columnWidth(1));
            });
        }
    }
    ASSERT_EQ(anNameWidths.size(), 6U);
    for (std::size_t nList = 0; nList < 3; ++nList)
        EXPECT_NEAR(anNameWidths[nList + 3], 2 * anNameWidths[nList], 1);
}

TEST(WizardWindow, NoCaptionIsCut) {
    const WindowScene oScene;
    for (const double dZoom : {1.0, 1.25, 2.0}) {
        oScene.oAppearance->Zoom(dZoom);
        QCoreApplication::processEvents();
        int nSeen = 0;
        for (std::int32_t lPage = 1; lPage <= 4; ++lPage) {
            auto& oView = oScene.oWindow->ViewOf(lPage);
            ForEachControl(
                dynamic_cast<Container&>(oScene.OwnWizard().PageAt(lPage)), [&](const Control& oControl) {
                    QWidget* pWidget = oView.WidgetOf(oControl);
                    const auto* pButton = dynamic_cast<QAbstractButton*>(pWidget);
                    if (!pButton && !dynamic_cast<const Label*>(&oControl)) return;
                    if (!pWidget || dynamic_cast<HotZone*>(pWidget)) return;
                    ++nSeen;
                    if (pButton) {
                        const bool bPush = dynamic_cast<const QPushButton*>(pWidget) != nullptr;
                        const int nText =
                            pButton->fontMetrics().size(Qt::TextShowMnemonic, pButton->text()).width();
                        EXPECT_LE(bPush ? nText : pButton->sizeHint().width(), pButton->width())
                            << oControl.Name() << " at " << dZoom;
                        return;
                    }
                    const QImage oShown = pWidget->grab().toImage();
                    const int nEdge = oShown.width() - 1;
                    for (int nY = 1; nY < oShown.height(); ++nY)
                        EXPECT_EQ(oShown.pixel(nEdge, nY), oShown.pixel(nEdge, 0))
                            << oControl.Name() << " at " << dZoom;
                });
        }
        EXPECT_GT(nSeen, 50);
    }
}

TEST(WizardWindow, APlateIsReadOutAndPressedWithoutItsPictures) {
    WindowScene oScene;
    const auto& oPage = *oScene.OwnWizard().oSamples;
    oScene.ClickTab(oPage.tabPage, 1);
    const auto Spoken = [&](const Control& oControl) {
        return QAccessible::queryAccessibleInterface(&oScene.Of(oControl));
    };
    const auto Name = [&](const Control& oControl) {
        return Spoken(oControl)->text(QAccessible::Name).toStdString();
    };
    EXPECT_EQ(Name(oPage.lblLetter[1]), "Row B");
    EXPECT_EQ(Name(oPage.lblNumber[1]), "Column 2");
    QAccessibleInterface* pWell = Spoken(oPage.picWell[14]);
    EXPECT_EQ(Name(oPage.picWell[14]), "B2, P1-B02, Data Available");
    EXPECT_TRUE(pWell->role() == QAccessible::Button && pWell->state().checkable && !pWell->state().checked);
    pWell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Name(oPage.picWell[14]), "B2, P1-B02, Selected For Analysis");
    EXPECT_TRUE(pWell->state().checked);
    ChooseFromMenu("De-Select", By::Key);
    oScene.Of(oPage.picWell[14]).setFocus();
    Key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_FALSE(pWell->state().checked);
    EXPECT_TRUE(Spoken(oPage.Image3)->state().invisible && Name(oPage.Image3).empty());
    EXPECT_EQ(Spoken(oPage.lblSelectedWells)->role(), QAccessible::StaticText);
    const auto nWell = QAccessible::uniqueId(pWell);
    oScene.oWindow.reset();
    EXPECT_FALSE(QAccessible::accessibleInterface(nWell)) << "gone with its widget";
}

TEST(WizardWindow, ControlsShowTheirModelsAndNothingOfTheirOwn) {
    const WindowScene oScene;
    auto& oPage = *oScene.OwnWizard().oSamples;
    oScene.ClickTab(oPage.tabPage, 1);
    const auto* pBar = oScene.Of(oPage.tabPage).findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    oPage.tabPage.TabEnabled(1, false);
    EXPECT_TRUE(oPage.tabPage.Tab() == 1 && pBar->currentIndex() == 1) << "disabled, but still in front";
    oScene.ClickTab(oPage.tabPage, 0);

    auto& oFilter = oPage.ctlGleaner.chkFragFilter;
    const auto& oBox = dynamic_cast<QCheckBox&>(oScene.Of(oFilter));
    oFilter.Value(CheckState::Grayed);
    EXPECT_EQ(oBox.checkState(), Qt::PartiallyChecked);
    for (const auto& [iValue, eState] :
         {std::pair(CheckState::Unchecked, Qt::Unchecked), {CheckState::Checked, Qt::Checked}}) {
        oScene.Click(oFilter);
        EXPECT_TRUE(oFilter.Value() == iValue && oBox.checkState() == eState) << iValue;
    }

    auto& oDetails = oScene.OwnWizard().oAnalysis->txtDetails;
    auto& oText = dynamic_cast<QPlainTextEdit&>(*oScene.oWindow->ViewOf(3).WidgetOf(oDetails));
    oDetails.AppendText("one\r\ntw");
    oDetails.SelStart(6);
    EXPECT_EQ(oText.textCursor().position(), 5);
    QTest::keyClicks(&oText, "x");
    oDetails.AppendText("o");
    oDetails.SelStart(oDetails.TextLength());
    EXPECT_EQ(oText.toPlainText(), "one\ntwo");
    EXPECT_TRUE(oText.textCursor().atEnd());
    EXPECT_EQ(oDetails.Text(), "one\r\ntwo");
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
