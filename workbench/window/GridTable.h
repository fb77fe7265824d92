// A grid on the screen.
//
// By keyboard: Up, Down, PgUp, PgDn, Home and End move the highlight, with Shift they stretch it, Ctrl+Space
// takes the row in or out, Ctrl+A highlights all rows, Enter is a double click and the menu key or Shift+F10
// a right click. Left and Right move over the headings; Ctrl+Enter clicks the heading that is reached,
// Ctrl+menu key opens its menu, and Ctrl+Left and Ctrl+Right change its column's width.
#pragma once

#include <QTableView>
#include <QTimer>

#include "models/GridModel.h"
#include "pagebind/Subscriptions.h"
#include "workbench/window/ControlView.h"
#include "workbench/window/GridTableModel.h"

namespace GleanerSvc::Workbench {

class GridTable final : public QTableView {
  public:
    GridTable(Models::GridModel& oGrid, QWidget* pParent, const ViewContext& oContext);

    void ShowColumns(); // and rows, at another zoom
    void Refresh(); // what changed since it was shown last; comes by itself with the next turn of the loop

  protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override; // of the headings
    void initViewItemOption(QStyleOptionViewItem* pOption) const override;

  private:
    struct Cell {
        double dRow = 0;
        double dCol = 0;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    Cell CellAt(const QPoint& oPlace) const;
    Cell CurrentCell() const;
    void MoveOver(const Cell& oCell);
    void DragRows();
    bool PressMovingKey(const QKeyEvent& oEvent);
    bool PressHeadingKey(const QKeyEvent& oEvent);
    bool PressCommandKey(const QKeyEvent& oEvent);
    std::int32_t TargetOf(int nKey) const;   // of a key that moves over rows; 0 for another
    std::int32_t ShownWidth(int nCol) const; // twips
    void KeepTopRow();
    void ShowOrder();
    void ShowCurrentRow();
    void TellHighlight();
    void TellCurrentCell();
    void MoveHeading(int nStep);
    void ClickHeading(int nCol);
    void DoubleClickHeading(int nCol);
    void OpenMenu(Qt::KeyboardModifiers eModifiers);
    void OpenHeadingMenu(int nCol);
    void DragWidth(int nCol, std::int32_t lTwips);
    void GoTo(std::int32_t lRow, bool bStretch);
    void Gesture(const std::function<void()>& fnGesture) const { m_oContext.Gesture(fnGesture); }

    Models::GridModel& m_oGrid;
    ViewContext m_oContext;
    GridTableModel m_oModel;
    Subscriptions m_oSubscriptions;
    bool m_bAsked = false;        // for a refresh
    bool m_bShowing = false;      // columns: their widths are not the operator's then
    int m_nDragged = -1;          // column whose width the operator is changing
    std::int32_t m_lDragFrom = 0; // row where the button went down; 0 when it is up
    QPoint m_oDragTo;             // in the viewport, or beyond it
    QTimer m_oDragTimer;          // runs while the mouse is beyond
    Cell m_oMouseAt;
    std::int32_t m_lShownRow = 0; // the current row that was scrolled to
    int m_nHeading = -1;
};

} // namespace GleanerSvc::Workbench
