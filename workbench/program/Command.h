// The subcommands, each a table entry and a function.
#pragma once

#include <QImage>

#include <string>
#include <vector>

#include "workbench/lab/Table.h"
#include "workbench/program/Arguments.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// What the program ends with.
namespace ExitCode {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;  // the lab or the program failed
inline constexpr int Usage = 2;   // the command cannot be understood
inline constexpr int Refused = 3; // an input was refused: a file, a name, a well
inline constexpr int Stopped = 4; // a run was stopped before its end
} // namespace ExitCode

struct Command {
    const char* szName;
    const char* szSummary;
    const char* szPlain; // what stands behind the options, nullptr for nothing
    const char* szPlainHelp;
    std::vector<Option> aoOptions;
    int (*fnRun)(const Arguments& oArguments);
};

Command ImportCommand();
Command SimulateCommand();
Command AnalyzeCommand();
Command ResultsCommand();
Command ShowCommand();
Command StudiesCommand();
Command ExportCommand();
Command LogCommand();
Command SettingsCommand();

// What several commands share.
inline const Option LabOption{"lab", "file",
                              "The lab's file. Without it: lab.sqlite in the user's data folder."};
inline const Option JsonOption{"json", nullptr, "Write JSON instead of text."};
inline const Option ProjectOption{"project", "name", "The project."};
inline const Option StudyOption{"study", "name", "The study."};

std::string LabFile(const Arguments& oArguments);
Ref<Lab> OpenLab(const Arguments& oArguments, LabMode eMode);
// As JSON if that was asked for, and as text otherwise, to the standard output.
void Write(const Table& oTable, const Arguments& oArguments);
// Each leaves an older file of the name as it was unless all could be written, and fails with InputError
// then.
void SaveText(const std::string& sText, const std::string& sFile);
void SavePicture(const QImage& oPicture, const std::string& sFile); // as PNG
// Those of the named study or project, or all. Fails with InputError for an unknown one, and with UsageError
// when both are named.
std::vector<ResultRow> ChosenResults(Lab& oLab, const Arguments& oArguments);
ProjectRow RequireProject(Lab& oLab, const std::string& sName);
PlateRow RequirePlate(Lab& oLab, const ProjectRow& oProject, const std::string& sName);
StudyRow RequireStudy(Lab& oLab, const std::string& sName);

} // namespace GleanerSvc::Workbench
