#include "workbench/pictures/TracePicture.h"

#include <qcustomplot.h>

#include <algorithm>
#include <array>

namespace GleanerSvc::Workbench {

namespace {

constexpr double FirstSize = 70; // bp on show
constexpr double LastSize = 510;
constexpr double PrimerShare = 0.3; // of the scans, when there are no sizes
constexpr double HeadRoom = 1.35;   // above the highest peak, for the names of alleles

QColor InkOf(std::size_t nDye) {
    static const std::array<QColor, 5> aoInks = {QColor(0x1F, 0x4E, 0xB4), QColor(0x1E, 0x8E, 0x3E),
                                                 QColor(0x8A, 0x6D, 0x00), QColor(0xC6, 0x28, 0x28),
                                                 QColor(0xE0, 0x7B, 0x00)};
    return aoInks.at(nDye % aoInks.size());
}

// The part of the trace on show, and its axis.
struct Window {
    const SizeFit* pFit; // nothing where the axis is in scans
    double dFirst;
    double dLast;

    double At(double dScan) const {
        if (!pFit) return dScan;
        const auto dSize = SizeAt(*pFit, dScan);
        return dSize ? *dSize : -1;
    }
    bool Shows(double dAt) const { return dAt >= dFirst && dAt <= dLast; }
};

Window WindowOf(const TraceView& oView) {
    if (oView.oSized.IsSized()) return {&oView.oSized.oFit, FirstSize, LastSize};
    const auto dScans = static_cast<double>(oView.oTrace.Scans());
    return {nullptr, dScans * PrimerShare, dScans};
}

// Draws the curve and returns its highest point on show.
double PlotSignal(QCPAxisRect& oRect, const DyeSignal& oDye, const Window& oWindow, const QColor& oInk) {
    QVector<double> adAt;
    QVector<double> adHeights;
    double dHighest = 1;
    const auto adSignal = CorrectedSignal(oDye);
    for (std::size_t nScan = 0; nScan < adSignal.size(); ++nScan) {
        const double dAt = oWindow.At(static_cast<double>(nScan));
        if (!oWindow.Shows(dAt)) continue;
        adAt.append(dAt);
        adHeights.append(adSignal[nScan]);
        dHighest = std::max(dHighest, adSignal[nScan]);
    }
    auto* pGraph = oRect.parentPlot()->addGraph(oRect.axis(QCPAxis::atBottom), oRect.axis(QCPAxis::atLeft));
    pGraph->setPen(QPen(oInk, 1));
    pGraph->setData(adAt, adHeights, true);
    return dHighest;
}

// Names stand above their peaks: upright, or on end where there are many.
struct Name {
    QString sText;
    double dAt = 0;
    double dHeight = 0;
};

void PutName(QCPAxisRect& oRect, const Name& oName, bool bUpright) {
    auto* pText = new QCPItemText(oRect.parentPlot()); // the plot owns its items
    pText->position->setAxisRect(&oRect);
    pText->position->setAxes(oRect.axis(QCPAxis::atBottom), oRect.axis(QCPAxis::atLeft));
    pText->position->setCoords(oName.dAt, oName.dHeight);
    pText->setClipAxisRect(&oRect);
    pText->setPositionAlignment(bUpright ? Qt::AlignBottom | Qt::AlignHCenter
                                         : Qt::AlignLeft | Qt::AlignVCenter);
    pText->setRotation(bUpright ? 0 : -90);
    pText->setPadding(QMargins(2, 1, 2, 1));
    pText->setText(oName.sText);
    pText->setFont(QFont("DejaVu Sans", bUpright ? 8 : 6));
}

std::vector<const AlleleCall*> CallsOfDye(const TraceView& oView, std::size_t nDye) {
    std::vector<const AlleleCall*> aoCalls;
    for (const auto& oCall : oView.oCalled.aoCalls) {
        if (oCall.nPeak < oView.oSized.aoPeaks.size() && oView.oSized.aoPeaks[oCall.nPeak].nDye == nDye)
            aoCalls.push_back(&oCall);
    }
    return aoCalls;
}

// Upright, the first name of a locus bears the locus, and alleles too close for a name each share one.
void NameAlleles(QCPAxisRect& oRect, const TraceView& oView, const Window& oWindow, std::size_t nDye) {
    constexpr std::size_t MostUpright = 24;
    constexpr double CloseShare = 0.02; // of the axis
    const auto aoCalls = CallsOfDye(oView, nDye);
    const bool bUpright = aoCalls.size() <= MostUpright;
    std::vector<Name> aoNames;
    std::string sLocus;
    double dLast = 0;
    for (const auto* pCall : aoCalls) {
        const Peak& oPeak = oView.oSized.aoPeaks[pCall->nPeak];
        const double dAt = oWindow.At(oPeak.dScan);
        const bool bNewLocus = pCall->sLocus != sLocus;
        const auto sAllele = QString::fromStdString(pCall->sAllele);
        if (bUpright && !bNewLocus && dAt - dLast < CloseShare * (oWindow.dLast - oWindow.dFirst)) {
            Name& oShared = aoNames.back();
            oShared = {oShared.sText + ", " + sAllele, (oShared.dAt + dAt) / 2,
                       std::max(oShared.dHeight, oPeak.dHeight)};
        } else {
            const auto sHeading =
                bUpright && bNewLocus ? QString::fromStdString(pCall->sLocus) + "\n" : QString();
            aoNames.push_back({sHeading + sAllele, dAt, oPeak.dHeight});
        }
        sLocus = pCall->sLocus;
        dLast = dAt;
    }
    for (const auto& oName : aoNames) PutName(oRect, oName, bUpright);
}

void PlotDye(QCustomPlot& oPlot, const TraceView& oView, const Window& oWindow, std::size_t nDye) {
    const DyeSignal& oDye = oView.oTrace.aoDyes[nDye];
    auto* pRect = new QCPAxisRect(&oPlot);             // the layout owns it
    pRect->setAutoMargins(QCP::msTop | QCP::msBottom); // at the sides all dyes have the same
    pRect->setMargins(QMargins(75, 0, 15, 0));
    oPlot.plotLayout()->addElement(static_cast<int>(nDye) + 1, 0, pRect);
    const double dHighest = PlotSignal(*pRect, oDye, oWindow, InkOf(nDye));
    pRect->axis(QCPAxis::atBottom)->setRange(oWindow.dFirst, oWindow.dLast);
    pRect->axis(QCPAxis::atLeft)->setRange(-0.03 * dHighest, HeadRoom * dHighest);
    pRect->axis(QCPAxis::atLeft)->setLabel(QString::fromStdString(oDye.sName) + " [RFU]");
    pRect->axis(QCPAxis::atLeft)->setLabelColor(InkOf(nDye));
    pRect->axis(QCPAxis::atLeft)->setLabelFont(QFont("DejaVu Sans", 8));
    if (nDye + 1 == oView.oTrace.aoDyes.size())
        pRect->axis(QCPAxis::atBottom)->setLabel(oWindow.pFit ? "Size [bp]" : "Scan");
    NameAlleles(*pRect, oView, oWindow, nDye);
}

} // namespace

void PlotTrace(QCustomPlot& oPlot, const TraceView& oView) {
    oPlot.clearItems();
    oPlot.clearPlottables();
    oPlot.plotLayout()->clear();
    oPlot.plotLayout()->addElement(0, 0,
                                   new QCPTextElement(&oPlot, QString::fromStdString(oView.sTitle),
                                                      QFont("DejaVu Sans", 11, QFont::Bold)));
    const Window oWindow = WindowOf(oView);
    for (std::size_t nDye = 0; nDye < oView.oTrace.aoDyes.size(); ++nDye)
        PlotDye(oPlot, oView, oWindow, nDye);
}

QImage DrawTrace(const TraceView& oView, int nWidth, int nHeight) {
    QCustomPlot oPlot;
    oPlot.setBackground(Qt::white);
    PlotTrace(oPlot, oView);
    return oPlot.toPixmap(nWidth, nHeight).toImage();
}

} // namespace GleanerSvc::Workbench
