// Studies of a lab, those that are stored and those that are not, and the results that joined them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "pagebind/Records.h"
#include "workbench/store/Lab.h"
#include "workbench/store/LabRecord.h"
#include "workbench/store/RecordCollection.h"

namespace GleanerSvc::Workbench {

// Its ID as a record is the result's. A study holds its study results; a study result only knows its study.
class StudyResultRecord final : public IStudyResult, public LabRecord {
  public:
    explicit StudyResultRecord(Ref<Lab> oLab, std::int32_t lResultID = 0)
        : m_oLab(std::move(oLab)), m_lResultID(lResultID) {}

    std::int32_t RecordID() const override { return m_lResultID; }
    void Study(const Ref<IStudy>& oStudy) override { m_oStudy = oStudy; }
    void ResultID(std::int32_t lResultID) override { m_lResultID = lResultID; }
    void ResultFlag(bool bFlag) override { m_bFlag = bFlag; }

    // "Result" is the lab's result with the ID that was written; one that it does not have fails with invalid
    // call, naming it.
    Value GetMember(std::string_view sName) const override;

    Ref<IStudy> WrittenStudy() const { return m_oStudy.lock(); }
    bool WrittenFlag() const { return m_bFlag; }

  private:
    Ref<Lab> m_oLab;
    std::weak_ptr<IStudy> m_oStudy;
    std::int32_t m_lResultID;
    bool m_bFlag = false;
};

// The results of a stored study, in the order of adding; read when first asked for, and anew when the lab has
// changed. What is added is stored at once, within the transaction that is open. Adding fails as the lab
// does.
class StoredStudyResults final : public IDataCollection {
  public:
    StoredStudyResults(Ref<Lab> oLab, std::int32_t lStudyID)
        : m_oLab(std::move(oLab)), m_lStudyID(lStudyID), m_oResults("StudyResults") {}

    void Add(const Ref<IObject>& oRecord) override;
    Ref<IObject> Item(const Value& vKey) override;
    std::int32_t Count() override;

  private:
    RecordCollection& Read();

    Ref<Lab> m_oLab;
    std::int32_t m_lStudyID;
    RecordCollection m_oResults;
    std::int64_t m_lRevision = -1; // of the lab when they were read
};

class StudyRecord final : public IStudy, public LabRecord {
  public:
    StudyRecord() : m_colResults(std::make_shared<RecordCollection>("StudyResults")) {} // not stored
    StudyRecord(const Ref<Lab>& oLab, std::int32_t lStudyID)
        : m_lStudyID(lStudyID), m_colResults(std::make_shared<StoredStudyResults>(oLab, lStudyID)) {}

    std::int32_t RecordID() const override { return m_lStudyID; } // 0 when it is not stored
    Ref<IDataCollection> StudyResults() override { return m_colResults; }

  private:
    std::int32_t m_lStudyID = 0;
    Ref<IDataCollection> m_colResults;
};

} // namespace GleanerSvc::Workbench
