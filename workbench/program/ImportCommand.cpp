#include <iostream>

#include "workbench/lab/FileImport.h"
#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

// A kit or files, and nothing that is about files without one.
void CheckImport(const Arguments& oArguments) {
    for (const char* szTable : {"panels", "bins"}) {
        oArguments.RequireBeside(szTable, "kit");
        oArguments.RequireBeside("kit", szTable);
    }
    if (!oArguments.Plain().empty()) return;
    if (!oArguments.Has("kit")) throw UsageError("import: no file is named, and no kit");
    for (const char* szOption : {"project", "plate", "skip-known"}) {
        if (oArguments.Has(szOption))
            throw UsageError(std::string("import: --") + szOption + " is for files, and none is named");
    }
}

// Tells what became of the file; False when it was refused.
bool ImportOne(Lab& oLab, const Destination& oDestination, const std::string& sFile, bool bSkipKnown,
               Table& oTable) {
    ImportedFile oFile = ImportFile(oLab, oDestination, sFile);
    if (oFile.eOutcome == FileOutcome::WasThere && !bSkipKnown) {
        oFile.eOutcome = FileOutcome::Refused;
        oFile.sReason = sFile + ": project \"" + oDestination.sProject +
                        "\" has this trace already, as sample \"" + oFile.oSample.sName + "\"";
    }
    if (oFile.eOutcome == FileOutcome::Refused) {
        std::cerr << "gleaner-workbench: " << oFile.sReason << '\n';
        return false;
    }
    const SampleRow& oSample = oFile.oSample;
    oTable.Add({sFile, std::int64_t{oSample.lSampleID}, oSample.sName,
                oSample.oWell ? WellText(*oSample.oWell) : "", oSample.sType, OutcomeText(oFile)});
    return true;
}

// How many were refused. What was done before a failure of the lab is told all the same: it stays done.
std::size_t ImportAll(Lab& oLab, const Destination& oDestination, const Arguments& oArguments) {
    Table oTable({"file", "sample", "name", "well", "type", "outcome"});
    std::size_t nRefused = 0;
    for (const auto& sFile : oArguments.Plain()) {
        try {
            nRefused += ImportOne(oLab, oDestination, sFile, oArguments.Has("skip-known"), oTable) ? 0 : 1;
        } catch (const LabError&) {
            Write(oTable, oArguments);
            std::cerr << "gleaner-workbench: the import ended at " << sFile << '\n';
            throw;
        }
    }
    Write(oTable, oArguments);
    return nRefused;
}

// JSON has the standard output for itself.
void ImportTables(Lab& oLab, const Arguments& oArguments) {
    const std::string sKit = oArguments.Text("kit");
    const auto nPanels = ImportKit(oLab, sKit, oArguments.Text("panels"), oArguments.Text("bins"));
    (oArguments.Has("json") ? std::cerr : std::cout)
        << "The kit \"" << sKit << "\" is in the lab; panels: " << nPanels << ".\n";
}

int RunImport(const Arguments& oArguments) {
    CheckImport(oArguments);
    const auto asFiles = oArguments.Plain();
    const Destination oDestination{asFiles.empty() ? "" : oArguments.Required("project"),
                                   oArguments.Text("plate")};
    const auto oLab = OpenLab(oArguments, LabMode::CreateIfMissing);
    if (oArguments.Has("kit")) ImportTables(*oLab, oArguments);
    if (asFiles.empty() && !oArguments.Has("json")) return ExitCode::Done;
    const std::size_t nRefused = ImportAll(*oLab, oDestination, oArguments);
    if (nRefused > 0) std::cerr << nRefused << " of " << asFiles.size() << " files were refused.\n";
    return nRefused > 0 ? ExitCode::Refused : ExitCode::Done;
}

} // namespace

Command ImportCommand() {
    return {"import",
            "Bring trace files, and the panels and bins of a kit, into the lab.",
            "files",
            "Trace files (.fsa). A file that is refused leaves the others as they are.",
            {LabOption,
             {"project", "name", "The project they go to. It is made when it is not there."},
             {"plate", "name", "The plate they go to. Without it: the plate that each trace names."},
             {"kit", "name", "The name of a kit to bring in, or to replace."},
             {"panels", "file", "The kit's table of panels."},
             {"bins", "file", "The kit's table of bins."},
             {"skip-known", nullptr, "Pass over files that the project has already."},
             JsonOption},
            RunImport};
}

} // namespace GleanerSvc::Workbench
