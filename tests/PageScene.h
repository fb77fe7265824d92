// What tests begin with: the in-memory models, a wizard over them, and a page in that wizard.
#pragma once

#include <gtest/gtest.h>

#include <iterator>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "models/ModelLibraries.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"
#include "pagebind/WizardPage.h"
#include "tests/HostCollection.h"

namespace GleanerSvc {

using IDs = std::vector<std::int32_t>;

// "101 102", and back.
inline std::string Joined(const IDs& alIDs) {
    std::string sText;
    for (const auto lID : alIDs) sText += (sText.empty() ? "" : " ") + DecimalText(lID);
    return sText;
}
inline IDs IDsIn(const std::string& sText) {
    std::istringstream oText(sText);
    return {std::istream_iterator<std::int32_t>(oText), {}};
}

struct ModelScene {
    Models::PlatformModel& Platform() const { return oLibraries->Platform(); }
    Models::UtilityModel& Utility() const { return oLibraries->Utility(); }
    Models::Journal& Journal() const { return oLibraries->Journal(); }
    Models::DataStore& Store() const { return oLibraries->Store(); }
    // What of the journal matches the pattern, entry by entry, without quotation marks.
    std::string Calls(const std::string& sPattern) const {
        std::string sCalls;
        std::smatch oMatch;
        for (const auto& sEntry : Journal().Entries())
            if (std::regex_search(sEntry, oMatch, std::regex(sPattern))) sCalls += oMatch.str() + "; ";
        std::erase(sCalls, '"');
        return sCalls;
    }

    Ref<Models::ModelLibraries> oLibraries = Models::ModelLibraries::Create();
    Ref<Apartment> oApartment = oLibraries->MakeApartment();
};

struct WizardScene : ModelScene {
    KeyedCollection& Parameters() const { return *colParameters; }
    std::string Keys() const { return colParameters->ToString(); }
    // "3 Finish Next": the page on show, and of the buttons but Cancel those that can be pressed.
    std::string Where() const {
        std::string sText = DecimalText(oHost->CurrentPage());
        if (oHost->IsEnabled(HostButton::Finish)) sText += " Finish";
        if (oHost->IsEnabled(HostButton::Back)) sText += " Back";
        if (oHost->IsEnabled(HostButton::Next)) sText += " Next";
        return sText;
    }
    // A failure has come to the host or to the analyzer.
    bool HasFailed() const {
        const auto oAnalyzer = oLibraries->LastAnalyzer();
        return !oHost->Failures().empty() || (oAnalyzer && oAnalyzer->LastFailure());
    }
    // What a reanalysis works on: the data of the first samples, or the first results.
    void AddWork(bool bAlleles, std::int32_t lCount) const {
        const auto colWork = std::make_shared<KeyedCollection>();
        for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace) {
            if (bAlleles) colWork->Add(Store().Samples().At(100 + lPlace)->SampleData());
            if (!bAlleles) colWork->Add(Store().Results().At(1000 + lPlace));
        }
        Parameters().Add(colWork, ParameterKey::ReAnalyzeResults);
    }

    Ref<KeyedCollection> colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> oHost = std::make_shared<Models::WizardHost>(
        Store().SharedJournal(),
        std::make_shared<HostCollection>(Store().SharedJournal(), colParameters, "Parameters"));
};

// Stands for another part of the wizard.
struct PlainPage final : WizardPage {
    explicit PlainPage(const Ref<Apartment>& oApartment) : WizardPage(oApartment, "PlainPage", 10215, 7005) {
        CreatePageBase();
    }
    std::string ClassName() const override { return "PlainPage"; }
};

// The page stands between two others, so that Back and Next have somewhere to go.
template<class Page>
struct PageScene : WizardScene {
    PageScene() {
        oHost->AddPage(std::make_shared<PlainPage>(oApartment));
        oHost->AddPage(oPage);
        oHost->AddPage(std::make_shared<PlainPage>(oApartment));
    }
    PageEvents& Events() const { return Deref(Cast<IPageBase>(oPage->Page())).Events(); }
    void Enter() const {
        oHost->Start();
        oHost->PressNext();
    }

    Ref<Page> oPage = std::make_shared<Page>(oApartment);
};

} // namespace GleanerSvc
