// Drives the list through random gestures beside a plain reference.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <deque>
#include <random>

#include "tests/selectionlist/ListReference.h"

namespace GleanerSvc {
namespace {

using Rows = std::vector<std::int32_t>;

constexpr std::int32_t NotTold = -1; // of a row in focus: the gesture does not settle it

std::string Text(const std::string& sText) { return sText; }
std::string Text(const Rows& alIDs) {
    std::string sText = "[";
    for (const auto lID : alIDs) sText += " " + DecimalText(lID);
    return sText + " ]";
}
template<class T>
requires std::integral<T> std::string Text(T oNumber) { return std::to_string(oNumber); }
template<class... Parts>
std::string Line(const Parts&... oParts) {
    std::string sLine;
    ((sLine += Text(oParts) + " "), ...);
    return sLine;
}

class RandomWalk {
  public:
    // Odd seeds walk over raw data, even ones over results.
    explicit RandomWalk(std::uint32_t nSeed)
        : m_oRandom(nSeed), m_bRaw(nSeed % 2 == 1), m_oScene(StoreText()) {
        m_oScene.Journal().Recording(false);
        m_oScene.oList.Initialize(Source(), m_oScene.colSelected);
    }

    // Makes a gesture. "" when the list shows what it should, otherwise both states.
    std::string Step() {
        m_oScene.Utility().ClearReports();
        m_sReports.clear();
        m_bEscapes = m_bEscaped = false;
        m_lAvailableDue = m_lSelectedDue = NotTold;
        m_bAvailable = Below(2) == 0;
        try {
            (this->*Gestures.at(Below(Gestures.size())))();
        } catch (const Failure& oFailure) {
            m_bEscaped = oFailure.Is(FailureNumber::InvalidCall);
        }
        const std::string sShown = Shown();
        const std::string sExpected = Expected();
        return sShown == sExpected ? "" : "shown    " + sShown + "\nexpected " + sExpected;
    }

    std::string LastGestures() const {
        std::string sText;
        for (const auto& sGesture : m_asGestures) sText += sGesture + "\n";
        return sText;
    }

  private:
    std::uint32_t Below(std::size_t nLimit) { return static_cast<std::uint32_t>(m_oRandom() % nLimit); }
    std::int32_t UpTo(std::int32_t lLast) {
        return static_cast<std::int32_t>(Below(static_cast<std::size_t>(lLast) + 1));
    }
    template<class... Parts>
    void Say(const Parts&... oParts) {
        m_asGestures.push_back(Line(++m_lGestures, oParts...));
        if (m_asGestures.size() > 20) m_asGestures.pop_front();
    }

    const char* Source() const { return m_bRaw ? "Raw Data" : "Result Data"; }
    std::int32_t KeyCol() const { return m_bRaw ? 4 : 5; }
    void AppendDay(std::string& sText, char cMark) {
        sText += cMark;
        sText += "2026-03-0" + DecimalText(1 + UpTo(4));
        if (Below(3) == 0) sText += "T23:59:59";
    }
    std::string StoreText() {
        std::string sText;
        for (const std::string sProject : {"A", "B", "C"}) {
            std::string sSamples = sProject + ":";
            std::string sResults = sProject + " results:";
            for (std::int32_t lPlace = UpTo(5); lPlace > 0; --lPlace) {
                const std::string sName = sProject + DecimalText(lPlace);
                for (std::string* pWords : {&sSamples, &sResults}) {
                    pWords->append(" ").append(sName);
                    AppendDay(*pWords, '@');
                    AppendDay(*pWords, '/');
                }
                sResults.append(" of ").append(sName);
            }
            sText.append(sSamples).append("\n").append(sResults).append("\n");
        }
        return sText;
    }

    // The list that a gesture is made in, and what belongs to it.
    Models::GridModel& Grid() const { return m_bAvailable ? m_oAvailable : m_oSelected; }
    std::string Verb() const { return m_bAvailable ? "Add" : "Remove"; }
    Button& Single() { return m_bAvailable ? m_oScene.oList.cmdAddSingle : m_oScene.oList.cmdRemoveSingle; }
    Button& All() { return m_bAvailable ? m_oScene.oList.cmdAddAll : m_oScene.oList.cmdRemoveAll; }
    double Focus() const { return GleanerCtlProbe::RowInFocus(m_oScene.oList, m_bAvailable); }
    // The rows in focus after the gesture, in its own list and in the other.
    void ExpectFocus(std::int32_t lOwn, std::int32_t lOther) {
        (m_bAvailable ? m_lAvailableDue : m_lSelectedDue) = lOwn;
        (m_bAvailable ? m_lSelectedDue : m_lAvailableDue) = lOther;
    }
    // The highlighted rows where this is one of them, otherwise this alone.
    Rows Block(std::int32_t lRow) const {
        return Grid().IsHighlighted(lRow) ? Grid().HighlightedRows() : Rows{lRow};
    }

