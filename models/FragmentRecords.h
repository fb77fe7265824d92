// Samples and results of the in-memory data store, and their data objects.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "models/StoreRecord.h"
#include "pagebind/Records.h"
#include "pagebind/Well.h"

namespace GleanerSvc::Models {

// Runs are counted from 0; a run that does not exist fails with subscript.
class SampleDataRecord final : public ISampleData, public RecordOf<SampleDataRecord> {
  public:
    static constexpr std::string_view ObjectName = "SampleData";

    // lRecordID is that of the sample or result.
    SampleDataRecord(Ref<const StoreSettings> oSettings, std::int32_t lRecordID, std::string sSampleName,
                     std::vector<Date> adtRuns, std::string sDetails)
        : RecordOf(std::move(oSettings), lRecordID), m_sSampleName(std::move(sSampleName)),
          m_adtRuns(std::move(adtRuns)), m_sDetails(std::move(sDetails)) {}

    std::string SampleName() override;
    std::int32_t LastRunIndex() override;
    Date RunDate(std::int32_t lIndex) override;
    std::string Details() override; // not padded

    std::string ToString() const override; // "data of A1, 2 runs"

  private:
    std::string m_sSampleName;
    std::vector<Date> m_adtRuns;
    std::string m_sDetails;
};

// What a sample is made of. A plate ID of 0 is no plate, and without runs there was one at its collection.
struct SampleFields {
    std::int32_t lSampleID = 0;
    std::int32_t lProjectID = 0;
    std::int32_t lPlateID = 0;
    std::optional<Well> oWell{};
    std::string sName{};
    Date dtModified{};
    Date dtCollected{};
    std::string sDetails{};
    std::vector<Date> adtRuns{};

    std::int32_t RecordID() const { return lSampleID; }
};

// What a result is made of. A sample ID of 0 is no sample; project, plate and well that are not given are
// those of the sample.
struct ResultFields {
    std::int32_t lResultID = 0;
    std::int32_t lSampleID = 0;
    std::int32_t lProjectID = 0;
    std::int32_t lPlateID = 0;
    std::optional<Well> oWell{};
    std::string sName{};
    std::string sDescription{};
    Date dtModified{};
    Date dtCollected{};
    std::string sDetails{};
    std::vector<Date> adtRuns{};

    std::int32_t RecordID() const { return lResultID; }
};

// The part that samples and results share: Record is the class itself, Interface its interface, Fields what
// it is made of.
template<class Record, class Interface, class Fields>
class FragmentRecord : public Interface, public RecordOf<Record> {
  public:
    std::int32_t ProjectID() override;
    std::int32_t PlateID() override;
    std::string Name() override;
    Date DateLastModified() override;
    Date DateCollected() override;
    bool IsSelected() override;
    void IsSelected(bool bSelected) override;
    Ref<ISampleData> SampleData() override; // always the same object

    Value GetMember(std::string_view sName) const override;
    void PutMember(std::string_view sName, const Value& vValue) override;

    const Fields& Made() const { return m_oMade; }
    const std::string& PlainName() const { return m_oMade.sName; }
    bool Marked() const { return m_bSelected; }

    // "101 A1 project=1 plate=11 well=C5 selected"; plate, well and mark only where there is one.
    std::string ToString() const override;

  protected:
    FragmentRecord(Ref<const StoreSettings> oSettings, Fields oMade)
        : RecordOf<Record>(std::move(oSettings), oMade.RecordID()), m_oMade(std::move(oMade)) {}

  private:
    Fields m_oMade;
    bool m_bSelected = false;
    Ref<SampleDataRecord> m_oData; // made when first asked for
};

class SampleRecord final : public FragmentRecord<SampleRecord, ISample, SampleFields> {
  public:
    static constexpr std::string_view ObjectName = "Sample";

    SampleRecord(Ref<const StoreSettings> oSettings, SampleFields oMade)
        : FragmentRecord(std::move(oSettings), std::move(oMade)) {}

    std::int32_t SampleID() override;

    const std::string& SampleText() const { return PlainName(); }
    bool IsAnalyzed() const { return m_bAnalyzed; } // a result of it exists
    void MarkAnalyzed() { m_bAnalyzed = true; }

  private:
    bool m_bAnalyzed = false;
};

class ResultRecord final : public FragmentRecord<ResultRecord, IResult, ResultFields> {
  public:
    static constexpr std::string_view ObjectName = "Result";

    ResultRecord(Ref<const StoreSettings> oSettings, ResultFields oMade, Ref<SampleRecord> oSample)
        : FragmentRecord(std::move(oSettings), std::move(oMade)), m_oSample(std::move(oSample)) {}

    std::int32_t ResultID() override;
    std::string Description() override;
    Ref<ISample> Sample() override; // nothing for a result without one

    const Ref<SampleRecord>& MadeFrom() const { return m_oSample; }
    const std::string& SampleText() const { return m_oSample ? m_oSample->PlainName() : PlainName(); }

  private:
    Ref<SampleRecord> m_oSample;
};

extern template class FragmentRecord<SampleRecord, ISample, SampleFields>;
extern template class FragmentRecord<ResultRecord, IResult, ResultFields>;

} // namespace GleanerSvc::Models
