// A drop-down list that is not editable: items with a number each, one of them chosen.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class DropDownList final : public Control {
  public:
    static constexpr std::int16_t NoChoice = -1;

    DropDownList(Container& oContainer, std::string sName, Bounds oBounds)
        : Control(&oContainer, std::move(sName), oBounds) {}

    // The page's door. Places count from 0 and are 16-bit: one item too many fails with overflow, a place
    // outside the list with subscript.
    void Clear(); // no items, no choice; raises nothing
    void AddItem(std::string_view sText, std::int32_t lItemData);
    std::int16_t ListCount() const { return static_cast<std::int16_t>(m_aoItems.size()); }
    const std::string& List(std::int32_t lPlace) const { return ItemAt(lPlace).sText; }
    std::int32_t ItemData(std::int32_t lPlace) const { return ItemAt(lPlace).lItemData; }
    std::int16_t ListIndex() const { return m_iChoice; } // NoChoice when nothing is chosen
    // Chooses the item at that place, and raises Click when the choice changes and not otherwise.
    void ListIndex(std::int32_t lPlace);

    // The text of the chosen item, "" for none. Setting it to the text of an item chooses that item, and
    // raises Click when the choice changes and not otherwise. The chosen item is asked first, then an item
    // spelled exactly so, then one that differs in case. A text that is no item fails and changes nothing.
    std::string Text() const;
    void Text(std::string_view sText);

    Event<> Click;

    // The operator's door: picks an item.
    void Choose(std::int32_t lPlace);

  protected:
    std::string StateText() const override;

  private:
    struct Item {
        std::string sText;
        std::int32_t lItemData;
    };
    const Item& ItemAt(std::int32_t lPlace) const;
    std::int16_t FindText(std::string_view sText) const;
    void Select(std::int16_t iPlace);

    std::vector<Item> m_aoItems;
    std::int16_t m_iChoice = NoChoice;
};

} // namespace GleanerSvc
