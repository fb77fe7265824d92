// From a trace to its peaks in bp: baseline, peaks, size standard, sizes. Needs no panel.
//
// Pure functions of their arguments, to be called on any thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/calling/Peaks.h"
#include "workbench/calling/Signal.h"
#include "workbench/calling/SizeStandard.h"
#include "workbench/calling/Status.h"
#include "workbench/traces/Trace.h"

namespace GleanerSvc::Workbench {

// Status is Pass, or the first of NoData to LowSignal that holds; what was found until then is there anyway.
// Of a fit that was refused the figures stay, its points go.
struct SizedTrace {
    Status eStatus = Status::Pass;
    std::string sReason;       // one line for the operator, "15 of 15 fragments, R2 0.99998"
    std::vector<Peak> aoPeaks; // by dye, then scan; the standard's too
    SizeFit oFit;

    bool IsSized() const { return !oFit.aoPoints.empty(); } // the fit was accepted
    std::size_t StandardDye() const { return aoPeaks.empty() ? 0 : aoPeaks.back().nDye; } // of a sized one
    friend bool operator==(const SizedTrace&, const SizedTrace&) = default;
};

// Never fails: whatever is wrong with the trace becomes its status.
//   NoData           fewer than two dyes, no scans, or no peak in any dye
//   NoSizeStandard   fewer than half the fragments' number of peaks in the standard's dye that could be
//                    fragments by height and width
//   BadSizeStandard  nothing fits, or the fit is not acceptable
//   OffScale         a scan off scale within 3 scans of a peak above 60 bp, in any dye
//   LowSignal        the tenth-highest peak above 60 bp below 150 RFU, the standard's aside
// Below 60 bp lies what is left of the primers, off scale in most runs.
SizedTrace SizeTrace(const Trace& oTrace);

// The size at a scan by the local Southern method, and the scan at a size by its inverse; none outside the
// range of the points.
std::optional<double> SizeAt(const SizeFit& oFit, double dScan);
std::optional<double> ScanAt(const SizeFit& oFit, double dSize);

} // namespace GleanerSvc::Workbench
