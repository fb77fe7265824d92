// Studies of the in-memory data store and the results that joined them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "models/DataCollectionModel.h"
#include "models/StoreRecord.h"
#include "pagebind/Records.h"

namespace GleanerSvc::Models {

class DataStore;

class StudyRecord final : public IStudy, public RecordOf<StudyRecord> {
  public:
    static constexpr std::string_view ObjectName = "Study";

    StudyRecord(const Ref<const StoreSettings>& oSettings, std::int32_t lStudyID);

    Ref<IDataCollection> StudyResults() override; // always the same collection

    const DataCollectionModel& OwnResults() const { return *m_colStudyResults; }
    void Put(const Ref<StoreRecord>& oStudyResult) { m_colStudyResults->Put(oStudyResult); }

    std::string ToString() const override; // "1 StudyResults: 1001 1002"

  private:
    Ref<DataCollectionModel> m_colStudyResults;
};

// Its ID as a record is the result's. Keeps what was written, for reading back.
class StudyResultRecord final : public IStudyResult, public RecordOf<StudyResultRecord> {
  public:
    static constexpr std::string_view ObjectName = "StudyResult";

    StudyResultRecord(Ref<const StoreSettings> oSettings, const DataStore& oStore)
        : RecordOf(std::move(oSettings), 0), m_pStore(&oStore) {}

    void Study(const Ref<IStudy>& oStudy) override;
    void ResultID(std::int32_t lResultID) override;
    void ResultFlag(bool bFlag) override;

    // "Result" is the store's result with the ID that was written; an ID that it does not have fails with
    // invalid call, naming it.
    Value GetMember(std::string_view sName) const override;

    void Store(const Ref<IStudy>& oStudy, std::int32_t lResultID); // as written by an earlier wizard

    const Ref<IStudy>& WrittenStudy() const { return m_oStudy; }
    std::optional<bool> WrittenFlag() const { return m_bFlag; }

    // A study and its results hold each other: the store cuts them apart when it goes.
    void Detach();

    std::string ToString() const override; // "result=1001 flag=False study=yes"

  private:
    const DataStore* m_pStore;
    Ref<IStudy> m_oStudy;
    std::optional<bool> m_bFlag;
};

} // namespace GleanerSvc::Models
