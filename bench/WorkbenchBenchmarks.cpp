// The workbench: a plate from its files to stored results, and the opening of a large lab. Rows are wells and
// samples.
#include <malloc.h>

#include <filesystem>

#include "bench/Benchmarks.h"
#include "bench/Turns.h"
#include "workbench/lab/FragmentAnalyzer.h"
#include "workbench/lab/SimulatedPlate.h"
#include "workbench/store/LabFactory.h"

namespace GleanerSvc::Bench {
namespace {

using namespace Workbench;

constexpr const char* ReadFiles = "ReadPlateFloor";
constexpr const char* WalkRows = "WalkSamplesFloor";

// Files and labs are made once, and go with the program.
const std::filesystem::path& Folder() {
    struct Temporary {
        std::filesystem::path oPath;
        Temporary() {
            std::string sName = (std::filesystem::temp_directory_path() / "gleaner-bench-XXXXXX").string();
            if (mkdtemp(sName.data())) oPath = sName;
        }
        Temporary(const Temporary&) = delete;
        Temporary& operator=(const Temporary&) = delete;
        ~Temporary() {
            std::error_code oIgnored;
            std::filesystem::remove_all(oPath, oIgnored);
        }
    };
    static const Temporary oFolder;
    return oFolder.oPath;
}

struct PlateFiles {
    KitTables oKit = SimulatedStrKit();
    std::vector<SimulatedWell> aoWells;
    std::vector<std::filesystem::path> aoFiles;

    PlateFiles() {
        PlateOrder oOrder;
        oOrder.sPlate = "P1";
        oOrder.oPanel = ReadPanelTables(oKit.oPanels, oKit.oBins).front();
        oOrder.bWithFaults = false;
        aoWells = SimulatePlate(oOrder);
        for (const auto& oWell : aoWells) {
            aoFiles.push_back(Folder() / oWell.sFile);
            WriteBytes(aoFiles.back(), oWell.abContent);
        }
    }
    static const PlateFiles& Get() {
        static const PlateFiles oFiles;
        return oFiles;
    }
};

void MeasureReading(benchmark::State& oState) {
    const auto& oFiles = PlateFiles::Get();
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        std::size_t nScans = 0;
        oTurns.TimeThreads([&] {
            for (const auto& oFile : oFiles.aoFiles) nScans += ReadTraceFile(oFile).Scans();
        });
        if (!oTurns.Expect(nScans > 0 ? "scans" : "nothing", "scans")) break;
    }
    oTurns.Close();
}

// Sized, called and stored, each result on disk before the next.
void MeasureAnalysis(benchmark::State& oState, int nThreads) {
    const auto& oFiles = PlateFiles::Get();
    const auto oFile = Folder() / ("plate" + std::to_string(nThreads) + ".sqlite");
    const auto oLab = Lab::Open(oFile, LabMode::CreateIfMissing);
    ImportPlate(*oLab, {"Bench"}, oFiles.oKit, oFiles.aoWells);
    Int32Array alSampleIDs;
    oLab->ForEachSample(AllProjectsID,
                        [&](SampleRow&& oSample) { alSampleIDs.push_back(oSample.lSampleID); });
    const std::int32_t lParameterID = oLab->AddParameter({0, "all", Workbench::AlleleType::Str, {}});
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        const auto oAnalyzer = std::make_shared<FragmentAnalyzer>(oLab, nThreads);
        std::int32_t lPassed = 0;
        const auto oSubscription = oAnalyzer->Events().OnComplete.Subscribe(
            [&](std::int32_t, std::int32_t, std::int32_t lStatus) { lPassed += lStatus == 0 ? 1 : 0; });
        oTurns.TimeThreads([&] { oAnalyzer->AnalyzeSamples(alSampleIDs, lParameterID); });
        if (!oTurns.Expect(std::to_string(lPassed), "96")) break;
    }
    oTurns.Close();
}

std::filesystem::path LargeLab(std::int64_t nSamples) {
    auto oFile = Folder() / ("samples" + std::to_string(nSamples) + ".sqlite");
    if (std::filesystem::exists(oFile)) return oFile;
    const auto oLab = Lab::Open(oFile, LabMode::CreateIfMissing);
    Lab::Transaction oTransaction(*oLab);
    SampleRow oSample;
    oSample.lProjectID = oLab->AddProject("Large");
    for (std::int64_t nSample = 0; nSample < nSamples; ++nSample) {
        oSample.sName = "Sample " + std::to_string(nSample);
        oLab->AddSample(oSample, std::as_bytes(std::span(oSample.sName)));
    }
    oTransaction.Commit();
    return oFile;
}

void MeasureWalk(benchmark::State& oState) {
    const auto oLab = Lab::Open(LargeLab(oState.range(0)), LabMode::Existing);
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        std::int64_t nSamples = 0;
        oTurns.Time([&] { oLab->ForEachSample(AllProjectsID, [&](SampleRow&&) { ++nSamples; }); });
        if (!oTurns.Expect(std::to_string(nSamples), std::to_string(oState.range(0)))) break;
    }
    oTurns.Close();
}

// From the file to the collection of all samples; and what that holds of memory.
void MeasureOpening(benchmark::State& oState) {
    const auto oFile = LargeLab(oState.range(0));
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        const std::size_t nBefore = mallinfo2().uordblks;
        Ref<IDataCollection> colSamples;
        oTurns.Time([&] {
            const auto oFactory = std::make_shared<LabFactory>(Lab::Open(oFile, LabMode::Existing));
            colSamples = oFactory->GetCollection(QueryName::Samples, KeyName::None, "", "", 0, true);
        });
        oState.counters["bytes_a_sample"] =
            static_cast<double>(mallinfo2().uordblks - nBefore) / static_cast<double>(oState.range(0));
        if (!oTurns.Expect(std::to_string(colSamples->Count()), std::to_string(oState.range(0)))) break;
    }
    oTurns.Close();
}

void Plate(benchmark::internal::Benchmark* pBenchmark) {
    pBenchmark->Arg(PlateWells)->UseManualTime()->Unit(benchmark::kMillisecond)->Complexity();
}

} // namespace

void RegisterWorkbench(RatioReporter& oReporter, bool bQuick) {
    Plate(benchmark::RegisterBenchmark(ReadFiles, MeasureReading));
    for (const int nThreads : {1, 2}) {
        const std::string sName = "AnalyzePlate" + std::to_string(nThreads) + "Thread";
        oReporter.Compare(sName, ReadFiles);
        Plate(benchmark::RegisterBenchmark(
            sName.c_str(), [nThreads](benchmark::State& oState) { MeasureAnalysis(oState, nThreads); }));
    }
    oReporter.Compare("OpenLab", WalkRows);
    const auto fnSized = [bQuick](benchmark::internal::Benchmark* pBenchmark) {
        pBenchmark->Arg(100'000);
        if (!bQuick) pBenchmark->Arg(1'000'000);
        pBenchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Complexity();
    };
    fnSized(benchmark::RegisterBenchmark(WalkRows, MeasureWalk));
    fnSized(benchmark::RegisterBenchmark("OpenLab", MeasureOpening));
}

} // namespace GleanerSvc::Bench
