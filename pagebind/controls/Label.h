// A label: a caption that the page writes. A captionless one serves as a hot zone.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class Label final : public Control {
  public:
    Label(Container& oContainer, std::string sName, Bounds oBounds, std::string sCaption = "")
        : Control(&oContainer, std::move(sName), oBounds), m_sCaption(std::move(sCaption)) {}
    Label(Container& oContainer, std::string sName, std::int16_t iIndex, Bounds oBounds)
        : Control(&oContainer, std::move(sName), oBounds) {
        Index(iIndex);
    }

    const std::string& Caption() const { return m_sCaption; }
    void Caption(std::string_view sCaption) { Change(m_sCaption, sCaption, Property::Caption); }

    Event<> Click;

    // The operator's door.
    void ClickIt() const {
        if (CanOperate()) Click.Raise();
    }

  protected:
    std::string StateText() const override { return " caption=\"" + m_sCaption + '"'; }

  private:
    std::string m_sCaption;
};

} // namespace GleanerSvc
