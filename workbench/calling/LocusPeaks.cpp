#include "workbench/calling/LocusPeaks.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "workbench/calling/PlacedBins.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double MinHeight = 50;  // RFU
constexpr double MinShare = 0.25; // of the highest peak of the locus

// How a peak lies to a locus: in a bin, or in its range only, and how far from the nearest centre.
struct Fit {
    const PlacedLocus* pLocus = nullptr;
    const Bin* pBin = nullptr;
    double dDistance = std::numeric_limits<double>::infinity(); // bp

    bool IsBetterThan(const Fit& oOther) const {
        if ((pBin != nullptr) != (oOther.pBin != nullptr)) return pBin != nullptr;
        return pLocus != nullptr && (oOther.pLocus == nullptr || dDistance < oOther.dDistance);
    }
};

Fit FitOf(const PlacedLocus& oPlaced, const Peak& oPeak) {
    Fit oFit;
    const double dSize = *oPeak.dSize;
    const bool bInRange = dSize >= oPlaced.pLocus->dLow && dSize <= oPlaced.pLocus->dHigh;
    for (const auto& oBin : oPlaced.aoBins) {
        const bool bInBin = dSize >= oBin.dLow && dSize <= oBin.dHigh;
        if (oBin.nDye != oPeak.nDye || !(bInBin || bInRange)) continue;
        const Fit oHere{&oPlaced, bInBin ? oBin.pBin : nullptr, std::abs(dSize - oBin.dCentre)};
        if (oHere.IsBetterThan(oFit)) oFit = oHere;
    }
    return oFit;
}

// Of the locus and bin that a peak fits best; of none where it is too low, or the standard's.
Fit BestFit(const SizedTrace& oTrace, const std::vector<PlacedLocus>& aoLoci, const Peak& oPeak) {
    Fit oBest;
    if (!oPeak.dSize || oPeak.dHeight < MinHeight || oPeak.nDye == oTrace.StandardDye()) return oBest;
    for (const auto& oLocus : aoLoci) {
        const Fit oFit = FitOf(oLocus, oPeak);
        if (oFit.IsBetterThan(oBest)) oBest = oFit;
    }
    return oBest;
}

bool IsLower(const LocusPeak& oOne, const LocusPeak& oOther) { return oOne.dHeight < oOther.dHeight; }

// The peaks that count as alleles, by size: not too low beside the highest, and one for each bin.
std::vector<LocusPeak> Alleles(const std::vector<LocusPeak>& aoPeaks) {
    std::vector<LocusPeak> aoAlleles;
    if (aoPeaks.empty()) return aoAlleles;
    const double dLeast = MinShare * std::max_element(aoPeaks.begin(), aoPeaks.end(), IsLower)->dHeight;
    for (const auto& oPeak : aoPeaks) {
        if (oPeak.dHeight < dLeast) continue;
        const auto oSame = std::find_if(aoAlleles.begin(), aoAlleles.end(), [&](const LocusPeak& oOther) {
            return oPeak.pBin != nullptr && oOther.pBin == oPeak.pBin;
        });
        if (oSame == aoAlleles.end()) {
            aoAlleles.push_back(oPeak);
        } else if (oSame->dHeight < oPeak.dHeight) {
            *oSame = oPeak;
        }
    }
    std::sort(aoAlleles.begin(), aoAlleles.end(),
              [](const LocusPeak& oOne, const LocusPeak& oOther) { return oOne.dSize < oOther.dSize; });
    return aoAlleles;
}

} // namespace

std::map<const Locus*, std::vector<LocusPeak>> PeaksByLocus(const SizedTrace& oTrace, const Panel& oPanel,
                                                            const Ladder& oLadder) {
    const auto aoLoci = PlaceLoci(oPanel, oLadder);
    std::map<const Locus*, std::vector<LocusPeak>> oPeaks;
    for (std::size_t nPeak = 0; nPeak < oTrace.aoPeaks.size(); ++nPeak) {
        const Peak& oPeak = oTrace.aoPeaks[nPeak];
        const Fit oFit = BestFit(oTrace, aoLoci, oPeak);
        if (oFit.pLocus == nullptr) continue;
        oPeaks[oFit.pLocus->pLocus].push_back({oFit.pBin, nPeak, oPeak.dHeight, *oPeak.dSize});
    }
    for (auto& [pLocus, aoPeaks] : oPeaks) aoPeaks = Alleles(aoPeaks);
    return oPeaks;
}

} // namespace GleanerSvc::Workbench
