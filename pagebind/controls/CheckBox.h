// A check box.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

// Values of a check box.
namespace CheckState {
inline constexpr std::int16_t Unchecked = 0;
inline constexpr std::int16_t Checked = 1;
inline constexpr std::int16_t Grayed = 2;
} // namespace CheckState

class CheckBox final : public Control {
  public:
    CheckBox(Container& oContainer, std::string sName, Bounds oBounds, std::string sCaption)
        : Control(&oContainer, std::move(sName), oBounds), m_sCaption(std::move(sCaption)) {}

    const std::string& Caption() const { return m_sCaption; }

    // A new value raises Click, from code too. A value that is no CheckState fails and changes nothing.
    std::int16_t Value() const { return m_iValue; }
    void Value(std::int16_t iValue);

    Event<> Click;

    // The operator's door.
    void Press() {
        if (CanOperate())
            Value(m_iValue == CheckState::Unchecked ? CheckState::Checked : CheckState::Unchecked);
    }

  protected:
    std::string StateText() const override {
        return " caption=\"" + m_sCaption + "\" value=" + std::to_string(m_iValue);
    }

  private:
    std::string m_sCaption;
    std::int16_t m_iValue = CheckState::Unchecked;
};

} // namespace GleanerSvc
