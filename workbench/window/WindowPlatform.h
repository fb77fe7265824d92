// The platform service in a window: message boxes, pop-up menus, the cursor and the message loop are the
// desktop's.
#pragma once

#include "workbench/lab/WorkbenchPlatform.h"
#include "workbench/window/GestureDoor.h"

namespace GleanerSvc::Workbench {

class WindowPlatform final : public WorkbenchPlatform {
  public:
    explicit WindowPlatform(const GestureDoor& oDoor) : m_oDoor(oDoor) {}
    WindowPlatform(const WindowPlatform&) = delete;
    WindowPlatform& operator=(const WindowPlatform&) = delete;
    ~WindowPlatform() override;

    std::int32_t ShowMessage(std::string_view sText, std::int32_t lStyle, std::string_view sTitle) override;
    void ShowPopup(PopupMenu& oMenu, std::int16_t iFlags) override;
    void ScreenCursor(std::int16_t iCursor) override;
    using WorkbenchPlatform::ScreenCursor;
    void YieldOnce() override;

  private:
    const GestureDoor& m_oDoor;
};

} // namespace GleanerSvc::Workbench
