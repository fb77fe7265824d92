#include "workbench/window/TracePlot.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace GleanerSvc::Workbench {

namespace {

constexpr int LeastDyeHeight = 84; // pixels at zoom 1
constexpr int AxisHeight = 40;
constexpr double LeastShare = 0.005; // of the axis, that can be on show
constexpr double WheelFactor = 1.25;
constexpr double Floor = -0.03; // of the highest peak, below the baseline

// The heights on show and the range, from one plot to another of the same trace.
void CopyHeights(const QCustomPlot& oFrom, QCustomPlot& oTo) {
    const auto aoFrom = oFrom.axisRects();
    const auto aoTo = oTo.axisRects();
    for (qsizetype n = 0; n < std::min(aoFrom.size(), aoTo.size()); ++n) {
        for (const auto eSide : {QCPAxis::atLeft, QCPAxis::atBottom})
            aoTo[n]->axis(eSide)->setRange(aoFrom[n]->axis(eSide)->range());
    }
}

} // namespace

TracePlot::TracePlot(const TraceView& oView, QWidget* pParent)
    : QCustomPlot(pParent), m_oView(oView), m_dFirst(AxisOf(oView).dFirst), m_dLast(AxisOf(oView).dLast) {
    plotLayout()->clear(); // a plot begins with a rectangle of its own
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Electropherogram");
    setCursor(Qt::OpenHandCursor);
    Look({});
}

void TracePlot::Look(const TraceLook& oLook) {
    std::vector<QCPRange> aoHeights(m_oView.oTrace.aoDyes.size());
    for (std::size_t nDye = 0; nDye < aoHeights.size(); ++nDye) {
        if (const auto* pRect = RectOf(nDye)) aoHeights[nDye] = pRect->axis(QCPAxis::atLeft)->range();
    }
    m_oLook = oLook;
    PlotTrace(*this, m_oView, m_oLook);
    for (std::size_t nDye = 0; nDye < aoHeights.size(); ++nDye) {
        auto* pRect = RectOf(nDye);
        if (pRect && aoHeights[nDye].size() > 0 && aoHeights[nDye].upper > 0)
            pRect->axis(QCPAxis::atLeft)->setRange(aoHeights[nDye]);
    }
    const double dHeight = LeastDyeHeight * static_cast<double>(axisRectCount()) + AxisHeight;
    setMinimumHeight(static_cast<int>(std::lround(dHeight * m_oLook.dZoom)));
    ShowRange();
}

void TracePlot::Show(double dFirst, double dLast) {
    const TraceAxis oAxis = AxisOf(m_oView);
    const double dAll = oAxis.dMost - oAxis.dLeast;
    const double dWide = std::clamp(dLast - dFirst, LeastShare * dAll, dAll);
    const double dMiddle = (dFirst + dLast) / 2;
    m_dFirst = std::clamp(dMiddle - dWide / 2, oAxis.dLeast, oAxis.dMost - dWide);
    m_dLast = m_dFirst + dWide;
    ShowRange();
}

void TracePlot::Zoom(double dFactor) { ZoomAbout(dFactor, (m_dFirst + m_dLast) / 2); }

void TracePlot::Pan(double dShare) {
    const double dStep = dShare * (m_dLast - m_dFirst);
    Show(m_dFirst + dStep, m_dLast + dStep);
}

void TracePlot::ShowAll() {
    const TraceAxis oAxis = AxisOf(m_oView);
    Show(oAxis.dFirst, oAxis.dLast);
    FitHeights();
}

void TracePlot::Raise(double dFactor) {
    for (auto* pRect : axisRects()) {
        QCPAxis& oHeights = *pRect->axis(QCPAxis::atLeft);
        const double dTop = std::clamp(oHeights.range().upper / dFactor, 10.0, 1e5);
        oHeights.setRange(Floor / HeadRoom * dTop, dTop);
    }
    replot(rpQueuedReplot);
}

void TracePlot::FitHeights() {
    for (auto* pRect : axisRects()) {
        double dHighest = 1;
        for (auto* pGraph : pRect->graphs()) {
            bool bFound = false;
            const auto oRange = pGraph->getValueRange(bFound, QCP::sdBoth, QCPRange(m_dFirst, m_dLast));
            if (bFound) dHighest = std::max(dHighest, oRange.upper);
        }
        pRect->axis(QCPAxis::atLeft)->setRange(Floor * dHighest, HeadRoom * dHighest);
    }
    replot(rpQueuedReplot);
}

double TracePlot::HighestShown(std::size_t nDye) const {
    const auto* pRect = RectOf(nDye);
    return pRect ? pRect->axis(QCPAxis::atLeft)->range().upper : 0;
}

void TracePlot::Mark(std::optional<std::size_t> oPeak) {
    m_oMarked = oPeak;
    if (oPeak && *oPeak < m_oView.oSized.aoPeaks.size()) {
        const auto oAt = PlaceOnAxis(m_oView, m_oView.oSized.aoPeaks[*oPeak].dScan);
        const double dHalf = (m_dLast - m_dFirst) / 2;
        if (oAt && (*oAt < m_dFirst || *oAt > m_dLast)) Show(*oAt - dHalf, *oAt + dHalf);
    }
    DrawMark();
    replot(rpQueuedReplot);
}

QImage TracePlot::Picture(const std::string& sTitle) const {
    constexpr double Finer = 2;
    TraceView oView = m_oView;
    oView.sTitle = sTitle;
    QCustomPlot oPicture;
    PlotTrace(oPicture, oView, m_oLook);
    CopyHeights(*this, oPicture);
    return oPicture.toPixmap(width(), height(), Finer).toImage();
}

