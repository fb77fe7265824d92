// The platform service of the workbench, but for what needs a terminal or a window: message boxes, pop-up
// menus and the turn of the message loop.
#pragma once

#include <string>
#include <string_view>

#include "pagebind/Platform.h"

namespace GleanerSvc::Workbench {

inline constexpr std::string_view WorkbenchTitle = "Gleaner Workbench";

// Dates are local and read "2026-11-22" or "2026-11-22 14:05:09"; other texts fail with type mismatch.
class WorkbenchPlatform : public IPlatform {
  public:
    std::int16_t ScreenCursor() override { return m_iCursor; }
    void ScreenCursor(std::int16_t iCursor) override { m_iCursor = iCursor; }
    std::string DateToText(Date dtValue) override;
    Date TextToDate(std::string_view sText) override;
    Date Now() override;
    Date Today() override { return Now().Day(); }
    std::string JoinPath(std::string_view sFolder, std::string_view sName) override;
    std::string ApplicationTitle() override { return std::string(WorkbenchTitle); }
    std::int32_t ApplicationValue() override { return 0; }
    void DebugStop() override {} // both gates before it are closed here

  private:
    std::int16_t m_iCursor = Cursor::Default;
};

} // namespace GleanerSvc::Workbench
