// A plate of the in-memory data store: what its 96 wells hold and what state they are in.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "models/FragmentRecords.h"
#include "models/StoreRecord.h"
#include "pagebind/Records.h"
#include "pagebind/Well.h"

namespace GleanerSvc::Models {

// What a well gives in place of what it holds.
template<class T>
struct WellOverride {
    std::int32_t lState = 0;
    Ref<T> oRecord;
};

// A well holds one sample at most and any number of results, of which ResultAt gives the latest: the one
// last modified, and of those the one with the highest ID. A column or row that no plate has fails with
// subscript.
class PlateRecord final : public IPlate, public RecordOf<PlateRecord> {
  public:
    static constexpr std::string_view ObjectName = "Plate";

    PlateRecord(Ref<const StoreSettings> oSettings, std::int32_t lPlateID, std::int32_t lProjectID,
                std::string sName)
        : RecordOf(std::move(oSettings), lPlateID), m_lProjectID(lProjectID), m_sName(std::move(sName)) {}

    std::int32_t PlateID() override;
    std::string Name() override;
    Ref<IDataCollection> Results() override;
    Ref<IDataCollection> Samples() override;
    Ref<IResult> ResultAt(std::int32_t iCol, std::int32_t iRow) override;
    Ref<ISample> SampleAt(std::int32_t iCol, std::int32_t iRow) override;
    std::int32_t ResultState(std::int32_t iCol, std::int32_t iRow) override;
    std::int32_t SampleState(std::int32_t iCol, std::int32_t iRow) override;

    std::int32_t OwnerID() const { return m_lProjectID; }
    const std::string& PlainName() const { return m_sName; }

    // The store's door. A second sample for one well fails with invalid call, naming well and sample.
    void Put(const Ref<SampleRecord>& oSample);
    void Put(const Ref<ResultRecord>& oResult);

    // From now on the well gives this state and record, whatever it holds.
    void OverrideResult(const Well& oWell, std::int32_t lState, const Ref<IResult>& oResult = nullptr);
    void OverrideSample(const Well& oWell, std::int32_t lState, const Ref<ISample>& oSample = nullptr);

    std::string ToString() const override; // "11 P1 project=1 samples=3 results=2"

  private:
    struct Content {
        Ref<SampleRecord> oSample;
        std::vector<Ref<ResultRecord>> aoResults;
        std::optional<WellOverride<ISample>> oSampleOverride;
        std::optional<WellOverride<IResult>> oResultOverride;
    };
    Content& At(const Well& oWell) { return m_aoWells[static_cast<std::size_t>(WellIndex(oWell)) - 1]; }

    std::int32_t m_lProjectID;
    std::string m_sName;
    std::array<Content, PlateWells> m_aoWells;
    std::vector<Ref<SampleRecord>> m_aoSamples;
    std::vector<Ref<ResultRecord>> m_aoResults;
    std::vector<Ref<SampleRecord>> m_aoSampleCopies; // of the first so many, made when asked for
    std::vector<Ref<ResultRecord>> m_aoResultCopies;
};

} // namespace GleanerSvc::Models
