#include "pagebind/controls/PopupMenu.h"

namespace GleanerSvc {

std::string PopupMenu::Shown() const {
    std::string sText;
    for (const Control* pChild : Children()) {
        const auto* pEntry = dynamic_cast<const MenuEntry*>(pChild);
        if (!pEntry || !pEntry->Visible()) continue;
        sText += (sText.empty() ? "" : ", ") +
                 (pEntry->Enabled() ? pEntry->Caption() : "(" + pEntry->Caption() + ")");
    }
    return sText;
}

} // namespace GleanerSvc
