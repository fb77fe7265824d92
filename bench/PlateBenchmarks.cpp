// The refresh of a plate whose 96 wells are all selected, among more selected records elsewhere. Rows are
// those records and the 96.
#include "bench/Benchmarks.h"
#include "bench/PlateRun.h"
#include "bench/Turns.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Bench {
namespace {

constexpr const char* RefreshFloor = "PlateRefreshFloor";
constexpr const char* Refresh = "PlateRefresh";
constexpr int Rounds = 10; // of two refreshes each; one is too short for the clock
constexpr std::int64_t ListedByTheFloor = std::int64_t{2} * Rounds * PlateWells;

void MeasureRefresh(benchmark::State& oState) {
    const auto lElsewhere = static_cast<std::int32_t>(oState.range(0)) - PlateWells;
    PlateRun oRun(lElsewhere);
    const std::string sExpected =
        "wells=96 listed=96 selected=" + DecimalText(oState.range(0)) + " reports=0";
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        oTurns.Time([&] {
            for (int nRound = 0; nRound < Rounds; ++nRound) oRun.ClickRowTwice();
        });
        if (!oTurns.Expect(oRun.ToString(), sExpected)) break;
    }
    oTurns.Close();
}

void MeasureRefreshFloor(benchmark::State& oState) {
    const PlateRun oRun(static_cast<std::int32_t>(oState.range(0)) - PlateWells);
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        std::int32_t lOnPlate = 0;
        oTurns.Time([&] {
            for (int nWalk = 0; nWalk < 2 * Rounds; ++nWalk) lOnPlate += oRun.WalkBare();
        });
        if (!oTurns.Expect(DecimalText(lOnPlate), DecimalText(ListedByTheFloor))) break;
    }
    oTurns.Close();
}

} // namespace

void RegisterPlate(RatioReporter& oReporter) {
    oReporter.Compare(Refresh, RefreshFloor);
    const auto Sized = [](benchmark::internal::Benchmark* pBenchmark) {
        for (const std::int64_t nElsewhere : {0, 1000, 100000}) pBenchmark->Arg(nElsewhere + PlateWells);
        pBenchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Complexity();
    };
    Sized(benchmark::RegisterBenchmark(RefreshFloor, MeasureRefreshFloor));
    Sized(benchmark::RegisterBenchmark(Refresh, MeasureRefresh));
}

} // namespace GleanerSvc::Bench
