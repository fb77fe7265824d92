// The records that a query of a lab has yielded.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "pagebind/Records.h"
#include "workbench/store/LabRecord.h"

namespace GleanerSvc::Workbench {

// A record is found by the ID that it has when it is first looked for, in O(log n); of several with one ID
// the first is found. An unknown key fails with invalid call, a place outside 1 to Count with subscript, each
// naming the collection. Records of a lab can be added, others fail with type mismatch.
class RecordCollection final : public IDataCollection {
  public:
    explicit RecordCollection(std::string sName) : m_sName(std::move(sName)) {}

    void Add(const Ref<IObject>& oRecord) override;
    Ref<IObject> Item(const Value& vKey) override;
    std::int32_t Count() override { return static_cast<std::int32_t>(m_aoRecords.size()); }

    void Put(Ref<LabRecord> oRecord) { m_aoRecords.push_back(std::move(oRecord)); }
    void Clear();

    std::string ToString() const; // "Samples: 101 102 103"

  private:
    using Place = std::pair<std::int32_t, std::int32_t>; // an ID and where its record is, from 0

    const Ref<LabRecord>& Find(const std::string& sKey);
    void IndexRecords();

    std::string m_sName;
    std::deque<Ref<LabRecord>> m_aoRecords;
    std::vector<Place> m_aoPlaces; // of the first so many records, in order
};

} // namespace GleanerSvc::Workbench
