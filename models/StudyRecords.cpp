#include "models/StudyRecords.h"

#include "models/DataStore.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

StudyRecord::StudyRecord(const Ref<const StoreSettings>& oSettings, std::int32_t lStudyID)
    : RecordOf(oSettings, lStudyID),
      m_colStudyResults(std::make_shared<DataCollectionModel>(oSettings->oJournal, "StudyResults")) {}

Ref<IDataCollection> StudyRecord::StudyResults() {
    Call("StudyResults");
    return m_colStudyResults;
}

std::string StudyRecord::ToString() const {
    return DecimalText(RecordID()) + " " + m_colStudyResults->ToString();
}

void StudyResultRecord::Study(const Ref<IStudy>& oStudy) {
    Call("Study", oStudy);
    m_oStudy = oStudy;
}

void StudyResultRecord::ResultID(std::int32_t lResultID) {
    Call("ResultID", lResultID);
    ChangeRecordID(lResultID);
}

void StudyResultRecord::ResultFlag(bool bFlag) {
    Call("ResultFlag", bFlag);
    m_bFlag = bFlag;
}

Value StudyResultRecord::GetMember(std::string_view sName) const {
    if (sName != RecordMember::Result) return IObject::GetMember(sName);
    Call(sName);
    if (!m_pStore) throw Failure::Of(FailureNumber::ObjectNotSet);
    return m_pStore->Results().At(RecordID());
}

void StudyResultRecord::Store(const Ref<IStudy>& oStudy, std::int32_t lResultID) {
    m_oStudy = oStudy;
    m_bFlag = false;
    ChangeRecordID(lResultID);
}

void StudyResultRecord::Detach() {
    m_pStore = nullptr;
    m_oStudy.reset();
}

std::string StudyResultRecord::ToString() const {
    return "result=" + DecimalText(RecordID()) +
           " flag=" + (m_bFlag ? Value(*m_bFlag).ToText() : std::string("unwritten")) +
           " study=" + (m_oStudy ? "yes" : "no");
}

} // namespace GleanerSvc::Models
