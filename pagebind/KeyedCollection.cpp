#include "pagebind/KeyedCollection.h"

#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

Failure KeyFailure(FailureNumber eNumber, const char* sTrouble, std::string_view sKey) {
    return Failure(eNumber, "Collection", std::string(sTrouble) + ": \"" + std::string(sKey) + "\".");
}

} // namespace

void KeyedCollection::Add(const Value& vItem) { m_aoEntries.Append({vItem, nullptr}); }

void KeyedCollection::Add(const Value& vItem, std::string_view sKey) {
    if (Holds(sKey)) {
        throw KeyFailure(FailureNumber::DuplicateKey,
                         "This key is already associated with an element of this collection", sKey);
    }
    const std::size_t nSlot = m_aoEntries.Append({vItem, nullptr}); // first, so that no key points nowhere
    m_aoEntries.AtSlot(nSlot).pKey = &*m_oKeys.emplace(FoldCase(sKey), nSlot).first;
}

Value KeyedCollection::Item(const Value& vKey) const { return m_aoEntries.AtSlot(SlotOf(vKey)).vItem; }

void KeyedCollection::Remove(const Value& vKey) {
    const std::size_t nSlot = SlotOf(vKey);
    if (const auto* pKey = m_aoEntries.AtSlot(nSlot).pKey) m_oKeys.erase(m_oKeys.find(pKey->first));
    m_aoEntries.EraseSlot(nSlot, [](Entry& oEntry, std::size_t nNewSlot) {
        if (oEntry.pKey) oEntry.pKey->second = nNewSlot;
    });
}

bool KeyedCollection::Holds(std::string_view sKey) const { return m_oKeys.contains(FoldCase(sKey)); }

std::int32_t KeyedCollection::Count() const { return static_cast<std::int32_t>(m_aoEntries.Size()); }

std::size_t KeyedCollection::SlotOf(const Value& vKey) const {
    if (vKey.IsText()) {
        const auto itKey = m_oKeys.find(FoldCase(vKey.ToText()));
        if (itKey == m_oKeys.end()) {
            throw KeyFailure(FailureNumber::InvalidCall, "The collection has no item under the key",
                             vKey.ToText());
        }
        return itKey->second;
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
        const auto* pKey = m_aoEntries[nPlace].pKey;
        sText += (nPlace > 0 ? " " : "") + (pKey ? pKey->first : std::string("*"));
    }
    return sText;
}

} // namespace GleanerSvc
