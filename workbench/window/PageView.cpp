#include "workbench/window/PageView.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace GleanerSvc::Workbench {

namespace {

// Those that take the Tab key, line by line as one reads.
void CollectStops(const Container& oContainer, const auto& fnWidgetOf, std::vector<QWidget*>& apStops) {
    std::vector<Control*> apChildren = oContainer.Children();
    std::ranges::stable_sort(apChildren, [](const Control* pLeft, const Control* pRight) {
        return std::pair(pLeft->Place().lTop / 300, pLeft->Place().lLeft) <
               std::pair(pRight->Place().lTop / 300, pRight->Place().lLeft);
    });
    for (const Control* pChild : apChildren) {
        if (QWidget* pWidget = fnWidgetOf(*pChild)) apStops.push_back(pWidget);
        if (const auto* pInner = dynamic_cast<const Container*>(pChild))
            CollectStops(*pInner, fnWidgetOf, apStops);
    }
}

} // namespace

PageView::PageView(Container& oPage, const ViewContext& oContext, QWidget* pParent)
    : QScrollArea(pParent), m_oPage(oPage), m_oContext(oContext) {
    setFrameShape(QFrame::NoFrame);
    setWidget(new QWidget);
    setFocusPolicy(Qt::NoFocus);
    AddChildren(oPage, *widget());
    m_oSubscriptions.On(oPage.OnChanged,
                        [this](const Control& oControl, Property eProperty) { Follow(oControl, eProperty); });
    m_oSubscriptions.On(oContext.oAppearance.OnZoomed, [this] { ShowZoom(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* pNow) { ShowFocus(pNow); });
    ShowZoom();
    OrderByPlace();
}

// The focus moves while the widgets go.
PageView::~PageView() { disconnect(qApp, nullptr, this, nullptr); }

QWidget* PageView::WidgetOf(const Control& oControl) const {
    const auto itView = m_oViews.find(&oControl);
    return itView == m_oViews.end() ? nullptr : &itView->second.oView->Widget();
}

QSize PageView::sizeHint() const { return widget()->size() + QSize(4, 4); }

// From the back to the front, as the widgets come to lie on each other.
void PageView::AddChildren(Container& oContainer, QWidget& oAround) {
    for (Control* pChild : oContainer.Children()) {
        if (m_oViews.contains(pChild)) continue;
        auto oView = MakeControlView(*pChild, &oAround, m_oContext);
        if (!oView) continue;
        QWidget& oWidget = oView->Widget();
        oView->ShowAll();
        auto* const pInner = dynamic_cast<Container*>(pChild);
        m_oViews.emplace(pChild, Entry{std::move(oView), &oContainer, pInner});
        if (pInner) AddChildren(*pInner, oWidget);
    }
}

void PageView::Follow(const Control& oControl, Property eProperty) {
    if (eProperty == Property::Children) {
        const auto* pContainer = static_cast<const Container*>(&oControl);
        DropGone(*pContainer);
        QTimer::singleShot(0, this, [this, pContainer] { AddNew(pContainer); });
        return;
    }
    const auto itView = m_oViews.find(&oControl);
    if (itView != m_oViews.end()) itView->second.oView->Show(eProperty);
    if (eProperty != Property::FrontTab) return;
    for (const Control* pChild : static_cast<const Container&>(oControl).Children()) {
        const auto itChild = m_oViews.find(pChild);
        if (itChild != m_oViews.end()) itChild->second.oView->Show(Property::Visible);
    }
}

// A child that is gone can be asked nothing any more: what is known of it is where it stood.
void PageView::DropGone(const Container& oContainer) {
    const auto& apThere = oContainer.Children();
    std::erase_if(m_oViews, [&](const auto& oView) {
        return oView.second.pAround == &oContainer &&
               std::ranges::find(apThere, oView.first) == apThere.end();
    });
}

// By then what was new is whole, or gone again with its container.
void PageView::AddNew(const Container* pContainer) {
    if (pContainer == &m_oPage) {
        AddChildren(m_oPage, *widget());
    } else if (const auto itView = m_oViews.find(pContainer); itView != m_oViews.end()) {
        AddChildren(*itView->second.pOwn, itView->second.oView->Widget());
    }
    OrderByPlace();
}

void PageView::OrderByPlace() {
    std::vector<QWidget*> apStops;
    CollectStops(
        m_oPage, [this](const Control& oControl) { return WidgetOf(oControl); }, apStops);
    for (std::size_t nStop = 1; nStop < apStops.size(); ++nStop)
        setTabOrder(apStops[nStop - 1], apStops[nStop]);
}

// Where the keyboard goes; what the mouse takes is on show, and stays where the mouse is.
void PageView::ShowFocus(QWidget* pFocus) {
    if (!pFocus || !widget()->isAncestorOf(pFocus) || QApplication::mouseButtons() != Qt::NoButton) return;
    ensureWidgetVisible(pFocus);
}

void PageView::ShowZoom() {
    const auto& oPlace = m_oPage.Place();
    widget()->resize(m_oContext.oAppearance.Pixels(oPlace.lWidth),
                     m_oContext.oAppearance.Pixels(oPlace.lHeight));
    for (const auto& [pControl, oEntry] : m_oViews) {
        oEntry.oView->Show(Property::Font);
        oEntry.oView->Show(Property::Bounds);
    }
    updateGeometry();
}

} // namespace GleanerSvc::Workbench
