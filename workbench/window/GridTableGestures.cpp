// What mouse and keys do in a grid.
#include "workbench/window/GridTable.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <map>

namespace GleanerSvc::Workbench {

namespace {

Models::Keys KeysOf(Qt::KeyboardModifiers eModifiers) {
    if (eModifiers.testFlag(Qt::ShiftModifier)) return Models::Keys::Shift;
    return eModifiers.testFlag(Qt::ControlModifier) ? Models::Keys::Ctrl : Models::Keys::None;
}

// A window system may make a context menu event of either as well; it goes to the menu then, which is open.
bool IsMenuKey(const QKeyEvent& oEvent) {
    const bool bShift = oEvent.modifiers().testFlag(Qt::ShiftModifier);
    return oEvent.key() == Qt::Key_Menu || (oEvent.key() == Qt::Key_F10 && bShift);
}

} // namespace

GridTable::Cell GridTable::CellAt(const QPoint& oPlace) const {
    return {static_cast<double>(rowAt(oPlace.y()) + 1), static_cast<double>(columnAt(oPlace.x()))};
}

// A place to make gestures at by keyboard; the first column on show.
GridTable::Cell GridTable::CurrentCell() const {
    return {static_cast<double>(std::max(m_oGrid.CurrentRow(), 1)),
            static_cast<double>(std::max(columnAt(1), 0))};
}

void GridTable::mousePressEvent(QMouseEvent* pEvent) {
    const Cell oCell = CellAt(pEvent->position().toPoint());
    if (oCell.dRow < 1 || oCell.dCol < 0) return;
    const auto eKeys = KeysOf(pEvent->modifiers());
    if (pEvent->button() == Qt::LeftButton) {
        m_lDragFrom = static_cast<std::int32_t>(oCell.dRow);
        Gesture([&] { m_oGrid.ClickLeft(oCell.dRow, oCell.dCol, eKeys); });
    } else if (pEvent->button() == Qt::RightButton) {
        Gesture([&] { m_oGrid.ClickRight(oCell.dRow, oCell.dCol); });
    }
}

void GridTable::mouseMoveEvent(QMouseEvent* pEvent) {
    const QPoint oPlace = pEvent->position().toPoint();
    if (pEvent->buttons() == Qt::NoButton) return MoveOver(CellAt(oPlace));
    if (!pEvent->buttons().testFlag(Qt::LeftButton) || pEvent->modifiers() != Qt::NoModifier) return;
    m_oDragTo = oPlace;
    DragRows();
}

void GridTable::mouseReleaseEvent(QMouseEvent* /*pEvent*/) {
    m_lDragFrom = 0;
    m_oDragTimer.stop();
}

// Told once for each cell.
void GridTable::MoveOver(const Cell& oCell) {
    if (oCell == std::exchange(m_oMouseAt, oCell) || oCell.dRow < 1 || oCell.dCol < 0) return;
    Gesture([&] { m_oGrid.MoveMouse44(oCell.dRow, oCell.dCol); });
}

// Beyond its edge the table scrolls, by as much as the mouse is away, for as long as it stays there. What is
// dragged to is the nearest row. A window that came up meanwhile ends it.
void GridTable::DragRows() {
    const int nLast = viewport()->height() - 1;
    const int nBeyond = m_oDragTo.y() - std::clamp(m_oDragTo.y(), 0, nLast);
    if (m_lDragFrom == 0 || nBeyond == 0 || !isActiveWindow())
        m_oDragTimer.stop();
    else if (!m_oDragTimer.isActive())
        m_oDragTimer.start();
    if (m_lDragFrom == 0) return;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + nBeyond);
    const int nRow = rowAt(m_oDragTo.y() - nBeyond);
    const std::int32_t lRow = nRow < 0 ? m_oGrid.Rows() : nRow + 1; // beneath the last one
    if (lRow != m_oGrid.CurrentRow()) Gesture([&] { m_oGrid.DragRows(m_lDragFrom, lRow); });
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    const Cell oCell = CellAt(pEvent->position().toPoint());
    if (pEvent->button() != Qt::LeftButton || oCell.dRow < 1) return;
    Gesture([&] { m_oGrid.DoubleClick(oCell.dRow, oCell.dCol); });
}

void GridTable::keyPressEvent(QKeyEvent* pEvent) {
    if (PressHeadingKey(*pEvent) || PressMovingKey(*pEvent) || PressCommandKey(*pEvent)) return;
    pEvent->ignore(); // the window may know it; what the toolkit's tables do with it is not the grid's way
}

bool GridTable::PressMovingKey(const QKeyEvent& oEvent) {
    const std::int32_t lTarget = TargetOf(oEvent.key());
    if (lTarget == 0) return false;
    const bool bStretch = oEvent.modifiers().testFlag(Qt::ShiftModifier);
    const bool bStep = oEvent.key() == Qt::Key_Up || oEvent.key() == Qt::Key_Down;
    if (bStep && !bStretch && m_oGrid.CurrentRow() > 0) {
        Gesture([&] {
            m_oGrid.PressKey(oEvent.key() == Qt::Key_Up ? Models::GridKey::Up : Models::GridKey::Down);
        });
        if (m_oGrid.HighlightedRowCount() == 1 && m_oGrid.IsHighlighted(m_oGrid.CurrentRow())) return true;
    }
    GoTo(lTarget, bStretch);
    return true;
}

