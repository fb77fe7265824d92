// gleaner-workbench: the workbench on the command line.
#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

#include "workbench/program/Command.h"
#include "workbench/traces/InputError.h"

namespace GleanerSvc::Workbench {
namespace {

std::vector<Command> Commands() {
    return {ImportCommand(), SimulateCommand(), AnalyzeCommand(), ResultsCommand(),
            ShowCommand(),   StudiesCommand(),  ExportCommand(),  LogCommand()};
}

void WriteHelp(std::ostream& oOut) {
    oOut << "gleaner-workbench: from the traces of a capillary sequencer to alleles and studies.\n\n"
            "Usage: gleaner-workbench COMMAND [OPTIONS]\n\nCommands:\n";
    for (const auto& oCommand : Commands()) {
        std::string sName = oCommand.szName;
        sName.resize(std::max<std::size_t>(sName.size() + 1, 10), ' ');
        oOut << "  " << sName << oCommand.szSummary << '\n';
    }
    oOut << "\nA first run:\n"
            "  gleaner-workbench simulate --project Trial --plate P1\n"
            "  gleaner-workbench analyze --project Trial --plate P1 --study First\n"
            "  gleaner-workbench results --study First\n\n"
            "gleaner-workbench COMMAND --help tells the options of a command.\n"
            "Ends with 0 done, 1 the lab or the program failed, 2 the command cannot be understood,\n"
            "3 an input was refused, 4 the run was stopped.\n";
}

int Run(const Command& oCommand, const std::vector<std::string>& asWords) {
    const Arguments oArguments(oCommand.szName, oCommand.aoOptions, asWords, oCommand.szPlain,
                               oCommand.szPlainHelp);
    if (oArguments.WantsHelp()) {
        std::cout << oCommand.szSummary << "\n\n" << oArguments.HelpText();
        return ExitCode::Done;
    }
    return oCommand.fnRun(oArguments);
}

int Run(const std::vector<std::string>& asWords) {
    if (asWords.empty() || asWords[0] == "--help" || asWords[0] == "-h" || asWords[0] == "help") {
        WriteHelp(asWords.empty() ? std::cerr : std::cout);
        return asWords.empty() ? ExitCode::Usage : ExitCode::Done;
    }
    for (const auto& oCommand : Commands()) {
        if (asWords[0] == oCommand.szName) return Run(oCommand, {asWords.begin() + 1, asWords.end()});
    }
    throw UsageError("there is no command \"" + asWords[0] + "\"; --help tells which there are");
}

int RunGuarded(const std::vector<std::string>& asWords) {
    int nCode = ExitCode::Failed;
    try {
        return Run(asWords);
    } catch (const UsageError& oError) {
        std::cerr << "gleaner-workbench " << oError.what() << '\n';
        nCode = ExitCode::Usage;
    } catch (const InputError& oError) {
        std::cerr << "gleaner-workbench: " << oError.what() << '\n';
        nCode = ExitCode::Refused;
    } catch (const std::exception& oError) {
        std::cerr << "gleaner-workbench: " << oError.what() << '\n';
    }
    return nCode;
}

} // namespace
} // namespace GleanerSvc::Workbench

namespace {

// The commands tell what went wrong themselves; the toolkit's own remarks only puzzle.
void HideRemarks(QtMsgType eType, const QMessageLogContext& /*oContext*/, const QString& sText) {
    if (eType == QtCriticalMsg || eType == QtFatalMsg) std::cerr << sText.toStdString() << '\n';
}

} // namespace

int main(int nArguments, char** aszArguments) {
    qInstallMessageHandler(HideRemarks);
    // Pictures are drawn without a screen.
    if (!std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication oApplication(nArguments, aszArguments);
    std::vector<std::string> asWords;
    for (const auto& sWord : QApplication::arguments().mid(1)) asWords.push_back(sWord.toStdString());
    return GleanerSvc::Workbench::RunGuarded(asWords);
}
