// A plate of a lab: what its 96 wells hold and what state they are in.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "pagebind/Records.h"
#include "pagebind/Well.h"
#include "workbench/store/FragmentRecords.h"
#include "workbench/store/Lab.h"
#include "workbench/store/LabRecord.h"

namespace GleanerSvc::Workbench {

// All that it tells comes from one reading of its samples and results, which is done anew when the lab has
// changed. A well may hold several injections: SampleAt gives the one collected last and SampleState tells of
// that one; ResultAt gives the result stored last. A column or row that no plate has fails with subscript.
class PlateRecord final : public IPlate, public LabRecord {
  public:
    PlateRecord(Ref<Lab> oLab, PlateRow oRow) : m_oLab(std::move(oLab)), m_oRow(std::move(oRow)) {}

    std::int32_t RecordID() const override { return m_oRow.lPlateID; }
    std::int32_t PlateID() override { return m_oRow.lPlateID; }
    std::string Name() override { return m_oRow.sName; }
    Ref<IDataCollection> Results() override;
    Ref<IDataCollection> Samples() override;
    Ref<IResult> ResultAt(std::int32_t iCol, std::int32_t iRow) override;
    Ref<ISample> SampleAt(std::int32_t iCol, std::int32_t iRow) override;
    std::int32_t ResultState(std::int32_t iCol, std::int32_t iRow) override;
    std::int32_t SampleState(std::int32_t iCol, std::int32_t iRow) override;

  private:
    struct Content {
        Ref<SampleRecord> oSample;
        bool bAnalyzed = false; // a result of the sample exists
        Ref<ResultRecord> oResult;
        std::int32_t lResults = 0;
    };
    struct Reading {
        std::array<Content, PlateWells> aoWells;
        std::vector<Ref<SampleRecord>> aoSamples; // by ID
        std::vector<Ref<ResultRecord>> aoResults;
    };

    const Reading& Read();
    void ReadSamples(Reading& oReading) const;
    void ReadResults(Reading& oReading) const;
    const Content& At(std::int32_t iCol, std::int32_t iRow);

    Ref<Lab> m_oLab;
    PlateRow m_oRow;
    Reading m_oReading;
    std::int64_t m_lRevision = -1; // of the lab when it was read
};

} // namespace GleanerSvc::Workbench
