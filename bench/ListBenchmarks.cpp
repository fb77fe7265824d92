// The operations of the selection list.
#include <map>

#include "bench/Benchmarks.h"
#include "bench/Floor.h"
#include "bench/ListRun.h"
#include "bench/Turns.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Bench {
namespace {

constexpr const char* ListFloor = "Floor";

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
        if (!oTurns.Expect(oRun.ToString(), sExpected)) break;
    }
    oTurns.Close();
}

void MeasureListFloor(benchmark::State& oState) {
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

} // namespace

void RegisterList(RatioReporter& oReporter, bool bQuick) {
    const auto Sized = [bQuick](benchmark::internal::Benchmark* pBenchmark) {
        InTurns(pBenchmark, bQuick ? 100000 : 1000000);
    };
    Sized(benchmark::RegisterBenchmark(ListFloor, MeasureListFloor));
    for (const Operation& oOperation : Operations) {
        oReporter.Compare(oOperation.sName, ListFloor);
        Sized(benchmark::RegisterBenchmark(
            oOperation.sName, [&oOperation](benchmark::State& oState) { Measure(oState, oOperation); }));
    }
}

} // namespace GleanerSvc::Bench
