// The samples and the results of a lab, as pages see them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "pagebind/Records.h"
#include "workbench/store/Lab.h"
#include "workbench/store/LabRecord.h"

namespace GleanerSvc::Workbench {

// A million of them may be held at once: what a list does not show is read when it is asked for.
struct FragmentFields {
    std::int32_t lRecordID = 0;
    std::int32_t lSampleID = 0;
    std::int32_t lProjectID = 0;
    std::int32_t lPlateID = 0;
    std::string sName{};
    Date dtModified{};
    Date dtCollected{};
};

// The part that samples and results share. Marks is the set of the lab that keeps this kind's marks.
template<class Interface, MarkSet RecordMarks::*Marks>
class FragmentRecord : public Interface, public LabRecord {
  public:
    std::int32_t RecordID() const override { return m_oFields.lRecordID; }
    std::int32_t ProjectID() override { return m_oFields.lProjectID; }
    std::int32_t PlateID() override { return m_oFields.lPlateID; }
    std::string Name() override { return m_oFields.sName; }
    Date DateLastModified() override { return m_oFields.dtModified; }
    Date DateCollected() override { return m_oFields.dtCollected; }
    bool IsSelected() override { return (m_oLab->Marks().*Marks).Holds(m_oFields.lRecordID); }
    void IsSelected(bool bSelected) override {
        (m_oLab->Marks().*Marks).Mark(m_oFields.lRecordID, bSelected);
    }

    Value GetMember(std::string_view sName) const override;
    void PutMember(std::string_view sName, const Value& vValue) override;

    std::string ToString() const; // "101 A1 project=1 plate=11 selected", plate and mark where there is one

  protected:
    FragmentRecord(Ref<Lab> oLab, FragmentFields oFields)
        : m_oLab(std::move(oLab)), m_oFields(std::move(oFields)) {}
    const Ref<Lab>& OwnLab() const { return m_oLab; }
    const FragmentFields& Fields() const { return m_oFields; }

  private:
    Ref<Lab> m_oLab;
    FragmentFields m_oFields;
};

class SampleRecord final : public FragmentRecord<ISample, &RecordMarks::oSamples> {
  public:
    SampleRecord(Ref<Lab> oLab, SampleRow oRow);

    std::int32_t SampleID() override { return RecordID(); }
    Ref<ISampleData> SampleData() override; // a new object at each call
};

class ResultRecord final : public FragmentRecord<IResult, &RecordMarks::oResults> {
  public:
    ResultRecord(Ref<Lab> oLab, ResultRow oRow);

    std::int32_t ResultID() override { return RecordID(); }
    std::string Description() override { return m_sDescription; }
    Ref<ISampleData> SampleData() override;
    Ref<ISample> Sample() override; // read anew at each call

  private:
    std::string m_sDescription;
};

extern template class FragmentRecord<ISample, &RecordMarks::oSamples>;
extern template class FragmentRecord<IResult, &RecordMarks::oResults>;

} // namespace GleanerSvc::Workbench
