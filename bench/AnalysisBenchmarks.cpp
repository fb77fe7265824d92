// The events of an analyzer, of which each item has eleven. A row of the table is an item.
#include "bench/AnalysisRun.h"
#include "bench/Benchmarks.h"
#include "bench/Turns.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Bench {
namespace {

constexpr const char* EventFloor = "AnalyzerEventsFloor";
constexpr const char* Events = "AnalyzerEvents";
constexpr std::int64_t LargestBatch = 100000;

void MeasureEvents(benchmark::State& oState) {
    const auto lItems = static_cast<std::int32_t>(oState.range(0));
    const std::string sExpected = "analyzed=" + DecimalText(lItems) + " failed=" + DecimalText(lItems / 10) +
                                  " results=" + DecimalText(lItems - lItems / 10) + " reports=0";
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        AnalysisRun oRun(lItems);
        oTurns.Time([&] { oRun.PlayAll(); });
        if (!oTurns.Expect(oRun.ToString(), sExpected)) break;
    }
    oTurns.Close();
}

void MeasureEventFloor(benchmark::State& oState) {
    const auto lItems = static_cast<std::int32_t>(oState.range(0));
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        std::int32_t lFailed = 0;
        oTurns.Time([&] { lFailed = PlayBare(lItems); });
        if (!oTurns.Expect(DecimalText(lFailed), DecimalText(lItems / 10))) break;
    }
    oTurns.Close();
}

} // namespace

void RegisterAnalysis(RatioReporter& oReporter) {
    oReporter.Compare(Events, EventFloor);
    InTurns(benchmark::RegisterBenchmark(EventFloor, MeasureEventFloor), LargestBatch);
    auto* pEvents = benchmark::RegisterBenchmark(Events, MeasureEvents);
    InTurns(pEvents, LargestBatch);
    pEvents->MinTime(2); // a large batch wants several turns, or one disturbance decides
}

} // namespace GleanerSvc::Bench
