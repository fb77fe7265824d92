#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

int RunLog(const Arguments& oArguments) {
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    Table oTable({"logged", "application", "object", "procedure", "number", "source", "description",
                  "help file", "help context", "extra", "shown"});
    for (const auto& oEntry : oLab->LogEntries(oArguments.Number("last", 50, 1))) {
        oTable.Add({TextOf(oEntry.dtLogged), oEntry.sAppTitle, oEntry.sObjectType, oEntry.sProcedure,
                    std::int64_t{oEntry.oFailure.Number()}, oEntry.oFailure.Source(),
                    oEntry.oFailure.Description(), oEntry.oFailure.HelpFile(),
                    std::int64_t{oEntry.oFailure.HelpContext()}, oEntry.sExtra,
                    std::string(oEntry.bShowUser ? "yes" : "no")});
    }
    Write(oTable, oArguments);
    return ExitCode::Done;
}

} // namespace

Command LogCommand() {
    return {"log",
            "Show the error log.",
            nullptr,
            nullptr,
            {LabOption, {"last", "number", "How many of the last entries. Without it: 50."}, JsonOption},
            RunLog};
}

} // namespace GleanerSvc::Workbench
