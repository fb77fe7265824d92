// Prints what was measured as the benchmark library does, and keeps it for one table at the end: each
// operation at each size beside its floor at that size, its cost a row beside that of its smallest size, and
// how it grows.
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
    // Sets an operation beside its floor: both are the names of benchmarks.
    void Compare(const std::string& sOperation, const std::string& sFloor) { m_sFloors[sOperation] = sFloor; }

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
    double FloorAt(const std::string& sOperation, std::int64_t nRows) const; // seconds; 0 for none
    void PrintRow(const Operation& oOperation, std::int64_t nRows, double dSeconds) const;

    std::map<std::string, std::string> m_sFloors; // by operation; a floor has none
    std::vector<Operation> m_aoOperations;        // in the order of measuring
    bool m_bFailed = false;
};

} // namespace GleanerSvc::Bench