std::int32_t GridTable::TargetOf(int nKey) const {
    const std::int32_t lRow = m_oGrid.CurrentRow();
    const std::int32_t lPage =
        std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
    const std::map<int, std::int32_t> Targets = {
        {Qt::Key_Up, lRow - 1},           {Qt::Key_Down, lRow + 1}, {Qt::Key_PageUp, lRow - lPage},
        {Qt::Key_PageDown, lRow + lPage}, {Qt::Key_Home, 1},        {Qt::Key_End, m_oGrid.Rows()}};
    const auto itTarget = Targets.find(nKey);
    if (itTarget == Targets.end() || m_oGrid.Rows() == 0) return 0;
    return std::clamp(itTarget->second, 1, m_oGrid.Rows());
}

void GridTable::GoTo(std::int32_t lRow, bool bStretch) {
    const auto eKeys = bStretch ? Models::Keys::Shift : Models::Keys::None;
    Gesture([&] { m_oGrid.ClickLeft(lRow, CurrentCell().dCol, eKeys); });
}

bool GridTable::PressHeadingKey(const QKeyEvent& oEvent) {
    const bool bCtrl = oEvent.modifiers().testFlag(Qt::ControlModifier);
    const int nStep = oEvent.key() == Qt::Key_Left ? -1 : oEvent.key() == Qt::Key_Right ? 1 : 0;
    const bool bEnter = oEvent.key() == Qt::Key_Return || oEvent.key() == Qt::Key_Enter;
    constexpr std::int32_t WidthStep = 150; // twips
    if (nStep != 0 && !bCtrl) {
        MoveHeading(nStep);
    } else if (nStep != 0 && m_nHeading >= 0) {
        DragWidth(m_nHeading, std::max(WidthStep, m_oGrid.ColumnWidth(m_nHeading) + nStep * WidthStep));
    } else if (bEnter && bCtrl && m_nHeading >= 0) {
        ClickHeading(m_nHeading);
    } else if (IsMenuKey(oEvent)) {
        OpenMenu(oEvent.modifiers());
    } else {
        return false;
    }
    return true;
}

bool GridTable::PressCommandKey(const QKeyEvent& oEvent) {
    const bool bCtrl = oEvent.modifiers().testFlag(Qt::ControlModifier);
    const Cell oCell = CurrentCell();
    switch (oEvent.key()) {
    case Qt::Key_Space:
        Gesture([&] {
            if (bCtrl)
                m_oGrid.ClickLeft(oCell.dRow, oCell.dCol, Models::Keys::Ctrl);
            else
                m_oGrid.PressKey(Models::GridKey::Space);
        });
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Gesture([&] { m_oGrid.DoubleClick(oCell.dRow, oCell.dCol); });
        return true;
    case Qt::Key_A:
        if (bCtrl) Gesture([&] { m_oGrid.DragRows(1, m_oGrid.Rows()); });
        return bCtrl;
    default:
        return false;
    }
}

void GridTable::MoveHeading(int nStep) {
    const int nLast = m_oModel.columnCount() - 1;
    for (int nCol = m_nHeading + nStep; nCol >= 0 && nCol <= nLast; nCol += nStep) {
        if (isColumnHidden(nCol)) continue;
        m_nHeading = nCol;
        break;
    }
    if (m_nHeading >= 0 && m_oGrid.Rows() > 0)
        scrollTo(m_oModel.index(std::max(0, m_lShownRow - 1), m_nHeading));
    horizontalHeader()->viewport()->update();
    TellCurrentCell();
}

void GridTable::ClickHeading(int nCol) {
    Gesture([&] { m_oGrid.ClickLeft(0, nCol); });
    ShowOrder();
}

// The second of two quick clicks.
void GridTable::DoubleClickHeading(int nCol) {
    Gesture([&] { m_oGrid.DoubleClick(0, nCol); });
    ShowOrder();
}

void GridTable::OpenHeadingMenu(int nCol) {
    Gesture([&] { m_oGrid.ClickRight(0, nCol); });
}

// By keyboard.
void GridTable::OpenMenu(Qt::KeyboardModifiers eModifiers) {
    if (eModifiers.testFlag(Qt::ControlModifier) && m_nHeading >= 0) return OpenHeadingMenu(m_nHeading);
    const Cell oCell = CurrentCell();
    Gesture([&] { m_oGrid.ClickRight(oCell.dRow, oCell.dCol); });
}

// By mouse it came with the press already.
void GridTable::contextMenuEvent(QContextMenuEvent* pEvent) {
    if (pEvent->reason() == QContextMenuEvent::Keyboard) OpenMenu(pEvent->modifiers());
}

// A handler may refuse the width.
void GridTable::DragWidth(int nCol, std::int32_t lTwips) {
    Gesture([&] { m_oGrid.DragColumnWidth(nCol, lTwips); });
    ShowColumns();
}

void GridTable::focusInEvent(QFocusEvent* pEvent) {
    Gesture([this] { m_oGrid.Focus(); });
    QTableView::focusInEvent(pEvent);
}

} // namespace GleanerSvc::Workbench
