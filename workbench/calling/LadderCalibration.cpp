#include "workbench/calling/LadderCalibration.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace GleanerSvc::Workbench {

namespace {

constexpr double MinRungHeight = 50;     // RFU
constexpr double MinRungShare = 1.0 / 3; // of the locus's median height
constexpr double RangeMargin = 0.5;      // bp, half a bin: an allele may lie on the very edge of its locus
constexpr std::size_t FirstAlleles = 3;  // of which one at least is there

using Places = std::vector<std::optional<std::size_t>>;

// A ladder peak by its size and its place in the trace's peaks.
struct Rung {
    double dSize = 0;
    double dHeight = 0;
    std::size_t nPeak = 0;
};

double MedianHeight(std::vector<Rung> aoRungs) {
    const auto oMiddle = aoRungs.begin() + static_cast<std::ptrdiff_t>(aoRungs.size() / 2);
    std::nth_element(aoRungs.begin(), oMiddle, aoRungs.end(),
                     [](const Rung& oOne, const Rung& oOther) { return oOne.dHeight < oOther.dHeight; });
    return oMiddle->dHeight;
}

// The peaks of the locus that are high enough, by size. The standard's own are no alleles.
std::vector<Rung> RungsOf(const SizedTrace& oLadder, const Locus& oLocus) {
    const std::size_t nDye = DyeOfColour(oLocus.sColour);
    std::vector<Rung> aoRungs;
    for (std::size_t nPeak = 0; nPeak < oLadder.aoPeaks.size(); ++nPeak) {
        const Peak& oPeak = oLadder.aoPeaks[nPeak];
        if (oPeak.nDye != nDye || nDye == oLadder.StandardDye()) continue;
        if (!oPeak.dSize || oPeak.dHeight < MinRungHeight) continue;
        if (*oPeak.dSize < oLocus.dLow - RangeMargin || *oPeak.dSize > oLocus.dHigh + RangeMargin) continue;
        aoRungs.push_back({*oPeak.dSize, oPeak.dHeight, nPeak});
    }
    if (aoRungs.empty()) return aoRungs;
    const double dLeast = MinRungShare * MedianHeight(aoRungs);
    aoRungs.erase(std::remove_if(aoRungs.begin(), aoRungs.end(),
                                 [&](const Rung& oRung) { return oRung.dHeight < dLeast; }),
                  aoRungs.end());
    return aoRungs;
}

// The centres of the ladder alleles' bins; not a number for an allele without a bin, which is never found.
std::vector<double> LadderCentres(const Locus& oLocus) {
    std::vector<double> adCentres;
    for (const auto& sAllele : oLocus.asLadder) {
        const Bin* pBin = oLocus.FindBin(sAllele);
        adCentres.push_back(pBin ? pBin->dCentre : std::numeric_limits<double>::quiet_NaN());
    }
    return adCentres;
}

// How far an allele may lie from where it is expected, in bp. dStep is that from the allele found last.
double Tolerance(const std::vector<double>& adCentres, std::size_t nAllele, double dStep) {
    double dNearest = std::numeric_limits<double>::infinity();
    for (const double dCentre : adCentres) {
        const double dGap = std::abs(dCentre - adCentres[nAllele]);
        if (dGap > 0 && dGap < dNearest) dNearest = dGap;
    }
    return std::min(0.45 * dNearest, dStep > 8 ? 0.8 + 0.05 * (dStep - 4) : 0.8);
}

// One way to lay the alleles over the rungs: the rung of each allele.
struct Walk {
    Places anRungs;
    double dScore = -std::numeric_limits<double>::infinity();
    double dOffset = 0; // of the first allele, in bp
};

// The rung past nLast that is nearest to a size, if it is within dTolerance.
std::optional<std::size_t> NearestRung(const std::vector<Rung>& aoRungs, std::size_t nLast, double dSize,
                                       double dTolerance) {
    std::optional<std::size_t> oNearest;
    for (std::size_t nRung = nLast + 1; nRung < aoRungs.size(); ++nRung) {
        if (aoRungs[nRung].dSize > dSize + dTolerance) break;
        const double dOff = std::abs(aoRungs[nRung].dSize - dSize);
        if (!(dOff <= dTolerance)) continue;
        dTolerance = dOff;
        oNearest = nRung;
    }
    return oNearest;
}

Walk WalkFrom(const std::vector<Rung>& aoRungs, const std::vector<double>& adCentres, std::size_t nRung,
              std::size_t nFirst) {
    Walk oWalk{Places(adCentres.size()), 0, aoRungs[nRung].dSize - adCentres[nFirst]};
    std::size_t nMatched = 1;
    std::size_t nLast = nFirst; // the allele found last, at nRung
    oWalk.anRungs[nFirst] = nRung;
    for (std::size_t nAllele = nFirst + 1; nAllele < adCentres.size(); ++nAllele) {
        const double dStep = adCentres[nAllele] - adCentres[nLast];
        const auto oFound =
            NearestRung(aoRungs, nRung, aoRungs[nRung].dSize + dStep, Tolerance(adCentres, nAllele, dStep));
        if (!oFound) continue;
        oWalk.anRungs[nAllele] = nRung = *oFound;
        nLast = nAllele;
        ++nMatched;
    }
    oWalk.dScore = static_cast<double>(nMatched) - 0.5 * static_cast<double>(aoRungs.size() - nMatched);
    return oWalk;
}

// The more explained the better; of equals the one that moves the bins less.
bool IsBetter(const Walk& oWalk, const Walk& oThan) {
    return oWalk.dScore > oThan.dScore ||
           (oWalk.dScore == oThan.dScore && std::abs(oWalk.dOffset) < std::abs(oThan.dOffset));
}

} // namespace

std::vector<std::optional<std::size_t>> LadderPeaks(const SizedTrace& oLadder, const Locus& oLocus) {
    const auto aoRungs = RungsOf(oLadder, oLocus);
    const auto adCentres = LadderCentres(oLocus);
    Walk oBest{Places(adCentres.size())};
    for (std::size_t nFirst = 0; nFirst < std::min(FirstAlleles, adCentres.size()); ++nFirst) {
        for (std::size_t nRung = 0; nRung < aoRungs.size() && !std::isnan(adCentres[nFirst]); ++nRung) {
            auto oWalk = WalkFrom(aoRungs, adCentres, nRung, nFirst);
            if (IsBetter(oWalk, oBest)) oBest = std::move(oWalk);
        }
    }
    for (auto& oPlace : oBest.anRungs) {
        if (oPlace) oPlace = aoRungs[*oPlace].nPeak;
    }
    return oBest.anRungs;
}

Ladder CalibrateLadder(const SizedTrace& oLadder, const Panel& oPanel) {
    Ladder oCalibrated;
    oCalibrated.nExpected = oPanel.LadderAlleles();
    for (const auto& oLocus : oPanel.aoLoci) {
        auto& oOffsets = oCalibrated.oLoci[oLocus.sName].oOffsets;
        const auto anPeaks = LadderPeaks(oLadder, oLocus);
        for (std::size_t nAllele = 0; nAllele < anPeaks.size(); ++nAllele) {
            if (!anPeaks[nAllele]) continue;
            const auto& sAllele = oLocus.asLadder[nAllele];
            const Peak& oPeak = oLadder.aoPeaks[*anPeaks[nAllele]];
            oOffsets[sAllele] = *oPeak.dSize - oLocus.FindBin(sAllele)->dCentre;
            ++oCalibrated.nFound;
        }
    }
    return oCalibrated;
}

} // namespace GleanerSvc::Workbench
