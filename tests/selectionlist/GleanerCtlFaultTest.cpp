// Lets every closed call of every gesture fail in turn, and looks at who reports it, at the collection and at
// what a refresh brings back.
#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <set>
#include <sstream>

#include "tests/selectionlist/ListReference.h"

namespace GleanerSvc {
namespace {

const Failure Injected(4711, "Store room", "The store is away.", "store.hlp", 17);

// A host's own collection, whose operations can fail as well.
class HostCollection final : public IKeyedCollection, Models::Journaled {
  public:
    HostCollection(Ref<Models::Journal> oJournal, Ref<IKeyedCollection> colInner)
        : Journaled(std::move(oJournal), "Host"), m_colInner(std::move(colInner)) {}
    void Add(const Value& vItem) override { Called("Add", vItem).Add(vItem); }
    void Add(const Value& vItem, std::string_view sKey) override {
        Called("Add", vItem, sKey).Add(vItem, sKey);
    }
    Value Item(const Value& vKey) const override { return Called("Item", vKey).Item(vKey); }
    void Remove(const Value& vKey) override { Called("Remove", vKey).Remove(vKey); }
    bool Holds(std::string_view sKey) const override { return Called("Holds", sKey).Holds(sKey); }
    std::int32_t Count() const override { return Called("Count").Count(); }

