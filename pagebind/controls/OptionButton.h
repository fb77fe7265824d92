// An option button. The option buttons of one container are a group: selecting one clears the others.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class OptionButton final : public Control {
  public:
    OptionButton(Container& oContainer, std::string sName, Bounds oBounds, std::string sCaption)
        : Control(&oContainer, std::move(sName), oBounds), m_sCaption(std::move(sCaption)) {}
    OptionButton(Container& oContainer, std::string sName, std::int16_t iIndex, Bounds oBounds,
                 std::string sCaption)
        : OptionButton(oContainer, std::move(sName), oBounds, std::move(sCaption)) {
        Index(iIndex);
    }

    const std::string& Caption() const { return m_sCaption; }

    // Selecting a button that was clear raises its Click, from code too. Clearing one raises nothing.
    bool Value() const { return m_bValue; }
    void Value(bool bValue);

    Event<> Click;

    // The operator's door.
    void Press() {
        if (CanOperate()) Value(true);
    }

  protected:
    std::string StateText() const override {
        return " caption=\"" + m_sCaption + '"' + (m_bValue ? " selected" : "");
    }

  private:
    void ClearGroup() const;

    std::string m_sCaption;
    bool m_bValue = false;
};

} // namespace GleanerSvc