    void ChooseProject() {
        const std::int32_t lPlace = UpTo(3);
        Say("project", lPlace);
        const std::int32_t lProject = lPlace == 0 ? AllProjectsID : lPlace;
        if (lProject != std::exchange(m_oReference.lProject, lProject)) ExpectFocus(0, 0);
        Below(2) == 0 ? m_oScene.ChooseProject(lPlace) : m_oScene.oList.SetProjectIndex(lPlace - 1);
    }
    void PressFilter() {
        Say("filter");
        m_bPickers = m_oReference.bFilter = !m_oReference.bFilter;
        m_oScene.oList.chkFragFilter.Press();
    }
    void PickDate() {
        const bool bFirst = Below(2) == 0;
        const Date dtDay = Date::Of({2026, 3, 1 + UpTo(4)});
        Say(bFirst ? "first day" : "last day", Models::WriteDateText(dtDay));
        Date& dtFirst = m_oReference.dtFirst;
        Date& dtLast = m_oReference.dtLast;
        if (m_bPickers) (bFirst ? dtFirst : dtLast) = dtDay;
        if (m_bPickers && dtFirst > dtLast) (bFirst ? dtLast : dtFirst) = dtDay;
        (bFirst ? m_oScene.oList.DTPicker1 : m_oScene.oList.DTPicker2).Pick(dtDay);
    }
    // The dates of selected records are asked of the project on show: one of another project fails,
    // untrapped.
    void PressOption() {
        const bool bModified = Below(2) == 0;
        Say(bModified ? "last modified" : "data collected");
        for (const auto lID : m_oReference.Rows(false)) {
            if (!m_oReference.IsOnShow(m_oReference.oRecords.at(lID)))
                m_bEscapes = bModified != m_oReference.bModified;
        }
        m_oReference.bModified = bModified;
        (bModified ? m_oScene.oList.DateLastModified : m_oScene.oList.DateDataCollected).Press();
    }
    void Initialize() {
        Say("Initialize");
        m_oReference.lProject = AllProjectsID;
        m_oReference.dtFirst = m_oReference.dtLast = Date::Of({2026, 11, 22});
        m_bPickers = false;
        ExpectFocus(0, 0);
        m_oScene.oList.Initialize(Source(), m_oScene.colSelected);
    }
    void ChangeAsHost() {
        if (m_oReference.oRecords.empty()) return;
        const auto itRecord = std::next(m_oReference.oRecords.begin(), Below(m_oReference.oRecords.size()));
        const std::string sKey = DecimalText(itRecord->first);
        Say("host's change of", sKey);
        itRecord->second.bSelected = !itRecord->second.bSelected;
        itRecord->second.bSelected ? m_oScene.colSelected->Add(itRecord->second.oRecord, sKey)
                                   : m_oScene.colSelected->Remove(sKey);
        m_oScene.oList.RefreshView();
    }
    void PressAll() {
        Say(Verb(), "all");
        if (All().Enabled()) {
            for (const auto lID : m_oReference.Rows(m_bAvailable))
                m_oReference.oRecords.at(lID).bSelected = m_bAvailable;
            ++m_nChangesDue;
            ExpectFocus(0, 0);
        }
        All().Press();
    }
    void PressSingle() {
        Say(Verb(), "single");
        if (Single().Enabled()) ExpectMove(Grid().HighlightedRows());
        Single().Press();
    }
    // As the page could: without a row in focus the first one is taken.
    void ForceSingle() {
        Say(Verb(), "single, forced");
        if (Focus() >= 1) {
            ExpectMove(Grid().HighlightedRows());
        } else if (Grid().Rows() > 0) {
            ExpectMove({1});
        }
        Single().Click.Raise();
    }
    void DoubleClick() {
        const std::int32_t lRow = UpTo(Grid().Rows());
        Say("double click", Grid().Name(), lRow);
        if (lRow > 0) ExpectMove(Block(lRow));
        Grid().DoubleClick(lRow, 1);
    }
    void RightClick() {
        constexpr std::array<const char*, 6> Choices = {
            "", "mnuAdd", "mnuRemove", "mnuShowSingleSample", "mnuAscending", "mnuDescending"};
        const std::int32_t lRow = UpTo(Grid().Rows());
        const std::string sChoice = Choices.at(Below(Choices.size()));
        Say("right click", Grid().Name(), lRow, sChoice);
        if (Grid().Rows() > 0) {
            ++m_nMenusDue;
            m_oScene.Platform().Choose(sChoice);
            ExpectChoice(lRow, sChoice);
        }
        Grid().ClickRight(lRow, 1);
    }
    void ExpectChoice(std::int32_t lRow, const std::string& sChoice) {
        const bool bInside = Grid().IsHighlighted(lRow);
        if (lRow == 0 || (bInside && Focus() <= 0)) return; // the Sort menu, which moves nothing
        if (sChoice == "mnu" + Verb()) ExpectMove(Block(lRow));
        if (sChoice != "mnuShowSingleSample" || Block(lRow).size() != 1) return;
        const bool bGone = bInside && Focus() > Grid().Rows(); // the view is of the row in focus
        if (bGone) m_sReports = Grid().Name() + "_OnRButtonClickedRowCol!";
        if (!bGone) ++m_nViewsDue;
    }
    void Attend() {
        const std::uint32_t nKind = Below(12);
        const std::int32_t lRow = UpTo(Grid().Rows());
        const std::int32_t lOther = UpTo(Grid().Rows());
        Say("attend", Grid().Name(), nKind, lRow, lOther);
        if (nKind == 0) Grid().Focus();
        if (nKind == 1) Grid().NotifyA();
        if (nKind == 2) Grid().NotifyB();
        if (nKind == 3) Grid().DragColumnWidth(lRow, 500);
        if (nKind == 4) Grid().PressKey(Models::GridKey::Down);
        if (nKind == 5) Grid().PressKey(Models::GridKey::Up);
        if (nKind == 6) Grid().DragRows(lRow, lOther);
        if (nKind <= 6) return;
        ExpectFocus(lRow, 0);
        Grid().ClickLeft(lRow, UpTo(KeyCol() - 2), static_cast<Models::Keys>(nKind % 3));
    }

