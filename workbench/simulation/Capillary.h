// The physics of one injection: how fragments migrate, and what the detector sees of them.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "workbench/simulation/Random.h"
#include "workbench/traces/Trace.h"

namespace GleanerSvc::Workbench {

// The scan at which a fragment passes the detector. Longer ones are slower by ever less.
class Migration {
  public:
    // A usual run, a little off in start and speed from one injection to the next.
    explicit Migration(Random& oRandom);

    double ScanAt(double dSize) const { return m_dStart + dSize * (m_dSpeed - m_dBend * dSize); }

  private:
    double m_dStart; // scans
    double m_dSpeed; // scans per bp
    double m_dBend;  // scans per bp and bp
};

// Collects signal and turns it into a trace. The size standard runs in the last dye.
class Capillary {
  public:
    static constexpr std::size_t Dyes = 5;
    static constexpr std::size_t Scans = 9500;
    static constexpr std::int16_t Limit = 8192; // RFU at which the detector is off scale

    explicit Capillary(Random& oRandom);

    void AddFragment(std::size_t nDye, double dSize, double dHeight); // bp, RFU
    void AddStandard();
    void AddFalseStandard(); // as many peaks as a standard, in no order of sizes
    void AddPrimers();       // what is left of the primers, off scale before the shortest fragment

    // Fills in the dyes and the scans that are off scale, with baseline and noise.
    void Detect(Trace& oTrace);

  private:
    void AddPeak(std::size_t nDye, double dScan, double dHeight, double dWidth);
    void AddShape(std::size_t nDye, double dScan, double dHeight, double dWidth);
    void DetectDye(std::size_t nDye, DyeSignal& oDye, std::vector<bool>& abOffScale);

    Random& m_oRandom;
    Migration m_oMigration;
    std::vector<std::vector<double>> m_aadSignal; // RFU by dye and scan
};

} // namespace GleanerSvc::Workbench
