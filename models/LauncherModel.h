// The launcher of further wizards, with the set and the global object that lead to it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "models/Journal.h"
#include "models/WizardHost.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

// A wizard that was opened: what it was given, and the host that it got. The host has no pages; its store is
// the one that was given.
struct OpenedWizard {
    std::string sName;
    Ref<IKeyedCollection> colParameters;
    bool bShowNow = false;
    Ref<WizardHost> oHost;
};

// One object carries the three interfaces, so make it with std::make_shared.
class LauncherModel final : public IWizardGlobals,
                            public IWizardSet,
                            public IWizardLauncher,
                            public std::enable_shared_from_this<LauncherModel>,
                            private Journaled {
  public:
    explicit LauncherModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "Launcher") {}

    Ref<IWizardSet> Wizards() override;
    Ref<IWizardLauncher> Launcher() override;
    // Takes any name. bShowNow is kept; the host counts as shown by its own Show only.
    Ref<IPageHost> OpenWizard(std::string_view sName, const Ref<IKeyedCollection>& colParameters,
                              const Ref<IWizardOptions>& oOptions, std::int16_t iFirst, bool bSecond,
                              std::int16_t iThird, std::int16_t iFourth, bool bFifth, bool bSixth,
                              std::string_view sSeventh, bool bShowNow, bool bLast) override;

    const std::vector<OpenedWizard>& Opened() const { return m_aoOpened; } // in the order of opening

    // "SingleRawSample showNow=off, SingleSample showNow=on", or "none".
    std::string ToString() const;

  private:
    std::vector<OpenedWizard> m_aoOpened;
};

} // namespace GleanerSvc::Models
