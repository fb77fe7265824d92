#include "workbench/window/RecordWindow.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <span>
#include <utility>

#include "pagebind/Text.h"
#include "workbench/traces/TraceFile.h"
#include "workbench/window/MessageBox.h"
#include "workbench/window/PeakTable.h"
#include "workbench/window/ShownText.h"
#include "workbench/window/TracePlot.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double TraceZoom = 1.5;
constexpr double PanStep = 0.2;
constexpr double HeightStep = 1.5;

QLabel* AddLabel(QVBoxLayout& oLayout, const QString& sName, const QString& sText) {
    auto* pLabel = new QLabel(sText);
    pLabel->setAccessibleName(sName);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pLabel->setWordWrap(true);
    pLabel->setVisible(!sText.isEmpty());
    oLayout.addWidget(pLabel);
    return pLabel;
}

QAction* AddEntry(QMenu& oMenu, const QString& sText, const QKeySequence& oKeys, std::function<void()> fnDo) {
    auto* pEntry = oMenu.addAction(sText);
    pEntry->setShortcut(oKeys);
    QObject::connect(pEntry, &QAction::triggered, &oMenu, std::move(fnDo));
    return pEntry;
}

QAction* AddSwitch(QMenu& oMenu, const QString& sText, const QKeySequence& oKeys, bool bOn,
                   std::function<void(bool)> fnDo) {
    auto* pEntry = oMenu.addAction(sText);
    pEntry->setShortcut(oKeys);
    pEntry->setCheckable(true);
    pEntry->setChecked(bOn);
    QObject::connect(pEntry, &QAction::toggled, &oMenu, std::move(fnDo));
    return pEntry;
}

std::string HeadingOf(const RecordContent& oContent) {
    const SampleRow& oSample = oContent.oSample;
    std::string sHeading(RightTrim(oSample.sName));
    if (oSample.oWell) sHeading += ", well " + WellText(*oSample.oWell);
    if (!oSample.sFile.empty()) sHeading += " (" + oSample.sFile + ")";
    return sHeading;
}

} // namespace

RecordWindow::RecordWindow(const Ref<Lab>& oLab, const RecordChoice& oChoice, Appearance& oAppearance)
    : m_oContent(LoadRecord(*oLab, oChoice)), m_oAppearance(oAppearance), m_sHeading(HeadingOf(m_oContent)) {
    const auto sTitle =
        oChoice.sTitle.empty() ? "Single Sample View - " + m_oContent.oSample.sName : oChoice.sTitle;
    setWindowTitle(ShownText(sTitle));
    auto* pCentre = new QWidget(this);
    setCentralWidget(pCentre);
    new QVBoxLayout(pCentre);
    AddHead();
    AddSplitter();
    AddTrace();
    AddTable();
    AddFileMenu();
    AddTraceMenu();
    AddPeakMenu();
    AddViewMenu();
    m_oSubscriptions.On(m_oAppearance.OnZoomed, [this] { Dress(); });
    Dress();
    resize(sizeHint().boundedTo(screen()->availableSize()));
    m_pPlot->setFocus();
}

QSize RecordWindow::sizeHint() const { return {m_oAppearance.Pixels(17700), m_oAppearance.Pixels(12900)}; }

RecordWindow::~RecordWindow() {
    m_pTable->setModel(nullptr); // the models end before the widgets do
}

void RecordWindow::AddHead() {
    auto& oLayout = *static_cast<QVBoxLayout*>(centralWidget()->layout()); // NOLINT(*-static-cast-downcast)
    const bool bHasSample = m_oContent.oSample.lSampleID != 0;
    m_pHeading = AddLabel(oLayout, "Sample", ShownText(m_sHeading));
    m_pStatus = AddLabel(oLayout, "Status", bHasSample ? ShownText(m_oContent.StatusLine()) : QString());
    m_pStandard = AddLabel(oLayout, "Size standard",
                           m_oContent.sProblem.empty() ? ShownText(m_oContent.StandardLine()) : QString());
    m_pProblem = AddLabel(
        oLayout, "Problem",
        m_oContent.sProblem.empty() ? QString() : "This cannot be shown.\n" + ShownText(m_oContent.sProblem));
    m_pProblem->setAlignment(Qt::AlignCenter);
    if (!m_oContent.sProblem.empty()) oLayout.setStretchFactor(m_pProblem, 1);
}

void RecordWindow::AddSplitter() {
    m_pSplitter = new QSplitter(Qt::Vertical);
    m_pSplitter->setAccessibleName("Trace and peaks");
    m_pSplitter->setChildrenCollapsible(false);
    centralWidget()->layout()->addWidget(m_pSplitter);
}

