// The launcher of further wizards: the views of a single sample or result.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "pagebind/Framework.h"

namespace GleanerSvc::Workbench {

// A further wizard: what it was given, and what its opener said since. The workbench's further wizards show
// one record and have no pages to navigate.
class FurtherWizard final : public IPageHost {
  public:
    FurtherWizard(std::string_view sName, Ref<IKeyedCollection> colParameters)
        : m_sName(sName), m_colParameters(std::move(colParameters)) {}

    void Title(std::string_view sTitle) override;
    void EnableButton(std::int16_t /*iButton*/, bool /*bEnabled*/) override {}
    void PressButton(std::int16_t /*iButton*/) override {}
    void Show() override;
    void SetOwner(std::int16_t iSlot) override { m_iSlot = iSlot; }

    const std::string& Name() const { return m_sName; } // "SingleRawSample" or "SingleSample"
    const Ref<IKeyedCollection>& Parameters() const { return m_colParameters; }
    const std::string& Title() const { return m_sTitle; }
    std::int16_t Slot() const { return m_iSlot; } // 0 until an owner was set

    Event<> OnTitle;
    Event<> OnShow;

  private:
    std::string m_sName;
    Ref<IKeyedCollection> m_colParameters;
    std::string m_sTitle;
    std::int16_t m_iSlot = 0;
};

// One object carries the three interfaces, so make it with std::make_shared.
class WizardLauncher final : public IWizardGlobals,
                             public IWizardSet,
                             public IWizardLauncher,
                             public std::enable_shared_from_this<WizardLauncher> {
  public:
    Ref<IWizardSet> Wizards() override { return shared_from_this(); }
    Ref<IWizardLauncher> Launcher() override { return shared_from_this(); }
    // Fails with invalid call for a name that is no further wizard's. The wizard is shown at once if asked
    // for, and otherwise when its opener says so; a view hangs on OnOpened.
    Ref<IPageHost> OpenWizard(std::string_view sName, const Ref<IKeyedCollection>& colParameters,
                              const Ref<IWizardOptions>& oOptions, std::int16_t iFirst, bool bSecond,
                              std::int16_t iThird, std::int16_t iFourth, bool bFifth, bool bSixth,
                              std::string_view sSeventh, bool bShowNow, bool bLast) override;

    Event<Ref<FurtherWizard>> OnOpened;

    std::int16_t OpenCount() const; // of those that someone still holds

  private:
    std::vector<std::weak_ptr<FurtherWizard>> m_aoOpened;
};

} // namespace GleanerSvc::Workbench
