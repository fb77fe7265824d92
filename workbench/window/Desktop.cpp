#include "workbench/window/Desktop.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

namespace GleanerSvc::Workbench {

namespace {

// What the error log keeps of a failure that the operator is to see.
std::string Story(const LogRow& oEntry) {
    return oEntry.oFailure.Description() + (oEntry.sExtra.empty() ? "" : "\n" + oEntry.sExtra) + "\n\n(" +
           oEntry.sObjectType + ", " + oEntry.sProcedure + ")";
}

// Shares the libraries' life: they hold their lab.
Ref<Lab> LabOf(const Ref<LabLibraries>& oLibraries) { return {oLibraries, &oLibraries->OwnLab()}; }

} // namespace

Desktop::Desktop(Appearance& oAppearance) : m_oAppearance(oAppearance), m_oStart(oAppearance) {
    m_oLasting.On(m_oStart.OnQuit, [this] { Quit(); });
    m_oLasting.On(m_oStart.OnAnalyze, [this](const Wizard::Start& oStart) { BeginWizard(oStart); });
    m_oLasting.On(m_oStart.OnShowResult, [this](std::int32_t lResultID) { ShowRecord({0, lResultID, ""}); });
}

Desktop::~Desktop() = default;

// One at a time: two runs would wait for each other at every result.
void Desktop::BeginWizard(const Wizard::Start& oStart) {
    if (m_oWizard) {
        m_oWizard->raise();
        m_oWizard->activateWindow();
        return;
    }
    const GestureDoor oDoor{OnTrouble};
    oDoor([&] {
        FollowLaunches(m_oStart.Libraries());
        m_oWizard = std::make_unique<WizardWindow>(m_oStart.Libraries(), oStart, m_oAppearance);
        FollowWizard();
        m_oWizard->show();
    });
    if (!m_oWizard) m_oOfWizard.Clear();
}

void Desktop::FollowWizard() {
    m_oWizard->OnAsk = [this](const std::string& sQuestion) { return OnAsk(sQuestion); };
    m_oOfWizard.On(m_oWizard->OwnWizard().OnAnalyzing, [this] { ShowWizard(); });
    // Not in the wizard's own event, which is still at work then.
    m_oOfWizard.On(m_oWizard->OnEnded, [this] { QTimer::singleShot(0, &m_oStart, [this] { EndWizard(); }); });
    ShowWizard();
}

void Desktop::ShowWizard() {
    const bool bAnalyzing = m_oWizard && m_oWizard->OwnWizard().IsAnalyzing();
    const auto eOpen = bAnalyzing ? WizardState::Analyzing : WizardState::Open;
    m_oStart.ShowWizard(m_oWizard ? eOpen : WizardState::None);
}

void Desktop::EndWizard() {
    m_oOfWizard.Clear();
    m_oWizard.reset();
    m_aoLaunched.clear();
    ShowWizard();
    m_oStart.Reload();
    if (m_bQuitting) return Quit();
    EndIfUnseen();
}

// The wizard's window was hidden, not closed, so the toolkit does not tell that it was the last.
void Desktop::EndIfUnseen() const {
    const auto fnVisible = [](const auto& oRecord) { return oRecord->isVisible(); };
    if (!m_oStart.isVisible() && std::ranges::none_of(m_aoRecords, fnVisible)) QCoreApplication::quit();
}

// The window of a wizard that analyzes asks by itself.
void Desktop::Quit() {
    if (!m_oWizard) {
        QApplication::closeAllWindows();
        return QCoreApplication::quit(); // none may have been visible any more
    }
    if (!m_oWizard->OwnWizard().IsAnalyzing() &&
        !OnAsk("A wizard is open. What was chosen in it is lost when it ends. End it and quit?"))
        return;
    m_bQuitting = m_oWizard->close() || m_oWizard->IsClosing();
}

void Desktop::FollowLaunches(const Ref<LabLibraries>& oLibraries) {
    oLibraries->Utility().OnShown = [this](const LogRow& oEntry) { OnTrouble(Story(oEntry)); };
    const std::weak_ptr<LabLibraries> oWeak = oLibraries; // which hold this subscription
    m_oOfWizard.On(oLibraries->Launcher().OnOpened, [this, oWeak](const Ref<FurtherWizard>& oWizard) {
        if (const auto oOpen = oWeak.lock()) Keep(LabOf(oOpen), oWizard);
    });
}

// It has a window of its own, whether its opener shows it or not; its title is set by the next turn of the
// loop.
void Desktop::Keep(const Ref<Lab>& oLab, const Ref<FurtherWizard>& oWizard) {
    m_aoLaunched.push_back(oWizard);
    QTimer::singleShot(0, &m_oStart, [this, oLab, oWizard] { ShowRecord(oLab, ChoiceOf(*oWizard)); });
}

void Desktop::ShowRecord(const RecordChoice& oChoice) {
    if (m_oStart.Libraries()) ShowRecord(m_oStart.OwnLab(), oChoice);
}

void Desktop::ShowRecord(const Ref<Lab>& oLab, const RecordChoice& oChoice) {
    DropClosed();
    const GestureDoor oDoor{OnTrouble};
    oDoor([&] {
        m_aoRecords.push_back(std::make_unique<RecordWindow>(oLab, oChoice, m_oAppearance));
        m_aoRecords.back()->show();
    });
}

void Desktop::DropClosed() {
    std::erase_if(m_aoRecords, [](const auto& oRecord) { return !oRecord->isVisible(); });
}

} // namespace GleanerSvc::Workbench
