// Drives the list through random gestures beside a plain reference.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/RandomWalk.h"
#include "tests/selectionlist/ListReference.h"

namespace GleanerSvc {
namespace {

constexpr std::int32_t NotTold = -1; // of a row in focus: the gesture does not settle it

std::string RandomStore(std::mt19937 oRandom) {
    const auto Day = [&] {
        return "2026-03-0" + DecimalText(1 + Drawn(oRandom, 5)) + (Drawn(oRandom, 3) == 0 ? "T23:59:59" : "");
    };
    std::ostringstream oText;
    for (const char* sProject : {"A", "B", "C"}) {
        oText << sProject << ":\n";
        for (std::int32_t lPlace = Drawn(oRandom, 6); lPlace > 0; --lPlace)
            oText << sProject << ": " << sProject << lPlace << "@" << Day() << "/" << Day() << "\n"
                  << sProject << " results: " << sProject << lPlace << "@" << Day() << "/" << Day() << " of "
                  << sProject << lPlace << "\n";
    }
    return oText.str();
}

// The list itself, and what it should show. Odd seeds walk over raw data, even ones over results.
class RandomWalk : ListScene, ListReference {
  public:
    explicit RandomWalk(std::uint32_t nSeed)
        : ListScene(RandomStore(std::mt19937(nSeed))), ListReference(oLibraries->Store(), nSeed % 2 == 1),
          m_oRandom(nSeed), m_bRaw(nSeed % 2 == 1) {
        Journal().Recording(false);
        Initialize();
    }

    // Makes a gesture. "" when the list shows what it should, otherwise what differs and the gestures since
    // the start.
    std::string Step() {
        Utility().ClearReports();
        m_oDue = {};
        bAvailable = Coin();
        bool bEscaped = false;
        try {
            const auto IsDrawn = [lDrawn = Below(24)](const auto& oGesture) {
                return lDrawn < oGesture.lLimit;
            };
            const auto& oGesture = *std::find_if(std::begin(Gestures), std::end(Gestures), IsDrawn);
            m_sGestures += oGesture.sName + (" in " + Grid().Name()) + "\n";
            (this->*oGesture.fnMake)();
        } catch (const Failure& oFailure) {
            bEscaped = oFailure.Is(FailureNumber::InvalidCall);
        }
        const std::string sTrouble = Trouble(bEscaped);
        return sTrouble.empty() ? "" : sTrouble + "after\n" + m_sGestures;
    }

  private:
    struct Outcome {
        std::string sReports;
        bool bEscapes = false;
        std::array<std::int32_t, 2> alFocus{NotTold, NotTold}; // of the selected and of the available list
    };

    std::int32_t Below(std::int32_t lEnd) { return Drawn(m_oRandom, lEnd); }
    bool Coin() { return Below(2) == 0; }
    std::int32_t AnyRow() { return Below(Grid().Rows() + 1); }
    // The rows in focus after the gesture, in its own list and in the other.
    void ExpectFocus(std::int32_t lOwn, std::int32_t lOther) {
        m_oDue.alFocus = bAvailable ? std::array{lOther, lOwn} : std::array{lOwn, lOther};
    }
    // The highlighted rows where this is one of them, otherwise this alone.
    Rows Block(std::int32_t l) const { return Grid().IsHighlighted(l) ? Grid().HighlightedRows() : Rows{l}; }