  private:
    template<class... Args>
    IKeyedCollection& Called(std::string_view sOperation, const Args&... aArguments) const {
        Call(sOperation, aArguments...);
        return *m_colInner;
    }
    Ref<IKeyedCollection> m_colInner;
};

// Of the records selected, the first stands within the filter's dates, the second outside them, and the third
// in another project.
constexpr std::string_view TwoProjects =
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

// Who may report last: a handler, which shows it to the user; or, with "^", what the failure escapes from,
// where
// "^" alone is an escape without any report. "#" stands for the list's name and "%" for Add or Remove.
struct Gesture {
    const char* sName;
    const char* sEnds;
    Step fnPrepare;
    Step fnMake;
};

void Nothing(Scene& /*o*/, Grid& /*g*/) {}
void OneRow(Scene& /*o*/, Grid& g) { g.ClickLeft(2, 1); }
void TwoRanges(Scene& o, Grid& g) { o.Highlight(g, {1, 3}); }
void OtherFocus(Scene& o, Grid& g) { OneRow(o, o.IsAvailable(g) ? o.Selected() : o.Available()); }
void Filtered(Scene& o, Grid& /*g*/) { o.FilterDates(); }
void AllProjects(Scene& o, Grid& /*g*/) { o.ChooseProject(0); }
void AllCollected(Scene& o, Grid& /*g*/) {
    o.ChooseProject(0);
    o.oList.DateDataCollected.Press();
}
Step RightClick(double dRow, const char* sChoice) {
    return [=](Scene& o, Grid& g) {
        o.Platform().Choose(std::string(sChoice) == "move" ? (o.IsAvailable(g) ? "mnuAdd" : "mnuRemove")
                                                           : sChoice);
        g.ClickRight(dRow, 1);
    };
}

const char* const ClickEnds =
    "#_GotFocus #_OnStartSelection #_OnLButtonClickedRowCol mnu%_Click cmd%Single_Click";
const char* const KeyEnds = "#_GotFocus #_OnGridKeyDown #_OnGridKeyUp";
const char* const NotifyEnds = "UnHighlightRows^ ShowButtons^";
const char* const OptionEnds = "RefreshView^ ^";
const char* const MenuEnds = "#_GotFocus #_OnRButtonClickedRowCol mnu%_Click cmd%Single_Click "
                             "mnuShowSingleSample_Click mnuAscending_Click mnuDescending_Click";

// Made in either list.
const Gesture ListGestures[] = {
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

Step Pick(DatePicker GleanerCtl::*oPicker, CivilTime oDay) {
    return [=](Scene& o, Grid&) { (o.oList.*oPicker).Pick(Date::Of(oDay)); };
}

const Gesture PageGestures[] = {
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

// Trapped procedures with those that call them, where a word that begins with "_" is that event of either
// list; and parts of calls that they alone make: where such a call fails, the procedure reports first.
const struct {
    const char* sProcedure;
    const char* sCallers;
    const char* sCalls;
} Procedures[] = {
    {"LoadFragmentsByProject", "RefreshView", "ByProjectID\" \"Samples\" \"Results\" .HideCols("},
    {"RefreshView", "cmbProjects_Click chkFragFilter_Click DTPicker1_Change DTPicker2_Change", ""},
    {"ShowProjectRows", "RefreshView cmdRemoveAll_Click mnuRemove_Click", "RowIndex.Find("},
    {"MoveSingleRow", "cmdAddSingle_Click cmdRemoveSingle_Click", ""},
    {"HighlightRow", "cmdAddSingle_Click cmdRemoveSingle_Click", ""},
    {"MoveAllRows", "cmdAddAll_Click cmdRemoveAll_Click", ""},
    {"AddSelectedItemsInCollection", "cmdAddAll_Click", "IsInCollection( Host.Holds("},
    {"RemoveSelectedItemsInCollection", "cmdRemoveAll_Click", "Host.Remove(1)"},
    {"ShowMenu", "_OnRButtonClickedRowCol", ""},
    {"GridSort", "_OnLButtonClickedRowCol mnuAscending_Click mnuDescending_Click", ".SortRows("},
    {"UnHighlightRows", "MoveAllRows _GotFocus _OnLButtonClickedRowCol _OnRButtonClickedRowCol", ".Params("},
    {"MakeGridStatic",
     "RefreshView ShowProjectRows MoveAllRows cmdAddSingle_Click cmdRemoveSingle_Click mnuAdd_Click "
     "mnuRemove_Click",
     ".StaticOption"},
    {"ShowButtons",
     "ShowProjectRows MoveAllRows cmdAddSingle_Click cmdRemoveSingle_Click mnuAdd_Click mnuRemove_Click "
     "_GotFocus "
     "_OnStartSelection _OnLButtonClickedRowCol _OnRButtonClickedRowCol",
     ""},
    {"Initialize", "", "\"Projects\" .GetRecord( .SetGridDefaults( Platform.Today("},
    {"AddBitmap", "", ".RegisterBitmap("},
    {"cmdAddSingle_Click", "", "grdAvailable.CopySelection("},
    {"cmdRemoveSingle_Click", "", "grdSelected.CopySelection("},
    {"mnuShowSingleSample_Click", "", ".HasSelection("},
    {"#_OnRButtonClickedRowCol", "", "Platform.ShowPopup( .OpenWizard( .GetWindowSlot("},
    {"grdAvailable_OnGridKeyDown", "", "grdAvailable.KeySelection(True)"},
};

// All that a failure can reach: nothing in IsDateClashing, OnTrackColWidthEnd and the property reads can
// fail.
const char* const Reporters =
    "Initialize RefreshView LoadFragmentsByProject ShowProjectRows AddBitmap MoveSingleRow "
    "MoveAllRows AddSelectedItemsInCollection RemoveSelectedItemsInCollection ShowMenu GridSort ShowButtons "
    "MakeGridStatic UnHighlightRows HighlightRow cmbProjects_Click chkFragFilter_Click DTPicker1_Change "
    "DTPicker2_Change cmdAddSingle_Click cmdRemoveSingle_Click cmdAddAll_Click cmdRemoveAll_Click "
    "mnuAdd_Click "
    "mnuRemove_Click mnuAscending_Click mnuDescending_Click mnuShowSingleSample_Click "
    "grdAvailable_GotFocus grdAvailable_OnStartSelection grdAvailable_OnLButtonClickedRowCol "
    "grdAvailable_OnLButtonDblClkRowCol grdAvailable_OnRButtonClickedRowCol grdAvailable_OnGridKeyDown "
    "grdAvailable_OnGridKeyUp grdSelected_GotFocus grdSelected_OnStartSelection "
    "grdSelected_OnLButtonClickedRowCol "
    "grdSelected_OnLButtonDblClkRowCol grdSelected_OnRButtonClickedRowCol grdSelected_OnGridKeyDown "
    "grdSelected_OnGridKeyUp";

using Words = std::set<std::string>;

Words WordsOf(const std::string& sText) {
    std::istringstream oText(sText);
    return {std::istream_iterator<std::string>(oText), {}};
}

bool IsCalledBy(const std::string& sProcedure, const std::string& sCaller) {
    const auto nEvent = sCaller.starts_with("grd") ? sCaller.find('_') : 0;
    for (const auto& oProcedure : Procedures) {
        if (oProcedure.sProcedure == sProcedure)
            return WordsOf(oProcedure.sCallers).contains(sCaller.substr(nEvent));
    }
    return false;
}

bool Holds(const Words& asAll, const Words& asSome) {
    return std::includes(asAll.begin(), asAll.end(), asSome.begin(), asSome.end());
}

std::string Rows(const FaultScene& oScene) {
    const std::int32_t lKeyCol = oScene.bRaw ? 4 : 5;
    return ListScene::Column(oScene.Available(), lKeyCol) + " | " +
           ListScene::Column(oScene.Selected(), lKeyCol);
}

// What the list shows after a refresh.
std::string Shown(const FaultScene& oScene) {
    const bool bLocked = oScene.Available().IsLocked() || oScene.Selected().IsLocked();
    return Rows(oScene) + " " + oScene.oList.lblSelectedCount.Caption() + (bLocked ? " locked" : "") +
           " cursor=" + DecimalText(oScene.Platform().ScreenCursor());
}

// What it should show, by its project, its filter and the collection.
std::string Sound(const FaultScene& oScene) {
    const GleanerCtl& oList = oScene.oList;
    ListReference oReference(oScene.oLibraries->Store(), oScene.bRaw);
    oReference.lProject = oList.cmbProjects.ItemData(oList.cmbProjects.ListIndex());
    oReference.bFilter = oList.chkFragFilter.Value() != CheckState::Unchecked;
    oReference.bModified = oList.DateIsLastModified();
    oReference.dtFirst = oList.DTPicker1.Value();
    oReference.dtLast = oList.DTPicker2.Value();
    for (auto& [lID, oRecord] : oReference.oRecords)
        oRecord.bSelected = oScene.colSelected->Holds(DecimalText(lID));
    std::string sRows;
    for (const auto lID : oReference.Rows(true)) sRows += (sRows.empty() ? "" : " ") + DecimalText(lID);
    const auto lCount = oScene.colSelected->Count();
    return sRows + " | " + oScene.Keys() + (lCount > 0 ? " (" + DecimalText(lCount) + ")" : " ") +
           " cursor=0";
}

std::string StoreText(const ListScene& oScene) {
    std::string sText = oScene.oLibraries->Store().ToString();
    for (const auto& oRecord : oScene.oLibraries->Store().Samples().All()) sText += oRecord->ToString() + ";";
    for (const auto& oRecord : oScene.oLibraries->Store().Results().All()) sText += oRecord->ToString() + ";";
    return sText;
}

struct Whereabouts {
    Whereabouts() = default;
    explicit Whereabouts(const FaultScene& oScene)
        : asSelected(WordsOf(oScene.Keys())), asAnywhere(WordsOf(Rows(oScene))) {
        asAnywhere.insert(asSelected.begin(), asSelected.end());
    }
    // The selection lies between the two, and a move has lost no record that stands somewhere in both.
    bool IsOnTheWay(const Whereabouts& oBefore, const Whereabouts& oComplete) const {
        const bool bGrew = Holds(asSelected, oBefore.asSelected) && Holds(oComplete.asSelected, asSelected);
        const bool bShrank = Holds(oBefore.asSelected, asSelected) && Holds(asSelected, oComplete.asSelected);
        const bool bMove = oBefore.asSelected != oComplete.asSelected;
        return (bGrew || bShrank) &&
               (!bMove ||
                std::all_of(oBefore.asAnywhere.begin(), oBefore.asAnywhere.end(), [&](const auto& sKey) {
                    return asAnywhere.contains(sKey) || !oComplete.asAnywhere.contains(sKey);
                }));
    }

    Words asSelected;
    Words asAnywhere; // in the selection or in a list
};

struct FaultWalk {
    bool bRaw = true;
    bool bFiltered = false;
    const Gesture* pGesture = nullptr;
    bool bAvailable = true;
    int nGestures = 0;
    int nFailures = 0;
    Words asReporters;

    void Walk() {
        ++nGestures;
        Whereabouts oComplete;
        Run(0, oComplete);
        for (std::int64_t nCall = 1; Run(nCall, oComplete); ++nCall) ++nFailures;
    }

    // Lets that call fail, or none for 0, which tells where the gesture brings the records. False when the
    // gesture has no such call.
    bool Run(std::int64_t nCall, Whereabouts& oComplete) {
        FaultScene oScene(bRaw, bFiltered);
        Grid& oGrid = bAvailable ? oScene.Available() : oScene.Selected();
        pGesture->fnPrepare(oScene, oGrid);
        const Whereabouts oBefore(oScene);
        const std::string sStore = StoreText(oScene);
        const bool bEscaped = Escapes(oScene, oGrid, nCall);
        const bool bFailed = nCall > 0 && oScene.Journal().HasFailed();
        const std::string sCall =
            bFailed ? oScene.Journal().Entries().at(static_cast<std::size_t>(nCall) - 1) : "";
        oScene.Journal().StopFailing();
        oScene.Journal().Recording(false);
        SCOPED_TRACE(std::string(pGesture->sName) + (bAvailable ? " in available" : " in selected") +
                     (bRaw ? ", raw" : ", result") + (bFiltered ? ", filtered: " : ": ") + sCall);
        EXPECT_EQ(ChainTrouble(oScene.Utility().Reports(), bFailed, bEscaped, sCall), "");
        const Whereabouts oAfter(oScene);
        if (nCall == 0) oComplete = oAfter;
        EXPECT_TRUE(oAfter.IsOnTheWay(oBefore, oComplete)) << oScene.Lists() << " | " << oScene.Keys();
        std::string(pGesture->sName) == "Initialize" ? oScene.Initialize() : oScene.oList.RefreshView();
        EXPECT_EQ(Shown(oScene), Sound(oScene));
        EXPECT_EQ(StoreText(oScene), sStore);
        return bFailed;
    }

    bool Escapes(FaultScene& oScene, Grid& oGrid, std::int64_t nCall) const {
        oScene.Journal().Clear();
        oScene.Journal().Recording(true);
        if (nCall > 0) oScene.Journal().FailCall(nCall, Injected);
        try {
            pGesture->fnMake(oScene, oGrid);
            return false;
        } catch (const Failure& oFailure) {
            EXPECT_EQ(oFailure, Injected);
            return true;
        }
    }

    std::string Expanded(std::string sText) const {
        for (std::size_t nAt = 0; (nAt = sText.find_first_of("#%")) != std::string::npos;) {
            const char* sName = bAvailable ? "grdAvailable" : "grdSelected";
            sText.replace(nAt, 1, sText[nAt] == '#' ? sName : bAvailable ? "Add" : "Remove");
        }
        return sText;
    }

    // "" when the reports are those that the failed call must lead to.
    std::string ChainTrouble(const std::vector<Models::Report>& aoReports, bool bFailed, bool bEscaped,
                             const std::string& sCall) {
        if (!bFailed) return aoReports.empty() && !bEscaped ? "" : "a report without a failure";
        const std::string sFirst = aoReports.empty() ? "" : aoReports.front().sProcedure;
        std::string sLast;
        for (const auto& oReport : aoReports) {
            asReporters.insert(oReport.sProcedure);
            if (!sLast.empty() && !IsCalledBy(sLast, oReport.sProcedure))
                return sLast + " -> " + oReport.sProcedure;
            const bool bShown = &oReport == &aoReports.back() && !bEscaped;
            const bool bRight = oReport.oFailure == Injected && oReport.sAppTitle == "Workstation" &&
                                oReport.sObjectType == "GleanerCtl" && oReport.sExtra.empty();
            if (!bRight || oReport.bShowUser != bShown) return "report " + oReport.ToString();
            sLast = oReport.sProcedure;
        }
        if (!WordsOf(Expanded(pGesture->sEnds)).contains(sLast + (bEscaped ? "^" : "")))
            return "ends with " + sLast;
        for (const auto& oProcedure : Procedures) {
            const std::string sMaker = Expanded(oProcedure.sProcedure);
            for (const auto& sPart : WordsOf(oProcedure.sCalls)) {
                if (sCall.find(sPart) != std::string::npos && sFirst != sMaker)
                    return "begins without " + sMaker;
            }
        }
        return "";
    }
};

// Some traps catch no closed call: that of the property write, whose own argument fails; that of ShowMenu,
// where a view may fail; and that of a double click, which only an open debug stop lets a failure through to.
Words OtherReporters() {
    const auto Fail = [](const Control&, Property) { throw Injected; };
    FaultScene oScene(true, false);
    GleanerCtl& oList = oScene.oList;
    EXPECT_THROW(oList.Project("Gamma"), Failure);
    {
        const auto oView = oList.mnuAdd.OnChanged.Subscribe(Fail);
        oScene.Available().ClickRight(0, 1);
    }
    EXPECT_EQ(oScene.Utility().Chain(),
              "SetProjectIndex (Let) -> ShowMenu -> grdAvailable_OnRButtonClickedRowCol!");
    oScene.Utility().EnableDebugBreak(true);
    oScene.Utility().AllowDebugBreak(true);
    const auto oChanges = oList.SelectionChanged.Subscribe([] { throw Injected; });
    EXPECT_THROW(oScene.Available().DoubleClick(1, 1), Failure);
    EXPECT_THROW(oScene.Selected().DoubleClick(1, 1), Failure);
    Words asReporters;
    for (const auto& oReport : oScene.Utility().Reports()) asReporters.insert(oReport.sProcedure);
    return asReporters;
}

TEST(GleanerCtlFault, EveryCallOfEveryGestureMayFail) {
    FaultWalk oWalk;
    for (const int nSetting : {0, 1, 2, 3}) {
        oWalk.bRaw = nSetting < 2;
        oWalk.bFiltered = nSetting % 2 == 1;
        for (const bool bAvailable : {true, false}) {
            oWalk.bAvailable = bAvailable;
            for (oWalk.pGesture = std::begin(ListGestures); oWalk.pGesture != std::end(ListGestures);
                 ++oWalk.pGesture)
                oWalk.Walk();
        }
        for (oWalk.pGesture = std::begin(PageGestures); oWalk.pGesture != std::end(PageGestures);
             ++oWalk.pGesture)
            oWalk.Walk();
    }
    std::cout << oWalk.nGestures << " gestures, " << oWalk.nFailures << " injected failures\n";
    oWalk.asReporters.merge(OtherReporters());
    Words asExpected = WordsOf(Reporters);
    asExpected.insert("SetProjectIndex (Let)"); // the one name with a blank
    EXPECT_EQ(oWalk.asReporters, asExpected);
}

} // namespace
} // namespace GleanerSvc
