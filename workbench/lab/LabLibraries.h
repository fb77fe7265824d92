// The workbench's filling of every closed object: records and settings of a lab, the analyzer, the selectors,
// and the models of the grid and the page base.
#pragma once

#include <functional>
#include <memory>

#include "models/GridHelperModel.h"
#include "models/InputFocus.h"
#include "models/Journal.h"
#include "pagebind/ClosedLibraries.h"
#include "pagebind/Subscriptions.h"
#include "workbench/lab/LabSettings.h"
#include "workbench/lab/LabUtility.h"
#include "workbench/lab/TagSelector.h"
#include "workbench/lab/WizardLauncher.h"
#include "workbench/store/LabFactory.h"

namespace GleanerSvc::Workbench {

class LabLibraries final : public IClosedLibraries {
  public:
    // nThreads workers size traces during a run.
    LabLibraries(Ref<Lab> oLab, int nThreads);

    Ref<ITrellisGlobals> CreateTrellisGlobals() override { return m_oUtility; }
    Ref<IDataGlobals> CreateDataGlobals() override { return m_oFactory; }
    Ref<IGridHelper> CreateGridHelper() override { return m_oGridHelper; }
    Ref<ISettingsGlobals> CreateSettingsGlobals() override { return m_oSettings; }
    Ref<IWizardGlobals> CreateWizardGlobals() override { return m_oLauncher; }
    Ref<IDataFactory> CreateDataFactory() override;
    Ref<IParameterDefinition> CreateParameterDefinition() override;
    Ref<IRowIndex> CreateRowIndex() override;
    Ref<IZemFragmentAnalyzer> CreateAnalyzer() override;
    Ref<IServiceBase> CreateServiceBase() override;
    Ref<IPageBase> CreatePageBase() override;
    Ref<IGrid> CreateGrid(Control& oSite) override;
    Ref<IStrLocusTagSelector> CreateStrTagSelector(Container& oSite) override;
    Ref<ISnpLocusTagSelector> CreateSnpTagSelector(Container& oSite) override;

    // Told of each item that an analyzer of these libraries has completed, before the page is: the result's
    // ID, 0 or less when none was stored.
    std::function<void(std::int32_t)> OnCompleted;

    Lab& OwnLab() const { return *m_oLab; }
    LabFactory& Factory() const { return *m_oFactory; }
    LabUtility& Utility() const { return *m_oUtility; }
    WizardLauncher& Launcher() const { return *m_oLauncher; }
    const Ref<Models::Journal>& Journal() const { return m_oJournal; } // records nothing

  private:
    Ref<Lab> m_oLab;
    int m_nThreads;
    Ref<Models::Journal> m_oJournal;
    Ref<Models::InputFocus> m_oFocus;
    Ref<Models::GridHelperModel> m_oGridHelper;
    Ref<LabFactory> m_oFactory;
    Ref<LabUtility> m_oUtility;
    Ref<WizardLauncher> m_oLauncher;
    Ref<LabSettings> m_oSettings;
    Subscriptions m_oAnalyzerEvents; // of the analyzer made last
};

} // namespace GleanerSvc::Workbench
