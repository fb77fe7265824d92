#include "workbench/lab/Wizard.h"

#include <utility>

#include "pagebind/ParameterKeys.h"

namespace GleanerSvc::Workbench {

Wizard::Wizard(Ref<LabLibraries> oLibraries, Ref<IPlatform> oPlatform, const Start& oStart)
    : m_oLibraries(std::move(oLibraries)),
      m_oApartment(std::make_shared<Apartment>(m_oLibraries, std::move(oPlatform))),
      m_oHost(std::make_shared<Models::WizardHost>(m_oLibraries->Journal(), m_colParameters)) {
    PutWork(oStart);
    if (oStart.eTask == Task::Analyze)
        AddPage(oSamples = std::make_shared<SampleSelectionPage>(m_oApartment));
    AddPage(oLoci = std::make_shared<LocusTagSelectPage>(m_oApartment));
    AddPage(oAnalysis = std::make_shared<AnalysisPage>(m_oApartment));
    if (oStart.eTask == Task::Analyze)
        AddPage(oResults = std::make_shared<ResultSelectionPage>(m_oApartment));
    WatchAnalysis();
    m_oHost->Start();
}

void Wizard::AddPage(const Ref<IPageAccess>& oPage) {
    m_oHost->AddPage(oPage);
    m_aoPages.push_back(oPage);
}

// Stop is enabled when an analysis begins, and only then. The page's own handler of the click lasts as long
// as the analysis, and the one of here comes after it.
void Wizard::WatchAnalysis() {
    m_oSubscriptions.On(oAnalysis->cmdStop.OnChanged, [this](const Control& oStop, Property eProperty) {
        if (eProperty == Property::Enabled && oStop.Enabled()) ShowAnalyzing(true);
    });
    m_oSubscriptions.On(oAnalysis->cmdAnalyze.Click, [this] { ShowAnalyzing(false); });
}

void Wizard::ShowAnalyzing(bool bAnalyzing) {
    if (std::exchange(m_bAnalyzing, bAnalyzing) != bAnalyzing) OnAnalyzing.Raise();
}

void Wizard::PutWork(const Start& oStart) {
    if (oStart.eTask == Task::Analyze) {
        m_sStudy = oStart.sStudy;
        const auto oStudy = m_oLibraries->OwnLab().FindStudy(m_sStudy);
        PutStudy(oStudy ? oStudy->lStudyID : 0);
        return;
    }
    const bool bAlleles = oStart.eTask == Task::ReanalyzeAlleles;
    const auto colWork = std::make_shared<KeyedCollection>();
    const auto colSamples = std::make_shared<KeyedCollection>();
    for (const std::int32_t lResultID : oStart.alResultIDs) {
        const auto oResult = ResultOf(lResultID);
        colWork->Add(bAlleles ? Value(oResult->SampleData()) : Value(oResult));
        colSamples->Add(oResult->Sample());
    }
    m_colParameters->Add(bAlleles ? ActionCode::ReAnalyzeAlleleID : ActionCode::OptimizedReAnalyze,
                         ParameterKey::Action);
    m_colParameters->Add(colWork, ParameterKey::ReAnalyzeResults);
    if (!bAlleles) m_colParameters->Add(colSamples, ParameterKey::Samples);
}

// A study that is not stored yet is one without results under no ID.
void Wizard::PutStudy(std::int32_t lStudyID) {
    if (m_colParameters->Holds(ParameterKey::Study)) m_colParameters->Remove(ParameterKey::Study);
    m_colParameters->Add(m_oLibraries->Factory().Study(lStudyID), ParameterKey::Study);
}

std::int32_t Wizard::StoredStudy() {
    Lab& oLab = m_oLibraries->OwnLab();
    const auto oStudy = oLab.FindStudy(m_sStudy);
    return oStudy ? oStudy->lStudyID : oLab.AddStudy(m_sStudy);
}

Ref<IResult> Wizard::ResultOf(std::int32_t lResultID) const {
    return Cast<IResult>(m_oLibraries->Factory().GetRecord(RecordName::Result, KeyName::ResultID,
                                                           std::to_string(lResultID), 0, true));
}

StrTagSelector& Wizard::StrSelector() const {
    return dynamic_cast<StrTagSelector&>(*oLoci->ctlSTRLocusTagSelector);
}

SnpTagSelector& Wizard::SnpSelector() const {
    return dynamic_cast<SnpTagSelector&>(*oLoci->ctlSNPLocusTagSelector);
}

// The study each time anew: what an attempt before this one had added went with it. The lab keeps all of it
// as the last step of saving, so that the wizard has not ended yet when that fails.
bool Wizard::PressFinish() {
    Lab::Transaction oTransaction(m_oLibraries->OwnLab());
    if (!m_sStudy.empty()) PutStudy(StoredStudy());
    bool bStored = false;
    const auto oStored =
        Deref(Cast<Models::PageBaseModel>(m_aoPages.back()->Page())).Events().Save.Subscribe([&] {
            oTransaction.Commit();
            bStored = true;
        });
    m_oHost->PressFinish();
    return bStored;
}

} // namespace GleanerSvc::Workbench
