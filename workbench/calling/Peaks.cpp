#include "workbench/calling/Peaks.h"

#include <algorithm>
#include <cmath>

namespace GleanerSvc::Workbench {

namespace {

constexpr double MinWidth = 3;         // scans
constexpr double MergingValley = 0.85; // of the lower peak

// A local maximum, and the deepest scan between it and the one before, or the signal's start.
struct Summit {
    std::size_t nScan = 0;
    std::size_t nValley = 0;
};

// The last scan of the level stretch that begins at nScan.
std::size_t LevelEnd(std::span<const double> adSignal, std::size_t nScan) {
    while (nScan + 1 < adSignal.size() && adSignal[nScan + 1] == adSignal[nScan]) ++nScan;
    return nScan;
}

bool Merge(std::span<const double> adSignal, const Summit& oFirst, const Summit& oSecond, double dGap) {
    const double dLower = std::min(adSignal[oFirst.nScan], adSignal[oSecond.nScan]);
    return static_cast<double>(oSecond.nScan - oFirst.nScan) < dGap ||
           adSignal[oSecond.nValley] > MergingValley * dLower;
}

// Adds a summit to those before it, merging for as long as two merge.
void Add(std::vector<Summit>& aoSummits, std::span<const double> adSignal, Summit oSummit, double dGap) {
    while (!aoSummits.empty() && Merge(adSignal, aoSummits.back(), oSummit, dGap)) {
        if (adSignal[aoSummits.back().nScan] >= adSignal[oSummit.nScan]) return;
        if (adSignal[aoSummits.back().nValley] < adSignal[oSummit.nValley]) {
            oSummit.nValley = aoSummits.back().nValley;
        }
        aoSummits.pop_back();
    }
    aoSummits.push_back(oSummit);
}

std::vector<Summit> FindSummits(std::span<const double> adSignal, const PeakRules& oRules) {
    std::vector<Summit> aoSummits;
    std::size_t nValley = 0; // since the last summit that stayed
    for (std::size_t nScan = 1; nScan + 1 < adSignal.size(); ++nScan) {
        if (adSignal[nScan] < adSignal[nValley]) nValley = nScan;
        if (adSignal[nScan] < oRules.dThreshold || adSignal[nScan] <= adSignal[nScan - 1]) continue;
        const std::size_t nEnd = LevelEnd(adSignal, nScan);
        if (nEnd + 1 < adSignal.size() && adSignal[nEnd + 1] < adSignal[nScan]) {
            const Summit oSummit{nScan + (nEnd - nScan) / 2, nValley};
            Add(aoSummits, adSignal, oSummit, oRules.dGap);
            if (aoSummits.back().nScan == oSummit.nScan) nValley = nEnd;
        }
        nScan = nEnd;
    }
    return aoSummits;
}

// Where the signal crosses half the height on the way from the summit to the limit, or the limit.
double HalfHeightScan(std::span<const double> adSignal, std::size_t nSummit, std::size_t nLimit) {
    const double dHalf = adSignal[nSummit] / 2;
    std::size_t nScan = nSummit;
    while (nScan != nLimit) {
        const std::size_t nNext = nScan < nLimit ? nScan + 1 : nScan - 1;
        if (adSignal[nNext] <= dHalf) {
            const double dPart = (adSignal[nScan] - dHalf) / (adSignal[nScan] - adSignal[nNext]);
            return static_cast<double>(nScan) + (nNext > nScan ? dPart : -dPart);
        }
        nScan = nNext;
    }
    return static_cast<double>(nLimit);
}

// Fills in the apex of a parabola through the summit and its neighbours.
void SetApex(Peak& oPeak, std::span<const double> adSignal, std::size_t nSummit) {
    const double dSlope = (adSignal[nSummit + 1] - adSignal[nSummit - 1]) / 2;
    const double dBend = 2 * adSignal[nSummit] - adSignal[nSummit + 1] - adSignal[nSummit - 1];
    const double dShift = dBend > 0 ? std::clamp(dSlope / dBend, -0.5, 0.5) : 0;
    oPeak.dScan = static_cast<double>(nSummit) + dShift;
    oPeak.dHeight = adSignal[nSummit] + dSlope * dShift - dBend * dShift * dShift / 2;
}

} // namespace

std::vector<Peak> FindPeaks(std::span<const double> adSignal, std::size_t nDye, const PeakRules& oRules) {
    const auto aoSummits = FindSummits(adSignal, oRules);
    std::vector<Peak> aoPeaks;
    for (std::size_t nSummit = 0; nSummit < aoSummits.size(); ++nSummit) {
        const std::size_t nScan = aoSummits[nSummit].nScan;
        const bool bLast = nSummit + 1 == aoSummits.size();
        const std::size_t nRight = bLast ? adSignal.size() - 1 : aoSummits[nSummit + 1].nValley;
        Peak oPeak;
        oPeak.nDye = nDye;
        oPeak.dWidth = HalfHeightScan(adSignal, nScan, nRight) -
                       HalfHeightScan(adSignal, nScan, aoSummits[nSummit].nValley);
        SetApex(oPeak, adSignal, nScan);
        if (oPeak.dWidth >= MinWidth) aoPeaks.push_back(oPeak);
    }
    return aoPeaks;
}

} // namespace GleanerSvc::Workbench
