// What the mouse does on the plate. A gesture that selects changes marks and selection, and the refresh shows
// it.
#include "pagebind/Text.h"
#include "platepages/PlatePage.h"

namespace GleanerSvc {

namespace {

constexpr std::string_view LeftButton = "left";
constexpr std::string_view RightButton = "right";

} // namespace

// A middle button counts as the right one.
void PlatePage::picWell_MouseDown(std::int16_t iButton) {
    Terminal("picWell_MouseDown",
             [&] { m_sButton = iButton == MouseButton::Left ? LeftButton : RightButton; });
}

// An empty well takes no click, and has no menu.
void PlatePage::picWell_Click(std::int16_t iIndex) {
    Terminal("picWell_Click", [&] {
        const Well oWell = WellAt(iIndex);
        const std::int32_t lState = StateIn(m_aWells, oWell);
        if (!EqualsIgnoringCase(m_sButton, LeftButton)) {
            m_iWellIndex = iIndex;
            if (lState != WellState::Empty) OpenWellMenu(oWell);
            return;
        }
        if (lState == WellState::Empty) return;
        const PlateItem oItem = ItemAt(PlateOnShow(), oWell);
        if (lState == WellState::Plain || lState == WellState::Special) Toggle(oItem);
        const std::string sKey = oItem.Key();
        if (oItem.IsSelected() && !IsInSelection(sKey)) oItem.IsSelected(false);
        cmbPlates_Click();
    });
}

void PlatePage::OpenWellMenu(const Well& oWell) {
    ShowMenu("Single", ItemAt(PlateOnShow(), oWell).IsSelected());
    Platform().ShowPopup(mnuOptions, MenuForRightButton);
}

// Unlike the gestures on many wells this one trusts the mark and does not ask the collection.
void PlatePage::Toggle(const PlateItem& oItem) const {
    if (oItem.IsSelected()) {
        oItem.IsSelected(false);
        Deref(m_colSelected).Remove(oItem.Key());
    } else {
        oItem.IsSelected(true);
        Deref(m_colSelected).Add(oItem.Record(), oItem.Key());
    }
}

void PlatePage::picAllWells_Click() {
    Terminal("picAllWells_Click", [&] { ToggleWells([](const Well&) { return true; }); });
}

void PlatePage::lblNumber_Click(std::int16_t iIndex) {
    Terminal("lblNumber_Click",
             [&] { ToggleWells([iIndex](const Well& oWell) { return oWell.iCol == iIndex; }); });
}

void PlatePage::lblLetter_Click(std::int16_t iIndex) {
    Terminal("lblLetter_Click",
             [&] { ToggleWells([iIndex](const Well& oWell) { return oWell.iRow == iIndex; }); });
}

// A set that is wholly selected is cleared, any other is selected as a whole.
template<class F>
void PlatePage::ToggleWells(F&& fnBelongs) {
    bool bAllSelected = true;
    ForEachItem(fnBelongs, [&](const PlateItem& oItem) {
        if (oItem.IsSelected()) return;
        bAllSelected = false;
        oItem.IsSelected(false);
    });
    ForEachItem(fnBelongs, [&](const PlateItem& oItem) {
        if (oItem.IsThere()) SelectItem(oItem, !bAllSelected);
    });
    cmbPlates_Click();
}

// The records of the wells that are not empty, row by row.
template<class F, class G>
void PlatePage::ForEachItem(F&& fnBelongs, G&& fnVisit) const {
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
        const Well oWell = WellAt(iIndex);
        if (fnBelongs(oWell) && StateIn(m_aWells, oWell) != WellState::Empty)
            fnVisit(ItemAt(PlateOnShow(), oWell));
    }
}

void PlatePage::SelectItem(const PlateItem& oItem, bool bSelect) const {
    oItem.IsSelected(bSelect);
    const std::string sKey = oItem.Key();
    if (IsInSelection(sKey) == bSelect) return;
    if (bSelect) {
        m_colSelected->Add(oItem.Record(), sKey);
    } else {
        m_colSelected->Remove(sKey);
    }
}

// The wells never bring back what the list's menu hid.
void PlatePage::ShowMenu(std::string_view sType, bool bSelected) {
    Raising("ShowMenu", [&] {
        const auto Show = [&](bool bMany, bool bSelect, bool bRemove) {
            mnuSelectMostRecent.Visible(bMany);
            mnuSelectCustom.Visible(bMany);
            mnuSelectAll.Visible(bMany);
            mnuSelect.Visible(bSelect);
            mnuRemove.Visible(bRemove);
        };
        if (EqualsIgnoringCase(sType, "Multi")) {
            Show(true, false, false);
            mnuDeSelect.Enabled(bSelected);
        } else if (EqualsIgnoringCase(sType, "Single")) {
            Show(false, true, false);
            mnuSelect.Enabled(!bSelected);
            mnuDeSelect.Enabled(bSelected);
        } else if (EqualsIgnoringCase(sType, "Remove")) {
            Show(false, false, true);
            mnuSeparator.Visible(false);
            mnuDeSelect.Visible(false);
        }
    });
}

// Twins: which of them can be chosen is all that differs.
void PlatePage::mnuSelect_Click() {
    Terminal("mnuSelect_Click", [&] { ToggleWellOfMenu(); });
}

void PlatePage::mnuDeSelect_Click() {
    Terminal("mnuDeSelect_Click", [&] { ToggleWellOfMenu(); });
}

void PlatePage::ToggleWellOfMenu() {
    m_sButton = LeftButton;
    picWell_Click(m_iWellIndex);
}

} // namespace GleanerSvc