    // Highlighted rows move, or the row in focus when there are none. That row may be gone by now: then the
    // move fails and nothing changes.
    void ExpectMove(Rows alRows) {
        if (alRows.empty()) alRows = {static_cast<std::int32_t>(Focus())};
        if (alRows.back() > Grid().Rows()) {
            m_sReports = "MoveSingleRow -> cmd" + Verb() + "Single_Click!";
            return;
        }
        for (const auto lRow : alRows) m_oReference.oRecords.at(KeyAt(Grid(), lRow)).bSelected = m_bAvailable;
        ++m_nChangesDue;
        ExpectFocus(NotTold, 0);
    }

    std::int32_t KeyAt(const Models::GridModel& oGrid, std::int32_t lRow) const {
        const auto sKey = oGrid.Text(lRow, KeyCol());
        std::int32_t lKey = 0;
        std::from_chars(sKey.data(), sKey.data() + sKey.size(), lKey);
        return lKey;
    }
    // The IDs in a list in order; negative where the row does not show its record.
    Rows Listed(const Models::GridModel& oGrid) const {
        Rows alIDs;
        for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); ++lRow) {
            const std::int32_t lID = KeyAt(oGrid, lRow);
            const auto itRecord = m_oReference.oRecords.find(lID);
            const bool bShown =
                itRecord != m_oReference.oRecords.end() &&
                RightTrim(oGrid.Text(lRow, 1)) == itRecord->second.sName &&
                oGrid.Text(lRow, 2) == Models::WriteDateText(m_oReference.InUse(itRecord->second));
            alIDs.push_back(bShown ? lID : -lID);
        }
        std::sort(alIDs.begin(), alIDs.end());
        return alIDs;
    }
    std::string Shown() const {
        Rows alKeys;
        for (const auto& [lID, oRecord] : m_oReference.oRecords) {
            if (m_oScene.colSelected->Holds(DecimalText(lID))) alKeys.push_back(lID);
        }
        return Line(Listed(m_oAvailable), Listed(m_oSelected), alKeys, m_oScene.colSelected->Count(),
                    m_oScene.oList.lblSelectedCount.Caption(), m_oScene.Buttons(), m_oScene.Utility().Chain(),
                    m_bEscaped, m_nChanges, m_oScene.Platform().Popups().size(),
                    m_oScene.oLibraries->Launcher().Opened().size(), FocusText(true, m_lAvailableDue, false),
                    FocusText(false, m_lSelectedDue, false));
    }
    std::string Expected() const {
        const Rows alAvailable = m_oReference.Rows(true);
        const Rows alSelected = m_oReference.Rows(false);
        const auto Buttons = [&](const Rows& alRows, bool bAvailable, const std::string& sVerb) {
            const bool bFocus = GleanerCtlProbe::RowInFocus(m_oScene.oList, bAvailable) > 0;
            return alRows.empty() ? "" : (bFocus ? " " + sVerb : "") + " " + sVerb + "All";
        };
        const std::string sButtons = Buttons(alAvailable, true, "add") + Buttons(alSelected, false, "remove");
        return Line(alAvailable, alSelected, alSelected, alSelected.size(),
                    alSelected.empty() ? "" : "(" + Text(alSelected.size()) + ")",
                    sButtons.substr(sButtons.empty() ? 0 : 1), m_sReports, m_bEscapes, m_nChangesDue,
                    m_nMenusDue, m_nViewsDue, FocusText(true, m_lAvailableDue, true),
                    FocusText(false, m_lSelectedDue, true));
    }
    std::string FocusText(bool bAvailable, std::int32_t lDue, bool bExpected) const {
        if (lDue == NotTold) return "-";
        return Text(bExpected
                        ? lDue
                        : static_cast<std::int32_t>(GleanerCtlProbe::RowInFocus(m_oScene.oList, bAvailable)));
    }

