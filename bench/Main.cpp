// The benchmarks, and the floors beside them in the same run.
//
//     gleaner_bench [--quick] [--benchmark_filter=AddAll|Floor] [--benchmark_repetitions=5] ...
//
// --quick leaves the largest size out. The exit code is 1 when an operation did not do what it is measured
// for.
#include <algorithm>
#include <cstring>

#ifdef GLEANER_WORKBENCH
#include <QApplication>
#endif

#include "bench/Benchmarks.h"

namespace GleanerSvc::Bench {
namespace {

// Takes the option out of the arguments; tells whether it was there.
bool TakeOption(int& nArguments, char** asArguments, const char* sOption) {
    char** pEnd = asArguments + nArguments;
    char** pKept = std::remove_if(
        asArguments + 1, pEnd, [&](const char* sArgument) { return std::strcmp(sArgument, sOption) == 0; });
    nArguments = static_cast<int>(pKept - asArguments);
    return pKept != pEnd;
}

int Run(int nArguments, char** asArguments) {
    const bool bQuick = TakeOption(nArguments, asArguments, "--quick");
    RatioReporter oReporter;
    RegisterList(oReporter, bQuick);
    RegisterAnalysis(oReporter);
    RegisterPlate(oReporter);
#ifdef GLEANER_WORKBENCH
    qputenv("QT_QPA_PLATFORM", "offscreen"); // what is shown is drawn all the same
    const QApplication oApplication(nArguments, asArguments);
    RegisterWorkbench(oReporter, bQuick);
    RegisterWindow(oReporter, bQuick);
#endif
    benchmark::Initialize(&nArguments, asArguments);
    if (benchmark::ReportUnrecognizedArguments(nArguments, asArguments)) return 1;
    benchmark::RunSpecifiedBenchmarks(&oReporter);
    oReporter.PrintTable();
    benchmark::Shutdown();
    return oReporter.HasFailed() ? 1 : 0;
}

} // namespace
} // namespace GleanerSvc::Bench

int main(int nArguments, char** asArguments) { return GleanerSvc::Bench::Run(nArguments, asArguments); }
