#include "pagebind/controls/DropDownList.h"

#include <algorithm>
#include <limits>

#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

void DropDownList::Clear() {
    if (m_aoItems.empty()) return;
    m_aoItems.clear();
    m_iChoice = NoChoice;
    Notify(Property::Items);
}

void DropDownList::AddItem(std::string_view sText, std::int32_t lItemData) {
    if (m_aoItems.size() >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw Failure::Of(FailureNumber::Overflow);
    }
    m_aoItems.push_back({std::string(sText), lItemData});
    Notify(Property::Items);
}

void DropDownList::ListIndex(std::int32_t lPlace) {
    ItemAt(lPlace); // fails where there is no item
    Select(static_cast<std::int16_t>(lPlace));
}

std::string DropDownList::Text() const { return m_iChoice == NoChoice ? std::string() : List(m_iChoice); }

void DropDownList::Text(std::string_view sText) {
    const std::int16_t iPlace = FindText(sText);
    if (iPlace == NoChoice) {
        throw Failure(FailureNumber::TextNotInList, Name(),
                      Name() + " has no item \"" + std::string(sText) + "\".");
    }
    Select(iPlace);
}

void DropDownList::Choose(std::int32_t lPlace) {
    if (!CanOperate() || lPlace < 0 || lPlace >= ListCount()) return;
    Select(static_cast<std::int16_t>(lPlace));
}

void DropDownList::Select(std::int16_t iPlace) {
    if (Change(m_iChoice, iPlace, Property::Choice)) Click.Raise();
}

const DropDownList::Item& DropDownList::ItemAt(std::int32_t lPlace) const {
    if (lPlace < 0 || lPlace >= ListCount()) {
        throw Failure(FailureNumber::Subscript, Name(),
                      Name() + " has no item at place " + DecimalText(lPlace) + ".");
    }
    return m_aoItems[static_cast<std::size_t>(lPlace)];
}

std::int16_t DropDownList::FindText(std::string_view sText) const {
    if (m_iChoice != NoChoice && List(m_iChoice) == sText) return m_iChoice;
    const auto Find = [&](auto&& fnEqual) {
        const auto itItem = std::find_if(m_aoItems.begin(), m_aoItems.end(), fnEqual);
        return itItem == m_aoItems.end() ? NoChoice : static_cast<std::int16_t>(itItem - m_aoItems.begin());
    };
    const std::int16_t iExact = Find([&](const Item& oItem) { return oItem.sText == sText; });
    if (iExact != NoChoice) return iExact;
    return Find([&](const Item& oItem) { return EqualsIgnoringCase(oItem.sText, sText); });
}

std::string DropDownList::StateText() const {
    std::string sText;
    for (std::int16_t iPlace = 0; iPlace < ListCount(); ++iPlace) {
        sText += (iPlace > 0 ? ", " : "") + List(iPlace) + (iPlace == m_iChoice ? "*" : "");
    }
    return " items=[" + sText + "]";
}

} // namespace GleanerSvc
