// The scene in which the calls of the list's gestures fail one after the other, and the gestures.
#pragma once

#include <functional>

#include "tests/HostCollection.h"
#include "tests/selectionlist/ListReference.h"

namespace GleanerSvc {

// Of the records selected, the first stands within the filter's dates, the second outside them, and the third
// in another project.
inline constexpr std::string_view TwoProjects =
    "Alpha: A1@2026-03-01 A2@2026-03-02T23:59:59 A3@2026-03-02 A4@2026-03-01 A5@2026-03-05\n"
    "Beta: B1@2026-03-02 B2@2026-03-03\n"
    "Alpha results: A1@2026-03-01 of A1 A2@2026-03-02T23:59:59 of A2 A3@2026-03-02 of A3 A4@2026-03-01 of A4 "
    "A5@2026-03-05 of A5\n"
    "Beta results: B1@2026-03-02 of B1 B2@2026-03-03 of B2";

// Shows all projects, or Alpha through the filter.
struct FaultScene : ListScene {
    FaultScene(bool bIsRaw, bool bFiltered) : ListScene(TwoProjects), bRaw(bIsRaw) {
        Journal().Recording(false);
        Utility().WindowSlot(std::int16_t{2});
        Utility().WindowMode(2);
        for (const auto& [lID, oRecord] : ListReference(oLibraries->Store(), bRaw).oRecords) {
            const bool bSelected = oRecord.sName == "A4" || oRecord.sName == "A5" || oRecord.sName == "B1";
            if (bSelected) colSelected->Add(oRecord.oRecord, DecimalText(lID));
        }
        Initialize();
        if (!bFiltered) return;
        ChooseProject(1);
        FilterDates();
    }
    void Initialize() { oList.Initialize(bRaw ? "Raw Data" : "Result Data", colHost); }
    void FilterDates() {
        if (oList.chkFragFilter.Value() == CheckState::Unchecked) oList.chkFragFilter.Press();
        PickDates({2026, 3, 1}, {2026, 3, 2});
    }
    bool IsAvailable(const Models::GridModel& oGrid) const { return &oGrid == &Available(); }
    const Button& Single(const Models::GridModel& oGrid) const {
        return IsAvailable(oGrid) ? oList.cmdAddSingle : oList.cmdRemoveSingle;
    }
    const Button& All(const Models::GridModel& oGrid) const {
        return IsAvailable(oGrid) ? oList.cmdAddAll : oList.cmdRemoveAll;
    }

