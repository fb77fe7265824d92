#include <iostream>

#include "workbench/lab/AlleleTable.h"
#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

int RunExport(const Arguments& oArguments) {
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    const Table oTable = AlleleTable(*oLab, ChosenResults(*oLab, oArguments));
    if (!oArguments.Has("file")) {
        oTable.WriteCsv(std::cout);
        return ExitCode::Done;
    }
    const std::string sFile = oArguments.Text("file");
    oTable.SaveCsv(sFile);
    std::cerr << oTable.Rows() << " rows are in " << sFile << ".\n";
    return ExitCode::Done;
}

} // namespace

Command ExportCommand() {
    return {"export",
            "Write results as CSV, a row for each allele.",
            nullptr,
            nullptr,
            {LabOption,
             StudyOption,
             ProjectOption,
             {"file", "file", "Where to. Without it: the standard output."}},
            RunExport};
}

} // namespace GleanerSvc::Workbench
