// gleaner-workbench: the workbench on the command line.
#include <QApplication>
#include <QProcess>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <span>

#include "workbench/lab/LabPlace.h"
#include "workbench/program/Command.h"
#include "workbench/traces/InputError.h"
#include "workbench/window/Desktop.h"
#include "workbench/window/Screenshots.h"

namespace GleanerSvc::Workbench {
namespace {

std::vector<Command> Commands() {
    return {ImportCommand(),  SimulateCommand(), AnalyzeCommand(), ResultsCommand(), ShowCommand(),
            StudiesCommand(), ExportCommand(),   LogCommand(),     SettingsCommand()};
}

void WriteHelp(std::ostream& oOut) {
    oOut << "gleaner-workbench: from the traces of a capillary sequencer to alleles and studies.\n\n"
            "Usage: gleaner-workbench [--lab FILE]         opens the window\n"
            "       gleaner-workbench COMMAND [OPTIONS]\n"
            "       gleaner-workbench --screenshots FOLDER  leaves pictures of the window\n\nCommands:\n";
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

std::optional<Command> FindCommand(const std::string& sName) {
    for (const auto& oCommand : Commands()) {
        if (sName == oCommand.szName) return oCommand;
    }
    return std::nullopt;
}

Command RequireCommand(const std::string& sName) {
    if (auto oCommand = FindCommand(sName)) return *std::move(oCommand);
    throw UsageError("there is no command \"" + sName + "\"");
}

int Help(const std::vector<std::string>& asWords) {
    if (asWords.size() > 1) return Run(RequireCommand(asWords[1]), {"--help"});
    WriteHelp(std::cout);
    return ExitCode::Done;
}

// Known to this program alone: whether it could open a window.
constexpr const char* ProbeWord = "--probe-display";

// The toolkit aborts an application that reaches no display, so another process tries; it ends before the
// abort, which would leave a dump.
int ProbeDisplay(int nArguments, char** aszArguments) {
    qInstallMessageHandler(
        [](QtMsgType eType, const QMessageLogContext& /*oContext*/, const QString& /*sText*/) {
            if (eType == QtFatalMsg) std::_Exit(ExitCode::Failed);
        });
    const QGuiApplication oApplication(nArguments, aszArguments);
    return ExitCode::Done;
}

bool IsSet(const char* szName) { return !qEnvironmentVariableIsEmpty(szName); }

bool NamesDisplay() { return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY"); }

bool CanOpenWindow(int nArguments, char** aszArguments) {
    constexpr int Patience = 20'000; // ms, for a display at the end of a slow line
    const QCoreApplication oApplication(nArguments, aszArguments); // knows where the program lies
    QProcess oProbe;
    oProbe.start(QCoreApplication::applicationFilePath(), {ProbeWord});
    if (!oProbe.waitForFinished(Patience)) return false;
    return oProbe.exitStatus() == QProcess::NormalExit && oProbe.exitCode() == ExitCode::Done;
}

// What keeps the window from opening, nullptr for nothing. It needs a display that can be reached, or a
// platform that was asked for by name.
const char* TroubleWithDisplay(int nArguments, char** aszArguments) {
    const bool bPlatform = IsSet("QT_QPA_PLATFORM");
    if (!bPlatform && !NamesDisplay()) return "there is no display to open the window on";
    if (CanOpenWindow(nArguments, aszArguments)) return nullptr;
    return bPlatform ? "the platform that QT_QPA_PLATFORM names cannot open a window here"
                     : "the display that DISPLAY or WAYLAND_DISPLAY names cannot be reached";
}

bool WantsWindow(const std::vector<std::string>& asWords) {
    return asWords.empty() || asWords[0] == "--lab" || asWords[0].starts_with("--lab=");
}

std::string LabOf(std::vector<std::string> asWords) {
    if (asWords.empty()) return UsualLabFile().string();
    if (asWords[0] == "--lab") {
        asWords.erase(asWords.begin());
    } else {
        asWords[0].erase(0, asWords[0].find('=') + 1);
    }
    if (asWords.empty() || asWords[0].empty()) throw UsageError("--lab takes a file");
    if (asWords.size() == 1) return asWords[0];
    throw UsageError("--lab FILE alone opens the window; a command comes before its options, as in: " +
                     asWords[1] + " --lab FILE");
}

// With the lab that was named, or the usual one when there is one; its absence is no reason to make one
// unasked.
int OpenWindow(const std::vector<std::string>& asWords) {
    const std::string sLab = LabOf(asWords);
    Appearance oAppearance;
    Desktop oDesktop(oAppearance);
    oDesktop.Start().show();
    if (!asWords.empty() || std::filesystem::exists(sLab)) oDesktop.Start().OpenLab(sLab, LabMode::Existing);
    QApplication::exec();
    return ExitCode::Done;
}

int NoDisplay(const std::vector<std::string>& asWords, const char* szTrouble) {
    LabOf(asWords); // what is wrong with the words comes first
    std::cerr << "gleaner-workbench: " << szTrouble
              << ".\nThe commands below need none, and gleaner-workbench --screenshots FOLDER shows what the "
                 "window looks like.\n\n";
    WriteHelp(std::cerr);
    return ExitCode::Usage;
}

int Screenshots(const std::vector<std::string>& asWords) {
    if (asWords.size() != 2 || asWords[1].empty()) throw UsageError("--screenshots takes a folder");
    for (const auto& sFile : TakeScreenshots(asWords[1])) std::cout << sFile << '\n';
    return ExitCode::Done;
}

int Run(const std::vector<std::string>& asWords, const char* szNoDisplay) {
    for (std::size_t nWord = 0; nWord < asWords.size(); ++nWord) CheckWord(asWords[nWord], nWord + 1);
    if (WantsWindow(asWords)) return szNoDisplay ? NoDisplay(asWords, szNoDisplay) : OpenWindow(asWords);
    if (asWords[0] == "--screenshots") return Screenshots(asWords);
    if (asWords[0] == "--help" || asWords[0] == "-h" || asWords[0] == "help") return Help(asWords);
    return Run(RequireCommand(asWords[0]), {asWords.begin() + 1, asWords.end()});
}

// Output that went nowhere is no work done, whatever the command thinks.
int Flushed(int nCode) {
    if (std::cout.flush()) return nCode;
    std::cerr << "gleaner-workbench: the output cannot be written\n";
    return nCode == ExitCode::Done ? ExitCode::Failed : nCode;
}

void TellWhereHelpIs(const std::vector<std::string>& asWords) {
    const bool bKnown = !asWords.empty() && FindCommand(asWords[0]);
    std::cerr << "gleaner-workbench " << (bKnown ? asWords[0] + " " : "") << "--help tells what there is.\n";
}

int RunGuarded(const std::vector<std::string>& asWords, const char* szNoDisplay) {
    int nCode = ExitCode::Failed;
    try {
        return Flushed(Run(asWords, szNoDisplay));
    } catch (const UsageError& oError) {
        std::cerr << "gleaner-workbench: " << oError.what() << '\n';
        TellWhereHelpIs(asWords);
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
    // As bytes, and all of them: the toolkit would replace what it cannot read, and keep some for itself.
    const std::span aszAll(aszArguments, static_cast<std::size_t>(nArguments));
    int nOwnArguments = std::min(nArguments, 1);
    const auto aszWords = aszAll.subspan(static_cast<std::size_t>(nOwnArguments));
    const std::vector<std::string> asWords(aszWords.begin(), aszWords.end());
    using namespace GleanerSvc::Workbench;
    if (asWords == std::vector<std::string>{ProbeWord}) return ProbeDisplay(nOwnArguments, aszArguments);
    const bool bWindow = WantsWindow(asWords);
    const char* szNoDisplay = bWindow ? TroubleWithDisplay(nOwnArguments, aszArguments) : nullptr;
    // Pictures are drawn without a screen, whatever platform the user's windows have.
    if (!bWindow || szNoDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setOrganizationName("gleaner-workbench");
    QCoreApplication::setApplicationName("gleaner-workbench");
    const QApplication oApplication(nOwnArguments, aszArguments);
    return GleanerSvc::Workbench::RunGuarded(asWords, szNoDisplay);
}
