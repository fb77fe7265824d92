// Peaks in the corrected signal of one dye.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace GleanerSvc::Workbench {

struct Peak {
    std::size_t nDye = 0;
    double dScan = 0;            // of the apex, 0-based, between scans
    double dHeight = 0;          // RFU above the baseline
    double dWidth = 0;           // scans, at half height
    std::optional<double> dSize; // bp; none outside the standard's range

    friend bool operator==(const Peak&, const Peak&) = default;
};

struct PeakRules {
    double dThreshold = 30; // RFU that a peak reaches
    double dGap = 5;        // scans; of two peaks nearer than that the higher stays
};

// The peaks in order of their scans, not yet sized. Narrower ones than 3 scans are noise and left out; two
// merge into the higher when the valley between them is above 85 % of the lower. The apex is that of a
// parabola through three scans, or the middle of a flat top. A width ends at the valley to the neighbour
// where the signal does not fall to half before.
std::vector<Peak> FindPeaks(std::span<const double> adSignal, std::size_t nDye, const PeakRules& oRules);

} // namespace GleanerSvc::Workbench