    // How often a gesture stands here is how likely it is.
    using Gesture = void (RandomWalk::*)();
    static constexpr std::array<Gesture, 24> Gestures = {
        &RandomWalk::ChooseProject, &RandomWalk::PressFilter, &RandomWalk::PickDate,
        &RandomWalk::PickDate,      &RandomWalk::PressOption, &RandomWalk::Initialize,
        &RandomWalk::ChangeAsHost,  &RandomWalk::PressAll,    &RandomWalk::PressSingle,
        &RandomWalk::PressSingle,   &RandomWalk::PressSingle, &RandomWalk::PressSingle,
        &RandomWalk::ForceSingle,   &RandomWalk::DoubleClick, &RandomWalk::RightClick,
        &RandomWalk::RightClick,    &RandomWalk::Attend,      &RandomWalk::Attend,
        &RandomWalk::Attend,        &RandomWalk::Attend,      &RandomWalk::Attend,
        &RandomWalk::Attend,        &RandomWalk::Attend,      &RandomWalk::Attend};

    std::mt19937 m_oRandom;
    bool m_bRaw;
    ListScene m_oScene;
    Models::GridModel& m_oAvailable = m_oScene.Available();
    Models::GridModel& m_oSelected = m_oScene.Selected();
    ListReference m_oReference{m_oScene.oLibraries->Store(), m_bRaw};
    bool m_bPickers = false; // can be operated
    bool m_bAvailable = true;
    std::string m_sReports;
    bool m_bEscapes = false;
    bool m_bEscaped = false;
    std::int32_t m_lAvailableDue = NotTold;
    std::int32_t m_lSelectedDue = NotTold;
    std::size_t m_nChangesDue = 0;
    std::size_t m_nMenusDue = 0;
    std::size_t m_nViewsDue = 0;
    std::size_t m_nChanges = 0;
    Subscription m_oChanges = m_oScene.oList.SelectionChanged.Subscribe([this] { ++m_nChanges; });
    std::int32_t m_lGestures = 0;
    std::deque<std::string> m_asGestures;
};

TEST(GleanerCtlRandom, TheListKeepsInStepWithAPlainReference) {
    const char* const sSeed = std::getenv("GLEANER_LIST_SEED"); // walks that seed alone
    const int nFirst = sSeed ? std::atoi(sSeed) : 1;
    const int nLast = sSeed ? nFirst : 40;
    for (int nSeed = nFirst; nSeed <= nLast; ++nSeed) {
        RandomWalk oWalk(static_cast<std::uint32_t>(nSeed));
        for (int nGesture = 0; nGesture < 3000; ++nGesture) {
            const std::string sDifference = oWalk.Step();
            ASSERT_EQ(sDifference, "") << "seed " << nSeed << ", after\n" << oWalk.LastGestures();
        }
    }
}

} // namespace
} // namespace GleanerSvc
