#include "workbench/pictures/TracePicture.h"

#include <qcustomplot.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "workbench/calling/FixedText.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double FirstSize = 70; // bp on show
constexpr double LastSize = 510;
constexpr double PrimerShare = 0.3; // of the scans, when there are no sizes

// The pixels are those of zoom 1.
constexpr int NamePixels = 11;
constexpr int BinNamePixels = 9;
constexpr int AxisPixels = 11;
constexpr int TitlePixels = 15;
constexpr int BarPixels = 15; // high, of the loci

constexpr int MostJoined = 2; // alleles in one name; beyond that names stand on end
constexpr int LeftMargin = 75;
constexpr int RightMargin = 15;

struct Shades {
    QColor oPaper;
    QColor oText;
    QColor oGrid;
    QColor oBin;
    QColor oBar;
};

Shades ShadesOf(bool bDark) {
    if (bDark)
        return {QColor(0x24, 0x25, 0x26), QColor(0xE8, 0xE8, 0xE8), QColor(0x3D, 0x3F, 0x42),
                QColor(0xFF, 0xFF, 0xFF, 0x26), QColor(0x4A, 0x4D, 0x52)};
    return {Qt::white, Qt::black, QColor(0xE4, 0xE4, 0xE4), QColor(0x60, 0x70, 0x80, 0x30),
            QColor(0xDD, 0xE2, 0xE8)};
}

QFont FontOf(int nPixels, double dZoom, bool bBold = false) {
    QFont oFont("DejaVu Sans");
    oFont.setPixelSize(std::max(1, static_cast<int>(std::lround(nPixels * dZoom))));
    oFont.setBold(bBold);
    return oFont;
}

// What stands above a peak.
struct Name {
    QString sLocus; // none for a fragment of the standard
    QString sText;
    double dAt = 0;
    double dHeight = 0;
};

struct Span {
    QString sName;
    double dLow = 0;
    double dHigh = 0;
};

// All that is written into the plot of one dye.
struct Marks {
    std::vector<Name> aoNames; // by place
    std::vector<Span> aoLoci;
    std::vector<Span> aoBins; // none where they are not to be shown
    Shades oShades;
    double dZoom = 1;
};

struct PlacedName {
    QString sText;
    QString sLocus;
    QRectF oRect;
    double dCentre = 0; // pixels
    double dPeak = 0;
    int nJoined = 1;
};

// Draws loci and bins under the curve and names over it, at the size and range of each moment.
class DyeRect final : public QCPAxisRect {
  public:
    DyeRect(QCustomPlot& oPlot, Marks oMarks)
        : QCPAxisRect(&oPlot), m_oMarks(std::move(oMarks)), m_oNames(new NameLayer(oPlot, *this)) {}

  protected:
    void draw(QCPPainter* pPainter) override {
        QCPAxisRect::draw(pPainter);
        pPainter->save();
        pPainter->setClipRect(rect());
        pPainter->setAntialiasing(false);
        for (const auto& oBin : m_oMarks.aoBins) DrawBin(*pPainter, oBin);
        pPainter->restore();
    }

  private:
    // Above the curves.
    class NameLayer final : public QCPLayerable {
      public:
        NameLayer(QCustomPlot& oPlot, const DyeRect& oOwner)
            : QCPLayerable(&oPlot, "overlay"), m_oOwner(oOwner) {}

      protected:
        void applyDefaultAntialiasingHint(QCPPainter* pPainter) const override {
            pPainter->setAntialiasing(true);
        }
        void draw(QCPPainter* pPainter) override { m_oOwner.DrawNames(*pPainter); }

      private:
        const DyeRect& m_oOwner;
    };

    double PixelAt(double dAt) const { return axis(QCPAxis::atBottom)->coordToPixel(dAt); }
    double PixelOf(double dHeight) const { return axis(QCPAxis::atLeft)->coordToPixel(dHeight); }
    double BinNameHeight() const { return BinNamePixels * 1.3 * m_oMarks.dZoom; }
    // Of what no name of a peak may cover.
    double HeadHeight() const { return BarHeight() + (NamesBins() ? BinNameHeight() : 0); }
    // A bin is named where its name fits into it.
    bool NamesBins() const {
        const QFontMetricsF oMetrics(FontOf(BinNamePixels, m_oMarks.dZoom));
        return std::any_of(m_oMarks.aoBins.begin(), m_oMarks.aoBins.end(), [&](const Span& oBin) {
            return oMetrics.horizontalAdvance(oBin.sName) <= PixelAt(oBin.dHigh) - PixelAt(oBin.dLow);
        });
    }
    double BarHeight() const { return m_oMarks.aoLoci.empty() ? 0 : BarPixels * m_oMarks.dZoom; }

