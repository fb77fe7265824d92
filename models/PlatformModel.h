// The platform service without a desktop: message boxes and pop-up menus answer from a script, the clock
// stands until it is moved, and a turn of the message loop runs the gestures that a test has queued for it.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "models/Journal.h"
#include "pagebind/Platform.h"

namespace GleanerSvc::Models {

// A message box that was shown.
struct ShownMessage {
    std::string sText;
    std::int32_t lStyle = 0;
    std::string sTitle;

    friend bool operator==(const ShownMessage&, const ShownMessage&) = default;
};

// A pop-up menu that was opened: its name, its entries as PopupMenu::Shown gives them at that moment.
struct ShownPopup {
    std::string sMenu;
    std::string sShown;
    std::int16_t iFlags = 0;

    friend bool operator==(const ShownPopup&, const ShownPopup&) = default;
};

enum class YieldMode { OneGesture, AllGestures };

class PlatformModel final : public IPlatform, private Journaled {
  public:
    using Gesture = std::function<void()>;

    explicit PlatformModel(Ref<Journal> oJournal);

    // A Yes/No box takes the next scripted answer, and fails with invalid call, naming its text, when that is
    // neither Yes nor No or when none is left. A box with OK alone takes the next answer only if it is OK,
    // and answers OK anyway.
    std::int32_t ShowMessage(std::string_view sText, std::int32_t lStyle, std::string_view sTitle) override;
    // Takes the next scripted choice; none left: the menu closes without one. A choice that is no entry of
    // the menu fails with invalid call, naming both; one that is hidden or disabled does nothing.
    void ShowPopup(PopupMenu& oMenu, std::int16_t iFlags) override;
    std::int16_t ScreenCursor() override;
    void ScreenCursor(std::int16_t iCursor) override;
    std::string DateToText(Date dtValue) override;    // "2026-11-22" or "2026-11-22 14:05:09"
    Date TextToDate(std::string_view sText) override; // fails with type mismatch, naming the text
    Date Now() override;                              // the clock, which stands
    Date Today() override;
    // Runs the first of the queued gestures, or all that are queued by then. A failure of a gesture goes to
    // the caller; the gestures behind it stay queued.
    void YieldOnce() override;
    std::string JoinPath(std::string_view sFolder, std::string_view sName) override; // one "/" between them
    std::string ApplicationTitle() override;
    std::int32_t ApplicationValue() override;
    void DebugStop() override;

    // The script. fnMeanwhile runs while the box or the menu is open, before it is answered.
    void Answer(std::int32_t lAnswer, Gesture fnMeanwhile = {});
    // An entry by its name or caption, without regard to case; "" closes the menu without a choice.
    void Choose(std::string_view sEntry, Gesture fnMeanwhile = {});
    void OnYield(Gesture fnGesture) { m_afnGestures.push_back(std::move(fnGesture)); }
    void Yielding(YieldMode eMode) { m_eYield = eMode; } // OneGesture at first

    void Clock(Date dtNow) { m_dtNow = dtNow; } // 2026-11-22 14:05:09 at first
    void Advance(std::int32_t lSeconds);
    void ApplicationTitle(std::string_view sTitle) { m_sTitle = sTitle; } // "Workstation" at first
    void ApplicationValue(std::int32_t lValue) { m_lValue = lValue; }     // 0 at first

    // What happened so far, in order.
    const std::vector<ShownMessage>& Messages() const { return m_aoMessages; }
    const std::vector<ShownPopup>& Popups() const { return m_aoPopups; }
    const std::vector<std::int16_t>& CursorHistory() const { return m_aiCursors; } // each cursor that was set
    std::int32_t YieldCount() const { return m_lYields; }
    std::int32_t DebugStopCount() const { return m_lDebugStops; }

    // "cursor=0 messages=1 popups=0 yields=3 stops=0 scripted=0 now=2026-11-22 14:05:09": what the script and
    // the yield queue still hold is counted as scripted.
    std::string ToString() const;

  private:
    struct AnswerStep {
        std::int32_t lAnswer;
        Gesture fnMeanwhile;
    };
    struct ChoiceStep {
        std::string sEntry;
        Gesture fnMeanwhile;
    };

    std::int32_t TakeAnswer();

    std::vector<ShownMessage> m_aoMessages;
    std::vector<ShownPopup> m_aoPopups;
    std::deque<AnswerStep> m_aoAnswers;
    std::deque<ChoiceStep> m_aoChoices;
    std::deque<Gesture> m_afnGestures;
    YieldMode m_eYield = YieldMode::OneGesture;
    std::vector<std::int16_t> m_aiCursors;
    std::int16_t m_iCursor = Cursor::Default;
    Date m_dtNow;
    std::int32_t m_lYields = 0;
    std::int32_t m_lDebugStops = 0;
    std::string m_sTitle = "Workstation";
    std::int32_t m_lValue = 0;
};

} // namespace GleanerSvc::Models
