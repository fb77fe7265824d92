// A picture of a trace: a plot for each dye above a common axis, with the alleles that were called.
#pragma once

#include <QImage>

#include <string>

#include "workbench/calling/Calling.h"

class QCustomPlot;

namespace GleanerSvc::Workbench {

struct TraceView {
    const Trace& oTrace;
    const SizedTrace& oSized;
    const CalledTrace& oCalled;
    std::string sTitle;
};

// Fills a plot anew. The axis is in bp where the trace is sized and in scans otherwise; each dye is scaled to
// its own highest peak behind the primers. Needs a QApplication.
void PlotTrace(QCustomPlot& oPlot, const TraceView& oView);

QImage DrawTrace(const TraceView& oView, int nWidth, int nHeight);

} // namespace GleanerSvc::Workbench
