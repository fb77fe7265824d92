#include "pagebind/Apartment.h"

#include <utility>

namespace GleanerSvc {

Apartment::Apartment(Ref<IClosedLibraries> oLibraries, Ref<IPlatform> oPlatform)
    : m_oLibraries(std::move(oLibraries)), m_oPlatform(std::move(oPlatform)) {}

Ref<ITrellisUtility> Apartment::Utility() {
    if (!m_oTrellisGlobals) m_oTrellisGlobals = m_oLibraries->CreateTrellisGlobals();
    return Deref(m_oTrellisGlobals).Utility();
}

Ref<IDataFactory> Apartment::DataFactory() {
    if (!m_oDataGlobals) m_oDataGlobals = m_oLibraries->CreateDataGlobals();
    return Deref(m_oDataGlobals).DataFactory();
}

Ref<IGridHelper> Apartment::GridHelper() {
    if (!m_oGridHelper) m_oGridHelper = m_oLibraries->CreateGridHelper();
    return m_oGridHelper;
}

Ref<ISettings> Apartment::Settings() {
    if (!m_oSettingsGlobals) m_oSettingsGlobals = m_oLibraries->CreateSettingsGlobals();
    return Deref(Deref(m_oSettingsGlobals).Context()).Settings();
}

Ref<IWizardLauncher> Apartment::Launcher() {
    if (!m_oWizardGlobals) m_oWizardGlobals = m_oLibraries->CreateWizardGlobals();
    return Deref(Deref(m_oWizardGlobals).Wizards()).Launcher();
}

} // namespace GleanerSvc
