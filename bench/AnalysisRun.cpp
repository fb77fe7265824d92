#include "bench/AnalysisRun.h"

#include <utility>

#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Bench {

namespace {

constexpr std::string_view UpdateText = "Matching the size standard.\r\n";
constexpr std::int32_t Passed = 0;
constexpr std::int32_t Bad = 5;
constexpr std::int32_t FirstResultID = 1000001;

bool IsFailing(std::int32_t lItem) { return lItem % 10 == 9; }

} // namespace

AnalysisRun::AnalysisRun(std::int32_t lItems) : m_lItems(lItems) {
    m_oLibraries->Journal().Recording(false);
    Models::DataStore& oStore = m_oLibraries->Store();
    oStore.AddProject(1, "Project");
    const auto colSamples = std::make_shared<KeyedCollection>();
    for (std::int32_t lItem = 0; lItem < lItems; ++lItem) {
        const auto oSample = oStore.AddSample({.lSampleID = lItem + 1, .lProjectID = 1, .sName = "Sample"});
        colSamples->Add(oSample, DecimalText(lItem + 1));
        oStore.AddResult({.lResultID = FirstResultID + lItem, .lSampleID = lItem + 1, .sName = "Result"});
    }
    m_oHost->Parameters()->Add(colSamples, ParameterKey::Samples);
    m_oHost->Parameters()->Add(oStore.NewParameterDefinition(7, "Standard"), ParameterKey::AnalysisParameter);
    m_oHost->AddPage(m_oPage);
    m_oHost->Start();
    m_oLibraries->Utility().Database({.dPerResult = 0}); // no batch is too large for it
    Models::AnalyzerScript oScript;
    oScript.ePlay = Models::PlayMode::StepByStep;
    m_oLibraries->Script(std::move(oScript));
    m_oPage->cmdAnalyze.Press();
}

void AnalysisRun::PlayAll() {
    const auto oAnalyzer = m_oLibraries->LastAnalyzer();
    AnalyzerEvents& oEvents = Deref(oAnalyzer).Events();
    for (std::int32_t lItem = 0; lItem < m_lItems; ++lItem) {
        for (std::int32_t lUpdate = 0; lUpdate < UpdatesOfAnItem; ++lUpdate) {
            oEvents.OnStatusUpdate.Raise(lItem, UpdateText);
        }
        const std::int32_t lResultID = IsFailing(lItem) ? 0 : FirstResultID + lItem;
        oEvents.OnComplete.Raise(lItem, lResultID, IsFailing(lItem) ? Bad : Passed);
    }
}

std::string AnalysisRun::ToString() const {
    Deref(Cast<IPageBase>(m_oPage->Page())).Events().Deactivate.Raise();
    const auto colResults = ItemAs<IKeyedCollection>(*m_oHost->Parameters(), ParameterKey::AnalyzedResults);
    return "analyzed=" + m_oPage->lbAnalyzed2.Caption() + " failed=" + m_oPage->lbFail2.Caption() +
           " results=" + DecimalText(colResults->Count()) +
           " reports=" + DecimalText(std::ssize(m_oLibraries->Utility().Reports()));
}

std::int32_t PlayBare(std::int32_t lItems) {
    std::vector<std::string> asStatus(static_cast<std::size_t>(lItems));
    std::string sDetails;
    std::int32_t lFailed = 0;
    for (std::int32_t lItem = 0; lItem < lItems; ++lItem) {
        for (std::int32_t lUpdate = 0; lUpdate < UpdatesOfAnItem; ++lUpdate) sDetails += UpdateText;
        asStatus[static_cast<std::size_t>(lItem)] = IsFailing(lItem) ? "FAIL" : "PASS";
        sDetails.clear();
    }
    for (const auto& sStatus : asStatus) lFailed += sStatus == "FAIL" ? 1 : 0;
    return lFailed;
}

} // namespace GleanerSvc::Bench
