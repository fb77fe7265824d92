#include "pagebind/controls/CheckBox.h"

#include "pagebind/Failure.h"

namespace GleanerSvc {

void CheckBox::Value(std::int16_t iValue) {
    if (iValue < CheckState::Unchecked || iValue > CheckState::Grayed) {
        throw Failure(FailureNumber::InvalidPropertyValue, Name(),
                      Name() + " cannot take the value " + std::to_string(iValue) + ".");
    }
    if (Change(m_iValue, iValue, Property::Value)) Click.Raise();
}

} // namespace GleanerSvc
