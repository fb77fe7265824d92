#include "pagebind/controls/TabControl.h"

#include "pagebind/Failure.h"

namespace GleanerSvc {

TabControl::TabControl(Container& oContainer, std::string sName, Bounds oBounds,
                       const std::vector<std::string>& asCaptions)
    : Container(&oContainer, std::move(sName), oBounds) {
    for (const auto& sCaption : asCaptions) m_aoTabs.push_back({sCaption, true});
}

void TabControl::PutOnTab(const Control& oChild, std::int16_t iTab) {
    TabAt(iTab); // fails where there is none
    m_oTabOfChild[&oChild] = iTab;
}

bool TabControl::Shows(const Control& oChild) const {
    const auto itTab = m_oTabOfChild.find(&oChild);
    return itTab == m_oTabOfChild.end() || itTab->second == m_iTab;
}

void TabControl::Tab(std::int16_t iTab) {
    TabAt(iTab);
    const std::int16_t iBefore = m_iTab;
    if (Change(m_iTab, iTab, Property::FrontTab)) Click.Raise(iBefore);
}

void TabControl::TabEnabled(std::int16_t iTab, bool bEnabled) {
    TabAt(iTab);
    Change(m_aoTabs[static_cast<std::size_t>(iTab)].bEnabled, bEnabled, Property::TabEnabled);
}

void TabControl::ChooseTab(std::int16_t iTab) {
    if (CanOperate() && HasTab(iTab) && TabEnabled(iTab)) Tab(iTab);
}

const TabControl::OneTab& TabControl::TabAt(std::int16_t iTab) const {
    if (!HasTab(iTab)) {
        throw Failure(FailureNumber::InvalidPropertyValue, Name(),
                      Name() + " has no tab " + std::to_string(iTab) + ".");
    }
    return m_aoTabs[static_cast<std::size_t>(iTab)];
}

std::string TabControl::StateText() const {
    std::string sText;
    for (std::int16_t iTab = 0; iTab < Tabs(); ++iTab) {
        sText += (iTab > 0 ? ", " : "") + TabCaption(iTab) + (iTab == m_iTab ? "*" : "") +
                 (TabEnabled(iTab) ? "" : "-");
    }
    return " tabs=[" + sText + "]";
}

} // namespace GleanerSvc
