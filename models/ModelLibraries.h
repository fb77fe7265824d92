// The in-memory filling of every closed object: one journal, one data store, one platform, and the models.
//
//     const auto oLibraries = ModelLibraries::Create();
//     oLibraries->Store().Fill(...);
//     const auto oApartment = oLibraries->MakeApartment();
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "models/AnalyzerModel.h"
#include "models/DataFactoryModel.h"
#include "models/DataStore.h"
#include "models/GridHelperModel.h"
#include "models/GridModel.h"
#include "models/InputFocus.h"
#include "models/Journal.h"
#include "models/LauncherModel.h"
#include "models/PlatformModel.h"
#include "models/SettingsModel.h"
#include "models/TagSelectorModel.h"
#include "models/UtilityModel.h"
#include "models/WizardHost.h"
#include "pagebind/Apartment.h"
#include "pagebind/ClosedLibraries.h"

namespace GleanerSvc::Models {

// The global objects exist from the start, so that they can be set before a page asks for them. Grids,
// selectors and analyzers belong to whoever had them created: they are found here as long as they live. A
// test that needs one object otherwise derives and overrides its creation.
class ModelLibraries : public IClosedLibraries,
                       public std::enable_shared_from_this<ModelLibraries>,
                       private Journaled {
  public:
    static Ref<ModelLibraries> Create() { return std::make_shared<ModelLibraries>(); }
    ModelLibraries(); // Create makes one that can have an apartment

    Ref<ITrellisGlobals> CreateTrellisGlobals() override;
    Ref<IDataGlobals> CreateDataGlobals() override;
    Ref<IGridHelper> CreateGridHelper() override;
    Ref<ISettingsGlobals> CreateSettingsGlobals() override;
    Ref<IWizardGlobals> CreateWizardGlobals() override;
    Ref<IDataFactory> CreateDataFactory() override; // over the one store
    Ref<IParameterDefinition> CreateParameterDefinition() override;
    Ref<IRowIndex> CreateRowIndex() override;
    Ref<IZemFragmentAnalyzer> CreateAnalyzer() override; // with the script that is set by then
    Ref<IServiceBase> CreateServiceBase() override;
    Ref<IPageBase> CreatePageBase() override;
    Ref<IGrid> CreateGrid(Control& oSite) override;
    Ref<IStrLocusTagSelector> CreateStrTagSelector(Container& oSite) override;
    Ref<ISnpLocusTagSelector> CreateSnpTagSelector(Container& oSite) override;

    // The apartment over these libraries and this platform. It holds the libraries, not they it: as long as
    // one lives, it is the only one.
    Ref<Apartment> MakeApartment();
    // A wizard host on the same journal.
    Ref<WizardHost> MakeHost() const;

    Models::Journal& Journal() const { return *SharedJournal(); }
    DataStore& Store() const { return *m_oStore; }
    PlatformModel& Platform() const { return *m_oPlatform; }
    UtilityModel& Utility() const { return *m_oUtility; }
    SettingsModel& Settings() const { return *m_oSettings; }
    LauncherModel& Launcher() const { return *m_oLauncher; }
    GridHelperModel& GridHelper() const { return *m_oGridHelper; }

    // The one last made; where there is none, or it has ended, these fail with object not set, naming it. A
    // grid is found by the name of its control, without regard to case.
    GridModel& Grid(std::string_view sName) const;
    StrTagSelectorModel& StrSelector() const;
    SnpTagSelectorModel& SnpSelector() const;

    void Script(AnalyzerScript oScript) {
        m_oScript = std::move(oScript);
    } // of the analyzers made from then on
    Ref<AnalyzerModel> LastAnalyzer() const { return m_oLastAnalyzer.lock(); } // nothing when there is none

    // "store: projects=2 ... | utility: reports=0 ... | settings: ... | launcher: ... | platform: ... |
    // analyzer: ...", each as that model gives it.
    std::string ToString() const;

  private:
    explicit ModelLibraries(const Ref<Models::Journal>& oJournal);

    Ref<DataStore> m_oStore;
    Ref<PlatformModel> m_oPlatform;
    Ref<UtilityModel> m_oUtility;
    Ref<DataFactoryModel> m_oDataGlobals;
    Ref<SettingsModel> m_oSettings;
    Ref<LauncherModel> m_oLauncher;
    Ref<GridHelperModel> m_oGridHelper;
    Ref<InputFocus> m_oFocus;
    AnalyzerScript m_oScript;
    std::map<std::string, std::weak_ptr<GridModel>> m_oGrids; // by folded name
    std::weak_ptr<StrTagSelectorModel> m_oStrSelector;
    std::weak_ptr<SnpTagSelectorModel> m_oSnpSelector;
    std::weak_ptr<AnalyzerModel> m_oLastAnalyzer;
    std::weak_ptr<Apartment> m_oApartment;
};

} // namespace GleanerSvc::Models