    void ChooseAnyProject() {
        const std::int32_t lPlace = Below(4);
        const std::int32_t lID = lPlace == 0 ? AllProjectsID : lPlace;
        if (lID != std::exchange(lProject, lID)) ExpectFocus(0, 0);
        Coin() ? ChooseProject(lPlace) : oList.SetProjectIndex(lPlace - 1);
    }
    void PressFilter() {
        m_bPickers = bFilter = !bFilter;
        oList.chkFragFilter.Press();
    }
    void PickDate() {
        const bool bFirst = Coin();
        const Date dtDay = Date::Of({2026, 3, 1 + Below(5)});
        if (m_bPickers) (bFirst ? dtFirst : dtLast) = dtDay;
        if (dtFirst > dtLast) dtFirst = dtLast = dtDay;
        (bFirst ? oList.DTPicker1 : oList.DTPicker2).Pick(dtDay);
    }
    // The dates of selected records are asked of the project on show: one of another project fails,
    // untrapped.
    void PressOption() {
        const bool bBefore = std::exchange(bModified, Coin());
        for (const auto lID : IDs(false))
            if (!IsOnShow(oRecords.at(lID))) m_oDue.bEscapes = bModified != bBefore;
        (bModified ? oList.DateLastModified : oList.DateDataCollected).Press();
    }
    void Initialize() {
        lProject = AllProjectsID;
        dtFirst = dtLast = Date::Of({2026, 11, 22});
        m_bPickers = m_bViewDue = false;
        ExpectFocus(0, 0);
        oList.Initialize(m_bRaw ? "Raw Data" : "Result Data", colSelected);
    }
    void ChangeAsHost() {
        if (oRecords.empty()) return;
        auto& [lID, oEntry] = *std::next(oRecords.begin(), Below(static_cast<std::int32_t>(oRecords.size())));
        oEntry.bSelected = !oEntry.bSelected;
        oEntry.bSelected ? colSelected->Add(oEntry.oRecord, DecimalText(lID))
                         : colSelected->Remove(DecimalText(lID));
        oList.RefreshView();
    }
    void MoveAll() {
        for (const auto lID : IDs(bAvailable)) oRecords.at(lID).bSelected = bAvailable;
        if (All().Enabled()) ++m_nChangesDue;
        if (All().Enabled()) ExpectFocus(0, 0);
        All().Press();
    }
    // Forced, as the page could, it takes the first row when none is in focus.
    void MoveSingle() {
        const bool bForced = Below(5) == 0;
        if (bForced ? Focus() > 0 || Grid().Rows() > 0 : Single().Enabled())
            ExpectMove(Focus() > 0 ? Grid().HighlightedRows() : Rows{1});
        bForced ? Single().Click.Raise() : Single().Press();
    }
    void DoubleClick() {
        const std::int32_t lRow = AnyRow();
        if (lRow > 0) ExpectMove(Block(lRow));
        Grid().DoubleClick(lRow, 1);
    }
    void RightClick() {
        constexpr std::array<const char*, 6> Choices = {
            "", "mnuAdd", "mnuRemove", "mnuShowSingleSample", "mnuAscending", "mnuDescending"};
        const std::int32_t lRow = AnyRow();
        const std::int32_t lCol = Below(2);
        const std::string sChoice = Choices.at(m_oRandom() % Choices.size());
        if (Grid().Rows() > 0 && lRow + lCol > 0) ExpectMenu(lRow, sChoice);
        Grid().ClickRight(lRow, lCol);
    }
    void ExpectMenu(std::int32_t lRow, const std::string& sChoice) {
        Platform().Choose(sChoice);
        ++m_nMenusDue;
        m_sMenuDue = "Sort Ascending, Sort Descending";
        ExpectFocus(NotTold, 0);
        const bool bInside = Grid().IsHighlighted(lRow);
        if (lRow == 0 || (bInside && Focus() <= 0)) return; // that menu moves nothing
        const bool bOne = Block(lRow).size() == 1;
        const std::string sView = m_bRaw ? "Show Single Sample View..." : "Show Single Result View...";
        m_sMenuDue = Verb() + ", " + (bOne ? sView : "(" + sView + ")");
        if (sChoice == "mnu" + Verb()) ExpectMove(Block(lRow));
        if (sChoice != "mnuShowSingleSample" || !bOne) return;
        m_bViewDue = true;
        const bool bGone = bInside && Focus() > Grid().Rows(); // the view is of the row in focus
        if (bGone) m_oDue.sReports = Grid().Name() + "_OnRButtonClickedRowCol!";
        if (!bGone) ++m_nViewsDue;
    }
    void Attend() {
        const std::int32_t lKind = Below(12);
        const std::int32_t lRow = AnyRow();
        const std::int32_t lOther = AnyRow();
        if (lKind <= 2) ExpectFocus(NotTold, 0);
        if (lKind == 0) Grid().Focus();
        if (lKind == 1 || lKind == 2) lKind == 1 ? Grid().NotifyA() : Grid().NotifyB();
        if (lKind == 3) Grid().DragColumnWidth(lRow, 500);
        if (lKind == 4 || lKind == 5)
            Grid().PressKey(lKind == 4 ? Models::GridKey::Down : Models::GridKey::Up);
        if (lKind == 6) Grid().DragRows(lRow, lOther);
        if (lKind <= 6) return;
        ExpectFocus(lRow, 0);
        Grid().ClickLeft(lRow, Below(m_bRaw ? 3 : 4), static_cast<Models::Keys>(lKind % 3));
    }

    // Highlighted rows move, or the row in focus when there are none. That row may be gone by now: then the
    // move fails and nothing changes.
    void ExpectMove(Rows alRows) {
        if (alRows.empty()) alRows = {Focus()};
        const bool bGone = alRows.back() > Grid().Rows();
        if (bGone) m_oDue.sReports = "MoveSingleRow -> cmd" + Verb() + "Single_Click!";
        if (bGone) return;
        for (const auto lRow : alRows) oRecords.at(KeyAt(lRow)).bSelected = bAvailable;
        ++m_nChangesDue;
        ExpectFocus(NotTold, 0);
    }

