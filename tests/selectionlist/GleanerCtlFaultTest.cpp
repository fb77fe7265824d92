// Lets every closed call of every gesture fail in turn, and looks at who reports it, at the collection and at
// what a refresh brings back.
#include <gtest/gtest.h>

#include "tests/FaultChain.h"
#include "tests/selectionlist/ListReference.h"

namespace GleanerSvc {
namespace {

// Of the records selected, A4 stands within the filter's dates, A5 outside them, and B1 in another project.
constexpr std::string_view TwoProjects =
    "Alpha: A1@2026-03-01 A2@2026-03-02T23:59:59 A3@2026-03-02 A4@2026-03-01 A5@2026-03-05\n"
    "Beta: B1@2026-03-02 B2@2026-03-03\n"
    "Alpha results: A1@2026-03-01 of A1 A2@2026-03-02T23:59:59 of A2 A3@2026-03-02 of A3 A4@2026-03-01 of A4 "
    "A5@2026-03-05 of A5\nBeta results: B1@2026-03-02 of B1 B2@2026-03-03 of B2";

// Shows all projects, or Alpha through the filter. Gestures are made in one of the two lists.
struct Scene : ListScene, ListReference {
    Scene(bool bIsRaw, bool bFiltered, bool bInAvailable)
        : ListScene(TwoProjects), ListReference(Store(), bIsRaw), bRaw(bIsRaw) {
        bAvailable = bInAvailable;
        Journal().Recording(false);
        Utility().WindowSlot(std::int16_t{2});
        Utility().WindowMode(2);
        for (const auto& [lID, oEntry] : oRecords)
            if (WordsOf("A4 A5 B1").contains(oEntry.sName))
                colSelected->Add(oEntry.oRecord, DecimalText(lID));
        Initialize();
        if (!bFiltered) return;
        ChooseProject(1);
        FilterDates();
    }
    void Initialize() { oList.Initialize(bRaw ? "Raw Data" : "Result Data", colHost); }
    void FilterDates() {
        if (oList.chkFragFilter.Value() == CheckState::Unchecked) oList.chkFragFilter.Press();
        oList.DTPicker1.Pick(Date::Of({2026, 3, 1}));
        oList.DTPicker2.Pick(Date::Of({2026, 3, 2}));
    }
    std::string KeysIn(const Models::GridModel& oGrid) const { return Column(oGrid, bRaw ? 4 : 5); }
    // What the available list should show, by project, filter and collection.
    std::string Due() {
        lProject = oList.cmbProjects.ItemData(oList.cmbProjects.ListIndex());
        bFilter = oList.chkFragFilter.Value() != CheckState::Unchecked;
        bModified = oList.DateIsLastModified();
        dtFirst = oList.DTPicker1.Value();
        dtLast = oList.DTPicker2.Value();
        for (auto& [lID, oEntry] : oRecords) oEntry.bSelected = colSelected->Holds(DecimalText(lID));
        return Joined(IDs(true));
    }

