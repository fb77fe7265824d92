#include "workbench/calling/Sizing.h"

#include <algorithm>
#include <functional>
#include <span>

#include "workbench/calling/FixedText.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr PeakRules StandardRules{50, 6};
constexpr PeakRules SampleRules{30, 5};
constexpr double PrimersEnd = 60;       // bp
constexpr double OffScaleReach = 3;     // scans
constexpr std::size_t SignalPeaks = 10; // that many peaks reach
constexpr double SignalHeight = 150;    // that height, in RFU

void Refuse(SizedTrace& oSized, Status eStatus, std::string sReason) {
    oSized.eStatus = eStatus;
    oSized.sReason = std::move(sReason);
}

void FindAllPeaks(SizedTrace& oSized, const Trace& oTrace) {
    for (std::size_t nDye = 0; nDye < oTrace.aoDyes.size(); ++nDye) {
        const bool bStandard = nDye + 1 == oTrace.aoDyes.size();
        const auto aoPeaks =
            FindPeaks(CorrectedSignal(oTrace.aoDyes[nDye]), nDye, bStandard ? StandardRules : SampleRules);
        oSized.aoPeaks.insert(oSized.aoPeaks.end(), aoPeaks.begin(), aoPeaks.end());
    }
}

// Whether there is anything to look at.
bool HasData(SizedTrace& oSized, const Trace& oTrace) {
    if (oTrace.aoDyes.size() < 2) {
        Refuse(oSized, Status::NoData, std::to_string(oTrace.aoDyes.size()) + " dyes, wanted 2 or more");
    } else if (oTrace.Scans() == 0) {
        Refuse(oSized, Status::NoData, "no scans");
    } else {
        FindAllPeaks(oSized, oTrace);
        if (oSized.aoPeaks.empty()) Refuse(oSized, Status::NoData, "no peak in any dye");
    }
    return oSized.eStatus == Status::Pass;
}

// The standard's peaks: those of the last dye.
std::span<const Peak> StandardPeaks(const SizedTrace& oSized, const Trace& oTrace) {
    const auto oFirst = std::find_if(oSized.aoPeaks.begin(), oSized.aoPeaks.end(), [&](const Peak& oPeak) {
        return oPeak.nDye + 1 == oTrace.aoDyes.size();
    });
    return {oFirst, oSized.aoPeaks.end()};
}

bool FindStandard(SizedTrace& oSized, const Trace& oTrace) {
    const auto aoCandidates = StandardCandidates(StandardPeaks(oSized, oTrace), oTrace.Scans());
    const auto nFragments = StandardFragments().size();
    if (2 * aoCandidates.size() < nFragments) {
        Refuse(oSized, Status::NoSizeStandard,
               std::to_string(aoCandidates.size()) + " peaks where the standard has " +
                   std::to_string(nFragments) + " fragments");
        return false;
    }
    oSized.oFit = FitStandard(aoCandidates);
    const auto sFault = FitFault(oSized.oFit);
    if (!sFault.empty()) {
        oSized.oFit.aoPoints.clear();
        Refuse(oSized, Status::BadSizeStandard, sFault);
        return false;
    }
    oSized.sReason = std::to_string(oSized.oFit.aoPoints.size()) + " of " + std::to_string(nFragments) +
                     " fragments, R2 " + FixedText(oSized.oFit.dRSquared, 5);
    return true;
}

void SizePeaks(SizedTrace& oSized) {
    const SouthernCurve oCurve(oSized.oFit.aoPoints);
    for (auto& oPeak : oSized.aoPeaks) oPeak.dSize = oCurve.SizeAt(oPeak.dScan);
}

bool IsFragment(const Peak& oPeak) { return oPeak.dSize && *oPeak.dSize > PrimersEnd; }

// The sorted scan that is nearest to the peak, if it is within reach.
std::optional<std::int32_t> OffScaleNear(const std::vector<std::int32_t>& alScans, const Peak& oPeak) {
    const auto oScan = std::lower_bound(alScans.begin(), alScans.end(), oPeak.dScan - OffScaleReach);
    if (oScan == alScans.end() || *oScan > oPeak.dScan + OffScaleReach) return {};
    return *oScan;
}

bool IsOnScale(SizedTrace& oSized, const Trace& oTrace) {
    auto alScans = oTrace.alOffScale;
    std::sort(alScans.begin(), alScans.end());
    for (const auto& oPeak : oSized.aoPeaks) {
        const auto lScan = IsFragment(oPeak) ? OffScaleNear(alScans, oPeak) : std::nullopt;
        if (!lScan) continue;
        Refuse(oSized, Status::OffScale,
               "off scale at scan " + std::to_string(*lScan) + ", " + FixedText(*oPeak.dSize, 1) + " bp");
        return false;
    }
    return true;
}

void CheckSignal(SizedTrace& oSized, const Trace& oTrace) {
    std::vector<double> adHeights;
    for (const auto& oPeak : oSized.aoPeaks) {
        if (IsFragment(oPeak) && oPeak.nDye + 1 < oTrace.aoDyes.size()) adHeights.push_back(oPeak.dHeight);
    }
    std::sort(adHeights.begin(), adHeights.end(), std::greater<>());
    if (adHeights.size() < SignalPeaks) {
        Refuse(oSized, Status::LowSignal,
               std::to_string(adHeights.size()) + " peaks, wanted " + std::to_string(SignalPeaks));
    } else if (adHeights[SignalPeaks - 1] < SignalHeight) {
        Refuse(oSized, Status::LowSignal,
               "tenth-highest peak of " + FixedText(adHeights[SignalPeaks - 1], 0) + " RFU, wanted " +
                   FixedText(SignalHeight, 0));
    }
}

} // namespace

SizedTrace SizeTrace(const Trace& oTrace) {
    SizedTrace oSized;
    if (!HasData(oSized, oTrace) || !FindStandard(oSized, oTrace)) return oSized;
    SizePeaks(oSized);
    if (IsOnScale(oSized, oTrace)) CheckSignal(oSized, oTrace);
    return oSized;
}

std::optional<double> SizeAt(const SizeFit& oFit, double dScan) {
    return SouthernCurve(oFit.aoPoints).SizeAt(dScan);
}

std::optional<double> ScanAt(const SizeFit& oFit, double dSize) {
    return SouthernCurve(oFit.aoPoints).ScanAt(dSize);
}

} // namespace GleanerSvc::Workbench
