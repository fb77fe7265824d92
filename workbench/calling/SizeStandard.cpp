#include "workbench/calling/SizeStandard.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "workbench/calling/FixedText.h"
#include "workbench/calling/FragmentSearch.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array<double, 15> Fragments{50,  75,  100, 139, 150, 160, 200, 250,
                                           300, 340, 350, 400, 450, 490, 500};

double MedianHeight(std::vector<Peak> aoPeaks) {
    if (aoPeaks.empty()) return 0;
    const auto oMiddle = aoPeaks.begin() + static_cast<std::ptrdiff_t>(aoPeaks.size() / 2);
    std::nth_element(aoPeaks.begin(), oMiddle, aoPeaks.end(),
                     [](const Peak& oOne, const Peak& oOther) { return oOne.dHeight < oOther.dHeight; });
    return oMiddle->dHeight;
}

double Dot(const std::vector<double>& adOne, const std::vector<double>& adOther) {
    return std::inner_product(adOne.begin(), adOne.end(), adOther.begin(), 0.0);
}

// Takes out of adVector what of it lies along adAxis.
void Project(std::vector<double>& adVector, const std::vector<double>& adAxis) {
    const double dPart = Dot(adVector, adAxis) / Dot(adAxis, adAxis);
    for (std::size_t n = 0; n < adVector.size(); ++n) adVector[n] -= dPart * adAxis[n];
}

// R2 of the sizes as a cubic of the scans: what is left of the sizes once their parts along the powers 0 to 3
// of the scan, each made orthogonal to those before, are taken out. Needs five points or more.
double CubicRSquared(const std::vector<StandardPoint>& aoPoints) {
    const double dFirst = aoPoints.front().dScan;
    const double dRange = aoPoints.back().dScan - dFirst;
    std::vector<double> adRest;
    adRest.reserve(aoPoints.size());
    for (const auto& oPoint : aoPoints) adRest.push_back(oPoint.dSize);
    std::vector<std::vector<double>> aadAxes;
    double dInAll = 0;
    for (int nPower = 0; nPower <= 3; ++nPower) {
        std::vector<double> adAxis;
        adAxis.reserve(aoPoints.size());
        for (const auto& oPoint : aoPoints) {
            adAxis.push_back(std::pow(2 * (oPoint.dScan - dFirst) / dRange - 1, nPower));
        }
        for (const auto& adBefore : aadAxes) Project(adAxis, adBefore);
        Project(adRest, adAxis);
        if (nPower == 0) dInAll = Dot(adRest, adRest);
        aadAxes.push_back(std::move(adAxis));
    }
    return 1 - Dot(adRest, adRest) / dInAll;
}

// Of the points that size: what a sample's peak would be off at worst if one of them were not there.
double LeaveOneOut(std::vector<StandardPoint> aoPoints) {
    aoPoints.erase(std::remove_if(aoPoints.begin(), aoPoints.end(), IsAnomalous), aoPoints.end());
    double dLargest = 0;
    for (std::size_t nOut = 1; nOut + 1 < aoPoints.size(); ++nOut) {
        auto aoOthers = aoPoints;
        aoOthers.erase(aoOthers.begin() + static_cast<std::ptrdiff_t>(nOut));
        const auto dSize = SouthernCurve(aoOthers).SizeAt(aoPoints[nOut].dScan);
        if (dSize) dLargest = std::max(dLargest, std::abs(*dSize - aoPoints[nOut].dSize));
    }
    return dLargest;
}

// Standard deviation over mean.
double Variation(const std::vector<double>& adHeights) {
    const auto dCount = static_cast<double>(adHeights.size());
    const double dMean = std::accumulate(adHeights.begin(), adHeights.end(), 0.0) / dCount;
    return std::sqrt(std::max(0.0, Dot(adHeights, adHeights) / dCount - dMean * dMean)) / dMean;
}

} // namespace

std::span<const double> StandardFragments() { return Fragments; }

std::vector<Peak> StandardCandidates(std::span<const Peak> aoPeaks, std::size_t nScans) {
    std::vector<Peak> aoLate;
    std::copy_if(aoPeaks.begin(), aoPeaks.end(), std::back_inserter(aoLate),
                 [&](const Peak& oPeak) { return oPeak.dScan >= 0.35 * static_cast<double>(nScans); });
    const double dMedian = MedianHeight(std::move(aoLate));
    std::vector<Peak> aoCandidates;
    std::copy_if(aoPeaks.begin(), aoPeaks.end(), std::back_inserter(aoCandidates), [&](const Peak& oPeak) {
        return oPeak.dWidth <= 40 && oPeak.dHeight >= dMedian / 4 && oPeak.dHeight <= dMedian * 4;
    });
    return aoCandidates;
}

SizeFit FitStandard(std::span<const Peak> aoCandidates) {
    SizeFit oFit;
    const auto aoMatches = MatchFragments(Fragments, aoCandidates);
    if (aoMatches.size() < 5) return oFit;
    std::vector<double> adHeights;
    for (const auto& oMatch : aoMatches) {
        oFit.aoPoints.push_back({Fragments[oMatch.nFragment], aoCandidates[oMatch.nCandidate].dScan});
        adHeights.push_back(aoCandidates[oMatch.nCandidate].dHeight);
    }
    const auto nInRange = aoMatches.back().nCandidate - aoMatches.front().nCandidate + 1;
    oFit.dMatchedShare = static_cast<double>(aoMatches.size()) / static_cast<double>(nInRange);
    oFit.dRSquared = CubicRSquared(oFit.aoPoints);
    oFit.dLeaveOneOut = LeaveOneOut(oFit.aoPoints);
    oFit.dHeightVariation = Variation(adHeights);
    return oFit;
}

std::string FitText(const SizeFit& oFit) {
    if (oFit.aoPoints.empty()) return "none";
    return std::to_string(oFit.aoPoints.size()) + " fragments, R2 " + FixedText(oFit.dRSquared, 6) +
           ", largest error " + FixedText(oFit.dLeaveOneOut, 2) + " bp";
}

std::string FitFault(const SizeFit& oFit) {
    if (oFit.aoPoints.empty()) return "its fragments cannot be told among its peaks";
    if (oFit.aoPoints.size() < 12) {
        return std::to_string(oFit.aoPoints.size()) + " of 15 fragments, wanted 12";
    }
    if (oFit.dRSquared < 0.9999) return "R2 " + FixedText(oFit.dRSquared, 5) + ", wanted 0.9999";
    if (oFit.dLeaveOneOut > 3) {
        return FixedText(oFit.dLeaveOneOut, 1) + " bp off when a fragment is left out, wanted 3";
    }
    if (oFit.dMatchedShare < 0.8) {
        return FixedText(100 * oFit.dMatchedShare, 0) + " % of the peaks are fragments, wanted 80 %";
    }
    if (oFit.dHeightVariation > 0.4) {
        return "heights vary by " + FixedText(oFit.dHeightVariation, 2) + ", wanted 0.40";
    }
    return {};
}

} // namespace GleanerSvc::Workbench
