#include "pagebind/controls/DatePicker.h"

#include "pagebind/Failure.h"

namespace GleanerSvc {

namespace {

std::string DayText(Date dtValue) {
    const CivilTime oDay = dtValue.Civil();
    const auto TwoDigits = [](std::int32_t lNumber) {
        return (lNumber < 10 ? "0" : "") + std::to_string(lNumber);
    };
    return std::to_string(oDay.lYear) + "-" + TwoDigits(oDay.lMonth) + "-" + TwoDigits(oDay.lDay);
}

} // namespace

Date DatePicker::MinDate() const { return Date::Of({1601, 1, 1}); }

Date DatePicker::MaxDate() const { return Date::Of({9999, 12, 31}); }

void DatePicker::Value(Date dtValue) {
    if (!IsWithinLimits(dtValue)) {
        throw Failure(FailureNumber::InvalidPropertyValue, Name(),
                      Name() + " cannot take the date " + DayText(dtValue) + ".");
    }
    Control::Change(m_dtValue, dtValue, Property::Value);
}

void DatePicker::Pick(Date dtDay) {
    if (!CanOperate() || !IsWithinLimits(dtDay)) return;
    if (Control::Change(m_dtValue, dtDay.Day(), Property::Value)) Change.Raise();
}

bool DatePicker::IsWithinLimits(Date dtValue) const {
    return dtValue >= MinDate() && dtValue.Day() <= MaxDate();
}

std::string DatePicker::StateText() const { return " value=" + DayText(m_dtValue); }

} // namespace GleanerSvc
