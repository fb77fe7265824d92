#include "pagebind/controls/OptionButton.h"

namespace GleanerSvc {

void OptionButton::Value(bool bValue) {
    if (bValue) ClearGroup();
    if (Change(m_bValue, bValue, Property::Value) && bValue) Click.Raise();
}

void OptionButton::ClearGroup() const {
    for (Control* pSibling : Parent()->Children()) {
        auto* pOption = dynamic_cast<OptionButton*>(pSibling);
        if (pOption && pOption != this) pOption->Value(false);
    }
}

} // namespace GleanerSvc
