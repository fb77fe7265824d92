// A date picker. Its days run from 1 January 1601 to 31 December 9999.
#pragma once

#include "pagebind/Date.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class DatePicker final : public Control {
  public:
    DatePicker(Container& oContainer, std::string sName, Bounds oBounds)
        : Control(&oContainer, std::move(sName), oBounds) {}

    Date MinDate() const;
    Date MaxDate() const;

    // A value set from code raises nothing. One outside the limits fails and changes nothing.
    Date Value() const { return m_dtValue; }
    void Value(Date dtValue);

    Event<> Change;

    // The operator's door: picks a day, without a time. A day outside the limits cannot be picked.
    void Pick(Date dtDay);

  protected:
    std::string StateText() const override;

  private:
    bool IsWithinLimits(Date dtValue) const;

    Date m_dtValue;
};

} // namespace GleanerSvc
