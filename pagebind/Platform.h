// The platform service: what a page asks of the desktop around it. Abstract, one for an apartment.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "pagebind/Date.h"

namespace GleanerSvc {

class PopupMenu;

// Screen cursor codes.
namespace Cursor {
inline constexpr std::int16_t Default = 0;
inline constexpr std::int16_t Wait = 11;
} // namespace Cursor

// Message box styles: an icon and a set of buttons in one number.
namespace MessageStyle {
inline constexpr std::int32_t Plain = 0;          // no icon, OK
inline constexpr std::int32_t Stop = 16;          // stop icon, OK
inline constexpr std::int32_t QuestionYesNo = 36; // question icon, Yes and No
inline constexpr std::int32_t Information = 64;   // information icon, OK
} // namespace MessageStyle

// Message box answers.
namespace MessageAnswer {
inline constexpr std::int32_t Ok = 1;
inline constexpr std::int32_t Yes = 6;
inline constexpr std::int32_t No = 7;
} // namespace MessageAnswer

// A pop-up menu that also takes the right button.
inline constexpr std::int16_t MenuForRightButton = 2;

// Line break of message texts and of the details box.
inline constexpr std::string_view LineBreak = "\r\n";

class IPlatform {
  public:
    IPlatform() = default;
    IPlatform(const IPlatform&) = delete;
    IPlatform& operator=(const IPlatform&) = delete;
    virtual ~IPlatform() = default;

    // Blocks until the box is closed; returns a MessageAnswer. An empty title means none of its own.
    virtual std::int32_t ShowMessage(std::string_view sText, std::int32_t lStyle,
                                     std::string_view sTitle) = 0;

    // Returns when the menu has closed; the chosen entry's click has run by then.
    virtual void ShowPopup(PopupMenu& oMenu, std::int16_t iFlags) = 0;

    virtual std::int16_t ScreenCursor() = 0;
    virtual void ScreenCursor(std::int16_t iCursor) = 0;

    // The platform's default date conversions. A date at midnight is its day alone; any other date carries
    // its time, to the second. Reading accepts what writing gives, and a day's text with " hh:mm:ss" joined
    // on; text that is no date fails with type mismatch.
    virtual std::string DateToText(Date dtValue) = 0;
    virtual Date TextToDate(std::string_view sText) = 0;

    virtual Date Now() = 0;
    virtual Date Today() = 0; // midnight

    // Gives the message loop one turn.
    virtual void YieldOnce() = 0;

    virtual std::string JoinPath(std::string_view sFolder, std::string_view sName) = 0;

    // Of the running application: its title, and the number that the second debug gate is asked with.
    virtual std::string ApplicationTitle() = 0;
    virtual std::int32_t ApplicationValue() = 0;

    // Stops at a debug break and returns when execution is continued.
    virtual void DebugStop() = 0;
};

} // namespace GleanerSvc
