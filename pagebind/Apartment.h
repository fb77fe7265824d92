// The one context object that every page and control is built with: the platform, the closed libraries, and
// the table of application-global objects. One for each apartment (thread); nothing in it is locked.
#pragma once

#include "pagebind/ClosedLibraries.h"
#include "pagebind/Platform.h"

namespace GleanerSvc {

class Apartment {
  public:
    Apartment(Ref<IClosedLibraries> oLibraries, Ref<IPlatform> oPlatform);

    IPlatform& Platform() { return *m_oPlatform; }
    IClosedLibraries& Libraries() { return *m_oLibraries; }

    // Global objects: created on first use and kept until the apartment ends. All but the grid helper,
    // which is a global itself, are read through their global at every call.
    Ref<ITrellisUtility> Utility();
    Ref<IDataFactory> DataFactory();
    Ref<IGridHelper> GridHelper();
    Ref<ISettings> Settings();
    Ref<IWizardLauncher> Launcher();

  private:
    Ref<IClosedLibraries> m_oLibraries;
    Ref<IPlatform> m_oPlatform;
    Ref<ITrellisGlobals> m_oTrellisGlobals;
    Ref<IDataGlobals> m_oDataGlobals;
    Ref<IGridHelper> m_oGridHelper;
    Ref<ISettingsGlobals> m_oSettingsGlobals;
    Ref<IWizardGlobals> m_oWizardGlobals;
};

} // namespace GleanerSvc
