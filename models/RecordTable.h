// The records of one kind, in stored order and by ID.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "pagebind/Object.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

template<class T>
class RecordTable {
  public:
    // Fails with duplicate key, naming kind and ID.
    void RequireNew(std::int32_t lID) const {
        if (m_oPlaces.contains(lID)) throw Trouble(FailureNumber::DuplicateKey, " already", lID);
    }

    // As RequireNew.
    void Add(const Ref<T>& oRecord) {
        RequireNew(oRecord->RecordID());
        m_oPlaces.emplace(oRecord->RecordID(), m_aoRecords.size());
        m_aoRecords.push_back(oRecord);
    }

    // Nothing when the ID is not there.
    Ref<T> Find(std::int32_t lID) const {
        const auto itPlace = m_oPlaces.find(lID);
        return itPlace == m_oPlaces.end() ? nullptr : m_aoRecords[itPlace->second];
    }

    // Fails with invalid call, naming kind and ID.
    const Ref<T>& At(std::int32_t lID) const {
        const auto itPlace = m_oPlaces.find(lID);
        if (itPlace == m_oPlaces.end()) throw Trouble(FailureNumber::InvalidCall, " not", lID);
        return m_aoRecords[itPlace->second];
    }

    const std::vector<Ref<T>>& All() const { return m_aoRecords; }

  private:
    static Failure Trouble(FailureNumber eNumber, const char* sHow, std::int32_t lID) {
        const std::string sKind(T::ObjectName);
        return Failure(eNumber, "DataStore",
                       sKind + " " + DecimalText(lID) + " is" + sHow + " in the data store.");
    }

    std::vector<Ref<T>> m_aoRecords;
    std::unordered_map<std::int32_t, std::size_t> m_oPlaces;
};

} // namespace GleanerSvc::Models