    void DrawBin(QCPPainter& oPainter, const Span& oBin) const {
        const double dLow = PixelAt(oBin.dLow);
        const double dHigh = PixelAt(oBin.dHigh);
        if (dHigh < left() || dLow > right()) return;
        const double dTop = top() + BarHeight();
        oPainter.fillRect(QRectF(dLow, dTop, std::max(1.0, dHigh - dLow), bottom() - dTop),
                          m_oMarks.oShades.oBin);
        const QFont oFont = FontOf(BinNamePixels, m_oMarks.dZoom);
        const QFontMetricsF oMetrics(oFont);
        if (oMetrics.horizontalAdvance(oBin.sName) > dHigh - dLow) return;
        oPainter.setFont(oFont);
        oPainter.setPen(m_oMarks.oShades.oText);
        oPainter.drawText(QRectF(dLow, dTop, dHigh - dLow, BinNameHeight()), Qt::AlignCenter, oBin.sName);
    }

    void DrawLoci(QCPPainter& oPainter) const {
        const QFont oFont = FontOf(NamePixels, m_oMarks.dZoom);
        const QFontMetricsF oMetrics(oFont);
        oPainter.setFont(oFont);
        double dFree = left();
        for (const auto& oLocus : m_oMarks.aoLoci) {
            const double dLow = std::max(PixelAt(oLocus.dLow), static_cast<double>(left()));
            const double dHigh = std::min(PixelAt(oLocus.dHigh), right() + 1.0);
            if (dHigh <= dLow) continue;
            const QRectF oBar(dLow, top() + 1, dHigh - dLow, BarHeight() - 2);
            oPainter.fillRect(oBar, m_oMarks.oShades.oBar);
            const double dHalf = oMetrics.horizontalAdvance(oLocus.sName) / 2 + 2;
            const double dCentre =
                std::clamp(oBar.center().x(), left() + dHalf, std::max(left() + dHalf, right() - dHalf));
            if (dCentre - dHalf < dFree) continue;
            dFree = dCentre + dHalf;
            oPainter.setPen(m_oMarks.oShades.oText);
            oPainter.drawText(QRectF(dCentre - dHalf, oBar.top(), 2 * dHalf, oBar.height()), Qt::AlignCenter,
                              oLocus.sName);
        }
    }

    // Never above the loci: of a peak that is cut the name stands at the top.
    QRectF AboveThePeak(const PlacedName& oName, const QSizeF& oSize) const {
        const double dBottom = std::max(oName.dPeak - 1, top() + HeadHeight() + oSize.height());
        return {oName.dCentre - oSize.width() / 2, dBottom - oSize.height(), oSize.width(), oSize.height()};
    }

    static QSizeF SizeOf(const QFontMetricsF& oMetrics, const QString& sText) {
        return oMetrics.size(0, sText) + QSizeF(2, 0);
    }

    std::vector<PlacedName> OnShow() const {
        std::vector<PlacedName> aoShown;
        for (const auto& oName : m_oMarks.aoNames) {
            const double dAt = PixelAt(oName.dAt);
            if (dAt < left() || dAt > right()) continue;
            aoShown.push_back({oName.sText, oName.sLocus, {}, dAt, PixelOf(oName.dHeight)});
        }
        return aoShown;
    }

    // Alleles of a locus that are too close for a name each share one. Where no bar tells the locus, its
    // first name bears it.
    std::vector<PlacedName> Upright(const QFontMetricsF& oMetrics) const {
        std::vector<PlacedName> aoPlaced;
        QString sLocus;
        for (auto& oName : OnShow()) {
            const bool bNewLocus = oName.sLocus != sLocus;
            sLocus = oName.sLocus;
            if (bNewLocus && m_oMarks.aoLoci.empty() && !sLocus.isEmpty())
                oName.sText = sLocus + "\n" + oName.sText;
            oName.oRect = AboveThePeak(oName, SizeOf(oMetrics, oName.sText));
            if (aoPlaced.empty() || bNewLocus || oName.oRect.left() > aoPlaced.back().oRect.right()) {
                aoPlaced.push_back(oName);
                continue;
            }
            PlacedName& oShared = aoPlaced.back();
            oShared.sText += ", " + oName.sText;
            oShared.dCentre += (oName.dCentre - oShared.dCentre) / ++oShared.nJoined;
            oShared.dPeak = std::min(oShared.dPeak, oName.dPeak);
            oShared.oRect = AboveThePeak(oShared, SizeOf(oMetrics, oShared.sText));
        }
        return aoPlaced;
    }

