// The single views: what they show of results and samples, by mouse and by keys, and what they save.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QSettings>
#include <QTableView>
#include <QtTest/QTest>

#include <cstdlib>

#include "pagebind/ParameterKeys.h"
#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/lab/FragmentAnalyzer.h"
#include "workbench/store/FragmentRecords.h"
#include "workbench/store/StudyRecords.h"
#include "workbench/window/PeakTable.h"
#include "workbench/window/RecordWindow.h"
#include "workbench/window/TracePlot.h"

namespace GleanerSvc::Workbench {
namespace {

struct RecordScene : LabScene {
    explicit RecordScene(AlleleType eOfType = AlleleType::Str) : LabScene(eOfType) {
        EnsureApplication();
        QCoreApplication::setOrganizationName("gleaner-tests");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(oFolder.Path().string()));
        oAppearance = std::make_unique<Appearance>();
        oAppearance->ShownTheme(Theme::Light);
        MakePlate();
    }
    // The first sample that was made to end so.
    const SampleRow& Sample(std::string_view sStatus, bool bLadder = false) const {
        return *std::ranges::find_if(aoSamples, [&](const SampleRow& oSample) {
            return Made(oSample).sStatus == sStatus && oSample.IsLadder() == bLadder;
        });
    }
    const SampleRow& Ladder() const { return Sample("PASS", true); }
    std::int32_t Analyze(const SampleRow& oSample) const {
        const auto oAnalyzer = std::make_shared<FragmentAnalyzer>(oLab, 1);
        oAnalyzer->AnalyzeSamples(std::vector<std::int32_t>{oSample.lSampleID},
                                  oLab->AddParameter({0, "all", eType, {}}));
        return oLab->ResultsOfSample(oSample.lSampleID).back().lResultID;
    }
    std::unique_ptr<RecordWindow> Open(const RecordChoice& oChoice) const {
        auto oWindow = std::make_unique<RecordWindow>(oLab, oChoice, *oAppearance);
        oWindow->show();
        oWindow->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(oWindow.get()));
        return oWindow;
    }

    std::unique_ptr<Appearance> oAppearance;
};

std::string ShownText(const RecordWindow& oWindow) {
    std::string sText;
    for (const auto* pLabel : oWindow.findChildren<QLabel*>()) {
        if (pLabel->isVisible()) sText += pLabel->text().toStdString() + "\n";
    }
    return sText;
}

std::string CellAt(const QTableView& oTable, int nRow, PeakColumn eColumn) {
    return oTable.model()->index(nRow, static_cast<int>(eColumn)).data().toString().toStdString();
}

void Turn(TracePlot& oPlot, const QPointF& oAt, int nDelta, Qt::KeyboardModifiers eKeys) {
    QWheelEvent oEvent(oAt, oPlot.mapToGlobal(oAt), {}, {0, nDelta}, Qt::NoButton, eKeys, Qt::NoScrollPhase,
                       false);
    QApplication::sendEvent(&oPlot, &oEvent);
}

TEST(RecordWindow, ShowsWhatTheOpenerNamed) {
    const RecordScene oScene;
    const SampleRow& oSample = oScene.Sample("PASS");
    const auto oData = std::make_shared<SampleRecord>(oScene.oLab, oSample)->SampleData();
    const auto Choice = [&](const Ref<IObject>& oResult) {
        const auto colParameters = std::make_shared<KeyedCollection>();
        colParameters->Add(oData, SingleViewKey::SampleData);
        colParameters->Add(oResult, SingleViewKey::Result);
        FurtherWizard oWizard(oResult ? WizardName::SingleSample : WizardName::SingleRawSample,
                              colParameters);
        oWizard.Title("Single Sample View - A");
        return ChoiceOf(oWizard);
    };
    const auto oRaw = oScene.Open(Choice(nullptr));
    EXPECT_EQ(oRaw->windowTitle().toStdString(), "Single Sample View - A");
    EXPECT_EQ(oRaw->Content().oSample.lSampleID, oSample.lSampleID);
    EXPECT_TRUE(oRaw->Content().oSized.IsSized());
    EXPECT_TRUE(oRaw->Content().oCalled.aoCalls.empty());
    EXPECT_NE(ShownText(*oRaw).find("Not analyzed yet; sized now: PASS"), std::string::npos);

    const auto lFirst = oScene.Analyze(oSample);
    const auto lSecond = oScene.Analyze(oSample);
    const auto oResult = oScene.Open(Choice(std::make_shared<StudyResultRecord>(oScene.oLab, lFirst)));
    EXPECT_EQ(oResult->Content().oResult->lResultID, lFirst);
    EXPECT_EQ(oResult->Content().oCalled, oScene.oLab->CalledOf(lFirst));
    EXPECT_NE(ShownText(*oResult).find("PASS: 16 loci"), std::string::npos);
    EXPECT_NE(ShownText(*oResult).find("15 fragments"), std::string::npos);
    EXPECT_EQ(oScene.Open(Choice(nullptr))->Content().oResult->lResultID, lSecond);
}

