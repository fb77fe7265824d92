// Random gestures on a plate page and in its list, compared after each with a plain reference: the IDs that
// are selected, in order, and what each plate holds.
#include <gtest/gtest.h>

#include "tests/RandomWalk.h"
#include "tests/platepages/PlateReference.h"

namespace GleanerSvc {
namespace {

constexpr std::string_view Store =
    "Alpha: A1#P1.A1 A2#P1.A2 A3#P1.B1 A4#P1.B2 A5#P1.H12 A6#P2.A1 A7#P2.C5\n"
    "Alpha results: R1 of A1 R2@2026-02-01 of A1 R3@2026-03-01 of A2 R4 of A3 R5 of A5 "
    "R6 of A6 R7@2026-04-01 of A6\n"
    "Beta: B1#P3.A1 B2#P3.A2 B3\n"
    "Beta results: S1 of B1 S2 of B1 S3 of B3\n"
    "Gamma: C1\n"
    "Gamma results: T1 of C1";

template<class Scene>
class PlateWalk {
  public:
    explicit PlateWalk(std::uint32_t nSeed) : m_oRandom(nSeed) {
        m_oScene.Journal().Recording(false);
        m_oScene.Enter();
        for (const std::int32_t lID : {11, 12, 13}) m_oPlates[lID] = PlateContentOf(m_oScene, lID);
    }

    // One gesture; "" when the page shows what it should. In the list the plate is out of sight.
    std::string Step() {
        m_oScene.Utility().ClearReports();
        m_sReports = "";
        IsOnPlate() ? OnPlate() : InList();
        const IDs alSelected = SelectionOf(m_oPage);
        const auto& oRecords = RecordsOf(m_oScene);
        std::string sFound = Joined(alSelected);
        std::string sDue = Joined(m_alSelected);
        if (IsOnPlate()) {
            sFound = m_oScene.State() + Which([&](auto lID) { return oRecords.Find(lID)->Marked(); });
            sDue = ExpectedState(Plate(), m_alSelected) +
                   Which([&](auto lID) { return Holds(m_alSelected, lID); });
        }
        if (!IsOnPlate() || m_bSorted) {
            std::sort(sFound.begin(), sFound.end());
            std::sort(sDue.begin(), sDue.end());
        }
        sFound += m_oScene.Utility().Chain();
        sDue += m_sReports;
        m_alSelected = alSelected; // the order in which the list adds is its own
        return sFound == sDue ? "" : "found " + sFound + "\n  due " + sDue;
    }

  private:
    static constexpr bool IsRaw = std::is_same_v<Scene, SampleScene>;

    int Below(int nEnd) { return Drawn(m_oRandom, nEnd); }
    bool IsOnPlate() const { return m_oPage.tabPage.Tab() == 1; }
    const PlateContent* Plate() const {
        const auto& cmbPlates = m_oPage.cmbPlates;
        return cmbPlates.ListIndex() < 0 ? nullptr : &m_oPlates.at(cmbPlates.ItemData(cmbPlates.ListIndex()));
    }
    WellContent WellAtPlace(int nPlace) const {
        return Plate() ? Plate()->aoWells.at(static_cast<std::size_t>(nPlace) + 1) : WellContent();
    }
    // The records of the plate of which that is true.
    template<class F>
    std::string Which(F&& fnIs) const {
        if (!Plate()) return "";
        IDs alIDs;
        for (const auto& [lID, sName] : Plate()->asNames)
            if (fnIs(lID)) alIDs.push_back(lID);
        return " which " + Joined(alIDs);
    }

    void OnPlate() {
        const int nKind = Below(14);
        const int nRow = Below(8);
        const int nCol = Below(12);
        const int nRows = std::max(1, m_oScene.List().Rows());
        if (nKind == 0) Choose(m_oPage.cmbProjects, Below(3));
        if (nKind == 1) Choose(m_oPage.cmbPlates, Below(2));
        if (nKind == 2) ClickZone(m_oPage.picAllWells, 0, 1, 96);
        if (nKind == 3) ClickZone(m_oPage.lblLetter[nRow], 12 * nRow, 1, 12);
        if (nKind == 4) ClickZone(m_oPage.lblNumber[nCol], nCol, 12, 8);
        if (nKind == 5) m_oPage.tabPage.ChooseTab(0);
        if (nKind == 6) m_oScene.List().ClickLeft(0, 1 + Below(2));
        if (nKind == 6) m_bSorted = true;
        if (nKind == 7) Remove(1 + Below(nRows), 1 + Below(nRows));
        if (nKind == 8) RemoveOne(1 + Below(nRows));
        if (nKind >= 9)
            ClickWell(nKind % 2 == 0 ? 12 * nRow + nCol : NextFullPlace(12 * nRow + nCol), nKind == 9);
    }