    bool bRaw;
    Ref<IKeyedCollection> colHost =
        std::make_shared<HostCollection>(oLibraries->Store().SharedJournal(), colSelected);
};

using Scene = FaultScene;
using Grid = Models::GridModel;
using Step = std::function<void(Scene&, Grid&)>;

// sEnds: who may report last, a handler that shows it to the user or, with "^", what the failure escapes
// from;
// "^" alone is an escape without any report. "#" stands for the list's name and "%" for Add or Remove.
struct Gesture {
    const char* sName;
    const char* sEnds;
    Step fnPrepare;
    Step fnMake;
};

inline void Nothing(Scene& /*o*/, Grid& /*g*/) {}
inline void OneRow(Scene& /*o*/, Grid& g) { g.ClickLeft(2, 1); }
inline void TwoRanges(Scene& o, Grid& g) { o.Highlight(g, {1, 3}); }
inline void OtherFocus(Scene& o, Grid& g) { OneRow(o, o.IsAvailable(g) ? o.Selected() : o.Available()); }
inline void Filtered(Scene& o, Grid& /*g*/) { o.FilterDates(); }
inline void AllProjects(Scene& o, Grid& /*g*/) { o.ChooseProject(0); }
inline void AllCollected(Scene& o, Grid& /*g*/) {
    o.ChooseProject(0);
    o.oList.DateDataCollected.Press();
}
inline Step RightClick(double dRow, const char* sChoice) {
    return [=](Scene& o, Grid& g) {
        o.Platform().Choose(std::string(sChoice) == "move" ? (o.IsAvailable(g) ? "mnuAdd" : "mnuRemove")
                                                           : sChoice);
        g.ClickRight(dRow, 1);
    };
}

inline const char* const ClickEnds =
    "#_GotFocus #_OnStartSelection #_OnLButtonClickedRowCol mnu%_Click cmd%Single_Click";
inline const char* const KeyEnds = "#_GotFocus #_OnGridKeyDown #_OnGridKeyUp";
inline const char* const NotifyEnds = "UnHighlightRows^ ShowButtons^";
inline const char* const OptionEnds = "RefreshView^ ^";
inline const char* const MenuEnds = "#_GotFocus #_OnRButtonClickedRowCol mnu%_Click cmd%Single_Click "
                                    "mnuShowSingleSample_Click mnuAscending_Click mnuDescending_Click";

// Made in either list.
inline const std::vector<Gesture> ListGestures = {
    {"left click", ClickEnds, OtherFocus, OneRow},
    {"heading click", ClickEnds, OneRow, [](Scene&, Grid& g) { g.ClickLeft(0, 2); }},
    {"double click", ClickEnds, Nothing, [](Scene&, Grid& g) { g.DoubleClick(2, 1); }},
    {"double click in rows", ClickEnds, TwoRanges, [](Scene&, Grid& g) { g.DoubleClick(1, 1); }},
    {"heading double click", ClickEnds, OneRow, [](Scene&, Grid& g) { g.DoubleClick(0, 1); }},
    {"button", "cmd%Single_Click", OneRow, [](Scene& o, Grid& g) { o.Single(g).Press(); }},
    {"button on ranges", "cmd%Single_Click", TwoRanges, [](Scene& o, Grid& g) { o.Single(g).Press(); }},
    {"button on no row", "cmd%Single_Click", Nothing, [](Scene& o, Grid& g) { o.Single(g).Click.Raise(); }},
    {"button for all", "cmd%All_Click", Nothing, [](Scene& o, Grid& g) { o.All(g).Press(); }},
    {"right click, move", MenuEnds, OtherFocus, RightClick(2, "move")},
    {"right click in rows, move", MenuEnds, TwoRanges, RightClick(1, "move")},
    {"right click, view", MenuEnds, Nothing, RightClick(2, "mnuShowSingleSample")},
    {"right click in row, view", MenuEnds, OneRow, RightClick(2, "mnuShowSingleSample")},
    {"heading right click", MenuEnds, OneRow, RightClick(0, "")},
    {"heading right click, up", MenuEnds, Nothing, RightClick(0, "mnuAscending")},
    {"heading right click, down", MenuEnds, OneRow, RightClick(0, "mnuDescending")},
    {"drag", ClickEnds, OtherFocus, [](Scene&, Grid& g) { g.DragRows(3, 1); }},
    {"key", KeyEnds, OtherFocus, [](Scene&, Grid& g) { g.PressKey(Models::GridKey::Down); }},
    {"focus", "#_GotFocus", OtherFocus, [](Scene&, Grid& g) { g.Focus(); }},
    {"notification A", NotifyEnds, OtherFocus, [](Scene&, Grid& g) { g.NotifyA(); }},
    {"notification B", NotifyEnds, OneRow, [](Scene&, Grid& g) { g.NotifyB(); }},
    {"row header width", "", Nothing, [](Scene&, Grid& g) { g.DragColumnWidth(0, 100); }},
    {"column width", "", Nothing, [](Scene&, Grid& g) { g.DragColumnWidth(1, 100); }},
};

inline Step Pick(DatePicker GleanerCtl::*oPicker, CivilTime oDay) {
    return [=](Scene& o, Grid&) { (o.oList.*oPicker).Pick(Date::Of(oDay)); };
}

inline const std::vector<Gesture> PageGestures = {
    {"project", "cmbProjects_Click", Nothing, [](Scene& o, Grid&) { o.ChooseProject(2); }},
    {"filter", "chkFragFilter_Click", Nothing, [](Scene& o, Grid&) { o.oList.chkFragFilter.Press(); }},
    {"first day", "DTPicker1_Change", Filtered, Pick(&GleanerCtl::DTPicker1, {2026, 3, 2})},
    {"first day, crossing", "DTPicker1_Change", Filtered, Pick(&GleanerCtl::DTPicker1, {2026, 3, 5})},
    {"last day", "DTPicker2_Change", Filtered, Pick(&GleanerCtl::DTPicker2, {2026, 3, 3})},
    {"last day, crossing", "DTPicker2_Change", Filtered, Pick(&GleanerCtl::DTPicker2, {2026, 2, 5})},
    {"collected", OptionEnds, AllProjects, [](Scene& o, Grid&) { o.oList.DateDataCollected.Press(); }},
    {"modified", OptionEnds, AllCollected, [](Scene& o, Grid&) { o.oList.DateLastModified.Press(); }},
    {"Initialize", "Initialize^ cmbProjects_Click", Nothing, [](Scene& o, Grid&) { o.Initialize(); }},
    {"SetProjectIndex", "cmbProjects_Click", Nothing, [](Scene& o, Grid&) { o.oList.SetProjectIndex(1); }},
    {"Project", "cmbProjects_Click", Nothing, [](Scene& o, Grid&) { o.oList.Project("Beta"); }},
    {"RefreshView", "RefreshView^", OneRow, [](Scene& o, Grid&) { o.oList.RefreshView(); }},
    {"AddBitmap", "AddBitmap^", Nothing, [](Scene& o, Grid&) { GleanerCtlProbe::AddBitmap(o.oList); }},
};

} // namespace GleanerSvc
