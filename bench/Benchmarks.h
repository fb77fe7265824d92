// What is measured, by subject. Each tells the reporter which floor an operation is compared with.
#pragma once

#include "bench/RatioReporter.h"

namespace GleanerSvc::Bench {

void RegisterList(RatioReporter& oReporter, bool bQuick);
void RegisterAnalysis(RatioReporter& oReporter);
void RegisterPlate(RatioReporter& oReporter);
void RegisterWorkbench(RatioReporter& oReporter, bool bQuick); // these two where the workbench is built
void RegisterWindow(RatioReporter& oReporter, bool bQuick);

// Measured from 1000 rows on in steps of ten, each turn timed by hand.
inline void InTurns(benchmark::internal::Benchmark* pBenchmark, std::int64_t nLargest) {
    pBenchmark->RangeMultiplier(10)->Range(1000, nLargest);
    pBenchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Complexity();
}

} // namespace GleanerSvc::Bench
