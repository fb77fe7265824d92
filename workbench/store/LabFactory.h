// The closed data store over a lab: factory, collections and records.
#pragma once

#include "pagebind/Framework.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// Records are read when their collection is asked for and hold their fields; what a well or a project holds
// is read anew when the lab has changed. The mark of a record, IsSelected, belongs to its ID: all records of
// one sample share it, and it is never stored. Unknown types, queries and keys fail with invalid call, naming
// them.
class LabFactory : public IDataFactory, public IDataGlobals, public std::enable_shared_from_this<LabFactory> {
  public:
    explicit LabFactory(Ref<Lab> oLab);

    Ref<IDataFactory> DataFactory() override { return shared_from_this(); }
    Ref<IObject> CreateRecord(std::string_view sType) override;
    Ref<IObject> GetRecord(std::string_view sType, std::string_view sKeyName, std::string_view sKeyValue,
                           std::int32_t lOption, bool bFlag) override;
    Ref<IDataCollection> GetCollection(std::string_view sQuery, std::string_view sKeyName,
                                       std::string_view sKeyValue, std::string_view sOrder,
                                       std::int32_t lOption, bool bFlag) override;

    // A study of the lab: adding a study result to it stores the result's place in the study at once.
    Ref<IStudy> Study(std::int32_t lStudyID);

  private:
    Ref<Lab> m_oLab;
};

} // namespace GleanerSvc::Workbench
