#include "pagebind/controls/OptionButton.h"

namespace GleanerSvc {

void OptionButton::Value(bool bValue) {
    if (bValue) ClearGroup();
    if (Change(m_bValue, bValue, Property::Value) && bValue) Click.Raise();
}

void OptionButton::ClearGroup() const {
    const auto aoSiblings = Parent()->Children(); // a view told of a change may add or remove controls
    for (Control* pSibling : aoSiblings) {
        auto* pOption = dynamic_cast<OptionButton*>(pSibling);
        if (pOption && pOption != this) pOption->Value(false);
    }
}

} // namespace GleanerSvc
