#include "models/DataCollectionModel.h"

#include "models/IdText.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

void DataCollectionModel::Add(const Ref<IObject>& oRecord) {
    Call("Add", oRecord);
    auto oStored = std::dynamic_pointer_cast<StoreRecord>(oRecord);
    if (!oStored) {
        throw Failure(FailureNumber::TypeMismatch, ObjectName(),
                      ObjectName() + " takes records of the data store only.");
    }
    m_aoRecords.push_back(std::move(oStored));
}

Ref<IObject> DataCollectionModel::Item(const Value& vKey) {
    Call("Item", vKey);
    if (vKey.IsText()) return m_aoRecords[PlaceOf(vKey.ToText())];
    const std::int32_t lPlace = vKey.ToInt32();
    if (lPlace < 1 || static_cast<std::size_t>(lPlace) > m_aoRecords.size()) {
        throw Failure(FailureNumber::Subscript, ObjectName(),
                      ObjectName() + " has no record at place " + DecimalText(lPlace) + ".");
    }
    return m_aoRecords[static_cast<std::size_t>(lPlace) - 1];
}

std::int32_t DataCollectionModel::Count() {
    Call("Count");
    return static_cast<std::int32_t>(m_aoRecords.size());
}

std::size_t DataCollectionModel::PlaceOf(const std::string& sKey) {
    if (m_nIndexed == 0) m_oPlaces.reserve(m_aoRecords.size());
    for (; m_nIndexed < m_aoRecords.size(); ++m_nIndexed) {
        m_oPlaces.try_emplace(m_aoRecords[m_nIndexed]->RecordID(), m_nIndexed);
    }
    const auto lID = ReadId(sKey);
    const auto itPlace = lID ? m_oPlaces.find(*lID) : m_oPlaces.end();
    if (itPlace == m_oPlaces.end()) {
        throw Failure(FailureNumber::InvalidCall, ObjectName(),
                      ObjectName() + " has no record under the key \"" + sKey + "\".");
    }
    return itPlace->second;
}

std::string DataCollectionModel::ToString() const {
    std::string sText = ObjectName() + ":";
    for (const auto& oRecord : m_aoRecords) sText += " " + DecimalText(oRecord->RecordID());
    return sText;
}

} // namespace GleanerSvc::Models
