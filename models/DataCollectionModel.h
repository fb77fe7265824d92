// The collection that the in-memory data store answers a query with: the store's own record objects, in
// stored order.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "models/StoreRecord.h"
#include "pagebind/Records.h"

namespace GleanerSvc::Models {

// A record is found by the ID that it has when it is first looked for; of several with one ID the first is
// found. An unknown key fails with invalid call, a place outside 1 to Count with subscript, each naming the
// collection. Only records of a store can be added.
class DataCollectionModel final : public IDataCollection, private Journaled {
  public:
    DataCollectionModel(const Ref<Journal>& oJournal, std::string_view sName)
        : Journaled(oJournal, std::string(sName)) {}
    template<class T>
    DataCollectionModel(const Ref<Journal>& oJournal, std::string_view sName,
                        const std::vector<Ref<T>>& aoRecords)
        : Journaled(oJournal, std::string(sName)), m_aoRecords(aoRecords.begin(), aoRecords.end()) {}

    void Add(const Ref<IObject>& oRecord) override;
    Ref<IObject> Item(const Value& vKey) override;
    std::int32_t Count() override;

    // Adding and reading without an entry in the journal.
    void Put(Ref<StoreRecord> oRecord) { m_aoRecords.push_back(std::move(oRecord)); }
    const std::vector<Ref<StoreRecord>>& Records() const { return m_aoRecords; }
    std::string ToString() const; // "Samples: 101 102 103"

  private:
    std::size_t PlaceOf(const std::string& sKey);

    std::vector<Ref<StoreRecord>> m_aoRecords;
    std::unordered_map<std::int32_t, std::size_t> m_oPlaces; // by ID, of the first m_nIndexed records
    std::size_t m_nIndexed = 0;
};

} // namespace GleanerSvc::Models
