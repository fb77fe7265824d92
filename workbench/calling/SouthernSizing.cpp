#include "workbench/calling/SouthernSizing.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace GleanerSvc::Workbench {

namespace {

// The hyperbola through three points, as a continued fraction: it also serves where they lie on a line.
double Hyperbola(std::span<const StandardPoint> aoThree, double dScan) {
    const auto& [dSize0, dScan0] = aoThree[0];
    const auto& [dSize1, dScan1] = aoThree[1];
    const auto& [dSize2, dScan2] = aoThree[2];
    const double dSpeed = (dScan1 - dScan0) / (dSize1 - dSize0);
    const double dBend = ((dScan2 - dScan0) / (dSize2 - dSize0) - dSpeed) / (dScan2 - dScan1);
    return dSize0 + (dScan - dScan0) / (dSpeed + (dScan - dScan1) * dBend);
}

} // namespace

bool IsAnomalous(const StandardPoint& oPoint) { return oPoint.dSize == 250 || oPoint.dSize == 340; }

SouthernCurve::SouthernCurve(const std::vector<StandardPoint>& aoPoints) {
    std::remove_copy_if(aoPoints.begin(), aoPoints.end(), std::back_inserter(m_aoPoints), IsAnomalous);
    if (m_aoPoints.size() < 3) m_aoPoints.clear();
}

std::optional<double> SouthernCurve::SizeAt(double dScan) const {
    if (m_aoPoints.empty() || !(dScan >= m_aoPoints.front().dScan && dScan <= m_aoPoints.back().dScan)) {
        return {};
    }
    const auto oRight = std::lower_bound(m_aoPoints.begin() + 1, m_aoPoints.end() - 1, dScan,
                                         [](const auto& oPoint, double d) { return oPoint.dScan < d; });
    return SizeBetween(static_cast<std::size_t>(oRight - m_aoPoints.begin()), dScan);
}

std::optional<double> SouthernCurve::ScanAt(double dSize) const {
    if (m_aoPoints.empty() || !(dSize >= m_aoPoints.front().dSize && dSize <= m_aoPoints.back().dSize)) {
        return {};
    }
    const auto oRight = std::lower_bound(m_aoPoints.begin() + 1, m_aoPoints.end() - 1, dSize,
                                         [](const auto& oPoint, double d) { return oPoint.dSize < d; });
    const auto nRight = static_cast<std::size_t>(oRight - m_aoPoints.begin());
    double dLow = m_aoPoints[nRight - 1].dScan;
    double dHigh = m_aoPoints[nRight].dScan;
    for (int nStep = 0; nStep < 40; ++nStep) { // a billionth of a scan
        const double dMiddle = (dLow + dHigh) / 2;
        (SizeBetween(nRight, dMiddle) < dSize ? dLow : dHigh) = dMiddle;
    }
    return (dLow + dHigh) / 2;
}

double SouthernCurve::SizeBetween(std::size_t nRight, double dScan) const {
    const std::span<const StandardPoint> aoPoints(m_aoPoints);
    if (nRight == 1) return Hyperbola(aoPoints.first(3), dScan);
    const double dLower = Hyperbola(aoPoints.subspan(nRight - 2, 3), dScan);
    if (nRight + 1 == aoPoints.size()) return dLower;
    return (dLower + Hyperbola(aoPoints.subspan(nRight - 1, 3), dScan)) / 2;
}

} // namespace GleanerSvc::Workbench
