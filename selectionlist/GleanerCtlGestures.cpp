// What the mouse, the keys and the pop-up menu do in the two lists. A gesture in one list clears the other's
// highlight and row in focus.
#include "pagebind/GridSteps.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t NothingChosen = -1;
constexpr std::int32_t SingleSampleChosen = 1;

const Value GestureHandled = std::int16_t{-1};
const Value GestureRefused = std::int16_t{0};

} // namespace

// An unknown word changes no entry.
void GleanerCtl::ShowMenu(std::string_view sMenu) {
    Raising("ShowMenu", [&] {
        const auto Show = [&](bool bAdd, bool bRemove, bool bSort) {
            mnuAdd.Visible(bAdd);
            mnuRemove.Visible(bRemove);
            mnuShowSingleSample.Visible(!bSort);
            mnuAscending.Visible(bSort);
            mnuDescending.Visible(bSort);
        };
        if (EqualsIgnoringCase(sMenu, "Add")) Show(true, false, false);
        if (EqualsIgnoringCase(sMenu, "Remove")) Show(false, true, false);
        if (EqualsIgnoringCase(sMenu, "Sort")) Show(false, false, true);
        if (!mnuShowSingleSample.Visible()) return;
        mnuShowSingleSample.Caption(m_bRawData ? "Show Single Sample View..." : "Show Single Result View...");
    });
}

// Column 1 is always the first key, the column asked for the second. The rows in focus are not corrected.
void GleanerCtl::GridSort(GridControl& oGrid, bool bDescending, bool bCase) {
    Raising("GridSort", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        SortRows(*oGrid, m_dSortColumn, bDescending, bCase);
        Platform().ScreenCursor(Cursor::Default);
    });
}

void GleanerCtl::ClearSide(const Side& oSide) {
    UnHighlightRows(oSide.oGrid);
    oSide.dRow = 0;
}

// The other list's highlight stays.
void GleanerCtl::StartSelection(const Side& oSide, double nRow, double nCol) {
    m_oActiveGrid = &oSide.oGrid;
    oSide.dRow = nRow;
    m_dSortColumn = nCol;
    ShowButtons();
}

// Every left click turns the direction of the next heading sort round, in either list, on a data row too. The
// flag serves both as the direction and as the case switch.
void GleanerCtl::LeftClick(const Side& oSide, const Side& oOther, double nRow, double nCol) {
    oSide.oGrid->LockUpdate(true);
    m_bSortFlag = !m_bSortFlag;
    ClearSide(oOther);
    if (nRow < 1) {
        if (nCol == 1 || nCol == 2 || nCol == 3) {
            m_dSortColumn = nCol;
            GridSort(oSide.oGrid, m_bSortFlag, m_bSortFlag);
        }
        oSide.dRow = 0;
    } else {
        oSide.dRow = nRow;
    }
    ShowButtons();
    oSide.oGrid->LockUpdate(false);
    oSide.oGrid->Redraw(GridConst::RedrawAll);
}

// The menu only records the single sample choice, so that the view opens after the menu has gone.
void GleanerCtl::RightClick(const Side& oSide, const Side& oOther, std::string_view sMenu, double nRow,
                            double nCol) {
    const bool bCorner = nRow < 1 && nCol < 1;
    if (bCorner || oSide.oGrid->NumRows() == 0) return;
    m_oActiveGrid = &oSide.oGrid;
    ClearSide(oOther);
    PrepareMenu(oSide, sMenu, nRow, nCol);
    ShowButtons();
    m_lMenuChoice = NothingChosen;
    Platform().ShowPopup(mnuOptions, MenuForRightButton);
    if (m_lMenuChoice == SingleSampleChosen) ShowSingleSample();
}

// On a row that is not highlighted the highlight goes to it; a heading gives the Sort menu; a click inside
// the highlighted rows keeps them, and the single view is offered for one row only.
void GleanerCtl::PrepareMenu(const Side& oSide, std::string_view sMenu, double nRow, double nCol) {
    const bool bHighlighted = Deref(Context().GridHelper()).IsRowHighlighted(*oSide.oGrid, nRow);
    if (nRow > 0 && !bHighlighted) {
        Deref(Context().GridHelper()).HighlightRow(*oSide.oGrid, ToInt32(nRow), {});
        oSide.dRow = nRow;
        m_dSortColumn = nCol;
        ShowMenu(sMenu);
        mnuShowSingleSample.Enabled(true);
        return;
    }
    if (nRow == 0) {
        oSide.dRow = nRow;
        m_dSortColumn = nCol;
    }
    if (oSide.dRow <= 0) {
        UnHighlightRows(*m_oActiveGrid);
        ShowMenu("Sort");
    } else {
        ShowMenu(sMenu);
        mnuShowSingleSample.Enabled(Deref(Context().GridHelper()).GetHighlightedRowCount(*oSide.oGrid) == 1);
    }
}

// The operator has gone to the other list.
void GleanerCtl::LeaveSide(const Side& oSide) {
    ClearSide(oSide);
    ShowButtons();
}

void GleanerCtl::grdAvailable_GotFocus() {
    Terminal("grdAvailable_GotFocus", [&] { LeaveSide(m_oSelected); });
}

void GleanerCtl::grdSelected_GotFocus() {
    Terminal("grdSelected_GotFocus", [&] { LeaveSide(m_oAvailable); });
}

// Two further notifications of the grid, to the same effect as the focus; no trap.
void GleanerCtl::grdAvailable_OnGridNotifyA() { LeaveSide(m_oSelected); }

