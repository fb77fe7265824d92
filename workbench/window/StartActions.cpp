#include "workbench/window/StartActions.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "workbench/window/StartButton.h"

namespace GleanerSvc::Workbench {

namespace {} // namespace

StartActions::StartActions(QMainWindow& oWindow, Appearance& oAppearance)
    : m_oWindow(oWindow), m_oAppearance(oAppearance) {
    AddFile();
    AddStudy();
    AddView();
    m_oWindow.menuBar()->setAccessibleName("Menu");
}

QMenu& StartActions::AddMenu(const char* szTitle) {
    QMenu* pMenu = m_oWindow.menuBar()->addMenu(szTitle);
    pMenu->setAccessibleName(SpokenCaption(szTitle));
    pMenu->setToolTipsVisible(true);
    return *pMenu;
}

QAction* StartActions::Add(QMenu& oMenu, const char* szText, const char* szKey, const char* szTip) {
    QAction* pAction = oMenu.addAction(szText);
    pAction->setShortcut(QKeySequence(szKey));
    pAction->setToolTip(szTip);
    pAction->setStatusTip(szTip);
    return pAction;
}

void StartActions::AddFile() {
    QMenu& oFile = AddMenu("&File");
    pNewLab = Add(oFile, "&New Lab…", "Ctrl+N", "Make a lab: a file that holds samples, results and studies");
    pOpenLab = Add(oFile, "&Open Lab…", "Ctrl+O", "Open a lab that is there");
    pReadLab = Add(oFile, "Open for Rea&ding…", "Ctrl+Shift+O",
                   "Open a lab to look at, also while another program fills it; nothing in it is changed");
    pUsualLab = Add(oFile, "Open the &Usual Lab", "Ctrl+U",
                    "Open the lab in your data folder; it is made when it is not there");
    oFile.addSeparator();
    pImport = Add(oFile, "&Import Traces…", "Ctrl+I", "Bring trace files into the lab");
    pImportKit = Add(oFile, "Import &Kit…", "Ctrl+K", "Bring the panels and bins of a kit into the lab");
    pSimulate =
        Add(oFile, "Simulate &Plate…", "Ctrl+P", "Make a plate of 96 traces, and bring it into the lab");
    oFile.addSeparator();
    pExport = Add(oFile, "&Export as CSV…", "Ctrl+E",
                  "Save the results that are listed as CSV, a row for each allele");
    pReload = Add(oFile, "&Reload", "F5", "Read the lab anew");
    oFile.addSeparator();
    pQuit = Add(oFile, "&Quit", "Ctrl+Q", "Close all windows; an open wizard is asked about first");
}

void StartActions::AddStudy() {
    QMenu& oStudy = AddMenu("&Study");
    pAnalyze =
        Add(oStudy, "&Analyze into Study", "Ctrl+R", "Pick samples, analyze them, add results to this study");
    pAnalyzeNew = Add(oStudy, "Analyze into &New Study…", "Ctrl+Shift+N",
                      "Pick samples, analyze them, and make a study of the results");
    oStudy.addSeparator();
    pAgainResults = Add(oStudy, "Analyze &Results Again", "Ctrl+G",
                        "Size and call the results again: the selected ones, or all of the list");
    pAgainAlleles =
        Add(oStudy, "Analyze A&lleles Again", "Ctrl+Shift+G",
            "Call alleles again on the sizes that are stored: of the selected results, or of all");
    oStudy.addSeparator();
    pShowResult = Add(oStudy, "Sho&w Result", "Ctrl+T", "Show the trace and the alleles of one result");
}

void StartActions::AddView() {
    QMenu& oView = AddMenu("&View");
    pStudies = Add(oView, "S&tudies", "Ctrl+1", "The studies and their results");
    pImported = Add(oView, "I&mport", "Ctrl+2", "What became of the files of the last import");
    pLog = Add(oView, "Error Lo&g", "Ctrl+3", "Failures that the lab keeps");
    oView.addSeparator();
    AddZoom(oView);
    oView.addSeparator();
    AddThemes(oView);
}

void StartActions::AddZoom(QMenu& oMenu) {
    QAction* pIn = Add(oMenu, "Zoom &In", "Ctrl++", "Show all larger");
    pIn->setShortcuts(ZoomInKeys());
    QAction* pOut = Add(oMenu, "Zoom &Out", "Ctrl+-", "Show all smaller");
    QAction* pUsual = Add(oMenu, "&Usual Size", "Ctrl+0", "Show all in its usual size");
    QObject::connect(pIn, &QAction::triggered, &m_oWindow, [this] { m_oAppearance.ZoomBy(1); });
    QObject::connect(pOut, &QAction::triggered, &m_oWindow, [this] { m_oAppearance.ZoomBy(-1); });
    QObject::connect(pUsual, &QAction::triggered, &m_oWindow, [this] { m_oAppearance.Zoom(1); });
}

void StartActions::AddThemes(QMenu& oMenu) {
    auto* const pThemes = new QActionGroup(&m_oWindow); // one of them is marked
    m_pLight = Add(oMenu, "&Light", "Ctrl+Shift+L", "Dark text on a light ground");
    m_pDark = Add(oMenu, "&Dark", "Ctrl+Shift+D", "Light text on a dark ground");
    for (QAction* pTheme : {m_pLight, m_pDark}) {
        pTheme->setCheckable(true);
        pThemes->addAction(pTheme);
    }
    (m_oAppearance.ShownTheme() == Theme::Dark ? m_pDark : m_pLight)->setChecked(true);
    QObject::connect(m_pLight, &QAction::triggered, &m_oWindow,
                     [this] { m_oAppearance.ShownTheme(Theme::Light); });
    QObject::connect(m_pDark, &QAction::triggered, &m_oWindow,
                     [this] { m_oAppearance.ShownTheme(Theme::Dark); });
}

QAbstractButton* ActionButton(QAction* pAction, const char* szCaption, QWidget* pParent) {
    auto* pButton = new StartButton(szCaption, pParent);
    pButton->setAccessibleDescription(pAction->toolTip());
    pButton->setToolTip(pAction->toolTip() + " (" + pAction->shortcut().toString(QKeySequence::NativeText) +
                        ")");
    const auto fnFollow = [pButton, pAction] { pButton->setEnabled(pAction->isEnabled()); };
    fnFollow();
    QObject::connect(pAction, &QAction::changed, pButton, fnFollow);
    QObject::connect(pButton, &QAbstractButton::clicked, pAction, &QAction::trigger);
    return pButton;
}

} // namespace GleanerSvc::Workbench