TEST(RecordWindow, TellsWhatCannotBeShown) {
    const RecordScene oScene;
    const SampleRow& oDamaged = oScene.Sample("READ ERROR");
    const std::pair<RecordChoice, std::string> aoCases[] = {
        {ChoiceOf(FurtherWizard("SingleSample", nullptr)), "no sample and no result"},
        {{999, 0}, "no sample 999"},
        {{0, 999}, "no result 999"},
        {{oDamaged.lSampleID, 0}, oDamaged.sFile},
        {{0, oScene.Analyze(oDamaged)}, oDamaged.sFile}};
    for (const auto& [oChoice, sProblem] : aoCases) {
        const auto oWindow = oScene.Open(oChoice);
        EXPECT_NE(ShownText(*oWindow).find("This cannot be shown.\n"), std::string::npos) << sProblem;
        EXPECT_NE(ShownText(*oWindow).find(sProblem), std::string::npos) << ShownText(*oWindow);
        EXPECT_FALSE(oWindow->Plot().isVisible());
        EXPECT_FALSE(oWindow->SavePicture((oScene.oFolder.Path() / "none.png").string()));
    }
    EXPECT_FALSE(std::filesystem::exists(oScene.oFolder.Path() / "none.png"));
}

// Bins are drawn where alleles are called, so a call in none of its name would be drawn beside it.
TEST(RecordWindow, EachCallLiesInTheBinOfItsAllele) {
    for (const auto eType : {AlleleType::Str, AlleleType::Snp}) {
        const RecordScene oScene(eType);
        const auto oContent = LoadRecord(*oScene.oLab, {0, oScene.Analyze(oScene.Sample("PASS"))});
        ASSERT_FALSE(oContent.oCalled.aoCalls.empty());
        for (const auto& oCall : oContent.oCalled.aoCalls) {
            const Peak& oPeak = oContent.oSized.aoPeaks[oCall.nPeak];
            EXPECT_TRUE(std::ranges::any_of(oContent.aoBins,
                                            [&](const BinMark& oBin) {
                                                return oBin.sLocus == oCall.sLocus &&
                                                       oBin.sAllele == oCall.sAllele &&
                                                       oBin.nDye == oPeak.nDye && oPeak.dSize >= oBin.dLow &&
                                                       oPeak.dSize <= oBin.dHigh;
                                            }))
                << oCall.sLocus << ' ' << oCall.sAllele;
        }
    }
}

