// The benchmarks of the selection list, and the floor beside them in the same run.
//
//     gleaner_bench [--quick] [--benchmark_filter=AddAll|Floor] [--benchmark_repetitions=5] ...
//
// --quick leaves the largest size out. The exit code is 1 when an operation did not do what it is measured
// for.
#include <algorithm>
#include <cstring>
#include <ctime>
#include <limits>
#include <map>

#include "bench/Floor.h"
#include "bench/ListRun.h"
#include "bench/RatioReporter.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Bench {
namespace {

constexpr const char* FloorName = "Floor";

// What is measured. fnPrepare is not timed.
struct Operation {
    const char* sName;
    void (*fnPrepare)(ListRun&);
    void (*fnRun)(ListRun&);
    int nSelectedHalves; // of the rows, how many halves are selected afterwards
};

constexpr Operation Operations[] = {
    {"RefreshView", [](ListRun&) {}, [](ListRun& oRun) { oRun.Refresh(); }, 0},
    {"RefreshViewHalfSelected", [](ListRun& oRun) { oRun.SelectEverySecond(); },
     [](ListRun& oRun) { oRun.Refresh(); }, 1},
    {"AddAll", [](ListRun&) {}, [](ListRun& oRun) { oRun.AddAll(); }, 2},
    {"RemoveAll", [](ListRun& oRun) { oRun.AddAll(); }, [](ListRun& oRun) { oRun.RemoveAll(); }, 0},
    {"AddEverySecond", [](ListRun& oRun) { oRun.HighlightEverySecond(); }, [](ListRun& oRun) { oRun.Add(); },
     1},
    {"HeadingSort", [](ListRun&) {}, [](ListRun& oRun) { oRun.SortByDate(); }, 0},
};

// The store of a size is made once and kept: it takes longer than what is measured on it.
Models::ModelLibraries& SamplesOf(std::int64_t nRows) {
    static std::map<std::int64_t, Ref<Models::ModelLibraries>> s_oStores;
    auto& oLibraries = s_oStores[nRows];
    if (!oLibraries) oLibraries = MakeSamples(static_cast<std::int32_t>(nRows));
    return *oLibraries;
}

// One measurement: its turns, each timed by itself.
class Turns {
  public:
    explicit Turns(benchmark::State& oState) : m_oState(oState) {}

    // By hand, since pausing the library's own timer costs more than a small list. In processor time:
    // everything runs on one thread, and what else the machine does shall not count.
    template<class F>
    void Time(F&& fnRun) {
        const std::clock_t nStart = std::clock();
        fnRun();
        const double dSeconds = static_cast<double>(std::clock() - nStart) / CLOCKS_PER_SEC;
        m_oState.SetIterationTime(dSeconds);
        m_dFastest = std::min(m_dFastest, dSeconds);
    }

    void Close() {
        m_oState.counters[FastestTurn] = m_dFastest;
        m_oState.SetComplexityN(m_oState.range(0));
    }

  private:
    benchmark::State& m_oState;
    double m_dFastest = std::numeric_limits<double>::infinity();
};

std::string ExpectedState(std::int64_t nRows, int nSelectedHalves) {
    const std::string sSelected = DecimalText(nRows * nSelectedHalves / 2);
    return "available=" + DecimalText(nRows - nRows * nSelectedHalves / 2) + " selected=" + sSelected +
           " items=" + sSelected + " reports=0";
}

void Measure(benchmark::State& oState, const Operation& oOperation) {
    const std::int64_t nRows = oState.range(0);
    const std::string sExpected = ExpectedState(nRows, oOperation.nSelectedHalves);
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        ListRun oRun(SamplesOf(nRows));
        oOperation.fnPrepare(oRun);
        oTurns.Time([&] { oOperation.fnRun(oRun); });
        if (oRun.ToString() == sExpected) continue;
        oState.SkipWithError((oRun.ToString() + " instead of " + sExpected).c_str());
        break;
    }
    oTurns.Close();
}

void MeasureFloor(benchmark::State& oState) {
    const std::int64_t nRows = oState.range(0);
    const FloorRows aoRows = RowsOf(ListRun(SamplesOf(nRows)).Available());
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        FloorRows aoMoved = aoRows;
        oTurns.Time([&] { MoveEverySecond(aoMoved); });
        benchmark::DoNotOptimize(aoMoved.data());
    }
    oTurns.Close();
}

void Register(bool bQuick) {
    const auto Sized = [bQuick](benchmark::internal::Benchmark* pBenchmark) {
        pBenchmark->RangeMultiplier(10)->Range(1000, bQuick ? 100000 : 1000000);
        pBenchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Complexity();
    };
    Sized(benchmark::RegisterBenchmark(FloorName, MeasureFloor));
    for (const Operation& oOperation : Operations) {
        Sized(benchmark::RegisterBenchmark(
            oOperation.sName, [&oOperation](benchmark::State& oState) { Measure(oState, oOperation); }));
    }
}

// Takes the option out of the arguments; tells whether it was there.
bool TakeOption(int& nArguments, char** asArguments, const char* sOption) {
    char** pEnd = asArguments + nArguments;
    char** pKept = std::remove_if(
        asArguments + 1, pEnd, [&](const char* sArgument) { return std::strcmp(sArgument, sOption) == 0; });
    nArguments = static_cast<int>(pKept - asArguments);
    return pKept != pEnd;
}

int Run(int nArguments, char** asArguments) {
    Register(TakeOption(nArguments, asArguments, "--quick"));
    benchmark::Initialize(&nArguments, asArguments);
    if (benchmark::ReportUnrecognizedArguments(nArguments, asArguments)) return 1;
    RatioReporter oReporter(FloorName);
    benchmark::RunSpecifiedBenchmarks(&oReporter);
    oReporter.PrintTable();
    benchmark::Shutdown();
    return oReporter.HasFailed() ? 1 : 0;
}

} // namespace
} // namespace GleanerSvc::Bench

int main(int nArguments, char** asArguments) { return GleanerSvc::Bench::Run(nArguments, asArguments); }
