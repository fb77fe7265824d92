#include "workbench/window/StartTableView.h"

#include <QEvent>
#include <QHeaderView>
#include <QProxyStyle>

#include <algorithm>

namespace GleanerSvc::Workbench {

namespace {

// Room beside the cells' texts that grows with them.
class CellMargins final : public QProxyStyle {
  public:
    CellMargins() : QProxyStyle("Fusion") {}
    int pixelMetric(PixelMetric eMetric, const QStyleOption* pOption, const QWidget* pWidget) const override {
        if (pWidget && (eMetric == PM_FocusFrameHMargin || eMetric == PM_HeaderMargin))
            return pWidget->fontMetrics().height() / 3;
        return QProxyStyle::pixelMetric(eMetric, pOption, pWidget);
    }
};

} // namespace

StartTableView::StartTableView(QAbstractItemModel* pModel, const QString& sName, QWidget* pParent)
    : QTableView(pParent) {
    setModel(pModel);
    setAccessibleName(sName);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setShowGrid(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicator(-1,
                                         Qt::AscendingOrder); // as the rows come, until a heading is pressed
    horizontalHeader()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    auto* pMargins = new CellMargins;
    pMargins->setParent(this);
    setStyle(pMargins);
    horizontalHeader()->setStyle(pMargins);
    connect(pModel, &QAbstractItemModel::modelReset, this, [this] { Fit(); });
    Fit();
}

std::vector<int> StartTableView::SelectedRows() const {
    std::vector<int> anRows;
    for (const auto& oIndex : selectionModel()->selectedRows()) anRows.push_back(oIndex.row());
    std::sort(anRows.begin(), anRows.end());
    return anRows;
}

void StartTableView::changeEvent(QEvent* pEvent) {
    QTableView::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange) Fit();
}

void StartTableView::Fit() {
    constexpr int WidestColumn = 60; // characters; the rest is in the tool tip
    horizontalHeader()->setMaximumSectionSize(fontMetrics().averageCharWidth() * WidestColumn);
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    resizeColumnsToContents();
}

} // namespace GleanerSvc::Workbench
