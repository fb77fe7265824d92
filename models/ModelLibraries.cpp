#include "models/ModelLibraries.h"

#include "models/RowIndexModel.h"
#include "models/ServiceBaseModel.h"
#include "pagebind/Text.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc::Models {

namespace {

// What a weak reference holds; the page or the test owns it.
template<class T>
T& Living(const std::weak_ptr<T>& oWeak, const std::string& sWhat) {
    if (const auto oLiving = oWeak.lock()) return *oLiving;
    throw Failure(FailureNumber::ObjectNotSet, "Libraries", "There is no " + sWhat + ".");
}

} // namespace

ModelLibraries::ModelLibraries() : ModelLibraries(std::make_shared<Models::Journal>()) {}

ModelLibraries::ModelLibraries(const Ref<Models::Journal>& oJournal)
    : Journaled(oJournal, "Libraries"), m_oStore(std::make_shared<DataStore>(oJournal)),
      m_oPlatform(std::make_shared<PlatformModel>(oJournal)),
      m_oUtility(std::make_shared<UtilityModel>(oJournal)),
      m_oDataGlobals(std::make_shared<DataFactoryModel>(m_oStore)),
      m_oSettings(std::make_shared<SettingsModel>(oJournal)),
      m_oLauncher(std::make_shared<LauncherModel>(oJournal)),
      m_oGridHelper(std::make_shared<GridHelperModel>(oJournal)), m_oFocus(std::make_shared<InputFocus>()) {}

Ref<ITrellisGlobals> ModelLibraries::CreateTrellisGlobals() {
    Call("CreateTrellisGlobals");
    return m_oUtility;
}

Ref<IDataGlobals> ModelLibraries::CreateDataGlobals() {
    Call("CreateDataGlobals");
    return m_oDataGlobals;
}

Ref<IGridHelper> ModelLibraries::CreateGridHelper() {
    Call("CreateGridHelper");
    return m_oGridHelper;
}

Ref<ISettingsGlobals> ModelLibraries::CreateSettingsGlobals() {
    Call("CreateSettingsGlobals");
    return m_oSettings;
}

Ref<IWizardGlobals> ModelLibraries::CreateWizardGlobals() {
    Call("CreateWizardGlobals");
    return m_oLauncher;
}

Ref<IDataFactory> ModelLibraries::CreateDataFactory() {
    Call("CreateDataFactory");
    return std::make_shared<DataFactoryModel>(m_oStore);
}

Ref<IParameterDefinition> ModelLibraries::CreateParameterDefinition() {
    Call("CreateParameterDefinition");
    return m_oStore->NewParameterDefinition();
}

Ref<IRowIndex> ModelLibraries::CreateRowIndex() {
    Call("CreateRowIndex");
    return std::make_shared<RowIndexModel>(SharedJournal());
}

Ref<IZemFragmentAnalyzer> ModelLibraries::CreateAnalyzer() {
    Call("CreateAnalyzer");
    const auto oAnalyzer = std::make_shared<AnalyzerModel>(SharedJournal(), m_oScript);
    m_oLastAnalyzer = oAnalyzer;
    return oAnalyzer;
}

Ref<IServiceBase> ModelLibraries::CreateServiceBase() {
    Call("CreateServiceBase");
    return std::make_shared<ServiceBaseModel>();
}

Ref<IPageBase> ModelLibraries::CreatePageBase() {
    Call("CreatePageBase");
    return std::make_shared<PageBaseModel>(SharedJournal());
}

Ref<IGrid> ModelLibraries::CreateGrid(Control& oSite) {
    Call("CreateGrid", oSite.Name());
    const auto oGrid = std::make_shared<GridModel>(SharedJournal(), m_oFocus, oSite);
    m_oGrids[FoldCase(oSite.Name())] = oGrid;
    return oGrid;
}

Ref<IStrLocusTagSelector> ModelLibraries::CreateStrTagSelector(Container& oSite) {
    Call("CreateStrTagSelector", oSite.Name());
    const auto oSelector = std::make_shared<StrTagSelectorModel>(SharedJournal(), "StrTagSelector");
    m_oStrSelector = oSelector;
    return oSelector;
}

Ref<ISnpLocusTagSelector> ModelLibraries::CreateSnpTagSelector(Container& oSite) {
    Call("CreateSnpTagSelector", oSite.Name());
    const auto oSelector = std::make_shared<SnpTagSelectorModel>(SharedJournal(), "SnpTagSelector");
    m_oSnpSelector = oSelector;
    return oSelector;
}

Ref<Apartment> ModelLibraries::MakeApartment() {
    auto oApartment = m_oApartment.lock();
    if (!oApartment) {
        oApartment = std::make_shared<Apartment>(shared_from_this(), m_oPlatform);
        m_oApartment = oApartment;
    }
    return oApartment;
}

Ref<WizardHost> ModelLibraries::MakeHost() const { return std::make_shared<WizardHost>(SharedJournal()); }

GridModel& ModelLibraries::Grid(std::string_view sName) const {
    const auto itGrid = m_oGrids.find(FoldCase(sName));
    const std::weak_ptr<GridModel> oNone;
    return Living(itGrid == m_oGrids.end() ? oNone : itGrid->second, "grid \"" + std::string(sName) + "\"");
}

StrTagSelectorModel& ModelLibraries::StrSelector() const {
    return Living(m_oStrSelector, "STR tag selector");
}

SnpTagSelectorModel& ModelLibraries::SnpSelector() const {
    return Living(m_oSnpSelector, "SNP tag selector");
}

std::string ModelLibraries::ToString() const {
    const auto oAnalyzer = LastAnalyzer();
    return "store: " + m_oStore->ToString() + " | utility: " + m_oUtility->ToString() +
           " | settings: " + m_oSettings->ToString() + " | launcher: " + m_oLauncher->ToString() +
           " | platform: " + m_oPlatform->ToString() +
           " | analyzer: " + (oAnalyzer ? oAnalyzer->ToString() : "none");
}

} // namespace GleanerSvc::Models
