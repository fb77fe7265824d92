// A grid on the screen, driven by mouse and keys; what came of it is read from the grid's model.
#include "workbench/window/GridTable.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <QtTest/QTest>

#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"

namespace GleanerSvc::Workbench {
namespace {

// Counts the paint events of a widget.
class PaintCounter final : public QObject {
  public:
    explicit PaintCounter(QWidget& oWidget) : QObject(&oWidget) { oWidget.installEventFilter(this); }
    bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::Paint) ++nPaints;
        return false;
    }
    int nPaints = 0;
};

// Rows A1, A2 and so on, with their number in column 2 and a hidden column 3.
struct GridScene {
    explicit GridScene(int nRows = 100) {
        oJournal->Recording(false);
        oGrid.NumCols(3);
        oGrid.HideCols(3, 3, true);
        for (int nCol = 1; nCol <= 2; ++nCol)
            oGrid.SetCellText(0, nCol, nCol == 1 ? "Name" : "Number", GridConst::WriteText);
        for (int nRow = 1; nRow <= nRows; ++nRow) {
            oGrid.SetCellText(nRow, 1, "A" + std::to_string(nRow), GridConst::WriteText);
            oGrid.SetCellText(nRow, 2, std::to_string(nRow), GridConst::WriteText);
        }
        oGrid.NumRows(nRows);
        oTable.resize(400, 200);
        oTable.show();
        oTable.activateWindow();
        oTable.setFocus();
        Settle();
    }
    static void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    void Key(Qt::Key eKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier) {
        QTest::keyClick(&oTable, eKey, eModifiers);
        Settle();
    }
    QPoint CellPlace(int nRow) const {
        return oTable.visualRect(oTable.model()->index(nRow - 1, 1)).center();
    }
    QPoint HeadingPlace(int nCol) const { return {oTable.columnViewportPosition(nCol) + 20, 8}; }
    void Sort(double dCol, bool bDescending) {
        auto oKey = oGrid.CreateSortInfo();
        oKey->nRC(dCol);
        if (bDescending) oKey->SortOrder(GridConst::SortDescending);
        auto oAll = oGrid.CreateRangeObject();
        oAll->SetTable();
        oGrid.SortRows(oAll, GridConst::SortRowsMode, {oKey}, 1);
    }
    std::string Highlight() const { return oGrid.Selection().ToString(); }
    QAccessibleInterface& Spoken() { return *QAccessible::queryAccessibleInterface(&oTable); }

    struct Application {
        Application() { EnsureApplication(); }
    } oApplication;
    Ref<Models::Journal> oJournal = std::make_shared<Models::Journal>();
    Control oSite{nullptr, "grdAvailable", {}};
    Models::GridModel oGrid{oJournal, std::make_shared<Models::InputFocus>(), oSite};
    Appearance oAppearance{false};
    GestureDoor oDoor;
    GridTable oTable{oGrid, nullptr, {oAppearance, oDoor}};
};

TEST(GridTable, KeysMoveStretchAndTakeOutTheHighlight) {
    GridScene oScene;
    oScene.Key(Qt::Key_Down);
    oScene.Key(Qt::Key_Down);
    oScene.Key(Qt::Key_Down, Qt::ShiftModifier);
    oScene.Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(oScene.Highlight(), "2-4");
    oScene.Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(oScene.Highlight(), "2-3");
    oScene.Key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(oScene.Highlight(), "4-100") << "from the row that was taken out";
    oScene.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(oScene.Highlight(), "1-100");
    oScene.Key(Qt::Key_Home);
    EXPECT_EQ(oScene.Highlight(), "1-1");
    EXPECT_EQ(oScene.oTable.rowAt(0), 0);
}

TEST(GridTable, AScreenReaderIsToldTheCurrentCellAndTheHighlight) {
    GridScene oScene;
    QAccessibleInterface& oSpoken = oScene.Spoken();
    ASSERT_TRUE(oSpoken.tableInterface());
    const auto Focused = [&] { return oSpoken.focusChild()->text(QAccessible::Name).toStdString(); };
    EXPECT_EQ(Focused(), "A1") << "where the keys begin";
    EXPECT_EQ(oSpoken.tableInterface()->selectedRowCount(), 0);
    for (int nStep = 0; nStep < 3; ++nStep) oScene.Key(Qt::Key_Down);
    oScene.Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Focused(), "A4");
    EXPECT_EQ(oSpoken.tableInterface()->selectedRows(), QList<int>({2, 3}));
    oScene.Key(Qt::Key_Right);
    oScene.Key(Qt::Key_Right);
    oScene.Key(Qt::Key_Right);
    EXPECT_EQ(Focused(), "4") << "in the column of the heading";
    oScene.oGrid.RemoveRows(2, 3);
    GridScene::Settle();
    EXPECT_EQ(oSpoken.tableInterface()->selectedRows(), QList<int>({1}));
}

