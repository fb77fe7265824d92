#include "models/FragmentRecords.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

std::string SampleDataRecord::SampleName() {
    Call("SampleName");
    return Settings()->Padded(m_sSampleName);
}

std::int32_t SampleDataRecord::LastRunIndex() {
    Call("LastRunIndex");
    return static_cast<std::int32_t>(m_adtRuns.size()) - 1;
}

Date SampleDataRecord::RunDate(std::int32_t lIndex) {
    Call("RunDate", lIndex);
    if (lIndex < 0 || static_cast<std::size_t>(lIndex) >= m_adtRuns.size()) {
        throw Failure(FailureNumber::Subscript, std::string(ObjectName),
                      "The data of \"" + m_sSampleName + "\" have no run " + DecimalText(lIndex) + ".");
    }
    return m_adtRuns[static_cast<std::size_t>(lIndex)];
}

std::string SampleDataRecord::Details() {
    Call("Details");
    return m_sDetails;
}

std::string SampleDataRecord::ToString() const {
    return "data of " + m_sSampleName + ", " + DecimalText(std::ssize(m_adtRuns)) + " runs";
}

template<class R, class I, class F>
std::int32_t FragmentRecord<R, I, F>::ProjectID() {
    this->Call("ProjectID");
    return m_oMade.lProjectID;
}

template<class R, class I, class F>
std::int32_t FragmentRecord<R, I, F>::PlateID() {
    this->Call("PlateID");
    return m_oMade.lPlateID;
}

template<class R, class I, class F>
std::string FragmentRecord<R, I, F>::Name() {
    this->Call("Name");
    return this->Settings()->Padded(m_oMade.sName);
}

template<class R, class I, class F>
Date FragmentRecord<R, I, F>::DateLastModified() {
    this->Call("DateLastModified");
    return m_oMade.dtModified;
}

template<class R, class I, class F>
Date FragmentRecord<R, I, F>::DateCollected() {
    this->Call("DateCollected");
    return m_oMade.dtCollected;
}

template<class R, class I, class F>
bool FragmentRecord<R, I, F>::IsSelected() {
    this->Call("IsSelected");
    return m_bSelected;
}

template<class R, class I, class F>
void FragmentRecord<R, I, F>::IsSelected(bool bSelected) {
    this->Call("IsSelected", bSelected);
    m_bSelected = bSelected;
}

template<class R, class I, class F>
Ref<ISampleData> FragmentRecord<R, I, F>::SampleData() {
    this->Call("SampleData");
    if (!m_oData) {
        auto adtRuns = m_oMade.adtRuns.empty() ? std::vector<Date>{m_oMade.dtCollected} : m_oMade.adtRuns;
        m_oData = std::make_shared<SampleDataRecord>(this->Settings(), this->RecordID(),
                                                     static_cast<const R&>(*this).SampleText(),
                                                     std::move(adtRuns), m_oMade.sDetails);
    }
    return m_oData;
}

template<class R, class I, class F>
Value FragmentRecord<R, I, F>::GetMember(std::string_view sName) const {
    if (sName != RecordMember::IsSelected) return IObject::GetMember(sName);
    this->Call(sName);
    return m_bSelected;
}

template<class R, class I, class F>
void FragmentRecord<R, I, F>::PutMember(std::string_view sName, const Value& vValue) {
    if (sName != RecordMember::IsSelected) return IObject::PutMember(sName, vValue);
    this->Call(sName, vValue);
    m_bSelected = vValue.ToBool();
}

template<class R, class I, class F>
std::string FragmentRecord<R, I, F>::ToString() const {
    std::string sText = DecimalText(this->RecordID()) + " " + m_oMade.sName;
    sText += " project=" + DecimalText(m_oMade.lProjectID);
    if (m_oMade.lPlateID != 0) sText += " plate=" + DecimalText(m_oMade.lPlateID);
    if (m_oMade.oWell) sText += " well=" + WellText(*m_oMade.oWell);
    if (m_bSelected) sText += " selected";
    return sText;
}

template class FragmentRecord<SampleRecord, ISample, SampleFields>;
template class FragmentRecord<ResultRecord, IResult, ResultFields>;

std::int32_t SampleRecord::SampleID() {
    Call("SampleID");
    return RecordID();
}

std::int32_t ResultRecord::ResultID() {
    Call("ResultID");
    return RecordID();
}

std::string ResultRecord::Description() {
    Call("Description");
    return Settings()->Padded(Made().sDescription);
}

Ref<ISample> ResultRecord::Sample() {
    Call("Sample");
    return m_oSample;
}

} // namespace GleanerSvc::Models
