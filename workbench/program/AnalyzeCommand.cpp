#include <sys/ioctl.h>
#include <unistd.h>

#include <QString>

#include <csignal>
#include <iostream>
#include <thread>

#include "workbench/lab/LabSettings.h"
#include "workbench/pictures/PlatePicture.h"
#include "workbench/program/Command.h"
#include "workbench/program/ConsolePlatform.h"
#include "workbench/program/Operator.h"

namespace GleanerSvc::Workbench {

namespace {

// Set by Ctrl-C during a run, which then stops at its next event as if Stop were pressed.
// A signal handler reaches nothing but a global.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
volatile std::sig_atomic_t g_iInterrupts = 0;
extern "C" void OnInterrupt(int /*iSignal*/) { g_iInterrupts = 1; }

AlleleType TypeOf(const Arguments& oArguments) {
    const std::string sType = oArguments.Text("type", "STR");
    if (sType == "STR") return AlleleType::Str;
    if (sType == "SNP") return AlleleType::Snp;
    throw UsageError("analyze: --type is \"" + sType + "\", and neither STR nor SNP");
}

Task TaskOf(const Arguments& oArguments) {
    if (!oArguments.Has("again")) return Task::Analyze;
    const std::string sAgain = oArguments.Text("again");
    if (sAgain == "results") return Task::ReanalyzeResults;
    if (sAgain == "alleles") return Task::ReanalyzeAlleles;
    throw UsageError("analyze: --again is \"" + sAgain + "\", and neither results nor alleles");
}

// What would be passed over in silence is refused.
void CheckAnalyze(const Arguments& oArguments) {
    TypeOf(oArguments);
    TaskOf(oArguments);
    for (const char* szOption : {"project", "plate", "wells", "samples", "picture"})
        oArguments.RefuseBeside(szOption, "again");
    oArguments.RequireBeside("wells", "plate");
    oArguments.RequireBeside("picture", "plate");
    oArguments.RefuseBeside("samples", "plate");
    for (const char* szOption : {"wells", "samples", "loci"}) oArguments.List(szOption);
}

// One line that is written over and over; on a terminal only, and never wider than that.
class ProgressLine {
  public:
    explicit ProgressLine(bool bOn) : m_bOn(bOn) {}
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() { Clear(); }

    // Before anything else is written.
    void Clear() {
        if (!m_sShown.isEmpty()) std::cerr << "\r\x1b[K" << std::flush;
        m_sShown.clear();
    }
    void Show(const Operator& oOperator) {
        if (!m_bOn) return;
        const RunCounts oCounts = oOperator.Counts();
        const QString sLine = QString("%1 of %2  passed %3  failed %4  %5")
                                  .arg(oCounts.lAnalyzed)
                                  .arg(oCounts.lTotal)
                                  .arg(oCounts.lPassed)
                                  .arg(oCounts.lFailed)
                                  .arg(QString::fromStdString(oOperator.LastDetails()))
                                  .left(Columns() - 1);
        if (sLine == m_sShown) return;
        m_sShown = sLine;
        std::cerr << "\r\x1b[K" << sLine.toStdString() << std::flush;
    }

  private:
    static int Columns() {
        constexpr int Usual = 80;
        winsize oSize{};
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): there is no other way to ask
        return ioctl(STDERR_FILENO, TIOCGWINSZ, &oSize) == 0 && oSize.ws_col > 1 ? oSize.ws_col : Usual;
    }

