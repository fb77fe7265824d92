#include "models/ParameterRecords.h"

#include <memory>

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

class OpaquePart final : public IObject {};

void RequireOnlyPart(std::int32_t lIndex) {
    if (lIndex == 0) return;
    throw Failure(FailureNumber::Subscript, std::string(ParameterDefinitionRecord::ObjectName),
                  "A parameter definition has no part " + DecimalText(lIndex) + ".");
}

} // namespace

std::string AnalysisParameterRecord::Name() {
    Call("Name");
    return Settings()->Padded(m_sName);
}

std::int32_t AnalysisParameterRecord::ParameterID() {
    Call("ParameterID");
    return RecordID();
}

void AnalysisParameterRecord::Definition(const Ref<IParameterDefinition>& oDefinition) {
    Call("Definition", oDefinition);
    if (m_oDefinition) {
        throw Failure(FailureNumber::InvalidCall, std::string(ObjectName),
                      "The analysis parameter \"" + m_sName + "\" has its definition already.");
    }
    m_oDefinition = oDefinition;
}

std::string AnalysisParameterRecord::ToString() const {
    return DecimalText(RecordID()) + " " + m_sName + " definition=" + (m_oDefinition ? "yes" : "no");
}

ParameterDefinitionRecord::ParameterDefinitionRecord(Ref<const StoreSettings> oSettings,
                                                     std::int32_t lParameterID, std::string sName)
    : RecordOf(std::move(oSettings), lParameterID), m_sName(std::move(sName)),
      m_oFirstPart(std::make_shared<OpaquePart>()), m_oSecondPart(std::make_shared<OpaquePart>()) {}

Ref<IObject> ParameterDefinitionRecord::FirstPart(std::int32_t lIndex) {
    Call("FirstPart", lIndex);
    RequireOnlyPart(lIndex);
    return m_oFirstPart;
}

Ref<IObject> ParameterDefinitionRecord::SecondPart(std::int32_t lIndex) {
    Call("SecondPart", lIndex);
    RequireOnlyPart(lIndex);
    return m_oSecondPart;
}

std::string ParameterDefinitionRecord::Name() {
    Call("Name");
    return Settings()->Padded(m_sName);
}

std::int32_t ParameterDefinitionRecord::ParameterID() {
    Call("ParameterID");
    return RecordID();
}

void ParameterDefinitionRecord::Definition(const Ref<IParameterDefinition>& oDefinition) {
    Call("Definition", oDefinition);
    throw Failure(FailureNumber::InvalidCall, std::string(ObjectName),
                  "The parameter definition \"" + m_sName + "\" takes no definition of its own.");
}

std::string ParameterDefinitionRecord::ToString() const { return DecimalText(RecordID()) + " " + m_sName; }

} // namespace GleanerSvc::Models