    bool bRaw;
    Ref<IKeyedCollection> colHost = std::make_shared<HostCollection>(Store().SharedJournal(), colSelected);
};

using Step = Gesture<Scene>::Step;

void OneRow(Scene& o) { o.Grid().ClickLeft(2, 1); }
void TwoRanges(Scene& o) { o.Highlight({1, 3}); }
void OtherFocus(Scene& o) { (o.bAvailable ? o.Selected() : o.Available()).ClickLeft(2, 1); }
void Filtered(Scene& o) { o.FilterDates(); }
void AllProjects(Scene& o) { o.ChooseProject(0); }
void Collected(Scene& o) { o.oList.DateDataCollected.Press(); }
Step RightClick(double dRow, const std::string& sChoice) {
    return [=](Scene& o) {
        o.Platform().Choose(sChoice == "move" ? "mnu" + o.Verb() : sChoice);
        o.Grid().ClickRight(dRow, 1);
    };
}
Step Pick(DatePicker GleanerCtl::*oPicker, CivilTime oDay) {
    return [=](Scene& o) { (o.oList.*oPicker).Pick(Date::Of(oDay)); };
}

const char* const ClickEnds =
    "#_GotFocus #_OnStartSelection #_OnLButtonClickedRowCol mnu%_Click cmd%Single_Click";
const char* const KeyEnds = "#_GotFocus #_OnGridKeyDown #_OnGridKeyUp";
const char* const NotifyEnds = "UnHighlightRows^ ShowButtons^";
const char* const OptionEnds = "RefreshView^ ^";
const char* const MenuEnds = "#_GotFocus #_OnRButtonClickedRowCol mnu%_Click cmd%Single_Click "
                             "mnuShowSingleSample_Click mnuAscending_Click mnuDescending_Click";

// Made in either list. Of those who may end, "#" stands for its name and "%" for Add or Remove.
const std::vector<Gesture<Scene>> ListGestures = {
    {"left click", ClickEnds, {OtherFocus}, OneRow},
    {"heading click", ClickEnds, {OneRow}, [](Scene& o) { o.Grid().ClickLeft(0, 2); }},
    {"double click", ClickEnds, {}, [](Scene& o) { o.Grid().DoubleClick(2, 1); }},
    {"double click in rows", ClickEnds, {TwoRanges}, [](Scene& o) { o.Grid().DoubleClick(1, 1); }},
    {"heading double click", ClickEnds, {OneRow}, [](Scene& o) { o.Grid().DoubleClick(0, 1); }},
    {"button", "cmd%Single_Click", {OneRow}, [](Scene& o) { o.Single().Press(); }},
    {"button on ranges", "cmd%Single_Click", {TwoRanges}, [](Scene& o) { o.Single().Press(); }},
    {"button on no row", "cmd%Single_Click", {}, [](Scene& o) { o.Single().Click.Raise(); }},
    {"button for all", "cmd%All_Click", {}, [](Scene& o) { o.All().Press(); }},
    {"right click, move", MenuEnds, {OtherFocus}, RightClick(2, "move")},
    {"right click in rows, move", MenuEnds, {TwoRanges}, RightClick(1, "move")},
    {"right click, view", MenuEnds, {}, RightClick(2, "mnuShowSingleSample")},
    {"right click in row, view", MenuEnds, {OneRow}, RightClick(2, "mnuShowSingleSample")},
    {"heading right click", MenuEnds, {OneRow}, RightClick(0, "")},
    {"heading right click, up", MenuEnds, {}, RightClick(0, "mnuAscending")},
    {"heading right click, down", MenuEnds, {OneRow}, RightClick(0, "mnuDescending")},
    {"drag", ClickEnds, {OtherFocus}, [](Scene& o) { o.Grid().DragRows(3, 1); }},
    {"key", KeyEnds, {OtherFocus}, [](Scene& o) { o.Grid().PressKey(Models::GridKey::Down); }},
    {"focus", "#_GotFocus", {OtherFocus}, [](Scene& o) { o.Grid().Focus(); }},
    {"notification A", NotifyEnds, {OtherFocus}, [](Scene& o) { o.Grid().NotifyA(); }},
    {"notification B", NotifyEnds, {OneRow}, [](Scene& o) { o.Grid().NotifyB(); }},
    {"row header width", "", {}, [](Scene& o) { o.Grid().DragColumnWidth(0, 100); }},
    {"column width", "", {}, [](Scene& o) { o.Grid().DragColumnWidth(1, 100); }}};

const std::vector<Gesture<Scene>> PageGestures = {
    {"project", "cmbProjects_Click", {}, [](Scene& o) { o.ChooseProject(2); }},
    {"filter", "chkFragFilter_Click", {}, [](Scene& o) { o.oList.chkFragFilter.Press(); }},
    {"first day", "DTPicker1_Change", {Filtered}, Pick(&GleanerCtl::DTPicker1, {2026, 3, 2})},
    {"first day, crossing", "DTPicker1_Change", {Filtered}, Pick(&GleanerCtl::DTPicker1, {2026, 3, 5})},
    {"last day", "DTPicker2_Change", {Filtered}, Pick(&GleanerCtl::DTPicker2, {2026, 3, 3})},
    {"last day, crossing", "DTPicker2_Change", {Filtered}, Pick(&GleanerCtl::DTPicker2, {2026, 2, 5})},
    {"collected", OptionEnds, {AllProjects}, Collected},
    {"modified", OptionEnds, {AllProjects, Collected}, [](Scene& o) { o.oList.DateLastModified.Press(); }},
    {"Initialize", "Initialize^ cmbProjects_Click", {}, [](Scene& o) { o.Initialize(); }},
    {"SetProjectIndex", "cmbProjects_Click", {}, [](Scene& o) { o.oList.SetProjectIndex(1); }},
    {"Project", "cmbProjects_Click", {}, [](Scene& o) { o.oList.Project("Beta"); }},
    {"RefreshView", "RefreshView^", {OneRow}, [](Scene& o) { o.oList.RefreshView(); }},
    {"AddBitmap", "AddBitmap^", {}, [](Scene& o) { GleanerCtlProbe::AddBitmap(o.oList); }}};

const std::vector<Procedure> ListProcedures = {
    {"LoadFragmentsByProject", "RefreshView", R"(ByProjectID" "Samples" "Results" .HideCols()"},
    {"RefreshView", "cmbProjects_Click chkFragFilter_Click DTPicker1_Change DTPicker2_Change", ""},
    {"ShowProjectRows", "RefreshView cmdRemoveAll_Click mnuRemove_Click", "RowIndex.Find("},
    {"MoveSingleRow", "cmdAddSingle_Click cmdRemoveSingle_Click", ""},
    {"HighlightRow", "cmdAddSingle_Click cmdRemoveSingle_Click", ""},
    {"MoveAllRows", "cmdAddAll_Click cmdRemoveAll_Click", ""},
    {"AddSelectedItemsInCollection", "cmdAddAll_Click", "IsInCollection( Host.Holds("},
    {"RemoveSelectedItemsInCollection", "cmdRemoveAll_Click", "Host.Remove(1)"},
    {"GridSort", "_OnLButtonClickedRowCol mnuAscending_Click mnuDescending_Click", ".SortRows("},
    {"UnHighlightRows", "MoveAllRows _GotFocus _OnLButtonClickedRowCol _OnRButtonClickedRowCol", ".Params("},
    {"MakeGridStatic",
     "RefreshView ShowProjectRows MoveAllRows cmdAddSingle_Click cmdRemoveSingle_Click mnuAdd_Click "
     "mnuRemove_Click",
     ".StaticOption"},
    {"ShowButtons",
     "ShowProjectRows MoveAllRows cmdAddSingle_Click cmdRemoveSingle_Click mnuAdd_Click mnuRemove_Click "
     "_GotFocus _OnStartSelection _OnLButtonClickedRowCol _OnRButtonClickedRowCol",
     ""},
    {"Initialize", "", R"("Projects" .GetRecord( .SetGridDefaults( Platform.Today()"},
    {"AddBitmap", "", ".RegisterBitmap("},
    {"cmdAddSingle_Click", "", "grdAvailable.CopySelection("},
    {"cmdRemoveSingle_Click", "", "grdSelected.CopySelection("},
    {"mnuShowSingleSample_Click", "", ".HasSelection("},
    {"_OnRButtonClickedRowCol", "", "Platform.ShowPopup( .OpenWizard( .GetWindowSlot("},
    {"grdAvailable_OnGridKeyDown", "", "grdAvailable.KeySelection(True)"}};

bool Holds(const Words& asAll, const Words& asSome) {
    return std::includes(asAll.begin(), asAll.end(), asSome.begin(), asSome.end());
}

struct Whereabouts {
    explicit Whereabouts(const Scene& oScene)
        : asSelection(WordsOf(oScene.Keys())), asAvailable(WordsOf(oScene.KeysIn(oScene.Available()))),
          asSelected(WordsOf(oScene.KeysIn(oScene.Selected()))) {}

    bool Know(const std::string& sKey) const {
        return asSelection.contains(sKey) || asAvailable.contains(sKey) || asSelected.contains(sKey);
    }
    // The selection lies between these two.
    bool IsBetween(const Whereabouts& oBefore, const Whereabouts& oComplete) const {
        return (Holds(asSelection, oBefore.asSelection) && Holds(oComplete.asSelection, asSelection)) ||
               (Holds(oBefore.asSelection, asSelection) && Holds(asSelection, oComplete.asSelection));
    }
    // A move has lost no record that it does not let drop away. One that moves row by row shows each selected
    // record among the selected, and each that is not selected yet where it was.
    bool IsComplete(const Whereabouts& oBefore, const Whereabouts& oComplete, bool bRowByRow) const {
        const auto IsThere = [&](const std::string& sKey) {
            if (asSelection.contains(sKey)) return !bRowByRow || asSelected.contains(sKey);
            if (oBefore.asAvailable.contains(sKey) && bRowByRow) return asAvailable.contains(sKey);
            return Know(sKey) || !oComplete.Know(sKey);
        };
        return std::all_of(oBefore.asAvailable.begin(), oBefore.asAvailable.end(), IsThere) &&
               std::all_of(oBefore.asSelected.begin(), oBefore.asSelected.end(), IsThere);
    }

    Words asSelection;
    Words asAvailable; // in the lists
    Words asSelected;
};

// Beyond the reports: the records stay where they must, the store as it was, and a refresh shows what is due.
void WalkList(FaultChain& oChain, Gesture<Scene> oGesture, bool bAvailable, int nSetting) {
    const auto Named = [&](const char* sMark, const char* sName) {
        oGesture.sEnds = std::regex_replace(oGesture.sEnds, std::regex(sMark), sName);
    };
    Named("%", bAvailable ? "Add" : "Remove");
    Named("#", bAvailable ? "grdAvailable" : "grdSelected");
    SCOPED_TRACE(std::string(bAvailable ? "available" : "selected") + ", setting " + DecimalText(nSetting));
    std::optional<Whereabouts> oBefore;
    std::optional<Whereabouts> oComplete; // where the gesture brings the records
    oGesture.afnBefore.emplace_back([&](Scene& oScene) { oBefore.emplace(oScene); });
    static const std::string sStore = StoreText(ListScene(TwoProjects).Store());
    const auto Expect = [&](Scene& oScene, const auto&, const Injection&) {
        const Whereabouts oAfter(oScene);
        if (!oComplete) oComplete = oAfter;
        EXPECT_TRUE(oAfter.IsBetween(*oBefore, *oComplete)) << oScene.Keys();
        const bool bRowByRow = oGesture.sEnds.find("Single") != std::string::npos;
        EXPECT_TRUE(oComplete->asSelection == oBefore->asSelection ||
                    oAfter.IsComplete(*oBefore, *oComplete, bRowByRow))
            << oScene.Lists() << oScene.Keys();
        oGesture.sName == "Initialize" ? oScene.Initialize() : oScene.oList.RefreshView();
        EXPECT_EQ(oScene.KeysIn(oScene.Available()), oScene.Due());
        EXPECT_EQ(oScene.KeysIn(oScene.Selected()), oScene.Keys());
        const std::string sCount = "(" + DecimalText(oScene.colSelected->Count()) + ")";
        EXPECT_EQ(oScene.oList.lblSelectedCount.Caption(), sCount == "(0)" ? "" : sCount);
        EXPECT_FALSE(oScene.Available().IsLocked() || oScene.Selected().IsLocked());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
        EXPECT_EQ(StoreText(oScene.Store()), sStore);
    };
    Walk(oChain, oGesture, Expect, nSetting < 2, nSetting % 2 == 1, bAvailable);
}

TEST(GleanerCtlFault, EveryCallOfEveryGestureMayFail) {
    FaultChain oChain("GleanerCtl", ListProcedures);
    for (const int nSetting : {0, 1, 2, 3}) {
        for (const auto& oGesture : PageGestures) WalkList(oChain, oGesture, true, nSetting);
        for (const auto& oGesture : ListGestures)
            for (const bool bAvailable : {true, false}) WalkList(oChain, oGesture, bAvailable, nSetting);
    }
    EXPECT_EQ(oChain.Silent(), Words()); // nothing fails in IsDateClashing, OnTrackColWidthEnd and the reads
}

// That of the property write, whose own argument fails; that of ShowMenu, where a view may fail; and that of
// a double click, which only an open debug stop lets a failure through to.
TEST(GleanerCtlFault, OtherTrapsCatchNoClosedCall) {
    Scene oScene(true, false, true);
    EXPECT_THROW(oScene.oList.Project("Gamma"), Failure);
    auto oView = oScene.oList.mnuAdd.OnChanged.Subscribe([](const Control&, Property) { throw Injected; });
    oScene.Available().ClickRight(0, 1);
    oView = {};
    oScene.Utility().EnableDebugBreak(true);
    oScene.Utility().AllowDebugBreak(true);
    const auto oChanges = oScene.oList.SelectionChanged.Subscribe([] { throw Injected; });
    EXPECT_THROW(oScene.Available().DoubleClick(1, 1), Failure);
    EXPECT_THROW(oScene.Selected().DoubleClick(1, 1), Failure);
    EXPECT_EQ(
        oScene.Utility().Chain(),
        "SetProjectIndex (Let) -> ShowMenu -> grdAvailable_OnRButtonClickedRowCol!; cmdAddSingle_Click!; "
        "mnuAdd_Click!; grdAvailable_OnLButtonDblClkRowCol!; cmdRemoveSingle_Click!; mnuRemove_Click!; "
        "grdSelected_OnLButtonDblClkRowCol!");
}

} // namespace
} // namespace GleanerSvc
