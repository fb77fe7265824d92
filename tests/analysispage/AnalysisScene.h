// The analysis page in a wizard of its own, over in-memory models: what tests of the page begin with.
#pragma once

#include "analysispage/AnalysisPage.h"
#include "tests/PageScene.h"

namespace GleanerSvc {

// Status codes of the scripts: 0 is "PASS", any other a failure.
constexpr std::int32_t Passed = 0;
constexpr std::int32_t Bad = 5;

struct AnalysisScene : PageScene<AnalysisPage> {
    // lItems samples S1, S2 ... (101 ...) with a result each, R1 ... (1001 ...), and the parameter record 7.
    explicit AnalysisScene(std::int32_t lItems, std::string_view sAction = "", bool bEnter = true) {
        std::string sSamples = "Alpha:";
        std::string sResults = "\nAlpha results:";
        for (std::int32_t lItem = 1; lItem <= lItems; ++lItem) {
            sSamples += " S" + DecimalText(lItem) + "@2026-03-01";
            sResults += " R" + DecimalText(lItem) + " of S" + DecimalText(lItem);
        }
        Store().Fill(sSamples + sResults);
        Parameters().Add(Store().NewParameterDefinition(7, "Standard"), ParameterKey::AnalysisParameter);
        if (!sAction.empty()) Parameters().Add(sAction, ParameterKey::Action);
        if (bEnter) EnterWithSamples();
    }
    void AddSamples() const {
        const auto colSamples = std::make_shared<KeyedCollection>();
        for (const auto& oSample : Store().Samples().All()) colSamples->Add(oSample);
        Parameters().Add(std::make_shared<HostCollection>(Store().SharedJournal(), colSamples, "Samples"),
                         ParameterKey::Samples);
    }
    void EnterWithSamples() const {
        AddSamples();
        Enter();
    }

    // A run played step by step, the first ones at once.
    void Analyze(Models::AnalyzerScript oScript, int nSteps = 0) {
        oScript.ePlay = Models::PlayMode::StepByStep;
        oLibraries->Script(std::move(oScript));
        oPage->cmdAnalyze.Press();
        Play(nSteps);
    }
    void Play(int nSteps) const {
        for (; nSteps > 0; --nSteps) Analyzer().PlayNext();
    }
    std::string Details() const { return oPage->txtDetails.Text(); }
    Models::AnalyzerModel& Analyzer() const { return *oLibraries->LastAnalyzer(); }
    Models::GridModel& Grid() const { return oLibraries->Grid("grdAnalyzeItems"); }

    std::string Column(std::int32_t lCol) const {
        std::string sCells;
        for (std::int32_t lRow = 1; lRow <= Grid().Rows(); ++lRow)
            sCells += (lRow > 1 ? "|" : "") + std::string(Grid().Text(lRow, lCol));
        return sCells;
    }
    // "3 2 1": analyzed, passed, failed, as the labels say.
    std::string Counts() const {
        return oPage->lbAnalyzed2.Caption() + " " + oPage->lbPass2.Caption() + " " + oPage->lbFail2.Caption();
    }
    // "on off &Analyze": the two buttons and the caption of the first; "-" for hidden.
    std::string Buttons() const {
        const auto State = [](const Button& oButton) {
            return std::string(!oButton.Visible() ? "-" : oButton.Enabled() ? "on" : "off");
        };
        return State(oPage->cmdAnalyze) + " " + State(oPage->cmdStop) + " " + oPage->cmdAnalyze.Caption();
    }
    // "3 2 1, on off &Analyze, 2 Next": counters, buttons and where the wizard stands.
    std::string State() const { return Counts() + ", " + Buttons() + ", " + Where(); }
    // "9<>": the one highlighted row, and the failure buttons that can be pressed; "hidden" for hidden ones.
    std::string Place() const {
        const auto alRows = Grid().HighlightedRows();
        const std::string sRow = alRows.size() == 1 ? DecimalText(alRows[0]) : "?";
        if (!oPage->cmdFailNext.Visible()) return sRow + "hidden";
        return sRow + (oPage->cmdFailPrevious.Enabled() ? "<" : "") +
               (oPage->cmdFailNext.Enabled() ? ">" : "");
    }
};

} // namespace GleanerSvc
