// A new analysis parameter, which is what its definition says.
#pragma once

#include <cstdint>
#include <string>

#include "pagebind/Records.h"
#include "workbench/store/LabRecord.h"

namespace GleanerSvc::Workbench {

// The definition is written once; a second time fails with invalid call. Name and ID are those of the
// definition where that is a parameter as well; "" and 0 otherwise.
class AnalysisParameterRecord final : public IAnalysisParameter, public LabRecord {
  public:
    std::int32_t RecordID() const override { return 0; } // it is never stored itself
    std::string Name() override;
    std::int32_t ParameterID() override;
    void Definition(const Ref<IParameterDefinition>& oDefinition) override;

    const Ref<IParameterDefinition>& WrittenDefinition() const { return m_oDefinition; }

  private:
    Ref<IParameterDefinition> m_oDefinition;
};

} // namespace GleanerSvc::Workbench
