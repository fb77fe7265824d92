#include "workbench/store/AnalysisParameterRecord.h"

namespace GleanerSvc::Workbench {

std::string AnalysisParameterRecord::Name() {
    const auto oParameter = std::dynamic_pointer_cast<IAnalysisParameter>(m_oDefinition);
    return oParameter ? oParameter->Name() : "";
}

std::int32_t AnalysisParameterRecord::ParameterID() {
    const auto oParameter = std::dynamic_pointer_cast<IAnalysisParameter>(m_oDefinition);
    return oParameter ? oParameter->ParameterID() : 0;
}

void AnalysisParameterRecord::Definition(const Ref<IParameterDefinition>& oDefinition) {
    if (m_oDefinition) {
        throw Failure(FailureNumber::InvalidCall, "AnalysisParameter",
                      "The analysis parameter \"" + Name() + "\" has its definition already.");
    }
    m_oDefinition = oDefinition;
}

} // namespace GleanerSvc::Workbench
