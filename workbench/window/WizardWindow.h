// A wizard in a window of its own: the title, the steps and where one stands, the page, and Back, Next,
// Finish and Cancel as the host sets them.
#pragma once

#include <QMainWindow>

#include <memory>
#include <vector>

#include "workbench/lab/Wizard.h"
#include "workbench/window/Appearance.h"
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
    PageView& ViewOf(std::int32_t lPage) const; // from 1
    bool HasFinished() const { return m_bFinished; }

    QSize sizeHint() const override; // the whole page and what stands around it

    Event<> OnEnded; // by Finish or Cancel; the window closes by itself

  protected:
    void closeEvent(QCloseEvent* pEvent) override;

  private:
    void AddPages();
    void AddButtons();
    void AddZoomKeys();
    void ShowHost();
    void ShowZoom();
    void Finish();
    void TellFailures();
    void End();

    Ref<LabLibraries> m_oLibraries;
    Appearance& m_oAppearance;
    GestureDoor m_oDoor;
    Ref<WindowPlatform> m_oPlatform;
    std::unique_ptr<Wizard> m_oWizard;
    std::vector<PageView*> m_apPages;
    QStackedWidget* m_pPages = nullptr;
    std::vector<QLabel*> m_apSteps;
    QPushButton* m_pBack = nullptr;
    QPushButton* m_pNext = nullptr;
    QPushButton* m_pFinish = nullptr;
    QPushButton* m_pCancel = nullptr;
    std::size_t m_nFailuresTold = 0;
    bool m_bFinished = false;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
