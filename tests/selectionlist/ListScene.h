// The selection list as a host page holds it, over in-memory models: what tests of the list begin with.
#pragma once

#include "pagebind/Numbers.h"
#include "selectionlist/GleanerCtl.h"
#include "tests/PageScene.h"

namespace GleanerSvc {

using Rows = IDs;

// Reaches single operations of the list that no gesture leads to.
class GleanerCtlProbe {
  public:
    static void HighlightRow(GleanerCtl& o, GridControl* p, std::int32_t lRow) { o.HighlightRow(p, lRow); }
    static void AddBitmap(GleanerCtl& oList) { oList.AddBitmap(oList.grdAvailable); }
    static void ShowMenu(GleanerCtl& oList, std::string_view sMenu) { oList.ShowMenu(sMenu); }
    static double RowInFocus(const GleanerCtl& o, bool b) { return b ? o.m_dAvailableRow : o.m_dSelectedRow; }
};

struct ListScene : ModelScene {
    explicit ListScene(std::string_view sStore) { Store().Fill(sStore); }
    ListScene(std::string_view sStore, std::string_view sSource) : ListScene(sStore) {
        oList.Initialize(sSource, colSelected);
    }

    Models::GridModel& Available() const { return oLibraries->Grid("grdAvailable"); }
    Models::GridModel& Selected() const { return oLibraries->Grid("grdSelected"); }
    // The list that a gesture is made in, and what belongs to it.
    Models::GridModel& Grid() const { return bAvailable ? Available() : Selected(); }
    const Button& Single() const { return bAvailable ? oList.cmdAddSingle : oList.cmdRemoveSingle; }
    const Button& All() const { return bAvailable ? oList.cmdAddAll : oList.cmdRemoveAll; }
    std::string Verb() const { return bAvailable ? "Add" : "Remove"; }
    std::int32_t Focus() const { return ToInt32(GleanerCtlProbe::RowInFocus(oList, bAvailable)); }

    // One column of a list, row by row, joined with blanks; trailing blanks of a cell are left out.
    static std::string Column(const Models::GridModel& oGrid, std::int32_t lCol) {
        std::string sCells;
        for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); ++lRow)
            sCells += (lRow > 1 ? " " : "") + std::string(RightTrim(oGrid.Text(lRow, lCol)));
        return sCells;
    }
    // "[A1,A2*]locked[B1]": the names in the available and in the selected list, "*" after a highlighted one.
    std::string Lists() const {
        std::string sText = Available().ToString() + Selected().ToString();
        std::erase(sText, ' ');
        return sText;
    }
    std::string Keys() const { return colSelected->ToString(); }
    // Nobody but the list itself gets a failure.
    static bool HasFailed() { return false; }
    // Operator's gestures in the terms of the screen.
    void ChooseProject(std::int32_t lPlace) { oList.cmbProjects.Choose(lPlace); }
    void Highlight(const Rows& alRows) const {
        for (const auto lRow : alRows)
            Grid().ClickLeft(lRow, 1, lRow == alRows[0] ? Models::Keys::None : Models::Keys::Ctrl);
    }

    bool bAvailable = true;
    Ref<KeyedCollection> colSelected = std::make_shared<KeyedCollection>();
    GleanerCtl oList{oApartment};
};

} // namespace GleanerSvc
