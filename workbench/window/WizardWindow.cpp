#include "workbench/window/WizardWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

#include "workbench/window/PageView.h"

namespace GleanerSvc::Workbench {

namespace {

// What a page is called among the steps; in the order of Wizard.
std::vector<QString> StepsOf(const Wizard& oWizard) {
    if (oWizard.oSamples) return {"Samples", "Locus tags", "Analysis", "Results"};
    return {"Locus tags", "Analysis"};
}

// As the menu calls it.
QString NameOf(Task eTask) {
    switch (eTask) {
    case Task::Analyze:
        return "Analyze into Study";
    case Task::ReanalyzeResults:
        return "Analyze Results Again";
    case Task::ReanalyzeAlleles:
        return "Analyze Alleles Again";
    }
    return {};
}

} // namespace

WizardWindow::WizardWindow(Ref<LabLibraries> oLibraries, const Wizard::Start& oStart, Appearance& oAppearance)
    : m_oLibraries(std::move(oLibraries)), m_oAppearance(oAppearance),
      m_oPlatform(std::make_shared<WindowPlatform>(m_oDoor)),
      m_oWizard(std::make_unique<Wizard>(m_oLibraries, m_oPlatform, oStart)), m_sTask(NameOf(oStart.eTask)),
      m_dShownZoom(oAppearance.Zoom()) {
    auto* const pLayout = new QVBoxLayout;
    auto* const pSteps = new QHBoxLayout;
    for (const QString& sStep : StepsOf(*m_oWizard)) {
        m_apSteps.push_back(new QLabel(QString("%1  %2").arg(m_apSteps.size() + 1).arg(sStep)));
        pSteps->addWidget(m_apSteps.back());
        pSteps->addSpacing(24);
    }
    pSteps->addStretch();
    pLayout->addLayout(pSteps);
    AddPages();
    pLayout->addWidget(m_pPages, 1);
    setCentralWidget(new QWidget);
    centralWidget()->setLayout(pLayout);
    AddButtons();
    AddZoomKeys();
    m_oSubscriptions.On(m_oWizard->Host().OnChanged, [this] { ShowHost(); });
    m_oSubscriptions.On(m_oWizard->OnAnalyzing, [this] { CloseWhenAnalyzed(); });
    m_oSubscriptions.On(m_oAppearance.OnZoomed, [this] { ShowZoom(); });
    ShowHost();
    resize(sizeHint().boundedTo(screen()->availableSize()));
}

QSize WizardWindow::sizeHint() const {
    const int nLines = m_apSteps.front()->sizeHint().height() + m_pNext->sizeHint().height();
    const QLayout& oLayout = *centralWidget()->layout();
    const QMargins oMargins = oLayout.contentsMargins();
    return m_pPages->currentWidget()->sizeHint() +
           QSize(oMargins.left() + oMargins.right(),
                 nLines + oMargins.top() + oMargins.bottom() + 2 * std::max(0, oLayout.spacing()));
}

// It grows as its page does, as far as the screen goes.
void WizardWindow::ShowZoom() {
    const double dGrowth = m_oAppearance.Zoom() / std::exchange(m_dShownZoom, m_oAppearance.Zoom());
    ShowHost();
    resize((size() * dGrowth).boundedTo(screen()->availableSize()));
}

// The views go before the pages that they look at.
WizardWindow::~WizardWindow() {
    m_oSubscriptions.Clear();
    delete m_pPages;
}

PageView& WizardWindow::ViewOf(std::int32_t lPage) const {
    return *m_apPages[static_cast<std::size_t>(lPage) - 1];
}

void WizardWindow::AddPages() {
    m_pPages = new QStackedWidget;
    for (std::int32_t lPage = 1; lPage <= m_oWizard->Host().PageCount(); ++lPage) {
        auto& oPage = dynamic_cast<Container&>(m_oWizard->PageAt(lPage));
        m_apPages.push_back(new PageView(oPage, {m_oAppearance, m_oDoor}));
        m_pPages->addWidget(m_apPages.back());
    }
}

void WizardWindow::AddButtons() {
    auto* const pButtons = new QHBoxLayout;
    pButtons->addStretch();
    const auto Add = [&](const char* szCaption, const char* szName, auto fnPress) {
        auto* const pButton = new QPushButton(szCaption);
        pButton->setAccessibleName(szName);
        pButton->setObjectName(szName);
        pButtons->addWidget(pButton);
        connect(pButton, &QPushButton::clicked, this, [this, fnPress] { m_oDoor(fnPress); });
        return pButton;
    };
    Models::WizardHost& oHost = m_oWizard->Host();
    m_pBack = Add("< &Back", "Back", [&oHost] { oHost.PressBack(); });
    m_pNext = Add("&Next >", "Next", [&oHost] { oHost.PressNext(); });
    m_pFinish = Add("&Finish", "Finish", [this] { m_oWizard->PressFinish(); });
    m_pCancel = Add("Cancel", "Cancel", [&oHost] { oHost.PressCancel(); });
    m_pCancel->setShortcut(Qt::Key_Escape);
    static_cast<QVBoxLayout*>(centralWidget()->layout())->addLayout(pButtons);
}

void WizardWindow::AddZoomKeys() {
    const auto Add = [this](const QKeySequence& oKeys, const std::function<void()>& fnZoom) {
        connect(new QShortcut(oKeys, this), &QShortcut::activated, this, fnZoom);
    };
    for (const auto& oKeys : ZoomInKeys()) Add(oKeys, [this] { m_oAppearance.ZoomBy(1); });
    Add(QKeySequence("Ctrl+-"), [this] { m_oAppearance.ZoomBy(-1); });
    Add(QKeySequence("Ctrl+0"), [this] { m_oAppearance.Zoom(1); });
}

void WizardWindow::ShowHost() {
    const Models::WizardHost& oHost = m_oWizard->Host();
    const QString sTitle = oHost.Title().empty() ? m_sTask : QString::fromStdString(oHost.Title());
    setWindowTitle(sTitle + " - " + QString::fromUtf8(WorkbenchTitle));
    m_pBack->setEnabled(oHost.IsEnabled(HostButton::Back));
    m_pNext->setEnabled(oHost.IsEnabled(HostButton::Next));
    m_pFinish->setEnabled(oHost.IsEnabled(HostButton::Finish));
    m_pCancel->setEnabled(oHost.IsEnabled(HostButton::Cancel));
    const auto nPage = static_cast<std::size_t>(oHost.CurrentPage()) - 1;
    m_pPages->setCurrentIndex(static_cast<int>(nPage));
    for (std::size_t nStep = 0; nStep < m_apSteps.size(); ++nStep) {
        QFont oFont = QApplication::font();
        oFont.setBold(nStep == nPage);
        m_apSteps[nStep]->setFont(oFont);
        m_apSteps[nStep]->setEnabled(nStep <= nPage);
        m_apSteps[nStep]->setAccessibleName(m_apSteps[nStep]->text() +
                                            (nStep == nPage ? ", current step" : ""));
    }
    TellFailures();
    if (!oHost.IsRunning()) End();
}

// Those that no page has told of itself: the host keeps what left a page's event.
void WizardWindow::TellFailures() {
    const auto& aoFailures = m_oWizard->Host().Failures();
    while (m_nFailuresTold < aoFailures.size()) {
        const std::string sText = aoFailures[m_nFailuresTold++].oFailure.Description();
        m_oDoor([&] { throw Failure(FailureNumber::InvalidCall, "Wizard", sText); });
    }
}

void WizardWindow::End() {
    if (!isVisible()) return;
    hide();
    OnEnded.Raise();
}

// An analysis is stopped first, when the operator agrees, and keeps its window until it has ended.
void WizardWindow::closeEvent(QCloseEvent* pEvent) {
    if (m_oWizard->IsAnalyzing()) {
        AskToStop();
    } else {
        Leave();
    }
    pEvent->setAccepted(!m_oWizard->IsAnalyzing());
}

void WizardWindow::AskToStop() {
    if (m_bClosing || !OnAsk("The analysis is running. Stop it and close?")) return;
    m_bClosing = true;
    m_oDoor([this] { m_oWizard->oAnalysis->cmdStop.Press(); });
}

// Not in the gesture that has analyzed, which is still at work then.
void WizardWindow::CloseWhenAnalyzed() {
    if (m_bClosing && !m_oWizard->IsAnalyzing()) QTimer::singleShot(0, this, [this] { close(); });
}

// Also where the page keeps Cancel off, as it does after an analysis that broke; and whatever fails on the
// way out: nothing that is left behind would be saved.
void WizardWindow::Leave() {
    m_oDoor([this] { m_oWizard->Host().PressButton(HostButton::Cancel); });
    End();
}

} // namespace GleanerSvc::Workbench
