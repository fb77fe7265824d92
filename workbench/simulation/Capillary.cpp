#include "workbench/simulation/Capillary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array<std::string_view, Capillary::Dyes> DyeNames = {"Blue", "Green", "Yellow", "Red",
                                                                    "Orange"};
constexpr std::array<double, 16> Standard = {35,  50,  75,  100, 139, 150, 160, 200,
                                             250, 300, 340, 350, 400, 450, 490, 500};
constexpr double PullUp = 0.005;      // of a peak, seen in the dyes beside its own
constexpr double Noise = 3;           // RFU
constexpr double HalfHeight = 2.3548; // width at half height of a normal curve, in deviations

// Two fragments of the standard run ahead of their size, by this many bp.
double Anomaly(double dSize) {
    if (dSize == 250) return 1.8;
    return dSize == 340 ? 1.2 : 0;
}

double WidthAt(double dSize) { return 6 + 0.007 * dSize; } // scans at half height

} // namespace

Migration::Migration(Random& oRandom)
    : m_dStart(1690 + oRandom.Uniform(-40, 40)), m_dSpeed(13.9 * oRandom.Uniform(0.985, 1.015)),
      m_dBend(0.0037 * oRandom.Uniform(0.9, 1.1)) {}

Capillary::Capillary(Random& oRandom)
    : m_oRandom(oRandom), m_oMigration(oRandom), m_aadSignal(Dyes, std::vector<double>(Scans)) {}

void Capillary::AddFragment(std::size_t nDye, double dSize, double dHeight) {
    AddPeak(nDye, m_oMigration.ScanAt(dSize), dHeight, WidthAt(dSize));
}

void Capillary::AddStandard() {
    for (const double dSize : Standard) {
        const double dScan = m_oMigration.ScanAt(dSize - Anomaly(dSize));
        AddPeak(Dyes - 1, dScan, m_oRandom.Uniform(600, 1000), WidthAt(dSize));
    }
}

void Capillary::AddFalseStandard() {
    for (std::size_t n = 0; n < Standard.size(); ++n)
        AddPeak(Dyes - 1, m_oMigration.ScanAt(m_oRandom.Uniform(40, 500)), m_oRandom.Uniform(300, 2000), 7);
}

void Capillary::AddPrimers() {
    for (std::size_t n = 0; n < 12; ++n) {
        const auto nDye = m_oRandom.Below(Dyes - 1);
        AddPeak(nDye, m_oMigration.ScanAt(m_oRandom.Uniform(3, 20)), m_oRandom.Uniform(2000, 12000),
                m_oRandom.Uniform(8, 30));
    }
}

void Capillary::Detect(Trace& oTrace) {
    oTrace.aoDyes.resize(Dyes);
    std::vector<bool> abOffScale(Scans);
    for (std::size_t nDye = 0; nDye < Dyes; ++nDye) {
        oTrace.aoDyes[nDye].sName = DyeNames.at(nDye);
        DetectDye(nDye, oTrace.aoDyes[nDye], abOffScale);
    }
    for (std::size_t nScan = 0; nScan < Scans; ++nScan)
        if (abOffScale[nScan]) oTrace.alOffScale.push_back(static_cast<std::int32_t>(nScan));
}

void Capillary::AddPeak(std::size_t nDye, double dScan, double dHeight, double dWidth) {
    AddShape(nDye, dScan, dHeight, dWidth);
    if (nDye > 0) AddShape(nDye - 1, dScan, dHeight * PullUp, dWidth);
    if (nDye + 1 < Dyes) AddShape(nDye + 1, dScan, dHeight * PullUp, dWidth);
}

void Capillary::AddShape(std::size_t nDye, double dScan, double dHeight, double dWidth) {
    const double dDeviation = dWidth / HalfHeight;
    const double dLast = static_cast<double>(Scans) - 1;
    const auto nFirst = static_cast<std::size_t>(std::clamp(dScan - 5 * dDeviation, 0.0, dLast));
    const auto nEnd = static_cast<std::size_t>(std::clamp(dScan + 5 * dDeviation, 0.0, dLast));
    for (auto nScan = nFirst; nScan <= nEnd; ++nScan) {
        const double dPlace = (static_cast<double>(nScan) - dScan) / dDeviation;
        m_aadSignal[nDye][nScan] += dHeight * std::exp(-dPlace * dPlace / 2);
    }
}

// The baseline drifts along a cubic over the run.
void Capillary::DetectDye(std::size_t nDye, DyeSignal& oDye, std::vector<bool>& abOffScale) {
    const double dLevel = m_oRandom.Uniform(-20, 80);
    const double dSlope = m_oRandom.Uniform(-30, 30);
    const double dTwist = m_oRandom.Uniform(-40, 40);
    oDye.aiValues.resize(Scans);
    for (std::size_t nScan = 0; nScan < Scans; ++nScan) {
        const double dPlace = 2 * static_cast<double>(nScan) / static_cast<double>(Scans) - 1;
        const double dBaseline = dLevel + dPlace * (dSlope + dTwist * dPlace * dPlace);
        const double dSeen = m_aadSignal[nDye][nScan] + dBaseline + Noise * m_oRandom.Normal();
        if (dSeen >= Limit) abOffScale[nScan] = true;
        oDye.aiValues[nScan] = static_cast<std::int16_t>(std::lround(std::min<double>(dSeen, Limit)));
    }
}

} // namespace GleanerSvc::Workbench
