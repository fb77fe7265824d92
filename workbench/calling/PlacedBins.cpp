#include "workbench/calling/PlacedBins.h"

#include <algorithm>
#include <cmath>

namespace GleanerSvc::Workbench {

namespace {

constexpr double BinReach = 0.5; // bp

// A ladder allele of a locus: the centre of its bin, and how far off this run finds it.
struct Offset {
    double dCentre = 0; // bp
    double dOffset = 0; // bp
};

std::vector<Offset> OffsetsOf(const Locus& oLocus, const Ladder& oLadder) {
    const auto oFound = oLadder.oLoci.find(oLocus.sName);
    std::vector<Offset> aoOffsets;
    if (oFound == oLadder.oLoci.end()) return aoOffsets;
    for (const auto& [sAllele, dOffset] : oFound->second.oOffsets) {
        if (const Bin* pBin = oLocus.FindBin(sAllele)) aoOffsets.push_back({pBin->dCentre, dOffset});
    }
    return aoOffsets;
}

// The offset of the ladder allele that is nearest to a size.
double OffsetNear(const std::vector<Offset>& aoOffsets, double dSize) {
    const auto oNearest =
        std::min_element(aoOffsets.begin(), aoOffsets.end(), [&](const Offset& oOne, const Offset& oOther) {
            return std::abs(oOne.dCentre - dSize) < std::abs(oOther.dCentre - dSize);
        });
    return oNearest == aoOffsets.end() ? 0 : oNearest->dOffset;
}

// A locus of which no ladder allele was found has no bins; one that has no ladder alleles stays where it is.
PlacedLocus PlaceStr(const Locus& oLocus, const Ladder& oLadder) {
    PlacedLocus oPlaced{&oLocus, {}};
    const auto aoOffsets = OffsetsOf(oLocus, oLadder);
    if (aoOffsets.empty() && !oLocus.asLadder.empty()) return oPlaced;
    const std::size_t nDye = DyeOfColour(oLocus.sColour);
    for (const auto& oBin : oLocus.aoBins) {
        const double dCentre = oBin.dCentre + OffsetNear(aoOffsets, oBin.dCentre);
        oPlaced.aoBins.push_back({&oBin, nDye, dCentre - BinReach, dCentre, dCentre + BinReach});
    }
    return oPlaced;
}

PlacedLocus PlaceSnp(const Locus& oLocus) {
    PlacedLocus oPlaced{&oLocus, {}};
    for (const auto& oBin : oLocus.aoBins) {
        oPlaced.aoBins.push_back({&oBin, DyeOfColour(oBin.sColour),
                                  oBin.dCentre - std::max(oBin.dLeft, BinReach), oBin.dCentre,
                                  oBin.dCentre + std::max(oBin.dRight, BinReach)});
    }
    return oPlaced;
}

} // namespace

std::vector<PlacedLocus> PlaceLoci(const Panel& oPanel, const Ladder& oLadder) {
    std::vector<PlacedLocus> aoPlaced;
    for (const auto& oLocus : oPanel.aoLoci) {
        aoPlaced.push_back(oPanel.eType == AlleleType::Snp ? PlaceSnp(oLocus) : PlaceStr(oLocus, oLadder));
    }
    return aoPlaced;
}

} // namespace GleanerSvc::Workbench
