#include "pagebind/controls/ProgressBar.h"

#include <cmath>

#include "pagebind/Failure.h"

namespace GleanerSvc {

namespace {

std::string WholeText(float fNumber) { return std::to_string(std::llround(fNumber)); }

} // namespace

void ProgressBar::Max(float fMax) {
    if (!(fMax >= 0))
        throw Failure(FailureNumber::InvalidPropertyValue, Name(), Name() + " cannot end below 0.");
    if (m_fValue > fMax) Value(fMax);
    Change(m_fMax, fMax, Property::Limits);
}

void ProgressBar::Value(float fValue) {
    if (!(fValue >= 0 && fValue <= m_fMax)) {
        throw Failure(FailureNumber::InvalidPropertyValue, Name(),
                      Name() + " runs from 0 to " + WholeText(m_fMax) + ": " + WholeText(fValue) +
                          " is outside.");
    }
    Change(m_fValue, fValue, Property::Value);
}

std::string ProgressBar::StateText() const { return " " + WholeText(m_fValue) + "/" + WholeText(m_fMax); }

} // namespace GleanerSvc
