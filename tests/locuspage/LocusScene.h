// The locus tag page in a wizard of its own, over in-memory models: what tests of the page begin with.
#pragma once

#include <string>

#include "locuspage/LocusTagSelectPage.h"
#include "models/ModelLibraries.h"
#include "pagebind/ParameterKeys.h"
#include "tests/HostCollection.h"

namespace GleanerSvc {

// The page alone in a wizard that has not started. sType is what stands under "AlleleIDType" before the run,
// nullptr for no such key.
struct LocusScene {
    explicit LocusScene(const char* sType = nullptr) {
        if (sType) colParameters->Add(sType, ParameterKey::AlleleIDType);
        oHost->AddPage(oPage);
    }
    PageEvents& Events() const { return Deref(Cast<IPageBase>(oPage->Page())).Events(); }
    std::string Stored() const { return colParameters->Item(ParameterKey::AlleleIDType).ToText(); }
    // "SNP tab=1 1 snpActive open": the option selected, the tab in front, those that can be had, the
    // selectors in play, and whether the options can be pressed.
    std::string State() const {
        std::string sState = oPage->optAlleleIDType[0].Value()   ? "STR"
                             : oPage->optAlleleIDType[1].Value() ? "SNP"
                                                                 : "none";
        sState += " tab=" + std::to_string(oPage->SSTab1.Tab());
        sState += oPage->SSTab1.TabEnabled(0) ? " 0" : "";
        sState += oPage->SSTab1.TabEnabled(1) ? " 1" : "";
        sState += oLibraries->StrSelector().IsActive() ? " strActive" : "";
        sState += oLibraries->SnpSelector().IsActive() ? " snpActive" : "";
        return sState + (oPage->optAlleleIDType[0].Enabled() || oPage->optAlleleIDType[1].Enabled()
                             ? " open"
                             : " fixed");
    }

    const Ref<Models::Journal>& SharedJournal() const { return oLibraries->Store().SharedJournal(); }

    Ref<Models::ModelLibraries> oLibraries = Models::ModelLibraries::Create();
    Ref<KeyedCollection> colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> oHost = std::make_shared<Models::WizardHost>(
        SharedJournal(), std::make_shared<HostCollection>(SharedJournal(), colParameters, "Parameters"));
    Ref<LocusTagSelectPage> oPage = std::make_shared<LocusTagSelectPage>(oLibraries->MakeApartment());
};

} // namespace GleanerSvc
