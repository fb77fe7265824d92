#include "workbench/window/StartWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressDialog>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <thread>

#include "workbench/lab/AlleleTable.h"
#include "workbench/lab/LabPlace.h"
#include "workbench/lab/WorkbenchPlatform.h"
#include "workbench/window/ImportPane.h"
#include "workbench/window/LogPane.h"
#include "workbench/window/StartActions.h"
#include "workbench/window/StudyPane.h"

namespace GleanerSvc::Workbench {

namespace {

class WaitCursor {
  public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

std::vector<std::string> LocalFiles(const QMimeData& oDropped) {
    std::vector<std::string> asFiles;
    for (const auto& oUrl : oDropped.urls()) {
        if (oUrl.isLocalFile()) asFiles.push_back(oUrl.toLocalFile().toStdString());
    }
    return asFiles;
}

bool IsSameFile(const std::filesystem::path& oLeft, const std::filesystem::path& oRight) {
    std::error_code oError; // a file that is not there is no other's
    return std::filesystem::equivalent(oLeft, oRight, oError);
}

// What went wrong, nothing when all went well.
std::optional<std::string> TroubleIn(const std::function<void()>& fnDo) {
    try {
        const WaitCursor oWait;
        fnDo();
        return std::nullopt;
    } catch (const Failure& oFailure) {
        return oFailure.ToString();
    } catch (const std::exception& oError) {
        return oError.what();
    }
}

int Workers() { return static_cast<int>(std::max(1U, std::thread::hardware_concurrency())); }

} // namespace

StartWindow::StartWindow(Appearance& oAppearance)
    : m_oAppearance(oAppearance), m_oActions(std::make_unique<StartActions>(*this, oAppearance)),
      m_pStack(new QStackedWidget(this)), m_pPlace(new QLabel(this)) {
    OnChooseFiles = [this](StartFiles eWhat) { return ChooseFiles(*this, eWhat); };
    setAcceptDrops(true);
    m_pStack->addWidget(MakeWelcome());
    m_pStack->addWidget(MakePages());
    setCentralWidget(m_pStack);
    statusBar()->setAccessibleName("Status");
    m_pPlace->setMinimumWidth(1); // a long path makes no wide window
    m_pPlace->setAccessibleName("Lab");
    statusBar()->addPermanentWidget(m_pPlace); // beside what is told
    ConnectFile();
    ConnectStudy();
    ConnectView();
    resize(sizeHint());
    ShowLab();
}

StartWindow::~StartWindow() = default;

QWidget* StartWindow::MakeWelcome() {
    auto* pPage = new QWidget(this);
    auto* pText = new QLabel("No lab is open. A lab is a file that holds your samples with their traces, the "
                             "results of their analysis, and your studies.",
                             pPage);
    pText->setWordWrap(true);
    pText->setAlignment(Qt::AlignCenter);
    auto* pButtons = new QVBoxLayout;
    pButtons->addWidget(ActionButton(m_oActions->pNewLab, "&New Lab…", pPage));
    pButtons->addWidget(ActionButton(m_oActions->pOpenLab, "&Open Lab…", pPage));
    pButtons->addWidget(ActionButton(m_oActions->pUsualLab, "Open the &Usual Lab", pPage));
    auto* pCentred = new QHBoxLayout;
    pCentred->addStretch();
    pCentred->addLayout(pButtons);
    pCentred->addStretch();
    auto* pLayout = new QVBoxLayout(pPage);
    pLayout->addStretch();
    pLayout->addWidget(pText);
    pLayout->addSpacing(m_oAppearance.Pixels(240));
    pLayout->addLayout(pCentred);
    pLayout->addStretch();
    return pPage;
}

QSize StartWindow::sizeHint() const { return {m_oAppearance.Pixels(15000), m_oAppearance.Pixels(9600)}; }

QWidget* StartWindow::MakePages() {
    m_pTabs = new QTabWidget(this);
    m_pTabs->setAccessibleName("Pages");
    m_pTabs->setDocumentMode(true);
    m_pStudies = new StudyPane(*m_oActions, m_pTabs);
    m_pImported = new ImportPane(*m_oActions, m_pTabs);
    m_pLog = new LogPane(m_pTabs);
    m_pTabs->addTab(m_pStudies, "S&tudies");
    m_pTabs->addTab(m_pImported, "&Import");
    m_pTabs->addTab(m_pLog, "Error &Log");
    return m_pTabs;
}

void StartWindow::ConnectFile() {
    connect(m_oActions->pNewLab, &QAction::triggered, this,
            [this] { OpenChosen(StartFiles::NewLab, LabMode::CreateIfMissing); });
    connect(m_oActions->pOpenLab, &QAction::triggered, this,
            [this] { OpenChosen(StartFiles::OpenLab, LabMode::Existing); });
    connect(m_oActions->pReadLab, &QAction::triggered, this,
            [this] { OpenChosen(StartFiles::OpenLab, LabMode::Reading); });
    connect(m_oActions->pUsualLab, &QAction::triggered, this,
            [this] { OpenLab(UsualLabFile().string(), LabMode::CreateIfMissing); });
    connect(m_oActions->pImport, &QAction::triggered, this, [this] { AskToImport({}); });
    connect(m_oActions->pImportKit, &QAction::triggered, this, [this] {
        AskForKit(*this, OnChooseFiles,
                  [this](const std::string& sKit, const std::string& sPanels, const std::string& sBins) {
                      ImportKit(sKit, sPanels, sBins);
                  });
    });
    connect(m_oActions->pSimulate, &QAction::triggered, this, [this] {
        AskForPlate(*this, ProjectNames(), [this](const SimulatedRun& oRun) { Simulate(oRun); });
    });
    connect(m_oActions->pExport, &QAction::triggered, this, [this] {
        for (const auto& sFile : OnChooseFiles(StartFiles::Csv)) Export(sFile);
    });
    connect(m_oActions->pReload, &QAction::triggered, this, [this] { Reload(); });
    connect(m_oActions->pQuit, &QAction::triggered, this, [this] { OnQuit.Raise(); });
}

void StartWindow::ConnectStudy() {
    connect(m_oActions->pAnalyze, &QAction::triggered, this, [this] {
        if (const StudyRow* pStudy = m_pStudies->Chosen()) Analyze(pStudy->sName);
    });
    connect(m_oActions->pAnalyzeNew, &QAction::triggered, this,
            [this] { AskForStudy(*this, [this](const std::string& sStudy) { Analyze(sStudy); }); });
    connect(m_oActions->pAgainResults, &QAction::triggered, this,
            [this] { AnalyzeAgain(Task::ReanalyzeResults); });
    connect(m_oActions->pAgainAlleles, &QAction::triggered, this,
            [this] { AnalyzeAgain(Task::ReanalyzeAlleles); });
    connect(m_oActions->pShowResult, &QAction::triggered, this,
            [this] { OnShowResult.Raise(m_pStudies->CurrentID()); });
    m_pStudies->fnGuarded = [this](const std::function<void()>& fnDo) { Guarded(fnDo); };
    m_oSubscriptions.On(m_pStudies->OnChanged, [this] { ShowActions(); });
    m_oSubscriptions.On(m_pStudies->OnPicked, [this](std::int32_t lID) { OnShowResult.Raise(lID); });
}

void StartWindow::ConnectView() {
    const std::pair<QAction*, QWidget*> aoPages[] = {
        {m_oActions->pStudies, m_pStudies}, {m_oActions->pImported, m_pImported}, {m_oActions->pLog, m_pLog}};
    for (const auto& [pAction, pPage] : aoPages)
        connect(pAction, &QAction::triggered, this,
                [this, pPage = pPage] { m_pTabs->setCurrentWidget(pPage); });
    connect(m_pTabs, &QTabWidget::currentChanged, this, [this] { Guarded([this] { ShowLog(); }); });
}

Ref<Lab> StartWindow::OwnLab() const {
    // Shares the libraries' life: they hold their lab.
    return m_oLibraries ? Ref<Lab>(m_oLibraries, &m_oLibraries->OwnLab()) : nullptr;
}

bool StartWindow::OpenLab(const std::string& sFile, LabMode eMode) {
    const auto oTrouble = TroubleIn([&] { TakeLab(sFile, eMode); });
    ShowLab();
    if (!oTrouble) {
        m_pStudies->setFocus();
        return true;
    }
    if (!OffersReading(sFile, eMode)) {
        OnTrouble(*oTrouble);
        return false;
    }
    return OnAsk(*oTrouble + "\n\nIt can be opened for reading. Do that?") &&
           OpenLab(sFile, LabMode::Reading);
}

void StartWindow::TakeLab(const std::string& sFile, LabMode eMode) {
    const std::filesystem::path oFile = std::filesystem::absolute(sFile);
    if (IsOpen(oFile, eMode)) return; // one program at a time, this one included
    if (m_eWizard != WizardState::None) {
        throw LabError(oFile.string() + " was not opened: a wizard works on " + OwnLab()->File().string() +
                       ". Finish or cancel it first.");
    }
    m_oLibraries = std::make_shared<LabLibraries>(OpenLabFile(oFile, eMode), Workers());
    m_eMode = eMode;
    m_pImported->Show({});
    m_pTabs->setCurrentWidget(m_pStudies);
}

bool StartWindow::IsOpen(const std::filesystem::path& oFile, LabMode eMode) const {
    const bool bReading = eMode == LabMode::Reading;
    return OwnLab() && bReading == (m_eMode == LabMode::Reading) && IsSameFile(OwnLab()->File(), oFile);
}

bool StartWindow::OffersReading(const std::string& sFile, LabMode eMode) const {
    return m_eWizard == WizardState::None && eMode != LabMode::Reading &&
           !TroubleIn([&] { OpenLabFile(sFile, LabMode::Reading); });
}

void StartWindow::OpenChosen(StartFiles eWhat, LabMode eMode) {
    for (const auto& sFile : OnChooseFiles(eWhat)) OpenLab(sFile, eMode);
}

void StartWindow::Reload() { ShowLab(); }

void StartWindow::ShowLab() {
    const auto oLab = OwnLab();
    const QString sTitle(WorkbenchTitle.data());
    m_pStack->setCurrentIndex(oLab ? 1 : 0);
    if (oLab) {
        setWindowTitle(QString::fromStdString(oLab->File().filename().string()) + " – " + sTitle);
        m_pPlace->setText(QString::fromStdString(oLab->File().string()) +
                          (m_eMode == LabMode::Reading ? " (for reading only)" : ""));
        Guarded([&] {
            m_pStudies->Show(oLab);
            ShowLog();
        });
    } else {
        setWindowTitle(sTitle);
        m_pPlace->setText("No lab is open.");
    }
    ShowActions();
}

// Read when it is looked at: it may be long.
void StartWindow::ShowLog() {
    if (m_oLibraries && m_pTabs->currentWidget() == m_pLog) m_pLog->Show(m_oLibraries->OwnLab());
}

void StartWindow::ShowWizard(WizardState eWizard) {
    m_eWizard = eWizard;
    ShowActions();
}

bool StartWindow::CanWrite() const {
    return m_oLibraries && m_eMode != LabMode::Reading && m_eWizard != WizardState::Analyzing;
}

void StartWindow::ShowActions() {
    const bool bLab = m_oLibraries != nullptr;
    const bool bWrites = CanWrite();
    const StudyRow* pChosen = m_pStudies->Chosen();
    const bool bResults = bLab && !m_pStudies->Results().empty();
    const StartActions& oActions = *m_oActions;
    for (QAction* pAction : {oActions.pNewLab, oActions.pOpenLab, oActions.pReadLab, oActions.pUsualLab})
        pAction->setEnabled(m_eWizard != WizardState::Analyzing);
    for (QAction* pAction : {oActions.pImport, oActions.pImportKit, oActions.pSimulate, oActions.pAnalyzeNew})
        pAction->setEnabled(bWrites);
    for (QAction* pAction : {oActions.pReload, oActions.pStudies, oActions.pImported, oActions.pLog})
        pAction->setEnabled(bLab);
    oActions.pAnalyze->setEnabled(bWrites && pChosen != nullptr && pChosen->lStudyID != 0);
    oActions.pAgainResults->setEnabled(bWrites && bResults);
    oActions.pAgainAlleles->setEnabled(bWrites && bResults);
    oActions.pExport->setEnabled(bResults);
    oActions.pShowResult->setEnabled(bLab && m_pStudies->CurrentID() != 0);
}

// A form may have been filled in before the analysis began.
void StartWindow::RequireLab(const char* szWhatFor) const {
    if (!m_oLibraries) throw LabError(std::string("no lab is open to ") + szWhatFor);
    if (m_eWizard == WizardState::Analyzing) {
        throw LabError("An analysis is running. Wait for its end, or stop it in its window, then try again.");
    }
}

bool StartWindow::Guarded(const std::function<void()>& fnDo) const {
    const auto oTrouble = TroubleIn(fnDo);
    if (oTrouble) OnTrouble(*oTrouble); // the cursor is the usual one again
    return !oTrouble;
}

void StartWindow::AskToImport(const std::vector<std::string>& asFiles) {
    AskForTraces(*this, ProjectNames(), asFiles, OnChooseFiles,
                 [this](const std::vector<std::string>& asChosen, const Destination& oDestination) {
                     Import(asChosen, oDestination);
                 });
}

std::vector<std::string> StartWindow::ProjectNames() {
    std::vector<std::string> asNames;
    Guarded([&] {
        for (const auto& oProject : m_oLibraries->OwnLab().Projects()) asNames.push_back(oProject.sName);
    });
    return asNames;
}

int StartWindow::Import(const std::vector<std::string>& asFilesAndFolders, const Destination& oDestination) {
    std::vector<ImportedFile> aoImported;
    Guarded([&] {
        RequireLab("import traces into");
        ImportAll(FilesToImport(asFilesAndFolders), oDestination, aoImported);
    });
    const auto nImported = std::count_if(aoImported.begin(), aoImported.end(), [](const ImportedFile& oFile) {
        return oFile.eOutcome == FileOutcome::Imported;
    });
    m_pImported->Show(std::move(aoImported));
    m_pTabs->setCurrentWidget(m_pImported);
    statusBar()->showMessage(m_pImported->Summary());
    return static_cast<int>(nImported);
}

// What was imported before a failure of the lab, or before the operator stopped it, stays and is listed.
void StartWindow::ImportAll(const std::vector<std::string>& asFiles, const Destination& oDestination,
                            std::vector<ImportedFile>& aoImported) {
    constexpr int Delay = 500; // ms until the progress is worth a window
    QProgressDialog oProgress("Importing traces…", "&Stop", 0, static_cast<int>(asFiles.size()), this);
    oProgress.setWindowTitle("Import Traces");
    oProgress.setWindowModality(Qt::WindowModal);
    oProgress.setMinimumDuration(Delay);
    for (const auto& sFile : asFiles) {
        if (oProgress.wasCanceled()) {
            ImportedFile& oLeft = aoImported.emplace_back();
            oLeft.sFile = sFile;
            oLeft.sReason = sFile + ": the import was stopped";
            continue;
        }
        try {
            aoImported.push_back(ImportFile(m_oLibraries->OwnLab(), oDestination, sFile));
        } catch (const LabError& oError) {
            throw LabError("The import ended at " + sFile + ": " + oError.what());
        }
        oProgress.setValue(static_cast<int>(aoImported.size()));
    }
}

bool StartWindow::ImportKit(const std::string& sKit, const std::string& sPanels, const std::string& sBins) {
    const bool bDone = Guarded([&] {
        RequireLab("import a kit into");
        Workbench::ImportKit(m_oLibraries->OwnLab(), sKit, sPanels, sBins);
    });
    if (bDone) statusBar()->showMessage("Kit " + QString::fromStdString(sKit) + " was imported.");
    return bDone;
}

bool StartWindow::Simulate(const SimulatedRun& oRun) {
    std::int32_t lAdded = 0;
    const bool bDone = Guarded([&] {
        RequireLab("bring a plate into");
        lAdded = ImportPlate(m_oLibraries->OwnLab(), oRun.oDestination, KitOf(oRun.eType),
                             SimulatePlate(OrderOf(oRun)));
    });
    if (bDone) {
        statusBar()->showMessage(QString(R"(%1 wells of plate "%2" were added to project "%3".)")
                                     .arg(lAdded)
                                     .arg(QString::fromStdString(oRun.oDestination.sPlate))
                                     .arg(QString::fromStdString(oRun.oDestination.sProject)));
    }
    return bDone;
}

bool StartWindow::Export(const std::string& sFile) {
    std::size_t nRows = 0;
    const bool bDone = Guarded([&] {
        if (!m_oLibraries) throw LabError("no lab is open to export results of");
        const Table oTable = AlleleTable(m_oLibraries->OwnLab(), m_pStudies->Results());
        oTable.SaveCsv(sFile);
        nRows = oTable.Rows();
    });
    if (bDone)
        statusBar()->showMessage(QString("%1 rows are in %2.").arg(nRows).arg(QString::fromStdString(sFile)));
    return bDone;
}

bool StartWindow::ChooseStudy(const std::string& sStudy) {
    bool bChosen = false;
    Guarded([&] {
        const auto oStudy = m_oLibraries ? m_oLibraries->OwnLab().FindStudy(sStudy) : std::nullopt;
        bChosen = oStudy && m_pStudies->Choose(oStudy->lStudyID);
    });
    return bChosen;
}

void StartWindow::Analyze(const std::string& sStudy) {
    if (m_oLibraries) OnAnalyze.Raise({Task::Analyze, sStudy, {}});
}

void StartWindow::AnalyzeAgain(Task eTask) {
    if (m_oLibraries) OnAnalyze.Raise({eTask, "", m_pStudies->MeantIDs()});
}

void StartWindow::dragEnterEvent(QDragEnterEvent* pEvent) {
    if (!LocalFiles(*pEvent->mimeData()).empty()) pEvent->acceptProposedAction();
}

// The sender of the drop waits for its end: what is asked and told comes after it.
void StartWindow::dropEvent(QDropEvent* pEvent) {
    pEvent->acceptProposedAction();
    const auto fnImport = [this, asFiles = LocalFiles(*pEvent->mimeData())] {
        if (CanWrite()) return AskToImport(asFiles);
        OnTrouble(m_eWizard == WizardState::Analyzing
                      ? "Nothing was imported: an analysis is running. Wait for its end, or stop it."
                      : "Nothing was imported: no lab is open that can be written. Open or make one first.");
    };
    QTimer::singleShot(0, this, fnImport);
}

} // namespace GleanerSvc::Workbench