    std::vector<PlacedName> OnEnd(const QFontMetricsF& oMetrics) const {
        auto aoPlaced = OnShow();
        for (auto& oName : aoPlaced)
            oName.oRect = AboveThePeak(oName, SizeOf(oMetrics, oName.sText).transposed());
        return aoPlaced;
    }

    // A name in the way of an earlier one is left out until there is room.
    static void DropOverlaps(std::vector<PlacedName>& aoPlaced) {
        std::vector<PlacedName> aoFree;
        for (const auto& oName : aoPlaced) {
            const bool bTaken = std::any_of(aoFree.begin(), aoFree.end(), [&](const auto& oOther) {
                return oOther.oRect.intersects(oName.oRect);
            });
            if (!bTaken) aoFree.push_back(oName);
        }
        aoPlaced = aoFree;
    }

    void DrawNames(QCPPainter& oPainter) const {
        oPainter.save();
        oPainter.setClipRect(rect());
        DrawLoci(oPainter);
        QFont oFont = FontOf(NamePixels, m_oMarks.dZoom);
        auto aoPlaced = Upright(QFontMetricsF(oFont));
        const bool bUpright = std::all_of(aoPlaced.begin(), aoPlaced.end(),
                                          [](const auto& oName) { return oName.nJoined <= MostJoined; });
        if (!bUpright) {
            oFont = FontOf(NamePixels - 2, m_oMarks.dZoom);
            aoPlaced = OnEnd(QFontMetricsF(oFont));
        }
        DropOverlaps(aoPlaced);
        oPainter.setFont(oFont);
        oPainter.setPen(m_oMarks.oShades.oText);
        for (const auto& oName : aoPlaced) {
            QColor oVeil = m_oMarks.oShades.oPaper; // a curve behind a name stays behind
            oVeil.setAlpha(0xB4);
            oPainter.fillRect(oName.oRect, oVeil);
            DrawName(oPainter, oName, bUpright);
        }
        oPainter.restore();
    }

    static void DrawName(QCPPainter& oPainter, const PlacedName& oName, bool bUpright) {
        if (bUpright) {
            oPainter.drawText(oName.oRect, Qt::AlignHCenter | Qt::AlignBottom, oName.sText);
            return;
        }
        oPainter.save();
        oPainter.translate(oName.oRect.bottomLeft());
        oPainter.rotate(-90);
        oPainter.drawText(QRectF(QPointF(0, 0), oName.oRect.size().transposed()),
                          Qt::AlignLeft | Qt::AlignVCenter, oName.sText);
        oPainter.restore();
    }

    Marks m_oMarks;
    std::unique_ptr<NameLayer> m_oNames;
};

std::vector<Name> NamesOf(const TraceView& oView, const TraceLook& oLook, std::size_t nDye) {
    std::vector<Name> aoNames;
    const auto& aoPeaks = oView.oSized.aoPeaks;
    for (const auto& oCall : oView.oCalled.aoCalls) {
        if (oCall.nPeak >= aoPeaks.size() || aoPeaks[oCall.nPeak].nDye != nDye) continue;
        const auto oAt = PlaceOnAxis(oView, aoPeaks[oCall.nPeak].dScan);
        if (oAt)
            aoNames.push_back({QString::fromStdString(oCall.sLocus), QString::fromStdString(oCall.sAllele),
                               *oAt, aoPeaks[oCall.nPeak].dHeight});
    }
    if (!oLook.bStandard || nDye + 1 != oView.oTrace.aoDyes.size()) return aoNames;
    for (const auto& oPoint : oView.oSized.oFit.aoPoints) {
        const auto oPeak = std::find_if(aoPeaks.begin(), aoPeaks.end(), [&](const Peak& oOther) {
            return oOther.nDye == nDye && oOther.dScan == oPoint.dScan;
        });
        if (const auto oAt = PlaceOnAxis(oView, oPoint.dScan))
            aoNames.push_back({"", QString::fromStdString(FixedText(oPoint.dSize, 0)), *oAt,
                               oPeak == aoPeaks.end() ? 0 : oPeak->dHeight});
    }
    return aoNames;
}

