#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

int RunStudies(const Arguments& oArguments) {
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    Table oTable({"study", "results", "created"});
    for (const auto& oStudy : oLab->Studies())
        oTable.Add({oStudy.sName, std::int64_t{oStudy.lResults}, TextOf(oStudy.dtCreated)});
    Write(oTable, oArguments);
    return ExitCode::Done;
}

} // namespace

Command StudiesCommand() {
    return {"studies", "List the studies.", nullptr, nullptr, {LabOption, JsonOption}, RunStudies};
}

} // namespace GleanerSvc::Workbench
