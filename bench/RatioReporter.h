// Prints what was measured as the benchmark library does, and keeps it for one table at the end: each
// operation at each size beside the floor at that size, and how it grows.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace GleanerSvc::Bench {

// The counter in which a benchmark leaves the time of its fastest turn, in seconds. The table is made of
// these: what disturbs a turn only ever makes it slower.
inline constexpr const char* FastestTurn = "fastest";

class RatioReporter final : public benchmark::ConsoleReporter {
  public:
    // sFloor is the name of the floor's own benchmark.
    explicit RatioReporter(std::string sFloor) : m_sFloor(std::move(sFloor)) {}

    void ReportRuns(const std::vector<Run>& aoRuns) override;

    // Without a floor in the same run, ratios stay empty.
    void PrintTable() const;

    bool HasFailed() const { return m_bFailed; } // some benchmark ended with an error

  private:
    struct Operation {
        std::string sName;
        std::map<std::int64_t, double> oSeconds; // by number of rows
        std::string sGrowth;                     // "N lgN (4 %)", with the error of the fit
    };

    Operation& OperationOf(const Run& oRun);
    void Keep(const Run& oRun);
    double FloorAt(std::int64_t nRows) const; // seconds; 0 for none
    void PrintRow(const Operation& oOperation, std::int64_t nRows, double dSeconds) const;

    std::string m_sFloor;
    std::vector<Operation> m_aoOperations; // in the order of measuring
    bool m_bFailed = false;
};

} // namespace GleanerSvc::Bench
