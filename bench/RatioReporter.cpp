#include "bench/RatioReporter.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace GleanerSvc::Bench {

namespace {

std::string GrowthName(benchmark::BigO eGrowth) {
    switch (eGrowth) {
    case benchmark::o1:
        return "1";
    case benchmark::oLogN:
        return "lg N";
    case benchmark::oN:
        return "N";
    case benchmark::oNLogN:
        return "N lg N";
    case benchmark::oNSquared:
        return "N^2";
    case benchmark::oNCubed:
        return "N^3";
    default:
        return "?";
    }
}

std::string Fixed(double dNumber, int nDigits) {
    std::ostringstream oText;
    oText << std::fixed << std::setprecision(nDigits) << dNumber;
    return oText.str();
}

void PrintCells(std::ostream& oOut, const std::string& sName, const std::vector<std::string>& asCells) {
    oOut << std::left << std::setw(24) << sName << std::right;
    for (const auto& sCell : asCells) oOut << std::setw(12) << sCell;
    oOut << '\n';
}

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& aoRuns) {
    ConsoleReporter::ReportRuns(aoRuns);
    for (const Run& oRun : aoRuns) Keep(oRun);
}

RatioReporter::Operation& RatioReporter::OperationOf(const Run& oRun) {
    const std::string& sName = oRun.run_name.function_name;
    const auto itOperation =
        std::find_if(m_aoOperations.begin(), m_aoOperations.end(),
                     [&](const Operation& oOperation) { return oOperation.sName == sName; });
    return itOperation == m_aoOperations.end() ? m_aoOperations.emplace_back(Operation{sName, {}, {}})
                                               : *itOperation;
}

void RatioReporter::Keep(const Run& oRun) {
    m_bFailed = m_bFailed || oRun.error_occurred;
    if (oRun.error_occurred) return;
    Operation& oOperation = OperationOf(oRun);
    if (oRun.report_big_o) {
        oOperation.sGrowth = GrowthName(oRun.complexity);
    } else if (oRun.report_rms) {
        oOperation.sGrowth += " (" + Fixed(oRun.GetAdjustedRealTime() * 100, 0) + " %)";
    } else if (oRun.run_type == Run::RT_Iteration) {
        const double dSeconds = oRun.counters.at(FastestTurn);
        const auto [itSeconds, bNew] = oOperation.oSeconds.try_emplace(oRun.complexity_n, dSeconds);
        if (!bNew) itSeconds->second = std::min(itSeconds->second, dSeconds);
    }
}

double RatioReporter::FloorAt(const std::string& sOperation, std::int64_t nRows) const {
    const auto itFloor = m_sFloors.find(sOperation);
    for (const Operation& oOperation : m_aoOperations) {
        const auto itSeconds = oOperation.oSeconds.find(nRows);
        if (itFloor != m_sFloors.end() && oOperation.sName == itFloor->second &&
            itSeconds != oOperation.oSeconds.end()) {
            return itSeconds->second;
        }
    }
    return 0;
}

void RatioReporter::PrintRow(const Operation& oOperation, std::int64_t nRows, double dSeconds) const {
    const double dFloor = FloorAt(oOperation.sName, nRows);
    const auto& [nFewest, dFewest] = *oOperation.oSeconds.begin();
    const bool bLargest = nRows == oOperation.oSeconds.rbegin()->first;
    const double dRow = dSeconds / static_cast<double>(nRows);
    const double dRowOfFewest = dFewest / static_cast<double>(nFewest);
    PrintCells(GetOutputStream(), oOperation.sName,
               {std::to_string(nRows), Fixed(dSeconds * 1e3, 3), Fixed(dRow * 1e9, 0),
                Fixed(dRow / dRowOfFewest, 2), dFloor > 0 ? Fixed(dSeconds / dFloor, 1) : "",
                bLargest ? oOperation.sGrowth : ""});
}

void RatioReporter::PrintTable() const {
    GetOutputStream() << '\n';
    PrintCells(GetOutputStream(), "operation", {"rows", "ms", "ns a row", "x smallest", "x floor", "growth"});
    for (const Operation& oOperation : m_aoOperations) {
        for (const auto& [nRows, dSeconds] : oOperation.oSeconds) PrintRow(oOperation, nRows, dSeconds);
    }
}

} // namespace GleanerSvc::Bench