void RecordWindow::AddTrace() {
    auto* pScroll = new QScrollArea;
    pScroll->setAccessibleName("Electropherogram, scrolled");
    pScroll->setWidgetResizable(true);
    pScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pScroll->setFocusPolicy(Qt::NoFocus); // its plot has it
    m_pPlot = new TracePlot({m_oContent.oTrace, m_oContent.oSized, m_oContent.oCalled, "", m_oContent.aoBins},
                            pScroll);
    m_pPlot->setAccessibleDescription(
        ShownText(m_oContent.StatusLine() + ". The table of peaks holds what is drawn here."));
    m_pPlot->setToolTip("Drag to move, Ctrl and wheel to zoom, Shift and wheel to move; click a peak to find "
                        "it in the table");
    pScroll->setWidget(m_pPlot);
    m_pSplitter->addWidget(pScroll);
    m_pSplitter->setVisible(m_oContent.sProblem.empty());
    m_oSubscriptions.On(m_pPlot->OnPicked, [this](std::size_t nPeak) { SelectPeak(nPeak); });
}

void RecordWindow::AddTable() {
    m_oPeaks = std::make_unique<PeakTable>(m_oContent);
    m_oShown = std::make_unique<QSortFilterProxyModel>();
    m_oShown->setSourceModel(m_oPeaks.get());
    m_oShown->setSortRole(PeakTable::SortRole);
    m_oShown->setFilterRole(PeakTable::CalledRole);
    m_pTable = new QTableView;
    m_pTable->setAccessibleName("Peaks");
    m_pTable->setModel(m_oShown.get());
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTable->setAlternatingRowColors(true);
    m_pTable->setTabKeyNavigation(false); // Tab goes on to the next control
    m_pTable->setSortingEnabled(true);
    m_pTable->sortByColumn(-1, Qt::AscendingOrder); // at first as the trace has them
    m_pTable->horizontalHeader()->setAccessibleName("Headings of the peaks");
    m_pTable->horizontalHeader()->setHighlightSections(false);
    m_pTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_pTable->verticalHeader()->hide();
    m_pSplitter->addWidget(m_pTable);
    m_pSplitter->setStretchFactor(0, 1); // a larger window is for the trace
    m_pSplitter->setStretchFactor(1, 0);
    connect(m_pTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ShowMarkedPeak(); });
}

void RecordWindow::AddFileMenu() {
    QMenu& oMenu = *menuBar()->addMenu("&File");
    auto* pPicture = AddEntry(oMenu, "Save &Picture...", QKeySequence("Ctrl+S"), [this] {
        AskFile("Save Picture", "Pictures (*.png)", "png", &RecordWindow::SavePicture);
    });
    auto* pTable = AddEntry(oMenu, "Save &Table...", QKeySequence("Ctrl+T"), [this] {
        AskFile("Save Table", "Tables (*.csv)", "csv", &RecordWindow::SaveTable);
    });
    for (auto* pEntry : {pPicture, pTable}) pEntry->setEnabled(m_oContent.sProblem.empty());
    oMenu.addSeparator();
    AddEntry(oMenu, "&Close", QKeySequence("Ctrl+W"), [this] { close(); });
}

void RecordWindow::AddTraceMenu() {
    QMenu& oMenu = *menuBar()->addMenu("&Trace");
    TracePlot& oPlot = *m_pPlot;
    AddEntry(oMenu, "Zoom &In", QKeySequence("Ctrl+Up"), [&oPlot] { oPlot.Zoom(TraceZoom); });
    AddEntry(oMenu, "Zoom &Out", QKeySequence("Ctrl+Down"), [&oPlot] { oPlot.Zoom(1 / TraceZoom); });
    AddEntry(oMenu, "Move &Left", QKeySequence("Ctrl+Left"), [&oPlot] { oPlot.Pan(-PanStep); });
    AddEntry(oMenu, "Move &Right", QKeySequence("Ctrl+Right"), [&oPlot] { oPlot.Pan(PanStep); });
    AddEntry(oMenu, "&Whole Trace", QKeySequence("Ctrl+Home"), [&oPlot] { oPlot.ShowAll(); });
    oMenu.addSeparator();
    AddEntry(oMenu, "&Higher Peaks", QKeySequence("Ctrl+Shift+Up"), [&oPlot] { oPlot.Raise(HeightStep); });
    AddEntry(oMenu, "Lower &Peaks", QKeySequence("Ctrl+Shift+Down"),
             [&oPlot] { oPlot.Raise(1 / HeightStep); });
    AddEntry(oMenu, "&Fit Heights", QKeySequence("Ctrl+Shift+Home"), [&oPlot] { oPlot.FitHeights(); });
    oMenu.addSeparator();
    AddSwitch(oMenu, "&Bins and Loci", QKeySequence("Ctrl+B"), true, [this](bool bOn) {
        ChangeLook([bOn](TraceLook& oLook) { oLook.bBins = bOn; });
    })->setEnabled(!m_oContent.aoBins.empty() && m_oContent.oSized.IsSized());
    AddSwitch(oMenu, "&Size Standard", QKeySequence("Ctrl+D"), true, [this](bool bOn) {
        ChangeLook([bOn](TraceLook& oLook) { oLook.bStandard = bOn; });
    })->setEnabled(m_oContent.oSized.IsSized());
    oMenu.addSeparator();
    AddDyes(oMenu);
    oMenu.setEnabled(m_oContent.sProblem.empty());
}

