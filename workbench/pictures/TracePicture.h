// A picture of a trace: a plot for each dye above a common axis, with the alleles that were called, the bins
// of the panel and the fragments of the size standard.
#pragma once

#include <QColor>
#include <QImage>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "workbench/calling/Calling.h"

class QCustomPlot;

namespace GleanerSvc::Workbench {

// A bin as it lies in this run, in bp.
struct BinMark {
    std::string sLocus;
    std::string sAllele;
    std::size_t nDye = 0;
    double dLow = 0;
    double dHigh = 0;
};

struct TraceView {
    const Trace& oTrace;
    const SizedTrace& oSized;
    const CalledTrace& oCalled;
    std::string sTitle{};          // none where it is empty
    std::vector<BinMark> aoBins{}; // by locus
};

struct TraceLook {
    bool bDark = false;
    double dZoom = 1; // 1 is made for a screen of 96 pixels an inch
    bool bBins = true;
    bool bStandard = true; // the sizes of the standard's fragments
    std::set<std::size_t> oHiddenDyes{};
};

// The axis that all dyes share: bp where the trace is sized, and scans otherwise.
struct TraceAxis {
    bool bSized = false;
    double dFirst = 0; // on show at first: what lies behind the primers
    double dLast = 1;
    double dLeast = 0; // all that there is
    double dMost = 1;
};
TraceAxis AxisOf(const TraceView& oView);
// Nothing where a sized trace has no size.
std::optional<double> PlaceOnAxis(const TraceView& oView, double dScan);

constexpr double HeadRoom = 1.65; // above the highest peak, for loci and alleles

QColor DyeInk(std::size_t nDye, bool bDark);

// Fills a plot anew: a rectangle for each dye that is not hidden, in their order. Each dye is scaled to its
// own highest peak behind the primers. What does not fit beside its neighbours is named when the axis is
// drawn out. Keeps nothing of the view. Needs a QApplication.
void PlotTrace(QCustomPlot& oPlot, const TraceView& oView, const TraceLook& oLook = {});

QImage DrawTrace(const TraceView& oView, int nWidth, int nHeight);

} // namespace GleanerSvc::Workbench