// A layout that settles in many steps is drawn once.
void TracePlot::resizeEvent(QResizeEvent* /*pEvent*/) {
    setViewport(rect());
    replot(rpQueuedReplot);
}

// A plain wheel scrolls what the plot lies in.
void TracePlot::wheelEvent(QWheelEvent* pEvent) {
    const double dTurns = pEvent->angleDelta().y() / 120.0;
    if (pEvent->modifiers().testFlag(Qt::ControlModifier)) {
        ZoomAbout(std::pow(WheelFactor, dTurns), PlaceAt(pEvent->position().x()));
    } else if (pEvent->modifiers().testFlag(Qt::ShiftModifier)) {
        Pan(-0.1 * dTurns);
    } else {
        pEvent->ignore();
        return;
    }
    pEvent->accept();
}

void TracePlot::mousePressEvent(QMouseEvent* pEvent) {
    if (pEvent->button() != Qt::LeftButton) return;
    m_oDragged = pEvent->position().x();
    m_dDragFirst = m_dFirst;
    m_bMoved = false;
}

void TracePlot::mouseMoveEvent(QMouseEvent* pEvent) {
    if (!m_oDragged || axisRectCount() == 0) return;
    const double dMoved = pEvent->position().x() - *m_oDragged;
    if (!m_bMoved && std::abs(dMoved) < QApplication::startDragDistance()) return;
    m_bMoved = true;
    const double dWide = m_dLast - m_dFirst;
    const double dFirst = m_dDragFirst - dMoved / std::max(1, axisRect()->width()) * dWide;
    Show(dFirst, dFirst + dWide);
}

void TracePlot::mouseReleaseEvent(QMouseEvent* pEvent) {
    const bool bClicked = m_oDragged && !m_bMoved;
    m_oDragged.reset();
    if (bClicked && pEvent->button() == Qt::LeftButton) Pick(pEvent->position());
}

void TracePlot::ZoomAbout(double dFactor, double dAt) {
    Show(dAt - (dAt - m_dFirst) / dFactor, dAt + (m_dLast - dAt) / dFactor);
}

void TracePlot::ShowRange() {
    for (auto* pRect : axisRects()) pRect->axis(QCPAxis::atBottom)->setRange(m_dFirst, m_dLast);
    DrawMark();
    replot(rpQueuedReplot);
}

void TracePlot::DrawMark() {
    clearItems();
    if (!m_oMarked || *m_oMarked >= m_oView.oSized.aoPeaks.size()) return;
    const Peak& oPeak = m_oView.oSized.aoPeaks[*m_oMarked];
    auto* pRect = RectOf(oPeak.nDye);
    const auto oAt = PlaceOnAxis(m_oView, oPeak.dScan);
    if (!pRect || !oAt) return;
    auto* pLine = new QCPItemLine(this); // the plot owns it
    pLine->setPen(QPen(palette().color(QPalette::Text), 2 * std::max(1.0, m_oLook.dZoom), Qt::DashLine));
    pLine->setClipAxisRect(pRect);
    for (auto* pEnd : {pLine->start, pLine->end}) {
        pEnd->setTypeX(QCPItemPosition::ptPlotCoords);
        pEnd->setTypeY(QCPItemPosition::ptAxisRectRatio);
        pEnd->setAxisRect(pRect);
        pEnd->setAxes(pRect->axis(QCPAxis::atBottom), pRect->axis(QCPAxis::atLeft));
    }
    pLine->start->setTypeY(QCPItemPosition::ptPlotCoords); // from the apex down: names stay free
    pLine->start->setCoords(*oAt, oPeak.dHeight);
    pLine->end->setCoords(*oAt, 1);
}

// The nearest peak of the dye that was clicked at, if it is near.
void TracePlot::Pick(const QPointF& oPoint) {
    constexpr double Reach = 8; // pixels
    const auto* pRect = axisRectAt(oPoint);
    double dLeast = Reach * m_oLook.dZoom;
    std::optional<std::size_t> oPicked;
    for (std::size_t nPeak = 0; pRect && nPeak < m_oView.oSized.aoPeaks.size(); ++nPeak) {
        const Peak& oPeak = m_oView.oSized.aoPeaks[nPeak];
        const auto oAt = PlaceOnAxis(m_oView, oPeak.dScan);
        if (!oAt || RectOf(oPeak.nDye) != pRect) continue;
        const double dAway = std::abs(pRect->axis(QCPAxis::atBottom)->coordToPixel(*oAt) - oPoint.x());
        if (dAway > dLeast) continue;
        dLeast = dAway;
        oPicked = nPeak;
    }
    if (oPicked) OnPicked.Raise(*oPicked);
}

QCPAxisRect* TracePlot::RectOf(std::size_t nDye) const {
    if (nDye >= m_oView.oTrace.aoDyes.size() || m_oLook.oHiddenDyes.contains(nDye)) return nullptr;
    const auto nHidden = std::ranges::count_if(m_oLook.oHiddenDyes, [&](auto n) { return n < nDye; });
    const auto nRect = static_cast<std::ptrdiff_t>(nDye) - nHidden;
    return nRect < axisRectCount() ? axisRect(static_cast<int>(nRect)) : nullptr;
}

double TracePlot::PlaceAt(double dPixel) const {
    return axisRectCount() == 0 ? m_dFirst : axisRect()->axis(QCPAxis::atBottom)->pixelToCoord(dPixel);
}

} // namespace GleanerSvc::Workbench
