// A wizard in a window of its own: the title, the steps and where one stands, the page, and Back, Next,
// Finish and Cancel as the host sets them.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workbench/lab/Wizard.h"
#include "workbench/window/Appearance.h"
#include "workbench/window/MessageBox.h"
#include "workbench/window/WindowPlatform.h"

class QLabel;
class QPushButton;
class QStackedWidget;

namespace GleanerSvc::Workbench {

class PageView;

class WizardWindow final : public QMainWindow {
  public:
    // The appearance outlives the window.
    WizardWindow(Ref<LabLibraries> oLibraries, const Wizard::Start& oStart, Appearance& oAppearance);
    WizardWindow(const WizardWindow&) = delete;
    WizardWindow& operator=(const WizardWindow&) = delete;
    ~WizardWindow() override;

    Wizard& OwnWizard() const { return *m_oWizard; }
    const Ref<LabLibraries>& Libraries() const { return m_oLibraries; }
    PageView& ViewOf(std::int32_t lPage) const; // from 1
    // The operator wants it closed, and it waits for the end of the analysis.
    bool IsClosing() const { return m_bClosing; }

    QSize sizeHint() const override; // the whole page and what stands around it

    Event<> OnEnded; // by Finish, Cancel or a close; the window closes by itself

    std::function<bool(const std::string&)> OnAsk = AskYesOrNo; // unless replaced

  protected:
    void closeEvent(QCloseEvent* pEvent) override;

  private:
    void AddPages();
    void AddButtons();
    void AddZoomKeys();
    void ShowHost();
    void ShowZoom();
    void TellFailures();
    void AskToStop();
    void CloseWhenAnalyzed();
    void Leave();
    void End();

    Ref<LabLibraries> m_oLibraries;
    Appearance& m_oAppearance;
    GestureDoor m_oDoor;
    Ref<WindowPlatform> m_oPlatform;
    std::unique_ptr<Wizard> m_oWizard;
    QString m_sTask; // the title until a page sets one
    double m_dShownZoom;
    std::vector<PageView*> m_apPages;
    QStackedWidget* m_pPages = nullptr;
    std::vector<QLabel*> m_apSteps;
    QPushButton* m_pBack = nullptr;
    QPushButton* m_pNext = nullptr;
    QPushButton* m_pFinish = nullptr;
    QPushButton* m_pCancel = nullptr;
    std::size_t m_nFailuresTold = 0;
    bool m_bClosing = false;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
