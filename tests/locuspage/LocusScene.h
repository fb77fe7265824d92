// The locus tag page in a wizard of its own, over in-memory models: what tests of the page begin with.
#pragma once

#include "locuspage/LocusTagSelectPage.h"
#include "tests/PageScene.h"

namespace GleanerSvc {

struct LocusScene : PageScene<LocusTagSelectPage> {
    std::string Stored() const { return Parameters().Item(ParameterKey::AlleleIDType).ToText(); }
    void Choose(std::size_t nOption) const { oPage->optAlleleIDType.at(nOption).Press(); }
    // "SNP tab=1 1 snpActive open": the option selected, the tab in front, those that can be had, the
    // selectors in play, and whether the options can be pressed.
    std::string State() const {
        const auto& optType = oPage->optAlleleIDType;
        std::string sState = optType[0].Value() ? "STR" : optType[1].Value() ? "SNP" : "none";
        sState += " tab=" + std::to_string(oPage->SSTab1.Tab());
        sState += oPage->SSTab1.TabEnabled(0) ? " 0" : "";
        sState += oPage->SSTab1.TabEnabled(1) ? " 1" : "";
        sState += oLibraries->StrSelector().IsActive() ? " strActive" : "";
        sState += oLibraries->SnpSelector().IsActive() ? " snpActive" : "";
        return sState + (optType[0].Enabled() || optType[1].Enabled() ? " open" : " fixed");
    }
};

} // namespace GleanerSvc