    std::int32_t KeyAt(std::int32_t lRow) const {
        return std::atoi(std::string(Grid().Text(lRow, m_bRaw ? 4 : 5)).c_str());
    }
    // The IDs in the list in order; negative where the row does not show its record.
    std::string Listed() const {
        Rows alIDs;
        for (std::int32_t lRow = 1; lRow <= Grid().Rows(); ++lRow) {
            const std::int32_t lID = KeyAt(lRow);
            const auto itEntry = oRecords.find(lID);
            const bool bShown = itEntry != oRecords.end() &&
                                RightTrim(Grid().Text(lRow, 1)) == itEntry->second.sName &&
                                Grid().Text(lRow, 2) == Models::WriteDateText(InUse(itEntry->second));
            alIDs.push_back(bShown ? lID : -lID);
        }
        std::sort(alIDs.begin(), alIDs.end());
        return Joined(alIDs);
    }
    // What differs from the reference.
    std::string Trouble(bool bEscaped) {
        std::ostringstream oTrouble;
        const auto Compare = [&](const std::string& sWhat, const auto& oShown, const auto& oDue) {
            if (oShown != oDue) oTrouble << sWhat << " is " << oShown << " not " << oDue << "\n";
        };
        for (int nSide = 0; nSide < 2; ++nSide, bAvailable = !bAvailable) {
            const Rows alIDs = IDs(bAvailable);
            const std::int32_t lFocusDue = m_oDue.alFocus.at(bAvailable ? 1 : 0);
            Compare(Grid().Name(), Listed(), Joined(alIDs));
            Compare(Verb() + " all", All().Enabled(), !alIDs.empty());
            Compare(Verb() + " single", Single().Enabled(), !alIDs.empty() && Focus() > 0);
            Compare(Verb() + " focus", lFocusDue == NotTold ? NotTold : Focus(), lFocusDue);
        }
        Rows alKeys = IDsIn(Keys());
        std::sort(alKeys.begin(), alKeys.end());
        Compare("collection", Joined(alKeys), Joined(IDs(false)));
        const std::string sCount = "(" + std::to_string(alKeys.size()) + ")";
        Compare("count", oList.lblSelectedCount.Caption(), alKeys.empty() ? "" : sCount);
        Compare("index", oList.GetProjectIndex().ToInt16(), std::max(lProject - 1, 0));
        Compare("start label", oList.lblFragStart.Enabled(), bFilter);
        Compare("end label", oList.lblFragEnd.Enabled(), bFilter);
        Compare("start picker", oList.DTPicker1.Enabled(), m_bPickers);
        Compare("end picker", oList.DTPicker2.Enabled(), m_bPickers);
        Compare("collected", oList.DateDataCollected.Value(), !bModified);
        Compare("modified", oList.DateLastModified.Value(), bModified);
        Compare("reports", Utility().Chain(), m_oDue.sReports);
        Compare("escape", bEscaped, m_oDue.bEscapes);
        Compare("changes", m_nChanges, m_nChangesDue);
        const auto& aoMenus = Platform().Popups();
        Compare("menus", aoMenus.size(), m_nMenusDue);
        Compare("menu", aoMenus.empty() ? "" : aoMenus.back().sShown, m_sMenuDue);
        Compare("views", oLibraries->Launcher().Opened().size(), m_nViewsDue);
        Compare("view", oList.m_bShowSingleSample, m_bViewDue);
        return oTrouble.str();
    }

    // Each up to which number out of 24.
    using W = RandomWalk;
    struct Gesture {
        std::int32_t lLimit;
        const char* sName;
        void (W::*fnMake)();
    };
    static constexpr Gesture Gestures[] = {{1, "project", &W::ChooseAnyProject},
                                           {2, "filter", &W::PressFilter},
                                           {4, "date", &W::PickDate},
                                           {5, "option", &W::PressOption},
                                           {6, "Initialize", &W::Initialize},
                                           {7, "host's change", &W::ChangeAsHost},
                                           {8, "all", &W::MoveAll},
                                           {13, "single", &W::MoveSingle},
                                           {14, "double click", &W::DoubleClick},
                                           {16, "right click", &W::RightClick},
                                           {24, "attention", &W::Attend}};

    std::mt19937 m_oRandom;
    bool m_bRaw;
    bool m_bPickers = false; // can be operated
    Outcome m_oDue;
    std::size_t m_nChangesDue = 0;
    std::size_t m_nMenusDue = 0;
    std::string m_sMenuDue; // of the last menu
    std::size_t m_nViewsDue = 0;
    bool m_bViewDue = false; // one was chosen since the start
    std::size_t m_nChanges = 0;
    Subscription m_oChanges = oList.SelectionChanged.Subscribe([this] { ++m_nChanges; });
    std::string m_sGestures;
};

TEST(GleanerCtlRandom, TheListKeepsInStepWithAPlainReference) {
    WalkSeeds<RandomWalk>("GLEANER_LIST_SEED", 40, 3000);
}

} // namespace
} // namespace GleanerSvc
