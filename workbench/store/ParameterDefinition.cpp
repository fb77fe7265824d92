#include "workbench/store/ParameterDefinition.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Workbench {

namespace {

void RequireOnlyPart(std::int32_t lIndex) {
    if (lIndex == 0) return;
    throw Failure(FailureNumber::Subscript, "ParameterDefinition",
                  "A parameter definition has no part " + DecimalText(lIndex) + ".");
}

std::string TypeText(AlleleType eType) { return eType == AlleleType::Str ? "STR" : "SNP"; }

std::string LociText(std::size_t nLoci) {
    if (nLoci == 0) return "all loci";
    return DecimalText(static_cast<std::int64_t>(nLoci)) + (nLoci == 1 ? " locus" : " loci");
}

} // namespace

ParameterDefinition::ParameterDefinition(Ref<Lab> oLab) : m_oLab(std::move(oLab)) {}

Ref<IObject> ParameterDefinition::FirstPart(std::int32_t lIndex) {
    RequireOnlyPart(lIndex);
    return Ref<IParameterDefinition>(shared_from_this());
}

Ref<IObject> ParameterDefinition::SecondPart(std::int32_t lIndex) { return FirstPart(lIndex); }

std::string ParameterDefinition::Name() {
    return m_bChosen ? TypeText(m_oChoice.eType) + ", " + LociText(m_oChoice.asLoci.size()) : "none";
}

std::int32_t ParameterDefinition::ParameterID() {
    if (m_bChosen && m_oChoice.lParameterID == 0) {
        m_oChoice.sName = Name();
        m_oChoice.lParameterID = m_oLab->AddParameter(m_oChoice);
    }
    return m_oChoice.lParameterID;
}

void ParameterDefinition::Definition(const Ref<IParameterDefinition>& /*oDefinition*/) {
    throw Failure(FailureNumber::InvalidCall, "ParameterDefinition",
                  "The parameter definition \"" + Name() + "\" takes no definition of its own.");
}

void ParameterDefinition::Choose(AlleleType eType, std::vector<std::string> asLoci) {
    m_oChoice = {0, "", eType, std::move(asLoci)};
    m_bChosen = true;
}

std::string ParameterDefinition::ToString() const {
    if (!m_bChosen) return "none";
    std::string sText = TypeText(m_oChoice.eType);
    for (const auto& sLocus : m_oChoice.asLoci) sText += " " + sLocus;
    return sText;
}

} // namespace GleanerSvc::Workbench
