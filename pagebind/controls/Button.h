// A push button.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class Button final : public Control {
  public:
    Button(Container& oContainer, std::string sName, Bounds oBounds, std::string sCaption,
           std::string_view sToolTip = "")
        : Control(&oContainer, std::move(sName), oBounds), m_sCaption(std::move(sCaption)) {
        ToolTip(sToolTip);
    }

    const std::string& Caption() const { return m_sCaption; } // "&" marks the letter that presses it
    void Caption(std::string_view sCaption) { Change(m_sCaption, sCaption, Property::Caption); }

    Event<> Click;

    // The operator's door.
    void Press() const {
        if (CanOperate()) Click.Raise();
    }

  protected:
    std::string StateText() const override { return " caption=\"" + m_sCaption + '"'; }

  private:
    std::string m_sCaption;
};

} // namespace GleanerSvc
