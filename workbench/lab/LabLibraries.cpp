#include "workbench/lab/LabLibraries.h"

#include "models/GridModel.h"
#include "models/PageBaseModel.h"
#include "models/RowIndexModel.h"
#include "models/ServiceBaseModel.h"
#include "workbench/lab/FragmentAnalyzer.h"

namespace GleanerSvc::Workbench {

LabLibraries::LabLibraries(Ref<Lab> oLab, int nThreads)
    : m_oLab(std::move(oLab)), m_nThreads(nThreads), m_oJournal(std::make_shared<Models::Journal>()),
      m_oFocus(std::make_shared<Models::InputFocus>()),
      m_oGridHelper(std::make_shared<Models::GridHelperModel>(m_oJournal)),
      m_oFactory(std::make_shared<LabFactory>(m_oLab)), m_oUtility(std::make_shared<LabUtility>(m_oLab)),
      m_oLauncher(std::make_shared<WizardLauncher>()),
      m_oSettings(std::make_shared<LabSettings>(m_oLab, [this] { return m_oLauncher->OpenCount(); })) {
    m_oJournal->Recording(false);
    for (auto lStatus = static_cast<std::int32_t>(Status::Pass);
         lStatus <= static_cast<std::int32_t>(Status::TooManyPeaks); ++lStatus) {
        m_oGridHelper->StatusText(lStatus, StatusText(lStatus));
    }
}

Ref<IDataFactory> LabLibraries::CreateDataFactory() { return std::make_shared<LabFactory>(m_oLab); }

Ref<IParameterDefinition> LabLibraries::CreateParameterDefinition() {
    return std::make_shared<ParameterDefinition>(m_oLab);
}

Ref<IRowIndex> LabLibraries::CreateRowIndex() { return std::make_shared<Models::RowIndexModel>(m_oJournal); }

Ref<IZemFragmentAnalyzer> LabLibraries::CreateAnalyzer() {
    const auto oAnalyzer = std::make_shared<FragmentAnalyzer>(m_oLab, m_nThreads);
    m_oAnalyzerEvents.Clear();
    m_oAnalyzerEvents.On(oAnalyzer->Events().OnComplete,
                         [this](std::int32_t /*nIndex*/, std::int32_t lResultID, std::int32_t /*lStatus*/) {
                             if (OnCompleted) OnCompleted(lResultID);
                         });
    return oAnalyzer;
}

Ref<IServiceBase> LabLibraries::CreateServiceBase() { return std::make_shared<Models::ServiceBaseModel>(); }

Ref<IPageBase> LabLibraries::CreatePageBase() { return std::make_shared<Models::PageBaseModel>(m_oJournal); }

Ref<IGrid> LabLibraries::CreateGrid(Control& oSite) {
    return std::make_shared<Models::GridModel>(m_oJournal, m_oFocus, oSite);
}

Ref<IStrLocusTagSelector> LabLibraries::CreateStrTagSelector(Container& oSite) {
    return std::make_shared<StrTagSelector>(oSite, m_oLab->Panels());
}

Ref<ISnpLocusTagSelector> LabLibraries::CreateSnpTagSelector(Container& oSite) {
    return std::make_shared<SnpTagSelector>(oSite, m_oLab->Panels());
}

} // namespace GleanerSvc::Workbench
