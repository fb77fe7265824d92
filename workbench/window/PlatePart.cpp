#include "workbench/window/PlatePart.h"

#include <QStringList>

#include <algorithm>
#include <array>

#include "pagebind/Well.h"
#include "pagebind/controls/Image.h"
#include "platepages/WellPictures.h"
#include "workbench/window/ShownText.h"

namespace GleanerSvc::Workbench {

namespace {

struct WellLook {
    std::string_view sPicture;
    std::optional<bool> bPicked;
};

constexpr std::array WellLooks = {WellLook{WellPicture::Empty, std::nullopt},
                                  WellLook{WellPicture::Raw, false}, WellLook{WellPicture::RawChecked, true},
                                  WellLook{WellPicture::Warning, false},
                                  WellLook{WellPicture::WarningChecked, true}};

// Nothing for a picture box that is no well.
const WellLook* LookOf(const PictureBox& oBox) {
    if (oBox.Index() < 1 || oBox.Index() > PlateWells) return nullptr;
    const auto* const itLook = std::ranges::find(WellLooks, oBox.Picture().sName, &WellLook::sPicture);
    return itLook == WellLooks.end() ? nullptr : itLook;
}

// The nearest label on the line of an entry's picture.
std::string WordsBeside(const Image& oEntry) {
    const Label* pNearest = nullptr;
    for (const Control* pOther : oEntry.Parent()->Children()) {
        const auto* pLabel = dynamic_cast<const Label*>(pOther);
        if (!pLabel || pLabel->Place().lLeft < oEntry.Place().lLeft) continue;
        const std::int32_t lBelow = pLabel->Place().lTop - oEntry.Place().lTop;
        if (lBelow < 0 || lBelow > oEntry.Place().lHeight) continue;
        if (!pNearest || pLabel->Place().lLeft < pNearest->Place().lLeft) pNearest = pLabel;
    }
    return pNearest ? pNearest->Caption() : "";
}

// What the legend among the children of a container says to a picture.
std::string LegendOf(const Container& oContainer, std::string_view sPicture) {
    for (const Control* pChild : oContainer.Children()) {
        const auto* pEntry = dynamic_cast<const Image*>(pChild);
        if (pEntry && pEntry->Picture().sName == sPicture) return WordsBeside(*pEntry);
        const auto* pInner = dynamic_cast<const Container*>(pChild);
        std::string sWords = pInner ? LegendOf(*pInner, sPicture) : "";
        if (!sWords.empty()) return sWords;
    }
    return "";
}

} // namespace

QString WellName(const PictureBox& oBox) {
    const WellLook* pLook = LookOf(oBox);
    if (!pLook) return {};
    QStringList asParts{ShownText(WellText(WellAt(oBox.Index())))};
    if (pLook->bPicked) asParts += ShownText(oBox.ToolTip());
    asParts += ShownText(LegendOf(*oBox.Parent(), pLook->sPicture));
    asParts.removeAll(QString());
    return asParts.join(", ");
}

std::optional<bool> IsWellPicked(const PictureBox& oBox) {
    const WellLook* pLook = LookOf(oBox);
    return pLook ? pLook->bPicked : std::nullopt;
}

QString HeadingName(const Label& oZone) {
    if (oZone.Name() == "lblLetter") return QString("Row %1").arg(QChar(RowLetter(oZone.Index())));
    if (oZone.Name() == "lblNumber") return QString("Column %1").arg(oZone.Index() + 1);
    return {};
}

} // namespace GleanerSvc::Workbench
