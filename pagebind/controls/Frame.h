// A frame: a captioned box around other controls.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class Frame final : public Container {
  public:
    Frame(Container& oContainer, std::string sName, Bounds oBounds, std::string sCaption = "")
        : Container(&oContainer, std::move(sName), oBounds), m_sCaption(std::move(sCaption)) {}

    const std::string& Caption() const { return m_sCaption; }
    void Caption(std::string_view sCaption) { Change(m_sCaption, sCaption, Property::Caption); }

  protected:
    std::string StateText() const override { return " caption=\"" + m_sCaption + '"'; }

  private:
    std::string m_sCaption;
};

} // namespace GleanerSvc