void GleanerCtl::grdAvailable_OnGridNotifyB() { LeaveSide(m_oSelected); }

void GleanerCtl::grdSelected_OnGridNotifyA() { LeaveSide(m_oAvailable); }

void GleanerCtl::grdSelected_OnGridNotifyB() { LeaveSide(m_oAvailable); }

void GleanerCtl::grdAvailable_OnStartSelection(double nRow, double nCol) {
    Terminal("grdAvailable_OnStartSelection", [&] { StartSelection(m_oAvailable, nRow, nCol); });
}

void GleanerCtl::grdSelected_OnStartSelection(double nRow, double nCol) {
    Terminal("grdSelected_OnStartSelection", [&] { StartSelection(m_oSelected, nRow, nCol); });
}

void GleanerCtl::grdAvailable_OnLButtonClickedRowCol(double nRow, double nCol) {
    Terminal("grdAvailable_OnLButtonClickedRowCol",
             [&] { LeftClick(m_oAvailable, m_oSelected, nRow, nCol); });
}

void GleanerCtl::grdSelected_OnLButtonClickedRowCol(double nRow, double nCol) {
    Terminal("grdSelected_OnLButtonClickedRowCol", [&] { LeftClick(m_oSelected, m_oAvailable, nRow, nCol); });
}

void GleanerCtl::grdAvailable_OnLButtonDblClkRowCol(double nRow, GestureResult& oResult) {
    Terminal("grdAvailable_OnLButtonDblClkRowCol", [&] {
        oResult.vValue = GestureHandled;
        if (nRow > 0) mnuAdd_Click();
    });
}

void GleanerCtl::grdSelected_OnLButtonDblClkRowCol(double nRow, GestureResult& oResult) {
    Terminal("grdSelected_OnLButtonDblClkRowCol", [&] {
        oResult.vValue = GestureHandled;
        if (nRow > 0) mnuRemove_Click();
    });
}

void GleanerCtl::grdAvailable_OnRButtonClickedRowCol(double nRow, double nCol) {
    Terminal("grdAvailable_OnRButtonClickedRowCol",
             [&] { RightClick(m_oAvailable, m_oSelected, "Add", nRow, nCol); });
}

void GleanerCtl::grdSelected_OnRButtonClickedRowCol(double nRow, double nCol) {
    Terminal("grdSelected_OnRButtonClickedRowCol",
             [&] { RightClick(m_oSelected, m_oAvailable, "Remove", nRow, nCol); });
}

// The row headings keep their width.
void GleanerCtl::grdAvailable_OnTrackColWidthEnd(double nCol, GestureResult& oResult) {
    Terminal("grdAvailable_OnTrackColWidthEnd", [&] {
        if (nCol < 1) oResult.vValue = GestureRefused;
    });
}

void GleanerCtl::grdSelected_OnTrackColWidthEnd(double nCol, GestureResult& oResult) {
    Terminal("grdSelected_OnTrackColWidthEnd", [&] {
        if (nCol < 1) oResult.vValue = GestureRefused;
    });
}

void GleanerCtl::grdAvailable_OnGridKeyDown() {
    Terminal("grdAvailable_OnGridKeyDown", [&] { grdAvailable->KeySelection(true); });
}

void GleanerCtl::grdAvailable_OnGridKeyUp() {
    Terminal("grdAvailable_OnGridKeyUp", [&] { grdAvailable->KeySelection(false); });
}

void GleanerCtl::grdSelected_OnGridKeyDown() {
    Terminal("grdSelected_OnGridKeyDown", [&] { grdSelected->KeySelection(true); });
}

// True on the way up as well, unlike its twin: the setting stays on until the next refresh, move or load.
void GleanerCtl::grdSelected_OnGridKeyUp() {
    Terminal("grdSelected_OnGridKeyUp", [&] { grdSelected->KeySelection(true); });
}

void GleanerCtl::mnuAdd_Click() {
    Terminal("mnuAdd_Click", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        cmdAddSingle_Click();
        m_dSelectedRow = 0;
        ShowButtons();
        MakeGridStatic(grdSelected);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// Unlike its twin it goes on to take out of the available list what is still selected.
void GleanerCtl::mnuRemove_Click() {
    Terminal("mnuRemove_Click", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        cmdRemoveSingle_Click();
        m_dAvailableRow = 0;
        ShowButtons();
        MakeGridStatic(grdAvailable);
        Platform().ScreenCursor(Cursor::Default);
        ShowProjectRows(grdSelected, grdAvailable);
    });
}

// One value feeds both the direction and the case switch, as on a heading click.
void GleanerCtl::mnuAscending_Click() {
    Terminal("mnuAscending_Click", [&] { GridSort(ActiveGrid(), false, false); });
}

void GleanerCtl::mnuDescending_Click() {
    Terminal("mnuDescending_Click", [&] { GridSort(ActiveGrid(), true, true); });
}

void GleanerCtl::mnuShowSingleSample_Click() {
    Terminal("mnuShowSingleSample_Click", [&] {
        if (!ActiveGrid()->HasSelection()) return;
        m_bShowSingleSample = true;
        m_lMenuChoice = SingleSampleChosen;
    });
}

// Nothing before the control was initialized.
GridControl& GleanerCtl::ActiveGrid() const {
    if (!m_oActiveGrid) throw Failure::Of(FailureNumber::ObjectNotSet);
    return *m_oActiveGrid;
}

} // namespace GleanerSvc