    bool m_bOn;
    QString m_sShown;
};

Wizard::Start StartOf(Lab& oLab, const Arguments& oArguments) {
    Wizard::Start oStart{TaskOf(oArguments), oArguments.Required("study")};
    if (oStart.eTask == Task::Analyze) return oStart;
    for (const auto& oResult : oLab.ResultsOfStudy(RequireStudy(oLab, oStart.sStudy).lStudyID))
        oStart.alResultIDs.push_back(oResult.lResultID);
    return oStart;
}

Choice ChoiceOf(Lab& oLab, const Arguments& oArguments) {
    const ProjectRow oProject = RequireProject(oLab, oArguments.Required("project"));
    Choice oChoice{oProject.sName, "", oArguments.List("wells"), oArguments.List("samples")};
    if (oArguments.Has("plate"))
        oChoice.sPlate = RequirePlate(oLab, oProject, oArguments.Text("plate")).sName;
    return oChoice;
}

// From the first page to the run.
void GoToRun(Lab& oLab, const Wizard& oWizard, const Operator& oOperator, const Arguments& oArguments) {
    if (oWizard.oSamples) {
        oOperator.PickSamples(ChoiceOf(oLab, oArguments));
        if (oArguments.Has("picture"))
            SavePicture(DrawPlate(*oWizard.oSamples, 2), oArguments.Text("picture"));
        oOperator.PressNext();
    }
    oOperator.ChooseLoci(TypeOf(oArguments), oArguments.List("loci"));
    oOperator.PressNext();
}

// The last page would say so too, but only when the run is over.
void RequireRoom(Lab& oLab, const std::string& sStudy, std::int32_t lPicked) {
    const auto oStudy = oLab.FindStudy(sStudy);
    const std::int32_t lResults = (oStudy ? oStudy->lResults : 0) + lPicked;
    const std::int32_t lMaximum = oLab.Setting("MaximumResults", DefaultMaximumResults);
    if (lResults <= lMaximum) return;
    throw InputError("study \"" + sStudy + "\"", "",
                     "it would have " + std::to_string(lResults) +
                         " results, and the lab's settings let in " + std::to_string(lMaximum) +
                         "; the command \"settings\" changes that");
}

void RunAnalysis(const Operator& oOperator, ConsolePlatform& oPlatform, ProgressLine& oLine) {
    oPlatform.OnYield = [&] {
        oLine.Show(oOperator);
        if (g_iInterrupts != 0) oOperator.Stop();
    };
    auto* const pBefore = std::signal(SIGINT, OnInterrupt);
    oOperator.Analyze();
    std::signal(SIGINT, pBefore);
    oPlatform.OnYield = nullptr;
    oLine.Clear();
}

// What a script may rely on: the result is on disk by now. JSON has the standard output for itself.
void WriteLine(Lab& oLab, std::int32_t lResultID, bool bJson) {
    const auto oResult = oLab.FindResult(lResultID);
    if (!oResult) return;
    (bJson ? std::cerr : std::cout) << "stored " << lResultID << ' ' << oResult->sName << ": "
                                    << oResult->sDescription << std::endl;
}

void WriteCounts(const RunCounts& oCounts, const Arguments& oArguments) {
    Table oTable({"samples", "analyzed", "passed", "failed"});
    oTable.Add({std::int64_t{oCounts.lTotal}, std::int64_t{oCounts.lAnalyzed}, std::int64_t{oCounts.lPassed},
                std::int64_t{oCounts.lFailed}});
    Write(oTable, oArguments);
}

// What a run that did not come to its last sample ends with: a failure was shown, a question was answered No,
// or the operator stopped it.
int CodeOf(const ConsolePlatform& oPlatform, bool bFailed) {
    if (bFailed || oPlatform.HasShownStop()) return ExitCode::Failed;
    if (oPlatform.HasAnsweredNo()) return ExitCode::Refused;
    return g_iInterrupts != 0 ? ExitCode::Stopped : ExitCode::Failed;
}

void TellOfEnd(const RunCounts& oCounts) {
    std::cerr << (oCounts.lAnalyzed == 0
                      ? "Nothing was analyzed"
                      : "The run ended before its last sample. What was analyzed is stored")
              << "; the study is unchanged.\n";
}

int RunAnalyze(const Arguments& oArguments) {
    const auto nThreads = static_cast<std::int32_t>(std::max(1U, std::thread::hardware_concurrency()));
    CheckAnalyze(oArguments);
    const auto oLab = OpenLab(oArguments, LabMode::Existing);
    const auto oLibraries =
        std::make_shared<LabLibraries>(oLab, static_cast<int>(oArguments.Number("threads", nThreads, 1)));
    bool bFailed = false;
    ProgressLine oLine(!oArguments.Has("quiet") && isatty(STDERR_FILENO) == 1);
    oLibraries->Utility().OnShown = [&](const LogRow& oEntry) {
        bFailed = true;
        oLine.Clear();
        std::cerr << "gleaner-workbench: " << oEntry.sProcedure << ": " << oEntry.oFailure.Description()
                  << (oEntry.sExtra.empty() ? "" : " " + oEntry.sExtra) << '\n';
    };
    if (oArguments.Has("lines"))
        oLibraries->OnCompleted = [&](std::int32_t lID) {
            oLine.Clear();
            WriteLine(*oLab, lID, oArguments.Has("json"));
        };
    const auto oPlatform = std::make_shared<ConsolePlatform>(oArguments.Has("yes"));
    const Wizard::Start oStart = StartOf(*oLab, oArguments);
    Wizard oWizard(oLibraries, oPlatform, oStart);
    const Operator oOperator(oWizard);
    GoToRun(*oLab, oWizard, oOperator, oArguments);
    if (bFailed) throw LabError("not all could be picked that was asked for");
    if (oStart.eTask == Task::Analyze) RequireRoom(*oLab, oStart.sStudy, oOperator.Counts().lTotal);
    RunAnalysis(oOperator, *oPlatform, oLine);
    const RunCounts oCounts = oOperator.Counts();
    const bool bWhole = oCounts.lAnalyzed == oCounts.lTotal;
    if (bWhole) oOperator.Finish();
    WriteCounts(oCounts, oArguments);
    if (bWhole) return ExitCode::Done;
    TellOfEnd(oCounts);
    return CodeOf(*oPlatform, bFailed);
}

} // namespace

Command AnalyzeCommand() {
    return {
        "analyze",
        "Walk the wizard: pick samples and loci, analyze, and hand the results to a study.",
        nullptr,
        nullptr,
        {LabOption,
         ProjectOption,
         {"plate", "name", "Pick the samples on this plate. Without it they are picked from the list."},
         {"wells", "wells", "Of the plate only these, as in A1,B2. Without it: all that are not empty."},
         {"samples", "names", "Of the list only these, separated by commas. Without it: all."},
         {"type", "type", "STR or SNP. Without it: STR."},
         {"loci", "names", "Call only these loci, separated by commas. Without it: all."},
         {"study", "name", "The study that the results join. It is made when it is not there."},
         {"again", "what",
          "Analyze the results of the study again, and leave the study as it is: results (size and call) or "
          "alleles (call on the sizes that are stored)."},
         {"threads", "number", "Worker threads. Without it: as many as the machine has."},
         {"picture", "file", "Write the plate with the picked wells as PNG."},
         {"yes", nullptr, "Answer questions with yes."},
         {"lines", nullptr, "Write a line for each result as soon as it is on disk."},
         {"quiet", nullptr, "No progress line."},
         JsonOption},
        RunAnalyze};
}

} // namespace GleanerSvc::Workbench