Marks MarksOf(const TraceView& oView, const TraceLook& oLook, std::size_t nDye) {
    Marks oMarks{NamesOf(oView, oLook, nDye), {}, {}, ShadesOf(oLook.bDark), oLook.dZoom};
    std::stable_sort(oMarks.aoNames.begin(), oMarks.aoNames.end(),
                     [](const Name& oOne, const Name& oOther) { return oOne.dAt < oOther.dAt; });
    if (!oLook.bBins || !oView.oSized.IsSized()) return oMarks; // bins are in bp
    for (const auto& oBin : oView.aoBins) {
        if (oBin.nDye != nDye) continue;
        oMarks.aoBins.push_back({QString::fromStdString(oBin.sAllele), oBin.dLow, oBin.dHigh});
        const auto sLocus = QString::fromStdString(oBin.sLocus);
        if (oMarks.aoLoci.empty() || oMarks.aoLoci.back().sName != sLocus)
            oMarks.aoLoci.push_back({sLocus, oBin.dLow, oBin.dHigh});
        oMarks.aoLoci.back().dLow = std::min(oMarks.aoLoci.back().dLow, oBin.dLow);
        oMarks.aoLoci.back().dHigh = std::max(oMarks.aoLoci.back().dHigh, oBin.dHigh);
    }
    std::stable_sort(oMarks.aoLoci.begin(), oMarks.aoLoci.end(),
                     [](const Span& oOne, const Span& oOther) { return oOne.dLow < oOther.dLow; });
    return oMarks;
}

// Where each scan stands on the axis; a sized trace has no place for those beyond its standard.
std::vector<std::optional<double>> PlacesOf(const TraceView& oView) {
    std::vector<std::optional<double>> aoPlaces(oView.oTrace.Scans());
    for (std::size_t nScan = 0; nScan < aoPlaces.size(); ++nScan)
        aoPlaces[nScan] = PlaceOnAxis(oView, static_cast<double>(nScan));
    return aoPlaces;
}

// Draws the curve and returns its highest point on show.
double PlotSignal(QCPAxisRect& oRect, const std::vector<std::optional<double>>& aoPlaces,
                  const DyeSignal& oDye, const QPen& oPen) {
    const QCPRange oShown = oRect.axis(QCPAxis::atBottom)->range();
    QVector<double> adAt;
    QVector<double> adHeights;
    double dHighest = 1;
    const auto adSignal = CorrectedSignal(oDye);
    for (std::size_t nScan = 0; nScan < adSignal.size(); ++nScan) {
        if (!aoPlaces[nScan]) continue;
        adAt.append(*aoPlaces[nScan]);
        adHeights.append(adSignal[nScan]);
        if (oShown.contains(*aoPlaces[nScan])) dHighest = std::max(dHighest, adSignal[nScan]);
    }
    auto* pGraph = oRect.parentPlot()->addGraph(oRect.axis(QCPAxis::atBottom), oRect.axis(QCPAxis::atLeft));
    pGraph->setPen(oPen);
    pGraph->setData(adAt, adHeights, true);
    return dHighest;
}

void DressAxis(QCPAxis& oAxis, const TraceLook& oLook, int nTicks) {
    const Shades oShades = ShadesOf(oLook.bDark);
    oAxis.setBasePen(oShades.oText);
    oAxis.setTickPen(oShades.oText);
    oAxis.setSubTickPen(oShades.oText);
    oAxis.setTickLabelColor(oShades.oText);
    oAxis.setLabelColor(oShades.oText);
    oAxis.setTickLabelFont(FontOf(AxisPixels, oLook.dZoom));
    oAxis.setLabelFont(FontOf(AxisPixels, oLook.dZoom));
    oAxis.ticker()->setTickCount(nTicks);
    oAxis.grid()->setPen(QPen(oShades.oGrid, 1, Qt::DotLine));
    oAxis.grid()->setZeroLinePen(Qt::NoPen);
    oAxis.setNumberFormat("f"); // never 1e+04
    oAxis.setNumberPrecision(0);
}

int Pixels(int nPixels, const TraceLook& oLook) {
    return static_cast<int>(std::lround(nPixels * oLook.dZoom));
}

