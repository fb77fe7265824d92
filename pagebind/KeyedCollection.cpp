#include "pagebind/KeyedCollection.h"

#include <functional>
#include <utility>

#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

Failure KeyFailure(FailureNumber eNumber, const char* sTrouble, std::string_view sKey) {
    return Failure(eNumber, "Collection", std::string(sTrouble) + ": \"" + std::string(sKey) + "\".");
}

std::size_t Hash(const std::string& sFolded) { return std::hash<std::string>()(sFolded); }

} // namespace

void KeyedCollection::Add(const Value& vItem) { m_aoEntries.Append({vItem, std::nullopt}); }

void KeyedCollection::Add(const Value& vItem, std::string_view sKey) {
    std::string sFolded = FoldCase(sKey);
    const std::size_t nHash = Hash(sFolded);
    if (Find(sFolded, nHash) != SlotIndex::NoSlot) {
        throw KeyFailure(FailureNumber::DuplicateKey,
                         "This key is already associated with an element of this collection", sKey);
    }
    m_oIndex.MakeRoom(); // first, so that the item is never added without its key
    m_oIndex.Add(nHash, m_aoEntries.Append({vItem, std::move(sFolded)}));
}

Value KeyedCollection::Item(const Value& vKey) const { return m_aoEntries.AtSlot(SlotOf(vKey)).vItem; }

void KeyedCollection::Remove(const Value& vKey) {
    const std::size_t nSlot = SlotOf(vKey);
    if (const auto& oKey = m_aoEntries.AtSlot(nSlot).oKey) m_oIndex.Remove(Hash(*oKey), nSlot);
    bool bMoved = false;
    m_aoEntries.EraseSlot(nSlot, [&](const Entry&, std::size_t) { bMoved = true; });
    if (bMoved) IndexAnew();
}

// A sequence sweeps its gaps out rarely enough for that.
void KeyedCollection::IndexAnew() {
    m_oIndex.Clear();
    for (std::size_t nPlace = 0; nPlace < m_aoEntries.Size(); ++nPlace) {
        const std::size_t nSlot = m_aoEntries.SlotAt(nPlace);
        if (const auto& oKey = m_aoEntries.AtSlot(nSlot).oKey) m_oIndex.Add(Hash(*oKey), nSlot);
    }
}

bool KeyedCollection::Holds(std::string_view sKey) const {
    const std::string sFolded = FoldCase(sKey);
    return Find(sFolded, Hash(sFolded)) != SlotIndex::NoSlot;
}

std::size_t KeyedCollection::Find(const std::string& sFolded, std::size_t nHash) const {
    return m_oIndex.Find(nHash, [&](std::size_t nSlot) { return m_aoEntries.AtSlot(nSlot).oKey == sFolded; });
}

std::int32_t KeyedCollection::Count() const { return static_cast<std::int32_t>(m_aoEntries.Size()); }

std::size_t KeyedCollection::SlotOf(const Value& vKey) const {
    if (vKey.IsText()) {
        const std::string sKey = vKey.ToText();
        const std::string sFolded = FoldCase(sKey);
        const std::size_t nSlot = Find(sFolded, Hash(sFolded));
        if (nSlot != SlotIndex::NoSlot) return nSlot;
        throw KeyFailure(FailureNumber::InvalidCall, "The collection has no item under the key", sKey);
    }
    const std::int32_t lPlace = vKey.ToInt32();
    if (lPlace < 1 || lPlace > Count()) {
        throw Failure(FailureNumber::Subscript, "Collection",
                      "The collection has no item at place " + DecimalText(lPlace) + ".");
    }
    return m_aoEntries.SlotAt(static_cast<std::size_t>(lPlace) - 1);
}

std::string KeyedCollection::ToString() const {
    std::string sText;
    for (std::size_t nPlace = 0; nPlace < m_aoEntries.Size(); ++nPlace) {
        sText += (nPlace > 0 ? " " : "") + m_aoEntries[nPlace].oKey.value_or("*");
    }
    return sText;
}

} // namespace GleanerSvc