void RecordWindow::AddDyes(QMenu& oMenu) {
    for (std::size_t nDye = 0; nDye < m_oContent.oTrace.aoDyes.size(); ++nDye) {
        const auto sNumber = QString::number(nDye + 1);
        const auto sName = ShownText(m_oContent.oTrace.aoDyes[nDye].sName).replace("&", "&&");
        AddSwitch(oMenu, "Dye &" + sNumber + ": " + sName, QKeySequence("Ctrl+" + sNumber), true,
                  [this, nDye](bool bOn) {
                      ChangeLook([&](TraceLook& oLook) {
                          if (bOn) {
                              oLook.oHiddenDyes.erase(nDye);
                          } else {
                              oLook.oHiddenDyes.insert(nDye);
                          }
                      });
                  });
    }
}

void RecordWindow::AddPeakMenu() {
    QMenu& oMenu = *menuBar()->addMenu("&Peaks");
    AddSwitch(oMenu, "&Called Peaks Only", QKeySequence("Ctrl+L"), false,
              [this](bool bOn) { m_oShown->setFilterFixedString(bOn ? "called" : ""); });
    AddEntry(oMenu, "Sort Column &Ascending", QKeySequence("Ctrl+Shift+A"), [this] { SortByColumn(true); });
    AddEntry(oMenu, "Sort Column &Descending", QKeySequence("Ctrl+Shift+D"), [this] { SortByColumn(false); });
    AddEntry(oMenu, "&Order of the Trace", QKeySequence("Ctrl+Shift+O"),
             [this] { m_pTable->sortByColumn(-1, Qt::AscendingOrder); });
    oMenu.addSeparator();
    AddEntry(oMenu, "&Go to the Table", QKeySequence("Ctrl+G"), [this] { m_pTable->setFocus(); });
    AddEntry(oMenu, "Go to the T&race", QKeySequence("Ctrl+R"), [this] { m_pPlot->setFocus(); });
    oMenu.setEnabled(m_oContent.sProblem.empty());
}

void RecordWindow::AddViewMenu() {
    QMenu& oMenu = *menuBar()->addMenu("&View");
    AddEntry(oMenu, "Zoom &In", QKeySequence("Ctrl++"), [this] {
        m_oAppearance.ZoomBy(1);
    })->setShortcuts(ZoomInKeys());
    AddEntry(oMenu, "Zoom &Out", QKeySequence("Ctrl+-"), [this] { m_oAppearance.ZoomBy(-1); });
    AddEntry(oMenu, "&Usual Size", QKeySequence("Ctrl+0"), [this] { m_oAppearance.Zoom(1); });
    // The splitter's handle by keyboard.
    oMenu.addSeparator();
    const auto Move = [this](int nBy) {
        const auto anSizes = m_pSplitter->sizes();
        m_pSplitter->setSizes({anSizes[0] + nBy, anSizes[1] - nBy});
    };
    AddEntry(oMenu, "More &Trace", QKeySequence("Ctrl+Shift+Right"), [Move] { Move(40); });
    AddEntry(oMenu, "More Ta&ble", QKeySequence("Ctrl+Shift+Left"), [Move] { Move(-40); });
}

// Size and colours as the appearance has them.
void RecordWindow::Dress() {
    QFont oLarge = QApplication::font();
    oLarge.setPixelSize(oLarge.pixelSize() * 5 / 4);
    m_pProblem->setFont(oLarge);
    oLarge.setBold(true);
    m_pHeading->setFont(oLarge);
    ChangeLook([this](TraceLook& oLook) {
        oLook.bDark = m_oAppearance.ShownTheme() == Theme::Dark;
        oLook.dZoom = m_oAppearance.Zoom();
    });
    DressTable();
}

