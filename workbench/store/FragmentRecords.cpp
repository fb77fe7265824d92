#include "workbench/store/FragmentRecords.h"

#include "pagebind/Text.h"
#include "workbench/store/SampleDataRecord.h"

namespace GleanerSvc::Workbench {

namespace {

SampleRow SampleOf(Lab& oLab, std::int32_t lSampleID) {
    auto oSample = oLab.FindSample(lSampleID);
    if (!oSample)
        throw LabError("the lab " + oLab.File().string() + " has no sample " + DecimalText(lSampleID));
    return *std::move(oSample);
}

} // namespace

template<class I, MarkSet RecordMarks::*Marks>
Value FragmentRecord<I, Marks>::GetMember(std::string_view sName) const {
    if (sName != RecordMember::IsSelected) return IObject::GetMember(sName);
    return (m_oLab->Marks().*Marks).Holds(m_oFields.lRecordID);
}

template<class I, MarkSet RecordMarks::*Marks>
void FragmentRecord<I, Marks>::PutMember(std::string_view sName, const Value& vValue) {
    if (sName != RecordMember::IsSelected) return IObject::PutMember(sName, vValue);
    IsSelected(vValue.ToBool());
}

template<class I, MarkSet RecordMarks::*Marks>
std::string FragmentRecord<I, Marks>::ToString() const {
    std::string sText = DecimalText(m_oFields.lRecordID) + " " + m_oFields.sName;
    sText += " project=" + DecimalText(m_oFields.lProjectID);
    if (m_oFields.lPlateID != 0) sText += " plate=" + DecimalText(m_oFields.lPlateID);
    if ((m_oLab->Marks().*Marks).Holds(m_oFields.lRecordID)) sText += " selected";
    return sText;
}

template class FragmentRecord<ISample, &RecordMarks::oSamples>;
template class FragmentRecord<IResult, &RecordMarks::oResults>;

SampleRecord::SampleRecord(Ref<Lab> oLab, SampleRow oRow)
    : FragmentRecord(std::move(oLab), {oRow.lSampleID, oRow.lSampleID, oRow.lProjectID, oRow.lPlateID,
                                       std::move(oRow.sName), oRow.dtModified, oRow.dtCollected}) {}

Ref<ISampleData> SampleRecord::SampleData() {
    return std::make_shared<SampleDataRecord>(OwnLab(), RecordID(), 0, Fields().sName,
                                              SampleOf(*OwnLab(), RecordID()).dtRun);
}

ResultRecord::ResultRecord(Ref<Lab> oLab, ResultRow oRow)
    : FragmentRecord(std::move(oLab), {oRow.lResultID, oRow.lSampleID, oRow.lProjectID, oRow.lPlateID,
                                       std::move(oRow.sName), oRow.dtModified, oRow.dtCollected}),
      m_sDescription(std::move(oRow.sDescription)) {}

Ref<ISampleData> ResultRecord::SampleData() {
    return std::make_shared<SampleDataRecord>(OwnLab(), Fields().lSampleID, RecordID(), Fields().sName,
                                              SampleOf(*OwnLab(), Fields().lSampleID).dtRun);
}

Ref<ISample> ResultRecord::Sample() {
    return std::make_shared<SampleRecord>(OwnLab(), SampleOf(*OwnLab(), Fields().lSampleID));
}

} // namespace GleanerSvc::Workbench
