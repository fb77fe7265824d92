#include "workbench/lab/AlleleTable.h"
#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

int RunResults(const Arguments& oArguments) {
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    auto oPlates = PlateNames(*oLab);
    Table oTable({"result", "sample", "plate", "well", "status", "description", "stored"});
    for (const auto& oResult : ChosenResults(*oLab, oArguments)) {
        oTable.Add({std::int64_t{oResult.lResultID}, oResult.sName, oPlates[oResult.lPlateID],
                    oResult.oWell ? WellText(*oResult.oWell) : "",
                    StatusText(static_cast<std::int32_t>(oResult.eStatus)), oResult.sDescription,
                    TextOf(oResult.dtModified)});
    }
    Write(oTable, oArguments);
    return ExitCode::Done;
}

} // namespace

Command ResultsCommand() {
    return {"results", "List the results of a study, of a project, or of the lab.", nullptr,
            nullptr,   {LabOption, StudyOption, ProjectOption, JsonOption},         RunResults};
}

} // namespace GleanerSvc::Workbench