TEST(GridTable, ADragBeyondTheEdgeScrollsAndTakesTheNearestRow) {
    GridScene oScene;
    QWidget& oViewport = *oScene.oTable.viewport();
    QTest::mousePress(&oViewport, Qt::LeftButton, Qt::NoModifier, oScene.CellPlace(3));
    const int nLastOnShow = oScene.oTable.rowAt(oViewport.height() - 1) + 1;
    const auto MoveTo = [&](int nY) {
        QMouseEvent oMove(QEvent::MouseMove, QPointF(40, nY), oViewport.mapToGlobal(QPointF(40, nY)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&oViewport, &oMove);
    };
    MoveTo(oViewport.height() + 30);
    EXPECT_GT(oScene.oGrid.CurrentRow(), nLastOnShow);
    QTest::qWait(300); // the mouse rests
    EXPECT_GT(oScene.oGrid.CurrentRow(), nLastOnShow + 4);
    EXPECT_EQ(oScene.Highlight(), "3-" + std::to_string(oScene.oGrid.CurrentRow()));
    MoveTo(100000);
    EXPECT_EQ(oScene.Highlight(), "3-100");
    MoveTo(-100000);
    EXPECT_EQ(oScene.Highlight(), "1-3");
    MoveTo(oViewport.height() + 10);
    QTest::mouseRelease(&oViewport, Qt::LeftButton);
    const std::int32_t lRow = oScene.oGrid.CurrentRow();
    QTest::qWait(150);
    EXPECT_EQ(oScene.oGrid.CurrentRow(), lRow);

    GridScene oShort(2);
    QTest::mousePress(oShort.oTable.viewport(), Qt::LeftButton, Qt::NoModifier, oShort.CellPlace(1));
    QTest::mouseMove(oShort.oTable.viewport(), QPoint(40, 150));
    EXPECT_EQ(oShort.Highlight(), "1-2") << "beneath the last row";
}

TEST(GridTable, EachClickOnAHeadingCountsAndTheArrowIsTheModels) {
    GridScene oScene;
    int nClicks = 0;
    Subscriptions oSubscriptions;
    oSubscriptions.On(oScene.oGrid.Events().OnLButtonClickedRowCol,
                      [&](double dRow, double dCol, GestureResult&) {
                          if (dRow == 0 && dCol == 1) oScene.Sort(1, ++nClicks % 2 == 1);
                      });
    QHeaderView& oHeader = *oScene.oTable.horizontalHeader();
    EXPECT_FALSE(oHeader.isSortIndicatorShown());
    QTest::mouseClick(oHeader.viewport(), Qt::LeftButton, Qt::NoModifier, oScene.HeadingPlace(1));
    GridScene::Settle();
    EXPECT_EQ(oScene.oGrid.Text(1, 1), "A99");
    EXPECT_TRUE(oHeader.isSortIndicatorShown());
    EXPECT_EQ(oHeader.sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(oScene.Spoken().child(2)->text(QAccessible::Name), "Name, sorted descending");
    QTest::mouseDClick(oHeader.viewport(), Qt::LeftButton, Qt::NoModifier, oScene.HeadingPlace(1));
    EXPECT_EQ(oScene.oGrid.Text(1, 1), "A1");
    EXPECT_EQ(oHeader.sortIndicatorOrder(), Qt::AscendingOrder);
    QTest::mouseClick(oHeader.viewport(), Qt::LeftButton, Qt::NoModifier, oScene.HeadingPlace(2));
    EXPECT_EQ(oHeader.sortIndicatorSection(), 1) << "a click that sorts nothing moves no arrow";
    oScene.oGrid.SetCellText(5, 1, "B", GridConst::WriteText);
    GridScene::Settle();
    EXPECT_FALSE(oHeader.isSortIndicatorShown());
}

TEST(GridTable, HeadingsAndMenusAreReachedByKey) {
    GridScene oScene;
    std::vector<std::string> asTold;
    Subscriptions oSubscriptions;
    const auto Tell = [&](const std::string& sWhat) {
        return [&asTold, sWhat](double dRow, double dCol, GestureResult&) {
            asTold.push_back(sWhat + std::to_string(static_cast<int>(dRow)) + "," +
                             std::to_string(static_cast<int>(dCol)));
        };
    };
    oSubscriptions.On(oScene.oGrid.Events().OnLButtonClickedRowCol, Tell("left "));
    oSubscriptions.On(oScene.oGrid.Events().OnRButtonClickedRowCol, Tell("right "));
    oScene.oGrid.SetCurrentCell(7, 1);
    GridScene::Settle();
    oScene.Key(Qt::Key_F10, Qt::ShiftModifier);
    QContextMenuEvent oByKey(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&oScene.oTable, &oByKey);
    for (int nStep = 0; nStep < 4; ++nStep) oScene.Key(Qt::Key_Right); // over the hidden one it does not go
    oScene.Key(Qt::Key_Return, Qt::ControlModifier);
    oScene.Key(Qt::Key_Menu, Qt::ControlModifier);
    EXPECT_EQ(asTold, (std::vector<std::string>{"right 7,0", "right 7,0", "left 0,2", "right 0,2"}));
    const std::int32_t lWidth = oScene.oGrid.ColumnWidth(2);
    const int nShown = oScene.oTable.columnWidth(2);
    oScene.Key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(oScene.oGrid.ColumnWidth(2), lWidth + 150);
    EXPECT_EQ(oScene.oTable.columnWidth(2), nShown + 10);
}

TEST(GridTable, ALockedGridPaintsNothingUntilItsLockEnds) {
    GridScene oScene;
    PaintCounter oCells(*oScene.oTable.viewport());
    PaintCounter oHeadings(*oScene.oTable.horizontalHeader()->viewport());
    const auto Expose = [&] {
        oScene.oTable.viewport()->update();
        oScene.oTable.horizontalHeader()->viewport()->update();
        oScene.oTable.verticalScrollBar()->setValue(oScene.oTable.verticalScrollBar()->value() + 40);
        GridScene::Settle();
    };
    Expose();
    EXPECT_GT(std::exchange(oCells.nPaints, 0), 0);
    EXPECT_GT(std::exchange(oHeadings.nPaints, 0), 0);
    oScene.oGrid.SetCellText(1, 1, "first", GridConst::WriteText); // a change that was not shown yet
    oScene.oGrid.LockUpdate(true);
    oScene.oGrid.SetCellText(1, 1, "second", GridConst::WriteText);
    Expose();
    Expose();
    EXPECT_EQ(oCells.nPaints + oHeadings.nPaints, 0);
    oScene.oGrid.LockUpdate(false);
    GridScene::Settle();
    EXPECT_GT(oCells.nPaints, 0);
    EXPECT_GT(oHeadings.nPaints, 0);
}

TEST(GridTable, ACellShowsThePictureOfItsStyleWhereItCanBeRead) {
    GridScene oScene;
    const TemporaryFolder oFolder;
    const std::string sPath = (oFolder.Path() / "new.bmp").string();
    QPixmap oRed(8, 8);
    oRed.fill(Qt::red);
    ASSERT_TRUE(oRed.save(QString::fromStdString(sPath), "BMP"));
    oScene.oGrid.RegisterBitmap(2000, sPath, sPath, "0");
    oScene.oGrid.RegisterBitmap(2001, sPath + ".none", "", "0");
    for (const int nRow : {1, 2}) {
        auto oStyle = oScene.oGrid.CreateStyleObject();
        oStyle->SetBitmap(1999 + nRow);
        auto oCell = oScene.oGrid.CreateRangeObject();
        oCell->InitRange(1, nRow, 1, nRow);
        oScene.oGrid.SetStyleRange(oCell, oStyle, GridConst::StyleOverride);
    }
    GridScene::Settle();
    const QImage oShown = oScene.oTable.viewport()->grab().toImage();
    const auto HasRed = [&](int nRow) {
        const int nY = oScene.CellPlace(nRow).y();
        for (int nX = 0; nX < oShown.width(); ++nX)
            if (oShown.pixelColor(nX, nY) == QColor(Qt::red)) return true;
        return false;
    };
    EXPECT_TRUE(HasRed(1));
    EXPECT_FALSE(HasRed(2));
}

TEST(GridTable, TheMouseIsToldOncePerCellThatItMovesOver) {
    GridScene oScene;
    std::vector<double> adRows;
    Subscriptions oSubscriptions;
    oSubscriptions.On(oScene.oGrid.Events().OnMouseEvent44,
                      [&](double dRow, double, GestureResult&) { adRows.push_back(dRow); });
    for (const int nAside : {0, 1, 2})
        QTest::mouseMove(oScene.oTable.viewport(), oScene.CellPlace(2) + QPoint(nAside, 0));
    QTest::mouseMove(oScene.oTable.viewport(), oScene.CellPlace(3));
    EXPECT_EQ(adRows, (std::vector<double>{2, 3}));
}

} // namespace
} // namespace GleanerSvc::Workbench
