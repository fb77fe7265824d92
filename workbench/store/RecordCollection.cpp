#include "workbench/store/RecordCollection.h"

#include <algorithm>
#include <limits>

#include "models/IdText.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Workbench {

void RecordCollection::Add(const Ref<IObject>& oRecord) {
    auto oOwn = std::dynamic_pointer_cast<LabRecord>(oRecord);
    if (!oOwn) throw Failure(FailureNumber::TypeMismatch, m_sName, m_sName + " takes records of a lab only.");
    Put(std::move(oOwn));
}

Ref<IObject> RecordCollection::Item(const Value& vKey) {
    if (vKey.IsText()) return Find(vKey.ToText());
    const std::int32_t lPlace = vKey.ToInt32();
    if (lPlace < 1 || lPlace > Count()) {
        throw Failure(FailureNumber::Subscript, m_sName,
                      m_sName + " has no record at place " + DecimalText(lPlace) + ".");
    }
    return m_aoRecords[static_cast<std::size_t>(lPlace) - 1];
}

void RecordCollection::Clear() {
    m_aoRecords.clear();
    m_aoPlaces.clear();
}

// Queries yield records by ID: mostly there is nothing to sort.
void RecordCollection::IndexRecords() {
    if (m_aoPlaces.size() == m_aoRecords.size()) return;
    m_aoPlaces.reserve(m_aoRecords.size());
    while (m_aoPlaces.size() < m_aoRecords.size()) {
        const auto nPlace = m_aoPlaces.size();
        m_aoPlaces.emplace_back(m_aoRecords[nPlace]->RecordID(), static_cast<std::int32_t>(nPlace));
    }
    if (!std::is_sorted(m_aoPlaces.begin(), m_aoPlaces.end()))
        std::sort(m_aoPlaces.begin(), m_aoPlaces.end());
}

const Ref<LabRecord>& RecordCollection::Find(const std::string& sKey) {
    IndexRecords();
    if (const auto lID = Models::ReadId(sKey)) {
        const auto itPlace = std::lower_bound(m_aoPlaces.begin(), m_aoPlaces.end(), Place(*lID, 0));
        if (itPlace != m_aoPlaces.end() && itPlace->first == *lID)
            return m_aoRecords[static_cast<std::size_t>(itPlace->second)];
    }
    throw Failure(FailureNumber::InvalidCall, m_sName,
                  m_sName + " has no record under the key \"" + sKey + "\".");
}

std::string RecordCollection::ToString() const {
    std::string sText = m_sName + ":";
    for (const auto& oRecord : m_aoRecords) sText += " " + DecimalText(oRecord->RecordID());
    return sText;
}

} // namespace GleanerSvc::Workbench
