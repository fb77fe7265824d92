// The closed wizard framework: page base and its events, host, service base, utility, settings, launcher, and
// the two access interfaces by which the framework reaches this library's objects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "pagebind/DataStore.h"
#include "pagebind/Event.h"
#include "pagebind/Failure.h"
#include "pagebind/KeyedCollection.h"
#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// Navigation buttons of a wizard host.
namespace HostButton {
inline constexpr std::int16_t Finish = 1;
inline constexpr std::int16_t Cancel = 2;
inline constexpr std::int16_t Back = 4;
inline constexpr std::int16_t Next = 5;
} // namespace HostButton

class IPageHost : public virtual IObject {
  public:
    virtual void Title(std::string_view sTitle) = 0;
    virtual void EnableButton(std::int16_t iButton, bool bEnabled) = 0;
    virtual void PressButton(std::int16_t iButton) = 0; // as if the operator had pressed it
    virtual void Show() = 0;
    virtual void SetOwner(std::int16_t iSlot) = 0;
};

// Raised by the host through a page's base; a failure of a handler reaches whoever raised the event.
struct PageEvents {
    Event<Ref<IObject>>
        Initialize;        // the last pane positions, which may be nothing; once, before the page shows
    Event<> Activate;      // each time the page becomes the current one
    Event<> Deactivate;    // each time it stops being that
    Event<bool&> Validate; // may the page be left?
    Event<> Save;          // the wizard commits
};

// What the framework sees of a page and of a service: closed, the library never calls them.
class IPage : public virtual IObject {};
class IService : public virtual IObject {};

// An object that implements it also implements IPage.
class IPageBase : public virtual IObject {
  public:
    virtual Ref<IPageHost> Host() = 0;              // not before Initialize
    virtual Ref<IKeyedCollection> Parameters() = 0; // the store of the wizard run; not before Initialize
    virtual void ValidatePage() = 0; // runs Validate now and sets the navigation buttons anew from it
    virtual PageEvents& Events() = 0;
};

// An object that implements it also implements IService.
class IServiceBase : public virtual IObject {};

class IPageAccess : public virtual IObject {
  public:
    virtual Ref<IPage> Page() = 0;
};

class IServiceAccess : public virtual IObject {
  public:
    // The framework's member "Service": the class of that name can have no member function of its own name.
    virtual Ref<IService> ServiceObject() = 0;
};

class ITrellisUtility : public virtual IObject {
  public:
    // The one report of a failure. bShowUser is True at the last stop of the failure only.
    virtual void LogError(std::string_view sAppTitle, std::string_view sObjectType,
                          std::string_view sProcedure, const Failure& oErr, std::string_view sExtra,
                          bool bShowUser) = 0;
    virtual bool IsDebugBreakEnabled() = 0;                 // first gate of the debug stop
    virtual bool CanDebugBreak(std::int32_t lAppValue) = 0; // second gate

    virtual bool IsInCollection(const IKeyedCollection& colAny, std::string_view sKey) = 0;
    virtual std::string GetFolderPath(std::string_view sFolderName) = 0;
    virtual bool WillDatabaseOverflow(std::int32_t lNewResults) = 0; // past the limit of 1.7 GB
    virtual bool IsDatabaseLarge(std::int32_t& lSizeMB) = 0; // beyond the warning size, which it returns
    virtual Value GetWindowSlot(const Value& vFirst, const Value& vSecond) = 0;
    virtual std::int16_t GetWindowMode(std::int16_t iSlot) = 0;
};

class ISettings : public virtual IObject {
  public:
    virtual std::int32_t MaximumResults() = 0;
    virtual std::int16_t WindowCount() = 0;
};

class IAppContext : public virtual IObject {
  public:
    virtual Ref<ISettings> Settings() = 0;
};

// The launcher's option object: closed, the library passes nothing for it.
class IWizardOptions : public virtual IObject {};

class IWizardLauncher : public virtual IObject {
  public:
    // Opens a further wizard by name and yields its host. The fixed arguments are the launcher's own.
    virtual Ref<IPageHost> OpenWizard(std::string_view sName, const Ref<IKeyedCollection>& colParameters,
                                      const Ref<IWizardOptions>& oOptions, std::int16_t iFirst, bool bSecond,
                                      std::int16_t iThird, std::int16_t iFourth, bool bFifth, bool bSixth,
                                      std::string_view sSeventh, bool bShowNow, bool bLast) = 0;
};

class IWizardSet : public virtual IObject {
  public:
    virtual Ref<IWizardLauncher> Launcher() = 0;
};

// The application-global objects.
class ITrellisGlobals : public virtual IObject {
  public:
    virtual Ref<ITrellisUtility> Utility() = 0;
};

class IDataGlobals : public virtual IObject {
  public:
    virtual Ref<IDataFactory> DataFactory() = 0;
};

class ISettingsGlobals : public virtual IObject {
  public:
    virtual Ref<IAppContext> Context() = 0;
};

class IWizardGlobals : public virtual IObject {
  public:
    virtual Ref<IWizardSet> Wizards() = 0;
};

} // namespace GleanerSvc