    void Choose(DropDownList& oList, int nPlace) {
        const auto iBefore = oList.ListIndex();
        oList.Choose(nPlace);
        if (oList.ListIndex() != iBefore) m_bSorted = false;
    }
    int NextFullPlace(int nPlace) const {
        while (nPlace < 96 && WellAtPlace(nPlace).lState == 0) ++nPlace;
        return nPlace % 96;
    }
    void Toggle(std::int32_t lID) {
        if (std::erase(m_alSelected, lID) == 0) m_alSelected.push_back(lID);
    }
    // By the left button, or by the menu's "Select" or "De-Select", of which the enabled one is chosen;
    // "Remove" hides the latter for good.
    void ClickWell(int nPlace, bool bMenu) {
        const std::int32_t lID = WellAtPlace(nPlace).lID;
        const bool bSelected = Holds(m_alSelected, lID);
        const bool bHidden = bMenu && bSelected && !m_oPage.mnuDeSelect.Visible();
        if (lID != 0 && !bHidden) {
            Toggle(lID);
            m_bSorted = false;
        }
        if (bMenu && lID != 0)
            m_oScene.Platform().Choose(bHidden ? "" : bSelected ? "mnuDeSelect" : "mnuSelect");
        m_oPage.picWell[nPlace + 1].ClickIt(bMenu ? MouseButton::Right : MouseButton::Left);
    }
    // All wells of a letter, a number or the corner: so many from a place, a stride apart.
    template<class Zone>
    void ClickZone(Zone& oZone, int nPlace, int nStride, int nCount) {
        IDs alIDs;
        for (; nCount > 0; nPlace += nStride, --nCount)
            if (WellAtPlace(nPlace).lState != 0) alIDs.push_back(WellAtPlace(nPlace).lID);
        const auto IsSelected = [&](auto lID) { return Holds(m_alSelected, lID); };
        const bool bAll = std::all_of(alIDs.begin(), alIDs.end(), IsSelected);
        for (const std::int32_t lID : alIDs)
            if (bAll || !IsSelected(lID)) Toggle(lID);
        m_bSorted = false;
        oZone.ClickIt();
    }
    void ChooseRemove(std::int32_t lRow) {
        m_oScene.Platform().Choose("mnuRemove");
        m_oScene.List().ClickRight(lRow, 1);
    }
    // Rows of the list stand for places of the selection.
    void Remove(std::int32_t lFirst, std::int32_t lLast) {
        if (m_oScene.List().Rows() == 0) return;
        const auto [lTop, lBottom] = std::minmax(lFirst, lLast);
        m_oScene.List().DragRows(lTop, lBottom);
        m_alSelected.erase(m_alSelected.begin() + lTop - 1, m_alSelected.begin() + lBottom);
        m_bSorted = false;
        ChooseRemove(lTop);
    }
    // By the text of column 4, which is the key on the page of samples only.
    void RemoveOne(std::int32_t lRow) {
        if (m_oScene.List().Rows() == 0 || !m_oScene.List().HighlightedRows().empty()) return;
        if (IsRaw) Toggle(KeyIn(m_oScene.List(), lRow));
        if (IsRaw) m_bSorted = false;
        if (!IsRaw) m_sReports = "mnuRemove_Click!";
        ChooseRemove(lRow);
    }

    static std::int32_t KeyIn(const Models::GridModel& oGrid, std::int32_t lRow) {
        return std::stoi(std::string(oGrid.Text(lRow, IsRaw ? 4 : 5)));
    }
    // What the list does with the selection is another test's matter, but for what its gestures mean.
    void InList() {
        auto& oList = m_oPage.ctlGleaner;
        auto& oAvailable = m_oScene.oLibraries->Grid("grdAvailable");
        auto& oGrid = Below(2) == 0 ? oAvailable : m_oScene.oLibraries->Grid("grdSelected");
        const int nKind = Below(7);
        if (nKind == 0) oList.cmbProjects.Choose(Below(4));
        if (nKind == 1) {
            for (std::int32_t lRow = 1; lRow <= oAvailable.Rows(); ++lRow)
                m_alSelected.push_back(KeyIn(oAvailable, lRow));
            oList.cmdAddAll.Press();
        }
        if (nKind == 2) {
            m_alSelected.clear();
            oList.cmdRemoveAll.Press();
        }
        if ((nKind == 3 || nKind == 4) && oGrid.Rows() > 0) {
            const std::int32_t lRow = 1 + Below(oGrid.Rows());
            Toggle(KeyIn(oGrid, lRow));
            oGrid.DoubleClick(lRow, 1);
        }
        if (nKind < 6) return;
        m_oPage.tabPage.ChooseTab(1);
        m_bSorted = false;
    }

    std::mt19937 m_oRandom;
    Scene m_oScene{Store};
    PlatePage& m_oPage = *m_oScene.oPage;
    std::map<std::int32_t, PlateContent> m_oPlates; // by ID
    IDs m_alSelected;
    bool m_bSorted = false; // a heading was clicked since the last refresh
    std::string m_sReports;
};

TEST(PlatePageRandom, WellsListMarksAndSelectionAgreeWithAPlainReference) {
    WalkSeeds<PlateWalk<SampleScene>>("GLEANER_PLATE_SEED", 20, 2500);
    WalkSeeds<PlateWalk<ResultScene>>("GLEANER_PLATE_SEED", 20, 2500);
}

} // namespace
} // namespace GleanerSvc
