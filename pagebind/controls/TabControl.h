// A tab control. It shows the controls that stand on the tab in front, and those that stand on no tab.
#pragma once

#include <unordered_map>

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class TabControl final : public Container {
  public:
    // Tabs are numbered from 0; the first is in front. No captions is no tab at all.
    TabControl(Container& oContainer, std::string sName, Bounds oBounds,
               const std::vector<std::string>& asCaptions);

    std::int16_t Tabs() const { return static_cast<std::int16_t>(m_aoTabs.size()); }
    const std::string& TabCaption(std::int16_t iTab) const { return TabAt(iTab).sCaption; }

    // Puts a child of this control on a tab.
    void PutOnTab(const Control& oChild, std::int16_t iTab);
    bool Shows(const Control& oChild) const override;

    // The tab in front. A change raises Click with the tab that was in front before, from code too. A tab
    // that does not exist fails with invalid property value.
    std::int16_t Tab() const { return m_iTab; }
    void Tab(std::int16_t iTab);

    // Whether the operator can bring a tab to the front; code can in any case.
    bool TabEnabled(std::int16_t iTab) const { return TabAt(iTab).bEnabled; }
    void TabEnabled(std::int16_t iTab, bool bEnabled);

    Event<std::int16_t> Click;

    // The operator's door.
    void ChooseTab(std::int16_t iTab);

  protected:
    std::string StateText() const override;

  private:
    struct OneTab {
        std::string sCaption;
        bool bEnabled = true;
    };
    bool HasTab(std::int16_t iTab) const { return iTab >= 0 && iTab < Tabs(); }
    const OneTab& TabAt(std::int16_t iTab) const;

    std::vector<OneTab> m_aoTabs;
    std::unordered_map<const Control*, std::int16_t> m_oTabOfChild;
    std::int16_t m_iTab = 0;
};

} // namespace GleanerSvc
