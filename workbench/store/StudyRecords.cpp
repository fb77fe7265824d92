#include "workbench/store/StudyRecords.h"

#include "pagebind/Text.h"
#include "workbench/store/FragmentRecords.h"

namespace GleanerSvc::Workbench {

Value StudyResultRecord::GetMember(std::string_view sName) const {
    if (sName != RecordMember::Result) return IObject::GetMember(sName);
    auto oRow = m_oLab->FindResult(m_lResultID);
    if (!oRow) {
        throw Failure(FailureNumber::InvalidCall, "StudyResult",
                      "The lab has no result " + DecimalText(m_lResultID) + ".");
    }
    return std::make_shared<ResultRecord>(m_oLab, *std::move(oRow));
}

RecordCollection& StoredStudyResults::Read() {
    if (m_lRevision == m_oLab->Revision()) return m_oResults;
    m_oResults.Clear();
    for (const auto& oRow : m_oLab->ResultsOfStudy(m_lStudyID))
        m_oResults.Put(std::make_shared<StudyResultRecord>(m_oLab, oRow.lResultID));
    m_lRevision = m_oLab->Revision();
    return m_oResults;
}

void StoredStudyResults::Add(const Ref<IObject>& oRecord) {
    const auto oAdded = Cast<StudyResultRecord>(oRecord);
    const auto oStudy = std::dynamic_pointer_cast<StudyRecord>(Deref(oAdded).WrittenStudy());
    if (oStudy && oStudy->RecordID() != m_lStudyID) {
        throw Failure(FailureNumber::InvalidCall, "StudyResults",
                      "The study result " + DecimalText(oAdded->RecordID()) + " is of another study.");
    }
    m_oLab->AddStudyResult(m_lStudyID, oAdded->RecordID(), oAdded->WrittenFlag());
}

Ref<IObject> StoredStudyResults::Item(const Value& vKey) { return Read().Item(vKey); }

std::int32_t StoredStudyResults::Count() { return Read().Count(); }

} // namespace GleanerSvc::Workbench
