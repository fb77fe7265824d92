// The raw signal of a dye made ready for peaks: its baseline taken off, its noise smoothed.
#pragma once

#include <span>
#include <vector>

#include "workbench/traces/Trace.h"

namespace GleanerSvc::Workbench {

// The slow ground under the peaks, in RFU, one value a scan: the running minimum over 251 scans, the running
// maximum of that, and the 251-scan mean of that (a morphological opening, then its mean). A peak narrower
// than the window leaves no mark on it. At both ends the window is what there is of it. Its time grows with
// the scans alone, whatever the window.
std::vector<double> Baseline(std::span<const double> adSignal);

// A quadratic fitted to 7 points at each scan (Savitzky and Golay, Anal. Chem. 36, 1964): noise goes, the
// height and place of a peak of 5 scans and more stay. The three scans at either end are left as they are.
std::vector<double> Smoothed(std::span<const double> adSignal);

// The signal of one dye, its baseline taken off and smoothed: what peaks are found in and a picture shows.
std::vector<double> CorrectedSignal(const DyeSignal& oDye);

} // namespace GleanerSvc::Workbench
