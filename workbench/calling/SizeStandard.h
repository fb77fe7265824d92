// The size standard of 15 fragments, 50 to 500 bp, found among the peaks of its dye.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "workbench/calling/Peaks.h"
#include "workbench/calling/SouthernSizing.h"

namespace GleanerSvc::Workbench {

struct SizeFit {
    std::vector<StandardPoint> aoPoints; // the fragments that were found, in order
    double dRSquared = 0;                // of a cubic through the points
    double dLeaveOneOut = 0;             // largest error in bp when a point that sizes is sized by the others
    double dMatchedShare = 0;            // of the candidates in range
    double dHeightVariation = 0;         // of the fragments: standard deviation over mean

    friend bool operator==(const SizeFit&, const SizeFit&) = default;
};

// The fragments of the standard in bp. The one of 35 bp is not among them: it lies in the primers' blob.
std::span<const double> StandardFragments();

// The peaks that may be fragments: no wider than 40 scans and 0.25 to 4 times as high as the median of those
// in the last 65 % of the run, where no primers are left. aoPeaks are those of the standard's dye in order.
std::vector<Peak> StandardCandidates(std::span<const Peak> aoPeaks, std::size_t nScans);

// The fragments at the candidates that fit best, and how well they do. Without points where nothing fits.
SizeFit FitStandard(std::span<const Peak> aoCandidates);

// What is wrong with a fit, "R2 0.99871, wanted 0.9999"; empty when it is acceptable: 12 fragments or more,
// R2 0.9999 or more, 3 bp or less when one is left out, 80 % or more of the candidates in range matched,
// heights that vary by 0.4 or less. The share counts, for the alleles of a ladder can fit by accident.
std::string FitFault(const SizeFit& oFit);

// "15 fragments, R2 0.999980, largest error 0.40 bp"; "none" without points.
std::string FitText(const SizeFit& oFit);

} // namespace GleanerSvc::Workbench
