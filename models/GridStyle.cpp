#include "models/GridStyle.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

void CellStyle::Lay(const CellStyle& oOver) {
    const auto Over = [](auto& lOwn, const auto& lOther) {
        if (lOther) lOwn = lOther;
    };
    Over(lControl, oOver.lControl);
    Over(lInterior, oOver.lInterior);
    Over(lTextColor, oOver.lTextColor);
    Over(lBitmap, oOver.lBitmap);
}

std::string CellStyle::ToString() const {
    std::string sText;
    const auto Append = [&](std::string_view sName, const std::optional<std::int32_t>& lNumber) {
        if (!lNumber) return;
        if (!sText.empty()) sText += ' ';
        sText.append(sName).append("=").append(DecimalText(*lNumber));
    };
    Append("control", lControl);
    Append("interior", lInterior);
    Append("text", lTextColor);
    Append("bitmap", lBitmap);
    return sText;
}

} // namespace GleanerSvc::Models
