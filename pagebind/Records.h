// The record interfaces of the closed data store. Records belong to the store and are held by reference.
//
// Texts come blank-padded. IDs are 32-bit; as a key of a collection an ID is its decimal text. Rows and
// columns of a plate are 0-based, the column first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "pagebind/Date.h"
#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// Members that are reached by name at run time.
namespace RecordMember {
inline constexpr std::string_view IsSelected = "IsSelected"; // ISample, IResult: read and write
inline constexpr std::string_view Result = "Result";         // IStudyResult: read
} // namespace RecordMember

// What every query returns. Can be walked in its stored order, by place from 1 to Count.
class IDataCollection : public virtual IObject {
  public:
    virtual void Add(const Ref<IObject>& oRecord) = 0;
    // Text finds the record whose ID has this decimal text; a number gives the record at that place, from 1.
    // An unknown key fails.
    virtual Ref<IObject> Item(const Value& vKey) = 0;
    virtual std::int32_t Count() = 0;
};

// Calls fnVisit with each record, in stored order.
template<class T, class F>
void ForEach(IDataCollection& colRecords, F&& fnVisit) {
    const std::int32_t lCount = colRecords.Count();
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace)
        fnVisit(Deref(Cast<T>(colRecords.Item(lPlace))));
}

class ISampleData : public virtual IObject {
  public:
    virtual std::string SampleName() = 0;
    virtual std::int32_t LastRunIndex() = 0;
    virtual Date RunDate(std::int32_t lIndex) = 0;
    virtual std::string Details() = 0;
};

class ISample : public virtual IObject {
  public:
    virtual std::int32_t SampleID() = 0;
    virtual std::int32_t ProjectID() = 0;
    virtual std::int32_t PlateID() = 0;
    virtual std::string Name() = 0;
    virtual Date DateLastModified() = 0;
    virtual Date DateCollected() = 0;
    virtual bool IsSelected() = 0; // transient mark of the selection pages, not stored
    virtual void IsSelected(bool bSelected) = 0;
    virtual Ref<ISampleData> SampleData() = 0;
};

class IResult : public virtual IObject {
  public:
    virtual std::int32_t ResultID() = 0;
    virtual std::int32_t ProjectID() = 0;
    virtual std::int32_t PlateID() = 0;
    virtual std::string Name() = 0;
    virtual std::string Description() = 0;
    virtual Date DateLastModified() = 0;
    virtual Date DateCollected() = 0;
    virtual bool IsSelected() = 0;
    virtual void IsSelected(bool bSelected) = 0;
    virtual Ref<ISampleData> SampleData() = 0;
    virtual Ref<ISample> Sample() = 0;
};

class IProject : public virtual IObject {
  public:
    virtual std::int32_t ProjectID() = 0;
    virtual std::string Name() = 0;
    virtual Ref<IDataCollection> Results() = 0;
    virtual Ref<IDataCollection> Samples() = 0;
};

class IPlate : public virtual IObject {
  public:
    virtual std::int32_t PlateID() = 0;
    virtual std::string Name() = 0;
    virtual Ref<IDataCollection> Results() = 0;
    virtual Ref<IDataCollection> Samples() = 0;
    virtual Ref<IResult> ResultAt(std::int32_t iCol, std::int32_t iRow) = 0; // nothing in an empty well
    virtual Ref<ISample> SampleAt(std::int32_t iCol, std::int32_t iRow) = 0;
    virtual std::int32_t ResultState(std::int32_t iCol, std::int32_t iRow) = 0; // 0 none, 1 one, 2 several
    virtual std::int32_t SampleState(std::int32_t iCol, std::int32_t iRow) = 0; // 0 none, 1 data, 2 analyzed
};

class IStudy : public virtual IObject {
  public:
    virtual Ref<IDataCollection> StudyResults() = 0; // of IStudyResult
};

class IStudyResult : public virtual IObject {
  public:
    virtual void Study(const Ref<IStudy>& oStudy) = 0;
    virtual void ResultID(std::int32_t lResultID) = 0;
    virtual void ResultFlag(bool bFlag) = 0;
};

class IParameterDefinition : public virtual IObject {
  public:
    virtual Ref<IObject> FirstPart(std::int32_t lIndex) = 0; // only the analyzer looks inside
    virtual Ref<IObject> SecondPart(std::int32_t lIndex) = 0;
};

class IAnalysisParameter : public virtual IObject {
  public:
    virtual std::string Name() = 0;
    virtual std::int32_t ParameterID() = 0;
    virtual void Definition(const Ref<IParameterDefinition>& oDefinition) = 0; // written once
};

} // namespace GleanerSvc
