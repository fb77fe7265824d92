// Sizes by the local Southern method: the size of a fragment is a hyperbola of its mobility (Southern, Anal.
// Biochem. 100, 1979), taken through three fragments of the standard at a time; between two fragments the
// curve with the next one below and that with the next one above are averaged (Elder and Southern, Anal.
// Biochem. 128, 1983). A hyperbola of mobility is one of the scan too, so scans serve as they are.
#pragma once

#include <optional>
#include <vector>

namespace GleanerSvc::Workbench {

// Where a fragment of the size standard was found.
struct StandardPoint {
    double dSize = 0; // bp
    double dScan = 0;

    friend bool operator==(const StandardPoint&, const StandardPoint&) = default;
};

// The fragments of 250 and 340 bp migrate anomalously: they prove the standard, but nothing is sized by them.
bool IsAnomalous(const StandardPoint& oPoint);

// The curve through some points. Between the first and the last two of them there is one hyperbola only. It
// rises throughout, so that SizeAt and ScanAt are each other's inverse.
class SouthernCurve {
  public:
    // Points in order, both sizes and scans rising; the anomalous ones are left out. Of fewer than three
    // others the curve is empty and sizes nothing.
    explicit SouthernCurve(const std::vector<StandardPoint>& aoPoints);

    std::optional<double> SizeAt(double dScan) const; // bp; none outside the points
    std::optional<double> ScanAt(double dSize) const; // none outside the points

  private:
    double SizeBetween(std::size_t nRight, double dScan) const;

    std::vector<StandardPoint> m_aoPoints;
};

} // namespace GleanerSvc::Workbench
