// The window that the workbench begins with: a lab, what comes into it, its studies and its error log. What
// is begun here and goes on in another window is raised as an event.
#pragma once

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workbench/lab/FileImport.h"
#include "workbench/lab/SimulatedPlate.h"
#include "workbench/lab/Wizard.h"
#include "workbench/window/Appearance.h"
#include "workbench/window/MessageBox.h"
#include "workbench/window/StartQuestions.h"

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace GleanerSvc::Workbench {

class ImportPane;
class LogPane;
class StartActions;
class StudyPane;

// What goes on in the wizard that works on the lab of the start window.
enum class WizardState { None, Open, Analyzing };

class StartWindow final : public QMainWindow {
  public:
    // The appearance outlives the window.
    explicit StartWindow(Appearance& oAppearance);
    StartWindow(const StartWindow&) = delete;
    StartWindow& operator=(const StartWindow&) = delete;
    ~StartWindow() override;

    QSize sizeHint() const override;

    // Each of these tells of what went wrong by OnTrouble and leaves the window usable; False or 0 then. A
    // lab that cannot be opened leaves the one that is open; where it can be read at least, that is offered.
    // The lab that is open already is read anew. No other is opened beneath a wizard, and nothing comes into
    // the lab while a wizard analyzes: its run would stand still for so long.
    bool OpenLab(const std::string& sFile, LabMode eMode);
    // Files, and the traces in folders. How many were imported; what became of each is listed.
    int Import(const std::vector<std::string>& asFilesAndFolders, const Destination& oDestination);
    bool ImportKit(const std::string& sKit, const std::string& sPanels, const std::string& sBins);
    bool Simulate(const SimulatedRun& oRun);
    bool Export(const std::string& sFile); // the results that are listed
    bool ChooseStudy(const std::string& sStudy);
    void Analyze(const std::string& sStudy);
    void AnalyzeAgain(Task eTask); // the selected results, or all that are listed
    void Reload();                 // what the lab holds may have changed
    void ShowWizard(WizardState eWizard);

    // Nothing while no lab is open.
    Ref<Lab> OwnLab() const;
    const Ref<LabLibraries>& Libraries() const { return m_oLibraries; }

    const StudyPane& Studies() const { return *m_pStudies; }
    const ImportPane& Imported() const { return *m_pImported; }
    const LogPane& Log() const { return *m_pLog; }
    const StartActions& Actions() const { return *m_oActions; }

    Event<Wizard::Start> OnAnalyze;                                  // the operator began a wizard
    Event<std::int32_t> OnShowResult;                                // wants to see this result
    Event<> OnQuit;                                                  // wants the program to end
    std::function<void(const std::string&)> OnTrouble = TellTrouble; // a message box, unless replaced
    std::function<bool(const std::string&)> OnAsk = AskYesOrNo;      // one with Yes and No, unless replaced
    FileChooser OnChooseFiles; // a dialog of the desktop, unless replaced

  protected:
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;

  private:
    QWidget* MakeWelcome();
    QWidget* MakePages();
    void ConnectFile();
    void ConnectStudy();
    void ConnectView();
    void ShowLab();
    void ShowLog();
    void ShowActions();
    // Runs what may fail under a waiting cursor, and tells of what went wrong.
    bool Guarded(const std::function<void()>& fnDo) const;
    void TakeLab(const std::string& sFile, LabMode eMode);
    bool OffersReading(const std::string& sFile, LabMode eMode) const;
    bool IsOpen(const std::filesystem::path& oFile, LabMode eMode) const;
    void RequireLab(const char* szWhatFor) const; // and that no analysis is running
    bool CanWrite() const;
    void OpenChosen(StartFiles eWhat, LabMode eMode);
    void AskToImport(const std::vector<std::string>& asFiles);
    void ImportAll(const std::vector<std::string>& asFiles, const Destination& oDestination,
                   std::vector<ImportedFile>& aoImported);
    std::vector<std::string> ProjectNames();

    Appearance& m_oAppearance;
    Ref<LabLibraries> m_oLibraries;
    LabMode m_eMode = LabMode::Existing;
    WizardState m_eWizard = WizardState::None;
    std::unique_ptr<StartActions> m_oActions;
    QStackedWidget* m_pStack; // without a lab, with one
    QLabel* m_pPlace;         // of the lab, in the status bar
    QTabWidget* m_pTabs = nullptr;
    StudyPane* m_pStudies = nullptr;
    ImportPane* m_pImported = nullptr;
    LogPane* m_pLog = nullptr;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
