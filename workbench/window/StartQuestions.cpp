#include "workbench/window/StartQuestions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QStringListModel>

#include <limits>

#include "workbench/lab/WorkbenchPlatform.h"
#include "workbench/window/StartButton.h"
#include "workbench/window/StartDialog.h"

namespace GleanerSvc::Workbench {

namespace {

void RequireName(StartDialog& oDialog, QLineEdit* pEdit) {
    oDialog.Require([pEdit] { return !NameIn(*pEdit).empty(); });
}

std::string FirstOf(const std::vector<std::string>& asFiles) {
    return asFiles.empty() ? "" : asFiles.front();
}

std::vector<std::string> Listed(const QStringListModel& oFiles) {
    std::vector<std::string> asFiles;
    for (const auto& sFile : oFiles.stringList()) asFiles.push_back(sFile.toStdString());
    return asFiles;
}

// The list of what is to be imported, with buttons to lengthen it and to begin anew.
QStringListModel* AddFileList(StartDialog& oDialog, const std::vector<std::string>& asFiles,
                              const FileChooser& fnChoose) {
    auto* pFiles = new QStringListModel(&oDialog);
    const auto fnAdd = [pFiles](const std::vector<std::string>& asMore) {
        QStringList asAll = pFiles->stringList();
        for (const auto& sFile : asMore) asAll.append(QString::fromStdString(sFile));
        asAll.removeDuplicates();
        pFiles->setStringList(asAll);
    };
    fnAdd(asFiles);
    auto* pList = new QListView(&oDialog);
    pList->setModel(pFiles);
    pList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    pList->setTextElideMode(Qt::ElideLeft);
    pList->setUniformItemSizes(true);
    oDialog.AddRow("&Traces:", pList);
    const auto fnButton = [&](const char* szCaption, const std::function<void()>& fnPressed) {
        auto* pButton = new StartButton(szCaption, &oDialog);
        pButton->setAutoDefault(false);
        QObject::connect(pButton, &QAbstractButton::clicked, &oDialog, [&oDialog, fnPressed] {
            fnPressed();
            oDialog.Check();
        });
        return pButton;
    };
    auto* pButtons = new QWidget(&oDialog);
    auto* pLayout = new QHBoxLayout(pButtons);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(fnButton("Add &Files…", [=] { fnAdd(fnChoose(StartFiles::Traces)); }));
    pLayout->addWidget(fnButton("Add F&older…", [=] { fnAdd(fnChoose(StartFiles::TraceFolder)); }));
    pLayout->addWidget(fnButton("&Remove All", [pFiles] { pFiles->setStringList({}); }));
    oDialog.AddWide(pButtons);
    oDialog.Require([pFiles] { return pFiles->rowCount() > 0; });
    return pFiles;
}

} // namespace

void AskForStudy(QWidget& oParent, const std::function<void(const std::string& sStudy)>& fnThen) {
    auto* pDialog = new StartDialog("Analyze into a New Study", "&Analyze", oParent);
    QLineEdit* pName = pDialog->AddName("&Study:", "made when its results are there");
    RequireName(*pDialog, pName);
    pDialog->Ask([=] { fnThen(NameIn(*pName)); });
}

void AskForPlate(QWidget& oParent, const std::vector<std::string>& asProjects,
                 const std::function<void(const SimulatedRun& oRun)>& fnThen) {
    auto* pDialog = new StartDialog("Simulate a Plate", "&Simulate", oParent);
    QComboBox* pProject = pDialog->AddNameOf("Pro&ject:", asProjects);
    QLineEdit* pPlate = pDialog->AddName("&Plate:");
    QComboBox* pType = pDialog->AddChoice("&Type:", {"STR", "SNP"});
    QComboBox* pLadder = pDialog->AddChoice("&Ladder:", {"complete", "broken", "missing"});
    auto* pSeed = new QSpinBox(pDialog);
    pSeed->setRange(0, std::numeric_limits<int>::max());
    pSeed->setValue(1);
    pSeed->setToolTip("The same seed makes the same plate.");
    pDialog->AddRow("S&eed:", pSeed);
    auto* pFaults = new QCheckBox("With &wells that fail", pDialog);
    pFaults->setAccessibleName("With wells that fail");
    pFaults->setChecked(true);
    pDialog->AddWide(pFaults);
    RequireName(*pDialog, pProject->lineEdit());
    RequireName(*pDialog, pPlate);
    pDialog->Ask([=] {
        SimulatedRun oRun;
        oRun.oDestination = {NameIn(*pProject->lineEdit()), NameIn(*pPlate)};
        oRun.eType = pType->currentIndex() == 0 ? AlleleType::Str : AlleleType::Snp;
        oRun.eLadder = static_cast<LadderState>(pLadder->currentIndex());
        oRun.nSeed = static_cast<std::uint64_t>(pSeed->value());
        oRun.bWithFaults = pFaults->isChecked();
        fnThen(oRun);
    });
}

void AskForTraces(QWidget& oParent, const std::vector<std::string>& asProjects,
                  const std::vector<std::string>& asFiles, const FileChooser& fnChoose,
                  const std::function<void(const std::vector<std::string>&, const Destination&)>& fnThen) {
    auto* pDialog = new StartDialog("Import Traces", "&Import", oParent);
    QStringListModel* pFiles = AddFileList(*pDialog, asFiles, fnChoose);
    QComboBox* pProject = pDialog->AddNameOf("Pro&ject:", asProjects);
    QLineEdit* pPlate = pDialog->AddName("&Plate:", "the one that each trace names");
    RequireName(*pDialog, pProject->lineEdit());
    if (!asFiles.empty()) pProject->setFocus();
    pDialog->Ask([=] { fnThen(Listed(*pFiles), {NameIn(*pProject->lineEdit()), NameIn(*pPlate)}); });
}

void AskForKit(QWidget& oParent, const FileChooser& fnChoose,
               const std::function<void(const std::string& sKit, const std::string& sPanels,
                                        const std::string& sBins)>& fnThen) {
    auto* pDialog = new StartDialog("Import a Kit", "&Import", oParent);
    const auto fnTable = [fnChoose] { return FirstOf(fnChoose(StartFiles::Table)); };
    QLineEdit* pKit = pDialog->AddName("&Kit:");
    QLineEdit* pPanels = pDialog->AddFile("&Panels:", "Choose Pa&nels…", fnTable);
    QLineEdit* pBins = pDialog->AddFile("&Bins:", "Ch&oose Bins…", fnTable);
    for (QLineEdit* pNeeded : {pKit, pPanels, pBins}) RequireName(*pDialog, pNeeded);
    pDialog->Ask([=] { fnThen(NameIn(*pKit), NameIn(*pPanels), NameIn(*pBins)); });
}

} // namespace GleanerSvc::Workbench
