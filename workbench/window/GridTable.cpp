#include "workbench/window/GridTable.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>
#include <utility>

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
        const bool bHighlighted = m_oGrid.IsHighlighted(oIndex.row() + 1);
        pOption->state.setFlag(QStyle::State_HasFocus, false);
        pOption->state.setFlag(QStyle::State_Selected, bHighlighted);
        if (bHighlighted) pOption->palette.setCurrentColorGroup(QPalette::Active);
    }

  private:
    const Models::GridModel& m_oGrid;
};

} // namespace

GridTable::GridTable(Models::GridModel& oGrid, QWidget* pParent, const ViewContext& oContext)
    : QTableView(pParent), m_oGrid(oGrid), m_oContext(oContext), m_oModel(oGrid) {
    setModel(&m_oModel);
    setItemDelegate(new RowDelegate(oGrid, this));
    // A heading would go over all rows to see whether its column is selected.
    horizontalHeader()->setSelectionModel(new QItemSelectionModel(&m_oModel, this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setAutoScroll(false); // what is current is scrolled to here
    viewport()->setMouseTracking(true);
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
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int nCol) { ClickHeading(nCol); });
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [this](int nCol) { DoubleClickHeading(nCol); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int nCol) {
        if (!m_bShowing) m_nDragged = nCol;
    });
    connect(&m_oDragTimer, &QTimer::timeout, this, [this] { DragRows(); });
    m_oDragTimer.setInterval(50);
    m_oSubscriptions.On(oGrid.OnChanged, [this] {
        if (m_oGrid.IsLocked()) setUpdatesEnabled(false);
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
    ShowOrder();
    TellHighlight();
    ShowCurrentRow();
    setUpdatesEnabled(true);
    viewport()->update();
}

// Scrolls to it when it is another one. A page that scrolls itself follows the keyboard.
void GridTable::ShowCurrentRow() {
    const std::int32_t lRow = m_oGrid.CurrentRow();
    if (std::exchange(m_lShownRow, lRow) == lRow || lRow <= 0) return;
    scrollTo(m_oModel.index(lRow - 1, std::max(0, columnAt(1))), QAbstractItemView::EnsureVisible);
    for (QWidget* pAround = hasFocus() ? parentWidget() : nullptr; pAround;
         pAround = pAround->parentWidget()) {
        if (auto* const pPage = dynamic_cast<QScrollArea*>(pAround)) return pPage->ensureWidgetVisible(this);
    }
}

// The arrow is the grid's, whatever a click did to it.
void GridTable::ShowOrder() {
    const auto& oSortedBy = m_oGrid.SortedBy();
    horizontalHeader()->setSortIndicatorShown(oSortedBy.has_value());
    if (!oSortedBy) return;
    horizontalHeader()->setSortIndicator(static_cast<int>(oSortedBy->dCol),
                                         oSortedBy->bDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

// The view's own selection and current cell are there for a screen reader: they follow the grid's.
void GridTable::TellHighlight() {
    QItemSelection oHighlight;
    for (const Models::RowSpan& oRows : m_oGrid.Selection().Spans()) {
        const int nTop = std::max(static_cast<int>(oRows.nTop), 1) - 1; // without the heading row
        const int nBottom = static_cast<int>(oRows.nBottom) - 1;
        if (nBottom < nTop) continue;
        oHighlight.append({m_oModel.index(nTop, 0), m_oModel.index(nBottom, m_oModel.columnCount() - 1)});
    }
    selectionModel()->select(oHighlight, QItemSelectionModel::ClearAndSelect);
    TellCurrentCell();
}

// In the column of the heading that the keyboard is on; at first the one behind the rows' numbers.
void GridTable::TellCurrentCell() {
    int nCol = m_nHeading < 0 ? 1 : m_nHeading;
    if (m_nHeading < 0)
        while (nCol < m_oModel.columnCount() - 1 && isColumnHidden(nCol)) ++nCol;
    const int nRow = std::max(m_oGrid.CurrentRow(), 1) - 1;
    selectionModel()->setCurrentIndex(m_oModel.index(nRow, nCol), QItemSelectionModel::NoUpdate);
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
    horizontalHeader()->setFont(font()); // and not that of the frame around the grid
    constexpr double Line = 1.4;         // height of a row in lines of text
    const int nHeight = static_cast<int>(std::lround(fontMetrics().height() * Line));
    if (verticalHeader()->defaultSectionSize() != nHeight) // goes over all rows
        verticalHeader()->setDefaultSectionSize(nHeight);
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

// The headings' right button, the end of a drag of a column's edge, and the mark of the heading that the
// keyboard is on.
bool GridTable::eventFilter(QObject* pWatched, QEvent* pEvent) {
    QHeaderView& oHeader = *horizontalHeader();
    if (pWatched != oHeader.viewport()) return QTableView::eventFilter(pWatched, pEvent);
    const auto* pMouse = dynamic_cast<QMouseEvent*>(pEvent);
    if (pEvent->type() == QEvent::MouseButtonPress && pMouse->button() == Qt::RightButton) {
        if (const int nCol = oHeader.logicalIndexAt(pMouse->position().toPoint()); nCol >= 0)
            OpenHeadingMenu(nCol);
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

// A cut text ends with dots, and a picture is as high as a line.
void GridTable::initViewItemOption(QStyleOptionViewItem* pOption) const {
    QTableView::initViewItemOption(pOption);
    pOption->decorationSize = QSize(fontMetrics().height(), fontMetrics().height());
    pOption->textElideMode = Qt::ElideRight;
}

} // namespace GleanerSvc::Workbench
