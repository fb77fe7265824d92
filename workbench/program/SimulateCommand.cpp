#include <QString>

#include <filesystem>

#include "workbench/lab/SimulatedPlate.h"
#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

AlleleType TypeOf(const Arguments& oArguments) {
    const std::string sType = oArguments.Text("type", "STR");
    if (sType == "STR") return AlleleType::Str;
    if (sType == "SNP") return AlleleType::Snp;
    throw UsageError("simulate: --type is \"" + sType + "\", and neither STR nor SNP");
}

LadderState LadderOf(const Arguments& oArguments) {
    const std::string sLadder = oArguments.Text("ladder", "complete");
    if (sLadder == "complete") return LadderState::Complete;
    if (sLadder == "broken") return LadderState::Broken;
    if (sLadder == "missing") return LadderState::Missing;
    throw UsageError("simulate: --ladder is \"" + sLadder + "\", and none of complete, broken and missing");
}

// The files, and what an analysis of them should find.
void WriteFiles(const std::filesystem::path& oFolder, const std::vector<SimulatedWell>& aoWells) {
    std::error_code oError;
    std::filesystem::create_directories(oFolder, oError);
    Table oTruth({"well", "sample", "status", "locus", "alleles"});
    for (const auto& oWell : aoWells) {
        WriteBytes(oFolder / oWell.sFile, oWell.abContent);
        for (const auto& oKnown : oWell.aoGenotype) {
            std::string sAlleles;
            for (const auto& sAllele : oKnown.asAlleles) sAlleles += (sAlleles.empty() ? "" : " ") + sAllele;
            oTruth.Add({oWell.sWell, oWell.sSampleName, oWell.sStatus, oKnown.sLocus, sAlleles});
        }
    }
    oTruth.SaveCsv(oFolder / "truth.csv");
}

int RunSimulate(const Arguments& oArguments) {
    SimulatedRun oRun;
    oRun.eType = TypeOf(oArguments);
    oRun.nSeed = static_cast<std::uint64_t>(oArguments.Number("seed", 1, 0));
    oRun.oDestination.sPlate = QString::fromStdString(oArguments.Required("plate")).trimmed().toStdString();
    oRun.eLadder = LadderOf(oArguments);
    oRun.bWithFaults = !oArguments.Has("without-faults");
    oRun.oDestination.sProject = oArguments.Required("project");
    const Destination& oDestination = oRun.oDestination;
    const auto oLab = OpenLab(oArguments, LabMode::CreateIfMissing);

    const auto aoWells = SimulatePlate(OrderOf(oRun));
    if (oArguments.Has("folder")) WriteFiles(oArguments.Text("folder"), aoWells);
    const std::int64_t nAdded = ImportPlate(*oLab, oDestination, KitOf(oRun.eType), aoWells);
    Table oTable({"project", "plate", "wells", "added"});
    oTable.Add(
        {oDestination.sProject, oDestination.sPlate, static_cast<std::int64_t>(aoWells.size()), nAdded});
    Write(oTable, oArguments);
    return ExitCode::Done;
}

} // namespace

Command SimulateCommand() {
    return {"simulate",
            "Make a plate of 96 traces with known genotypes, and bring it into the lab.",
            nullptr,
            nullptr,
            {LabOption,
             {"project", "name", "The project it goes to. It is made when it is not there."},
             {"plate", "name", "The name of the plate."},
             {"seed", "number", "The same seed makes the same plate. Without it: 1."},
             {"type", "type", "STR or SNP. Without it: STR."},
             {"ladder", "state", "complete, broken or missing. Without it: complete."},
             {"without-faults", nullptr, "No wells that fail."},
             {"folder", "folder", "Write the trace files there too, and the genotypes as truth.csv."},
             JsonOption},
            RunSimulate};
}

} // namespace GleanerSvc::Workbench
