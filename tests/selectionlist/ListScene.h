// The selection list as a host page holds it, over in-memory models: what tests of the list begin with.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "models/ModelLibraries.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

// Reaches single operations of the list that no gesture leads to.
class GleanerCtlProbe {
  public:
    static bool HighlightRow(GleanerCtl& oList, GridControl* pGrid, std::int32_t lRow) {
        return oList.HighlightRow(pGrid, lRow);
    }
    static void AddBitmap(GleanerCtl& oList) { oList.AddBitmap(oList.grdAvailable); }
    static void ShowMenu(GleanerCtl& oList, std::string_view sMenu) { oList.ShowMenu(sMenu); }
    static double RowInFocus(const GleanerCtl& oList, bool bAvailable) {
        return bAvailable ? oList.m_dAvailableRow : oList.m_dSelectedRow;
    }
};

struct ListScene {
    explicit ListScene(std::string_view sStore,
                       Ref<Models::ModelLibraries> oFilling = Models::ModelLibraries::Create())
        : oLibraries(std::move(oFilling)) {
        oLibraries->Store().Fill(sStore);
    }
    ListScene(std::string_view sStore, std::string_view sSource,
              Ref<Models::ModelLibraries> oFilling = Models::ModelLibraries::Create())
        : ListScene(sStore, std::move(oFilling)) {
        oList.Initialize(sSource, colSelected);
    }

    Models::GridModel& Available() const { return oLibraries->Grid("grdAvailable"); }
    Models::GridModel& Selected() const { return oLibraries->Grid("grdSelected"); }
    Models::PlatformModel& Platform() const { return oLibraries->Platform(); }
    Models::UtilityModel& Utility() const { return oLibraries->Utility(); }
    Models::Journal& Journal() const { return oLibraries->Journal(); }

    // One column of a list, row by row, joined with blanks; trailing blanks of a cell are left out.
    static std::string Column(const Models::GridModel& oGrid, std::int32_t lCol) {
        std::string sCells;
        for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); ++lRow) {
            sCells += (lRow > 1 ? " " : "") + std::string(RightTrim(oGrid.Text(lRow, lCol)));
        }
        return sCells;
    }
    // "A1 A2 | B1": the names in the available and in the selected list.
    std::string Lists() const { return Column(Available(), 1) + " | " + Column(Selected(), 1); }
    // The rows that are highlighted, "3" or "1 2"; of a list.
    static std::string Highlighted(const Models::GridModel& oGrid) {
        std::string sRows;
        for (const auto lRow : oGrid.HighlightedRows())
            sRows += (sRows.empty() ? "" : " ") + DecimalText(lRow);
        return sRows;
    }
    // The state of the four buttons: "add addAll" for those that can be pressed.
    std::string Buttons() const {
        std::string sButtons;
        if (oList.cmdAddSingle.Enabled()) sButtons += " add";
        if (oList.cmdAddAll.Enabled()) sButtons += " addAll";
        if (oList.cmdRemoveSingle.Enabled()) sButtons += " remove";
        if (oList.cmdRemoveAll.Enabled()) sButtons += " removeAll";
        return sButtons.empty() ? sButtons : sButtons.substr(1);
    }
    std::string Keys() const { return colSelected->ToString(); }

    // Operator's gestures in the terms of the screen.
    void ChooseProject(std::int32_t lPlace) { oList.cmbProjects.Choose(lPlace); }
    void PickDates(const CivilTime& oFirst, const CivilTime& oLast) {
        oList.DTPicker1.Pick(Date::Of(oFirst));
        oList.DTPicker2.Pick(Date::Of(oLast));
    }
    void Highlight(Models::GridModel& oGrid, const std::vector<std::int32_t>& alRows) const {
        auto eKeys = Models::Keys::None;
        for (const auto lRow : alRows) {
            oGrid.ClickLeft(lRow, 1, eKeys);
            eKeys = Models::Keys::Ctrl;
        }
    }

    Ref<Models::ModelLibraries> oLibraries;
    Ref<KeyedCollection> colSelected = std::make_shared<KeyedCollection>();
    GleanerCtl oList{oLibraries->MakeApartment()};
};

} // namespace GleanerSvc
