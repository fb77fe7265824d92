#include "models/TagSelectorModel.h"

#include <algorithm>

namespace GleanerSvc::Models {

namespace {

bool Holds(const std::vector<std::string>& asTexts, const std::string& sText) {
    return std::find(asTexts.begin(), asTexts.end(), sText) != asTexts.end();
}

} // namespace

void TagSelectorModel::Loci(std::vector<std::string> asLoci) {
    m_asLoci = std::move(asLoci);
    m_asChosen.clear();
}

void TagSelectorModel::Choose(std::vector<std::string> asLoci) {
    for (const auto& sLocus : asLoci) {
        if (Holds(m_asLoci, sLocus)) continue;
        throw Failure(FailureNumber::InvalidCall, ObjectName(),
                      "The selector has no locus \"" + sLocus + "\".");
    }
    m_asChosen = std::move(asLoci);
}

void TagSelectorModel::Load(Ref<IObject>& oParameter) {
    Call("LoadParameters", oParameter);
    m_aoLoaded.push_back(oParameter);
    if (m_oLoadReplacement) oParameter = m_oLoadReplacement;
    const auto itSaved = std::find_if(m_aoSaved.rbegin(), m_aoSaved.rend(),
                                      [&](const SavedTags& oSaved) { return oSaved.oRecord == oParameter; });
    m_asChosen = itSaved == m_aoSaved.rend() ? std::vector<std::string>() : itSaved->asLoci;
}

void TagSelectorModel::Save(Ref<IObject>& oDefinition) {
    Call("SaveParameters", oDefinition);
    if (m_oSaveReplacement) oDefinition = m_oSaveReplacement;
    m_aoSaved.push_back({oDefinition, m_asChosen});
}

void TagSelectorModel::Activate(bool bActive) {
    Call("Active", bActive);
    m_bActive = bActive;
}

std::string TagSelectorModel::ToString() const {
    std::string sLoci;
    for (const auto& sLocus : m_asLoci) {
        sLoci += (sLoci.empty() ? "" : " ") + sLocus + (Holds(m_asChosen, sLocus) ? "*" : "");
    }
    return std::string("active=") + (m_bActive ? "on" : "off") +
           " loads=" + std::to_string(m_aoLoaded.size()) + " saves=" + std::to_string(m_aoSaved.size()) +
           " loci=[" + sLoci + "]";
}

} // namespace GleanerSvc::Models
