// Traces made of bell-shaped peaks at known sizes, and what sizing should make of them.
#pragma once

#include <cmath>
#include <vector>

#include "workbench/calling/Sizing.h"

namespace GleanerSvc::Workbench {

// A normal curve.
struct Bell {
    double dScan = 0;
    double dHeight = 0;
    double dSigma = 4; // scans
};

inline std::vector<double> Signal(std::size_t nScans, const std::vector<Bell>& aoBells) {
    std::vector<double> adSignal(nScans);
    for (std::size_t nScan = 0; nScan < nScans; ++nScan) {
        for (const auto& oBell : aoBells) {
            const double dOff = (static_cast<double>(nScan) - oBell.dScan) / oBell.dSigma;
            adSignal[nScan] += std::abs(dOff) < 8 ? oBell.dHeight * std::exp(-dOff * dOff / 2) : 0;
        }
    }
    return adSignal;
}

inline DyeSignal Dye(const std::vector<double>& adSignal) {
    DyeSignal oDye;
    for (const double dValue : adSignal)
        oDye.aiValues.push_back(static_cast<std::int16_t>(std::lround(dValue)));
    return oDye;
}

// Where a fragment passes the detector.
inline double TrueScan(double dSize) {
    return 2400 + 11 * (dSize - 50) + 0.0025 * (dSize - 50) * (dSize - 50);
}

// The standard as it should be: the anomalous fragments run ahead.
inline std::vector<Bell> StandardBells() {
    std::vector<Bell> aoBells;
    for (const double dSize : StandardFragments()) {
        aoBells.push_back({TrueScan(dSize - (dSize == 250 ? 3 : dSize == 340 ? 1.2 : 0)), 500});
    }
    return aoBells;
}

// A peak of a sample.
struct Fragment {
    std::size_t nDye = 0;
    double dSize = 0;
    double dHeight = 600;
};

inline Trace TraceOf(const std::vector<Fragment>& aoFragments) {
    std::vector<std::vector<Bell>> aaoBells(5);
    for (const auto& o : aoFragments) aaoBells.at(o.nDye).push_back({TrueScan(o.dSize), o.dHeight});
    aaoBells.back() = StandardBells();
    Trace oTrace;
    for (const auto& aoBells : aaoBells) oTrace.aoDyes.push_back(Dye(Signal(8600, aoBells)));
    return oTrace;
}

inline SizedTrace SizedPeaks(std::vector<Fragment> aoFragments) {
    SizedTrace oSized;
    for (const double dSize : StandardFragments()) {
        oSized.oFit.aoPoints.push_back({dSize, TrueScan(dSize)});
        aoFragments.push_back({4, dSize});
    }
    for (const auto& o : aoFragments)
        oSized.aoPeaks.push_back({o.nDye, TrueScan(o.dSize), o.dHeight, 9, o.dSize});
    return oSized;
}

} // namespace GleanerSvc::Workbench
