#include "workbench/window/Desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace GleanerSvc::Workbench {

namespace {

// What the error log keeps of a failure that the operator is to see.
std::string Story(const LogRow& oEntry) {
    return oEntry.oFailure.Description() + (oEntry.sExtra.empty() ? "" : "\n" + oEntry.sExtra) + "\n\n(" +
           oEntry.sObjectType + ", " + oEntry.sProcedure + ")";
}

} // namespace

Desktop::Desktop(Appearance& oAppearance) : m_oAppearance(oAppearance), m_oStart(oAppearance) {
    OnTrouble = [](const std::string& sText) {
        QMessageBox::warning(QApplication::activeWindow(), QString::fromUtf8(WorkbenchTitle),
                             QString::fromStdString(sText));
    };
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
        m_oOfWizard.On(m_oWizard->OnEnded,
                       [this] { QTimer::singleShot(0, &m_oStart, [this] { EndWizard(); }); });
        m_oWizard->show();
    });
}

// Not in the wizard's own event, which is still at work then.
void Desktop::EndWizard() {
    m_oOfWizard.Clear();
    m_oWizard.reset();
    m_aoLaunched.clear();
    m_oStart.Reload();
}

void Desktop::FollowLaunches(const Ref<LabLibraries>& oLibraries) {
    oLibraries->Utility().OnShown = [this](const LogRow& oEntry) { OnTrouble(Story(oEntry)); };
    m_oOfWizard.On(oLibraries->Launcher().OnOpened,
                   [this](const Ref<FurtherWizard>& oWizard) { Keep(oWizard); });
}

// It has a window of its own, whether its opener shows it or not; its title is set by the next turn of the
// loop.
void Desktop::Keep(const Ref<FurtherWizard>& oWizard) {
    m_aoLaunched.push_back(oWizard);
    QTimer::singleShot(0, &m_oStart, [this, oWizard] { ShowRecord(ChoiceOf(*oWizard)); });
}

void Desktop::ShowRecord(const RecordChoice& oChoice) {
    DropClosed();
    if (!m_oStart.OwnLab()) return;
    const GestureDoor oDoor{OnTrouble};
    oDoor([&] {
        m_aoRecords.push_back(std::make_unique<RecordWindow>(m_oStart.OwnLab(), oChoice, m_oAppearance));
        m_aoRecords.back()->show();
    });
}

void Desktop::DropClosed() {
    std::erase_if(m_aoRecords, [](const auto& oRecord) { return !oRecord->isVisible(); });
}

} // namespace GleanerSvc::Workbench