TEST(RecordWindow, KeysMoveTheTrace) {
    const RecordScene oScene;
    const auto oWindow = oScene.Open({oScene.Sample("PASS").lSampleID, 0});
    TracePlot& oPlot = oWindow->Plot();
    const auto Press = [&](Qt::Key eKey, Qt::KeyboardModifiers eMore = {}) {
        QTest::keyClick(oWindow.get(), eKey, Qt::ControlModifier | eMore);
    };
    const double dAll = oPlot.Last() - oPlot.First();
    Press(Qt::Key_Up);
    EXPECT_NEAR(oPlot.Last() - oPlot.First(), dAll / 1.5, 1e-6);
    const double dFirst = oPlot.First();
    Press(Qt::Key_Right);
    EXPECT_GT(oPlot.First(), dFirst);
    Press(Qt::Key_Left);
    EXPECT_NEAR(oPlot.First(), dFirst, 1e-6);
    for (int n = 0; n < 40; ++n) Press(Qt::Key_Left);
    EXPECT_EQ(oPlot.First(), 50); // the shortest fragment of the standard
    for (int n = 0; n < 40; ++n) Press(Qt::Key_Up);
    EXPECT_GT(oPlot.Last(), oPlot.First() + 1);
    Press(Qt::Key_Home);
    EXPECT_EQ(oPlot.First(), 70);

    const double dHighest = oPlot.HighestShown(0);
    EXPECT_GT(dHighest, 300);
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_NEAR(oPlot.HighestShown(0), dHighest / 1.5, 1e-6);
    Press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_NEAR(oPlot.HighestShown(0), dHighest, dHighest * 0.01);

    Press(Qt::Key_2);
    EXPECT_EQ(oPlot.axisRectCount(), 4);
    EXPECT_EQ(oPlot.HighestShown(1), 0);
    Press(Qt::Key_2);
    EXPECT_EQ(oPlot.axisRectCount(), 5);
    for (const auto eKey : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5}) Press(eKey);
    EXPECT_EQ(oPlot.axisRectCount(), 0);
    Press(Qt::Key_Up); // nothing is left to draw out
    Press(Qt::Key_B);
    EXPECT_FALSE(oPlot.Look().bBins);
    Press(Qt::Key_D);
    EXPECT_FALSE(oPlot.Look().bStandard);
    Press(Qt::Key_G);
    EXPECT_TRUE(oWindow->Table().hasFocus());
    QTest::keyClick(&oWindow->Table(), Qt::Key_Tab);
    EXPECT_FALSE(oWindow->Table().hasFocus());
    Press(Qt::Key_R);
    EXPECT_TRUE(oPlot.hasFocus());
    const int nHeight = oPlot.height();
    Press(Qt::Key_Right, Qt::ShiftModifier); // more room for the trace
    QCoreApplication::processEvents();
    EXPECT_GT(oPlot.height(), nHeight);
    Press(Qt::Key_Minus);
    EXPECT_EQ(oPlot.Look().dZoom, 0.75);
}

TEST(RecordWindow, TheMouseMovesTheTraceAndFindsPeaks) {
    const RecordScene oScene;
    const auto oWindow = oScene.Open({0, oScene.Analyze(oScene.Sample("PASS"))});
    TracePlot& oPlot = oWindow->Plot();
    const auto& oContent = oWindow->Content();
    const auto& oCall = oContent.oCalled.aoCalls.front();
    const Peak& oPeak = oContent.oSized.aoPeaks[oCall.nPeak];
    oPlot.Show(*oPeak.dSize - 20, *oPeak.dSize + 20);
    oPlot.replot();
    auto* pRect = oPlot.axisRect(static_cast<int>(oPeak.nDye));
    const QPoint oAt(static_cast<int>(pRect->axis(QCPAxis::atBottom)->coordToPixel(*oPeak.dSize)),
                     pRect->center().y());
    QTest::mouseClick(&oPlot, Qt::LeftButton, {}, oAt);
    const int nRow = oWindow->Table().currentIndex().row();
    EXPECT_EQ(CellAt(oWindow->Table(), nRow, PeakColumn::Locus), oCall.sLocus);
    EXPECT_EQ(CellAt(oWindow->Table(), nRow, PeakColumn::Allele), oCall.sAllele);
    EXPECT_EQ(oPlot.itemCount(), 1);

    const double dFirst = oPlot.First();
    Turn(oPlot, oAt, 120, Qt::NoModifier);
    EXPECT_EQ(oPlot.First(), dFirst); // left to what scrolls
    Turn(oPlot, oAt, 120, Qt::ControlModifier);
    EXPECT_NEAR(pRect->axis(QCPAxis::atBottom)->pixelToCoord(oAt.x()), *oPeak.dSize, 0.1); // stays below
    EXPECT_NEAR(oPlot.Last() - oPlot.First(), 40 / 1.25, 1e-6);
    const double dZoomed = oPlot.First();
    QTest::mousePress(&oPlot, Qt::LeftButton, {}, oAt);
    QTest::mouseMove(&oPlot, oAt + QPoint(60, 0));
    QTest::mouseRelease(&oPlot, Qt::LeftButton, {}, oAt + QPoint(60, 0));
    EXPECT_LT(oPlot.First(), dZoomed);
    EXPECT_EQ(oWindow->Table().currentIndex().row(), nRow); // a drag picks nothing
    // A row that is chosen by key comes on show.
    oWindow->Table().setFocus();
    QTest::keyClick(&oWindow->Table(), Qt::Key_End, Qt::ControlModifier);
    const auto& oLast = oContent.oSized.aoPeaks.back();
    if (oLast.dSize) {
        EXPECT_LE(*oLast.dSize, oPlot.Last());
    }
}

