// The platform service on a terminal: message boxes are lines, questions have a set answer, and a turn of the
// message loop shows progress.
#pragma once

#include <functional>

#include "workbench/lab/WorkbenchPlatform.h"

namespace GleanerSvc::Workbench {

class ConsolePlatform final : public WorkbenchPlatform {
  public:
    // bYes: questions are answered Yes; they are answered No otherwise, and the answer is told.
    explicit ConsolePlatform(bool bYes) : m_bYes(bYes) {}

    std::int32_t ShowMessage(std::string_view sText, std::int32_t lStyle, std::string_view sTitle) override;
    void ShowPopup(PopupMenu& /*oMenu*/, std::int16_t /*iFlags*/) override {} // closes without a choice
    void YieldOnce() override {
        if (OnYield) OnYield();
    }

    std::function<void()> OnYield;
    bool HasShownStop() const { return m_bStopShown; } // a box with the stop icon was shown
    bool HasAnsweredNo() const { return m_bAnsweredNo; }

  private:
    bool m_bYes;
    bool m_bStopShown = false;
    bool m_bAnsweredNo = false;
};

} // namespace GleanerSvc::Workbench
