// All windows of the program: the start window, the wizard that it begins, and the views of single records.
// Each can be closed by itself; the program ends when the last of them is gone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "workbench/lab/Wizard.h"
#include "workbench/window/MessageBox.h"
#include "workbench/window/RecordWindow.h"
#include "workbench/window/StartWindow.h"
#include "workbench/window/WizardWindow.h"

namespace GleanerSvc::Workbench {

class Desktop {
  public:
    // The appearance outlives the desktop.
    explicit Desktop(Appearance& oAppearance);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop();

    StartWindow& Start() { return m_oStart; }
    WizardWindow* OpenWizard() const { return m_oWizard.get(); } // nothing while none is open
    const std::vector<std::unique_ptr<RecordWindow>>& Records() const { return m_aoRecords; }
    void ShowRecord(const RecordChoice& oChoice); // in a window of its own, the last of the records
    void Quit(); // closes all windows; asks first while a wizard is open, and ends its analysis first

    std::function<void(const std::string&)> OnTrouble = TellTrouble; // a message box, unless replaced
    std::function<bool(const std::string&)> OnAsk = AskYesOrNo;      // one with Yes and No, unless replaced

  private:
    void BeginWizard(const Wizard::Start& oStart);
    void FollowWizard();
    void ShowWizard();
    void EndWizard();
    void EndIfUnseen() const;
    void FollowLaunches(const Ref<LabLibraries>& oLibraries);
    void Keep(const Ref<Lab>& oLab, const Ref<FurtherWizard>& oWizard);
    void ShowRecord(const Ref<Lab>& oLab, const RecordChoice& oChoice);
    void DropClosed();

    Appearance& m_oAppearance;
    StartWindow m_oStart;
    std::unique_ptr<WizardWindow> m_oWizard;
    std::vector<std::unique_ptr<RecordWindow>> m_aoRecords;
    std::vector<Ref<FurtherWizard>> m_aoLaunched; // of the wizard that is open
    bool m_bQuitting = false;                     // once the wizard has ended
    Subscriptions m_oLasting;
    Subscriptions m_oOfWizard;
};

} // namespace GleanerSvc::Workbench
