// Makes every closed object that the library creates or finds. A filling derives from this one class and is
// done.
#pragma once

#include "pagebind/Analyzer.h"
#include "pagebind/Framework.h"
#include "pagebind/GridHelper.h"
#include "pagebind/RowIndex.h"
#include "pagebind/TagSelectors.h"

namespace GleanerSvc {

class Container;
class Control;

class IClosedLibraries {
  public:
    IClosedLibraries() = default;
    IClosedLibraries(const IClosedLibraries&) = delete;
    IClosedLibraries& operator=(const IClosedLibraries&) = delete;
    virtual ~IClosedLibraries() = default;

    // The application-global objects: asked for once in an apartment, which keeps them.
    virtual Ref<ITrellisGlobals> CreateTrellisGlobals() = 0;
    virtual Ref<IDataGlobals> CreateDataGlobals() = 0;
    virtual Ref<IGridHelper> CreateGridHelper() = 0;
    virtual Ref<ISettingsGlobals> CreateSettingsGlobals() = 0;
    virtual Ref<IWizardGlobals> CreateWizardGlobals() = 0;

    // A new object at each call.
    virtual Ref<IDataFactory> CreateDataFactory() = 0;
    virtual Ref<IParameterDefinition> CreateParameterDefinition() = 0;
    virtual Ref<IRowIndex> CreateRowIndex() = 0;
    virtual Ref<IZemFragmentAnalyzer> CreateAnalyzer() = 0;
    virtual Ref<IServiceBase> CreateServiceBase() = 0;
    virtual Ref<IPageBase> CreatePageBase() = 0;

    // Closed controls. The site gives the control its name, place and visibility, and outlives it. A selector
    // may stand controls of its own in its site.
    virtual Ref<IGrid> CreateGrid(Control& oSite) = 0;
    virtual Ref<IStrLocusTagSelector> CreateStrTagSelector(Container& oSite) = 0;
    virtual Ref<ISnpLocusTagSelector> CreateSnpTagSelector(Container& oSite) = 0;
};

} // namespace GleanerSvc