DyeRect* PlotDye(QCustomPlot& oPlot, const TraceView& oView, const TraceLook& oLook,
                 const std::vector<std::optional<double>>& aoPlaces, std::size_t nDye) {
    auto* pRect = new DyeRect(oPlot, MarksOf(oView, oLook, nDye)); // the layout owns it
    pRect->setAutoMargins(QCP::msTop | QCP::msBottom);             // at the sides all dyes have the same
    pRect->setMinimumMargins(QMargins(0, Pixels(3, oLook), 0, Pixels(3, oLook)));
    pRect->setMargins(QMargins(Pixels(LeftMargin, oLook), 0, Pixels(RightMargin, oLook), 0));
    oPlot.plotLayout()->addElement(oPlot.plotLayout()->rowCount(), 0, pRect);
    QCPAxis& oBottom = *pRect->axis(QCPAxis::atBottom);
    QCPAxis& oLeft = *pRect->axis(QCPAxis::atLeft);
    DressAxis(oBottom, oLook, 9);
    DressAxis(oLeft, oLook, 3);
    const QColor oInk = DyeInk(nDye, oLook.bDark);
    const TraceAxis oAxis = AxisOf(oView);
    oBottom.setRange(oAxis.dFirst, oAxis.dLast);
    const double dHighest =
        PlotSignal(*pRect, aoPlaces, oView.oTrace.aoDyes[nDye], QPen(oInk, std::max(1.0, oLook.dZoom)));
    oBottom.setTickLabels(false);
    oLeft.setSubTicks(false);
    oLeft.setRange(-0.03 * dHighest, HeadRoom * dHighest);
    oLeft.setLabel(QString::fromStdString(oView.oTrace.aoDyes[nDye].sName) + " [RFU]");
    oLeft.setLabelColor(oInk);
    return pRect;
}

} // namespace

TraceAxis AxisOf(const TraceView& oView) {
    const auto& aoPoints = oView.oSized.oFit.aoPoints;
    if (!aoPoints.empty())
        return {true, FirstSize, LastSize, std::min(FirstSize, aoPoints.front().dSize),
                std::max(LastSize, aoPoints.back().dSize)};
    const auto dScans = std::max(1.0, static_cast<double>(oView.oTrace.Scans()));
    return {false, dScans * PrimerShare, dScans, 0, dScans};
}

std::optional<double> PlaceOnAxis(const TraceView& oView, double dScan) {
    if (!oView.oSized.IsSized()) return dScan;
    return SizeAt(oView.oSized.oFit, dScan);
}

QColor DyeInk(std::size_t nDye, bool bDark) {
    static const std::array<QColor, 5> aoInks = {QColor(0x1F, 0x4E, 0xB4), QColor(0x1E, 0x8E, 0x3E),
                                                 QColor(0x8A, 0x6D, 0x00), QColor(0xC6, 0x28, 0x28),
                                                 QColor(0xC2, 0x5E, 0x00)};
    static const std::array<QColor, 5> aoBright = {QColor(0x7F, 0xB0, 0xFF), QColor(0x6B, 0xD8, 0x85),
                                                   QColor(0xF0, 0xD0, 0x58), QColor(0xFF, 0x80, 0x78),
                                                   QColor(0xFF, 0xAC, 0x52)};
    return (bDark ? aoBright : aoInks).at(nDye % aoInks.size());
}

void PlotTrace(QCustomPlot& oPlot, const TraceView& oView, const TraceLook& oLook) {
    const Shades oShades = ShadesOf(oLook.bDark);
    oPlot.clearItems();
    oPlot.clearPlottables();
    oPlot.plotLayout()->clear();
    oPlot.plotLayout()->setRowSpacing(0);
    oPlot.setPlottingHint(QCP::phFastPolylines); // a wide pen along a trace of many scans is slow otherwise
    oPlot.setBackground(oShades.oPaper);
    if (!oView.sTitle.empty()) {
        auto* pTitle = new QCPTextElement(&oPlot, QString::fromStdString(oView.sTitle),
                                          FontOf(TitlePixels, oLook.dZoom, true));
        pTitle->setTextColor(oShades.oText);
        oPlot.plotLayout()->addElement(0, 0, pTitle);
    }
    const auto aoPlaces = PlacesOf(oView);
    DyeRect* pLast = nullptr;
    for (std::size_t nDye = 0; nDye < oView.oTrace.aoDyes.size(); ++nDye) {
        if (!oLook.oHiddenDyes.contains(nDye)) pLast = PlotDye(oPlot, oView, oLook, aoPlaces, nDye);
    }
    if (!pLast) return;
    pLast->axis(QCPAxis::atBottom)->setTickLabels(true);
    pLast->axis(QCPAxis::atBottom)->setLabel(AxisOf(oView).bSized ? "Size [bp]" : "Scan");
}

QImage DrawTrace(const TraceView& oView, int nWidth, int nHeight) {
    QCustomPlot oPlot;
    PlotTrace(oPlot, oView);
    return oPlot.toPixmap(nWidth, nHeight).toImage();
}

} // namespace GleanerSvc::Workbench