// From the apex to the ground, in whichever dye the peak is.
TEST(RecordWindow, ThePeakOfTheCurrentRowIsMarkedInItsPlot) {
    const RecordScene oScene;
    const auto oWindow = oScene.Open({0, oScene.Analyze(oScene.Sample("PASS"))});
    TracePlot& oPlot = oWindow->Plot();
    const auto& aoPeaks = oWindow->Content().oSized.aoPeaks;
    for (std::size_t nDye = 0; nDye < 5; ++nDye) {
        const auto oPeak = std::ranges::find_if(aoPeaks, [&](const Peak& oOther) {
            return oOther.nDye == nDye && oOther.dSize.value_or(0) > 100 && oOther.dHeight > 300;
        });
        ASSERT_NE(oPeak, aoPeaks.end());
        oPlot.Show(*oPeak->dSize - 10, *oPeak->dSize + 10);
        const auto fnDraw = [&](int nRow) {
            oWindow->Table().selectRow(nRow);
            QCoreApplication::processEvents();
            return oPlot.grab().toImage();
        };
        const auto nRow = static_cast<int>(oPeak - aoPeaks.begin());
        const QImage oMarked = fnDraw(nRow);
        const QCPAxisRect& oRect = *oPlot.axisRect(static_cast<int>(nDye));
        const auto nX = std::lround(oRect.axis(QCPAxis::atBottom)->coordToPixel(*oPeak->dSize));
        const auto nApex = std::lround(oRect.axis(QCPAxis::atLeft)->coordToPixel(oPeak->dHeight));
        int nInk = 0;
        const QColor oInk = oPlot.palette().color(QPalette::Text);
        for (auto nY = static_cast<int>(nApex) + 4; nY < oRect.bottom() - 4; ++nY) {
            if (oMarked.pixelColor(static_cast<int>(nX), nY) == oInk) ++nInk;
        }
        EXPECT_GT(nInk, (oRect.bottom() - nApex) / 4) << nDye;
    }
    oWindow->Table().setFocus();
    QTest::keyClick(&oWindow->Table(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(oWindow->Table().selectionModel()->selectedRows().size(), 1) << "one mark, one row";
}

TEST(RecordWindow, TheTableSortsFiltersAndIsSaved) {
    const RecordScene oScene;
    const auto oWindow = oScene.Open({0, oScene.Analyze(oScene.Sample("PASS"))});
    const QTableView& oTable = oWindow->Table();
    const auto& oContent = oWindow->Content();
    EXPECT_EQ(oTable.model()->rowCount(), std::ssize(oContent.oSized.aoPeaks));
    const auto oDye = oTable.model()->index(0, static_cast<int>(PeakColumn::Dye));
    EXPECT_EQ(CellAt(oTable, 0, PeakColumn::Dye), oContent.oTrace.aoDyes[0].sName);
    EXPECT_EQ(oDye.data(Qt::DecorationRole).value<QColor>(), DyeInk(0, false));
    EXPECT_FALSE(oDye.siblingAtColumn(static_cast<int>(PeakColumn::Scan)).data(Qt::DecorationRole).isValid());
    QTest::keyClick(oWindow.get(), Qt::Key_L, Qt::ControlModifier);
    ASSERT_EQ(oTable.model()->rowCount(), std::ssize(oContent.oCalled.aoCalls));
    oWindow->Table().setCurrentIndex(oTable.model()->index(0, static_cast<int>(PeakColumn::Height)));
    QTest::keyClick(oWindow.get(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    for (int nRow = 1; nRow < oTable.model()->rowCount(); ++nRow)
        EXPECT_GE(std::stod(CellAt(oTable, nRow - 1, PeakColumn::Height)),
                  std::stod(CellAt(oTable, nRow, PeakColumn::Height)));

    QTest::keyClick(oWindow.get(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    const auto fnHeight = [&](int nRow) { return std::stod(CellAt(oTable, nRow, PeakColumn::Height)); };
    EXPECT_LE(fnHeight(0), fnHeight(oTable.model()->rowCount() - 1));
    QTest::keyClick(oWindow.get(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(CellAt(oTable, 0, PeakColumn::Allele), oContent.oCalled.aoCalls.front().sAllele);
    QTest::keyClick(oWindow.get(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);

    const auto sTable = (oScene.oFolder.Path() / "peaks.csv").string();
    ASSERT_TRUE(oWindow->SaveTable(sTable));
    const auto abTable = ReadBytes(sTable);
    std::string sCsv;
    for (const auto bByte : abTable) sCsv += static_cast<char>(bByte);
    EXPECT_EQ(sCsv.substr(0, sCsv.find('\r')), "dye,locus,allele,size_bp,height_rfu,width_scans,scan");
    EXPECT_EQ(std::ranges::count(sCsv, '\n'), 1 + std::ssize(oContent.oCalled.aoCalls));
    EXPECT_NE(sCsv.find(CellAt(oTable, 0, PeakColumn::Locus) + "," + CellAt(oTable, 0, PeakColumn::Allele)),
              std::string::npos);

    const auto sPicture = (oScene.oFolder.Path() / "trace.png").string();
    ASSERT_TRUE(oWindow->SavePicture(sPicture));
    EXPECT_EQ(QImage(QString::fromStdString(sPicture)).width(), 2 * oWindow->Plot().width());

    EXPECT_FALSE(oWindow->SaveTable((oScene.oFolder.Path() / "nowhere" / "peaks.csv").string()));
    const auto* pBox = oWindow->findChild<QMessageBox*>();
    ASSERT_TRUE(pBox);
    EXPECT_NE(pBox->text().toStdString().find("nowhere/peaks.csv: the file cannot be written"),
              std::string::npos);
}

TEST(RecordWindow, EachControlHasANameAndEachEntryAKey) {
    const RecordScene oScene;
    const auto oWindow = oScene.Open({oScene.Sample("PASS").lSampleID, 0});
    for (const auto* pWidget : oWindow->findChildren<QWidget*>()) {
        if (pWidget->focusPolicy() == Qt::NoFocus || !pWidget->isVisible()) continue;
        EXPECT_FALSE(pWidget->accessibleName().isEmpty()) << pWidget->metaObject()->className();
    }
    std::set<QString> oKeys;
    for (const auto* pEntry : oWindow->findChildren<QAction*>()) {
        if (pEntry->isSeparator() || pEntry->text().isEmpty()) continue;
        EXPECT_TRUE(pEntry->text().contains('&')) << pEntry->text().toStdString();
        if (pEntry->menu()) continue;
        EXPECT_TRUE(oKeys.insert(pEntry->shortcut().toString()).second) << pEntry->text().toStdString();
    }
}

bool Shows(const QImage& oPicture, const QColor& oInk) {
    for (int nY = 0; nY < oPicture.height(); ++nY) {
        for (int nX = 0; nX < oPicture.width(); ++nX) {
            if (oPicture.pixel(nX, nY) == oInk.rgb()) return true;
        }
    }
    return false;
}

// In each theme and size the curve of each dye is there in its colour.
void Draw(const RecordScene& oScene, const RecordChoice& oChoice, const std::string& sName) {
    for (const bool bDark : {false, true}) {
        for (const int nZoom : {1, 2}) {
            oScene.oAppearance->ShownTheme(bDark ? Theme::Dark : Theme::Light);
            oScene.oAppearance->Zoom(nZoom);
            const auto oWindow = oScene.Open(oChoice);
            oWindow->resize(QSize(1180, 860) * nZoom);
            const auto sPicture = "record-" + sName + (bDark ? "-dark-" : "-light-") + std::to_string(nZoom);
            const QImage oPicture = oWindow->grab().toImage();
            KeepPicture(oPicture, sPicture);
            for (std::size_t nDye = 0; nDye < oWindow->Content().oTrace.aoDyes.size(); ++nDye)
                EXPECT_TRUE(Shows(oPicture, DyeInk(nDye, bDark))) << sPicture << ' ' << nDye;
            KeepPicture(oWindow->Plot().Picture(sPicture), sPicture + "-saved");
            oWindow->Plot().Show(85, 145);
            oWindow->Table().selectRow(5);
            QCoreApplication::processEvents(); // draws what has changed
            KeepPicture(oWindow->grab().toImage(), sPicture + "-near");
        }
    }
}

TEST(RecordWindow, IsDrawnInEachThemeAndSize) {
    const RecordScene oScene;
    Draw(oScene, {0, oScene.Analyze(oScene.Sample("PASS"))}, "str");
    if (!std::getenv("GLEANER_PICTURES")) return;
    Draw(oScene, {0, oScene.Analyze(oScene.Ladder())}, "ladder");
    Draw(oScene, {0, oScene.Analyze(oScene.Sample("NO SIZE STANDARD"))}, "unsized");
    Draw(oScene, {oScene.Sample("READ ERROR").lSampleID, 0}, "damaged");
    const RecordScene oSnp(AlleleType::Snp);
    Draw(oSnp, {0, oSnp.Analyze(oSnp.Sample("PASS"))}, "snp");
}

} // namespace
} // namespace GleanerSvc::Workbench
