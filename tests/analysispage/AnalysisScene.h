// The analysis page in a wizard of its own, over in-memory models: what tests of the page begin with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysispage/AnalysisPage.h"
#include "models/ModelLibraries.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"
#include "tests/HostCollection.h"
#include "tests/PlainPage.h"

namespace GleanerSvc {

// Status codes of the scripts: 0 is "PASS", any other a failure.
constexpr std::int32_t Passed = 0;
constexpr std::int32_t Bad = 5;

struct AnalysisScene {
    // lItems samples S1, S2 ... with a result each (1001 ...), and the parameter record 7. The page stands
    // between two others, so that Back and Next have somewhere to go.
    explicit AnalysisScene(std::int32_t lItems, std::string_view sAction = "", bool bStart = true) {
        oLibraries->Store().AddProject(1, "Alpha");
        for (std::int32_t lItem = 1; lItem <= lItems; ++lItem) {
            const auto oSample = oLibraries->Store().AddSample({.lSampleID = 100 + lItem,
                                                                .lProjectID = 1,
                                                                .sName = "S" + DecimalText(lItem),
                                                                .dtModified = Date::Of({2026, 3, 1})});
            colSamples->Add(oSample, DecimalText(100 + lItem));
            const auto oResult = oLibraries->Store().AddResult({.lResultID = 1000 + lItem,
                                                                .lSampleID = 100 + lItem,
                                                                .sName = "R" + DecimalText(lItem),
                                                                .sDetails = "details " + DecimalText(lItem)});
            colResults->Add(oResult, DecimalText(1000 + lItem));
        }
        oParameter = oLibraries->Store().NewParameterDefinition(7, "Standard");
        Parameters().Add(oParameter, ParameterKey::AnalysisParameter);
        if (!sAction.empty()) Parameters().Add(sAction, ParameterKey::Action);
        if (bStart) Enter();
    }

    // With the samples in the store, from the page before.
    void Enter() const {
        AddSamples();
        Start();
    }
    void AddSamples() const {
        Parameters().Add(std::make_shared<HostCollection>(SharedJournal(), colSamples, "Samples"),
                         ParameterKey::Samples);
    }
    // What an allele reanalysis works on: the data of those first samples.
    void AddAlleles(std::int32_t lCount) const {
        const auto colData = std::make_shared<KeyedCollection>();
        for (std::int32_t lItem = 1; lItem <= lCount; ++lItem) {
            colData->Add(ItemAs<ISample>(*colSamples, lItem)->SampleData());
        }
        Parameters().Add(colData, ParameterKey::ReAnalyzeResults);
    }
    void Start() const {
        Open();
        oHost->Start();
        oHost->PressNext();
    }
    void Open() const {
        for (const auto& oEach :
             {Ref<IPageAccess>(oBefore), Ref<IPageAccess>(oPage), Ref<IPageAccess>(oAfter)}) {
            oHost->AddPage(oEach);
        }
    }

    // A run played step by step from now on.
    void Analyze(Models::AnalyzerScript oScript) {
        oScript.ePlay = Models::PlayMode::StepByStep;
        oLibraries->Script(std::move(oScript));
        oPage->cmdAnalyze.Press();
    }
    Models::AnalyzerModel& Analyzer() const { return *oLibraries->LastAnalyzer(); }
    Models::GridModel& Grid() const { return oLibraries->Grid("grdAnalyzeItems"); }
    Models::UtilityModel& Utility() const { return oLibraries->Utility(); }
    Models::PlatformModel& Platform() const { return oLibraries->Platform(); }
    KeyedCollection& Parameters() const { return *colParameters; }
    const Ref<Models::Journal>& SharedJournal() const { return oLibraries->Store().SharedJournal(); }

    std::string Column(std::int32_t lCol) const {
        std::string sCells;
        for (std::int32_t lRow = 1; lRow <= Grid().Rows(); ++lRow) {
            sCells += (lRow > 1 ? "|" : "") + std::string(Grid().Text(lRow, lCol));
        }
        return sCells;
    }
    // "3 2 1": analyzed, passed, failed, as the labels say.
    std::string Counts() const {
        return oPage->lbAnalyzed2.Caption() + " " + oPage->lbPass2.Caption() + " " + oPage->lbFail2.Caption();
    }
    // "analyze=on stop=off" with the caption when it is not the first one; "-" for hidden.
    std::string Buttons() const {
        const auto State = [](const Button& oButton) {
            return std::string(!oButton.Visible() ? "-" : oButton.Enabled() ? "on" : "off");
        };
        return State(oPage->cmdAnalyze) + " " + State(oPage->cmdStop) + " " + oPage->cmdAnalyze.Caption();
    }
    // Of the wizard: "12 5" for the buttons that are enabled.
    std::string HostButtons() const {
        std::string sButtons;
        for (const std::int16_t iButton :
             {HostButton::Finish, HostButton::Cancel, HostButton::Back, HostButton::Next}) {
            if (oHost->IsEnabled(iButton)) sButtons += std::to_string(iButton);
        }
        return sButtons;
    }
    // The failure buttons: "<" and ">" where they can be pressed, "" when they are hidden or both off.
    std::string FailureButtons() const {
        if (!oPage->cmdFailNext.Visible()) return "hidden";
        return std::string(oPage->cmdFailPrevious.Enabled() ? "<" : "") +
               (oPage->cmdFailNext.Enabled() ? ">" : "");
    }

    Ref<Models::ModelLibraries> oLibraries = Models::ModelLibraries::Create();
    Ref<KeyedCollection> colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> oHost = std::make_shared<Models::WizardHost>(
        SharedJournal(), std::make_shared<HostCollection>(SharedJournal(), colParameters, "Parameters"));
    Ref<Apartment> oApartment = oLibraries->MakeApartment();
    Ref<PlainPage> oBefore = std::make_shared<PlainPage>(oApartment);
    Ref<AnalysisPage> oPage = std::make_shared<AnalysisPage>(oApartment);
    Ref<PlainPage> oAfter = std::make_shared<PlainPage>(oApartment);
    Ref<KeyedCollection> colSamples = std::make_shared<KeyedCollection>();
    Ref<KeyedCollection> colResults = std::make_shared<KeyedCollection>();
    Ref<Models::ParameterDefinitionRecord> oParameter;
};

} // namespace GleanerSvc
