#include "workbench/window/GridTable.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <map>

namespace GleanerSvc::Workbench {

namespace {

// The highlight is the grid's own and not the view's.
class RowDelegate final : public QStyledItemDelegate {
  public:
    RowDelegate(const Models::GridModel& oGrid, QObject* pParent)
        : QStyledItemDelegate(pParent), m_oGrid(oGrid) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& oIndex) const override {
        QStyledItemDelegate::initStyleOption(pOption, oIndex);
        pOption->state.setFlag(QStyle::State_HasFocus, false);
        if (!m_oGrid.IsHighlighted(oIndex.row() + 1)) return;
        pOption->state |= QStyle::State_Selected;
        pOption->palette.setCurrentColorGroup(QPalette::Active);
    }

  private:
    const Models::GridModel& m_oGrid;
};

Models::Keys KeysOf(Qt::KeyboardModifiers eModifiers) {
    if (eModifiers.testFlag(Qt::ShiftModifier)) return Models::Keys::Shift;
    return eModifiers.testFlag(Qt::ControlModifier) ? Models::Keys::Ctrl : Models::Keys::None;
}

} // namespace

GridTable::GridTable(Models::GridModel& oGrid, QWidget* pParent, const ViewContext& oContext)
    : QTableView(pParent), m_oGrid(oGrid), m_oContext(oContext), m_oModel(oGrid) {
    setModel(&m_oModel);
    setItemDelegate(new RowDelegate(oGrid, this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->viewport()->installEventFilter(this);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int nCol) { ClickHeading(nCol, false); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int nCol) {
        if (!m_bShowing) m_nDragged = nCol;
    });
    m_oSubscriptions.On(oGrid.OnChanged, [this] {
        if (std::exchange(m_bAsked, true)) return;
        QTimer::singleShot(0, this, [this] { Refresh(); });
    });
    m_oSubscriptions.On(oContext.oAppearance.OnZooming, [this] { KeepTopRow(); });
    Refresh();
}

void GridTable::Refresh() {
    m_bAsked = false;
    m_oGrid.MarkShown();
    if (m_oGrid.IsLocked()) return; // its end is a change too
    m_oModel.Announce();
    ShowColumns();
    const std::int32_t lRow = m_oGrid.CurrentRow();
    if (std::exchange(m_lShownRow, lRow) != lRow && lRow > 0)
        scrollTo(m_oModel.index(lRow - 1, std::max(0, columnAt(1))), QAbstractItemView::EnsureVisible);
    viewport()->update();
}

// Column 0 has the rows' numbers; a page leaves its width to the grid.
std::int32_t GridTable::ShownWidth(int nCol) const {
    const std::int32_t lWidth = m_oGrid.ColumnWidth(nCol);
    if (nCol > 0 || lWidth != Models::GridModel::DefaultColWidth) return lWidth;
    constexpr std::int32_t Edges = 150; // twips
    constexpr std::int32_t Digit = 105;
    return Edges +
           Digit * static_cast<std::int32_t>(std::max<std::size_t>(3, std::to_string(m_oGrid.Rows()).size()));
}

void GridTable::ShowColumns() {
    m_bShowing = true;
    for (int nCol = 0; nCol < m_oModel.columnCount(); ++nCol) {
        setColumnHidden(nCol, m_oGrid.IsColumnHidden(nCol));
        const int nWidth = std::max(1, m_oContext.oAppearance.Pixels(ShownWidth(nCol)));
        if (columnWidth(nCol) != nWidth) setColumnWidth(nCol, nWidth);
    }
    constexpr double Line = 1.4; // height of a row in lines of text
    verticalHeader()->setDefaultSectionSize(static_cast<int>(std::lround(fontMetrics().height() * Line)));
    m_bShowing = false;
}

// The row at the top stays there, once the table has its new size.
void GridTable::KeepTopRow() {
    const int nTop = rowAt(0);
    if (nTop < 0) return;
    QTimer::singleShot(0, this, [this, nTop] {
        scrollTo(m_oModel.index(nTop, std::max(0, columnAt(1))), QAbstractItemView::PositionAtTop);
    });
}

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
    if (!pEvent->buttons().testFlag(Qt::LeftButton) || m_lDragFrom == 0) return;
    const auto lRow = static_cast<std::int32_t>(CellAt(pEvent->position().toPoint()).dRow);
    if (lRow < 1 || lRow == m_oGrid.CurrentRow() || pEvent->modifiers() != Qt::NoModifier) return;
    Gesture([&] { m_oGrid.DragRows(m_lDragFrom, lRow); });
}

void GridTable::mouseReleaseEvent(QMouseEvent* /*pEvent*/) { m_lDragFrom = 0; }

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
        ClickHeading(m_nHeading, false);
    } else if (oEvent.key() == Qt::Key_Menu && bCtrl && m_nHeading >= 0) {
        ClickHeading(m_nHeading, true);
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
    case Qt::Key_Menu:
        Gesture([&] { m_oGrid.ClickRight(oCell.dRow, oCell.dCol); });
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
}

void GridTable::ClickHeading(int nCol, bool bMenu) {
    Gesture([&] {
        if (bMenu)
            m_oGrid.ClickRight(0, nCol);
        else
            m_oGrid.ClickLeft(0, nCol);
    });
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

// The headings' right button, the end of a drag of a column's edge, and the mark of the heading that the
// keyboard is on.
bool GridTable::eventFilter(QObject* pWatched, QEvent* pEvent) {
    QHeaderView& oHeader = *horizontalHeader();
    if (pWatched != oHeader.viewport()) return QTableView::eventFilter(pWatched, pEvent);
    const auto* pMouse = dynamic_cast<QMouseEvent*>(pEvent);
    if (pEvent->type() == QEvent::MouseButtonPress && pMouse->button() == Qt::RightButton) {
        if (const int nCol = oHeader.logicalIndexAt(pMouse->position().toPoint()); nCol >= 0)
            ClickHeading(nCol, true);
        return true;
    }
    if (pEvent->type() == QEvent::MouseButtonRelease && m_nDragged >= 0) {
        const int nCol = std::exchange(m_nDragged, -1);
        const double dTwips =
            columnWidth(nCol) / std::max(1e-6, m_oContext.oAppearance.Pixels(15000) / 15000.0);
        QTimer::singleShot(0, this, [this, nCol, dTwips] {
            DragWidth(nCol, static_cast<std::int32_t>(std::lround(dTwips)));
        });
    }
    if (pEvent->type() == QEvent::Paint && hasFocus() && m_nHeading >= 0) {
        oHeader.viewport()->removeEventFilter(this);
        QApplication::sendEvent(oHeader.viewport(), pEvent);
        oHeader.viewport()->installEventFilter(this);
        QPainter oPainter(oHeader.viewport());
        oPainter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        oPainter.drawRect(QRect(oHeader.sectionViewportPosition(m_nHeading) + 1, 1,
                                columnWidth(m_nHeading) - 2, oHeader.viewport()->height() - 2));
        return true;
    }
    return QTableView::eventFilter(pWatched, pEvent);
}

// A cut text ends with dots.
void GridTable::initViewItemOption(QStyleOptionViewItem* pOption) const {
    QTableView::initViewItemOption(pOption);
    pOption->textElideMode = Qt::ElideRight;
}

} // namespace GleanerSvc::Workbench