void RecordWindow::DressTable() {
    m_oPeaks->Dark(m_oAppearance.ShownTheme() == Theme::Dark);
    const QFontMetrics oMetrics(QApplication::font()); // the table has it by the next turn of the loop
    m_pTable->verticalHeader()->setDefaultSectionSize(oMetrics.height() * 3 / 2);
    const int nSwatch = oMetrics.height() * 3 / 4;
    m_pTable->setIconSize({nSwatch, nSwatch});
    m_pTable->setMinimumHeight(oMetrics.height() * 6);
    m_pTable->horizontalHeader()->setMinimumSectionSize(oMetrics.averageCharWidth() * 15);
}

void RecordWindow::ChangeLook(const std::function<void(TraceLook&)>& fnChange) {
    TraceLook oLook = m_pPlot->Look();
    fnChange(oLook);
    m_pPlot->Look(oLook);
}

void RecordWindow::changeEvent(QEvent* pEvent) {
    QMainWindow::changeEvent(pEvent);
    if (pEvent->type() != QEvent::PaletteChange || !m_pTable) return;
    ChangeLook([this](TraceLook& oLook) { oLook.bDark = m_oAppearance.ShownTheme() == Theme::Dark; });
    m_oPeaks->Dark(m_oAppearance.ShownTheme() == Theme::Dark);
}

// Only now is there a height to share out.
void RecordWindow::showEvent(QShowEvent* pEvent) {
    QMainWindow::showEvent(pEvent);
    if (std::exchange(m_bWasShown, true)) return;
    const int nTable = std::max(m_pTable->minimumHeight(), m_pSplitter->height() / 4);
    m_pSplitter->setSizes({m_pSplitter->height() - nTable, nTable});
}

void RecordWindow::SortByColumn(bool bAscending) {
    const int nCol = std::max(0, m_pTable->currentIndex().column());
    m_pTable->sortByColumn(nCol, bAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void RecordWindow::ShowMarkedPeak() {
    const auto oIndex = m_oShown->mapToSource(m_pTable->currentIndex());
    m_pPlot->Mark(oIndex.isValid() ? std::optional(static_cast<std::size_t>(oIndex.row())) : std::nullopt);
}

void RecordWindow::SelectPeak(std::size_t nPeak) {
    const auto oIndex = m_oShown->mapFromSource(m_oPeaks->index(static_cast<int>(nPeak), 0));
    if (oIndex.isValid()) m_pTable->setCurrentIndex(oIndex);
}

void RecordWindow::AskFile(const QString& sTitle, const QString& sFilter, const QString& sSuffix,
                           bool (RecordWindow::*fnSave)(const std::string&)) {
    auto* pDialog = new QFileDialog(this, sTitle, "", sFilter);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    pDialog->setAcceptMode(QFileDialog::AcceptSave);
    pDialog->setDefaultSuffix(sSuffix);
    pDialog->selectFile(ShownText(RightTrim(m_oContent.oSample.sName)) + "." + sSuffix);
    connect(pDialog, &QFileDialog::fileSelected, this,
            [this, fnSave](const QString& sFile) { (this->*fnSave)(sFile.toStdString()); });
    pDialog->open();
}

bool RecordWindow::SavePicture(const std::string& sFile) {
    return Save(sFile, [&] {
        if (!m_oContent.sProblem.empty()) throw InputError(sFile, "", "there is no trace to save");
        QBuffer oContent;
        const auto oPicture = m_pPlot->Picture(m_sHeading + ": " + m_oContent.StatusLine());
        if (!oPicture.save(&oContent, "PNG")) throw InputError(sFile, "", "the picture cannot be made");
        return oContent.data().toStdString();
    });
}

bool RecordWindow::SaveTable(const std::string& sFile) {
    return Save(sFile, [&] {
        if (!m_oContent.sProblem.empty()) throw InputError(sFile, "", "there are no peaks to save");
        return PeaksAsCsv(*m_oShown);
    });
}

bool RecordWindow::Save(const std::string& sFile, const std::function<std::string()>& fnContent) {
    try {
        const std::string sContent = fnContent();
        WriteBytes(sFile, std::as_bytes(std::span(sContent)));
        statusBar()->showMessage("Saved as " + ShownText(sFile));
        return true;
    } catch (const std::exception& oError) {
        auto* pBox = MakeMessageBox(QMessageBox::Warning, oError.what()).release();
        pBox->setAttribute(Qt::WA_DeleteOnClose);
        pBox->open();
        return false;
    }
}

} // namespace GleanerSvc::Workbench
