// A progress bar from 0 to its maximum.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class ProgressBar final : public Control {
  public:
    ProgressBar(Container& oContainer, std::string sName, Bounds oBounds)
        : Control(&oContainer, std::move(sName), oBounds) {}

    // A negative maximum fails. The value never passes the maximum: a lower maximum takes the value with it.
    float Max() const { return m_fMax; }
    void Max(float fMax);

    // Outside 0 to Max fails and changes nothing.
    float Value() const { return m_fValue; }
    void Value(float fValue);

  protected:
    std::string StateText() const override;

  private:
    float m_fMax = 100;
    float m_fValue = 0;
};

} // namespace GleanerSvc
