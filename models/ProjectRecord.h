// A project of the in-memory data store, with what it owns in stored order.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "models/PlateRecord.h"
#include "models/StoreRecord.h"
#include "pagebind/Records.h"

namespace GleanerSvc::Models {

class ProjectRecord final : public IProject, public RecordOf<ProjectRecord> {
  public:
    static constexpr std::string_view ObjectName = "Project";

    ProjectRecord(Ref<const StoreSettings> oSettings, std::int32_t lProjectID, std::string sName)
        : RecordOf(std::move(oSettings), lProjectID), m_sName(std::move(sName)) {}

    std::int32_t ProjectID() override;
    std::string Name() override;
    Ref<IDataCollection> Results() override; // a new collection at each call
    Ref<IDataCollection> Samples() override;

    // The store's door.
    const std::string& PlainName() const { return m_sName; }
    void Put(const Ref<PlateRecord>& oPlate) { m_aoPlates.push_back(oPlate); }
    void Put(const Ref<SampleRecord>& oSample) { m_aoSamples.push_back(oSample); }
    void Put(const Ref<ResultRecord>& oResult) { m_aoResults.push_back(oResult); }
    const std::vector<Ref<PlateRecord>>& OwnPlates() const { return m_aoPlates; }
    const std::vector<Ref<SampleRecord>>& OwnSamples() const { return m_aoSamples; }
    const std::vector<Ref<ResultRecord>>& OwnResults() const { return m_aoResults; }

    std::string ToString() const override; // "1 Alpha plates=1 samples=3 results=0"

  private:
    std::string m_sName;
    std::vector<Ref<PlateRecord>> m_aoPlates;
    std::vector<Ref<SampleRecord>> m_aoSamples;
    std::vector<Ref<ResultRecord>> m_aoResults;
};

} // namespace GleanerSvc::Models
