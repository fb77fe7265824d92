// Moving rows between the two lists, with the collection kept in step. Rows are appended at the bottom of
// their target; a row that has no place there drops away.
#include "pagebind/GridSteps.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

namespace {

bool IsAvailableList(const GridControl& oGrid) { return EqualsIgnoringCase(oGrid.Name(), "grdAvailable"); }

} // namespace

// No duplicate check: a key that the collection holds already fails here, with the row still in its source.
void GleanerCtl::MoveSingleRow(GridControl& oFromGrid, GridControl& oToGrid, std::int32_t lRow) {
    Raising("MoveSingleRow", [&] {
        oFromGrid->KeySelection(false);
        oToGrid->KeySelection(false);
        if (lRow < 1) return;
        Platform().ScreenCursor(Cursor::Wait);
        const DateFilter oFilter = FilterInForce();
        const std::int32_t lRemaining = CopyRow(oFromGrid, oToGrid, lRow, oFilter);
        const std::string sKey(oFromGrid->GetCellText(lRow, KeyColumn()));
        MoveRecord(oToGrid, sKey);
        oFromGrid->RemoveRows(lRow, lRow);
        oFromGrid->SetRowCount(lRemaining);
        if (lRemaining > 0) HighlightAfterMove(oFromGrid, lRemaining);
        ShowSelectedCount();
        Platform().ScreenCursor(Cursor::Default);
    });
}

// Leaves the collection and the count to its caller. Always row 1, so rows arrive in the order they stood.
void GleanerCtl::MoveAllRows(GridControl& oFromGrid, GridControl& oToGrid) {
    Raising("MoveAllRows", [&] {
        grdAvailable->KeySelection(false);
        grdSelected->KeySelection(false);
        Platform().ScreenCursor(Cursor::Wait);
        const DateFilter oFilter = FilterInForce();
        oFromGrid->LockUpdate(true);
        oToGrid->LockUpdate(true);
        for (std::int32_t lLeft = ToInt32(oFromGrid->NumRows()); lLeft >= 1; --lLeft) {
            const std::int32_t lRemaining = CopyRow(oFromGrid, oToGrid, 1, oFilter);
            oFromGrid->RemoveRows(1, 1);
            oFromGrid->SetRowCount(lRemaining);
        }
        m_dAvailableRow = 0;
        m_dSelectedRow = 0;
        UnHighlightRows(grdAvailable);
        UnHighlightRows(grdSelected);
        ShowButtons();
        MakeGridStatic(oToGrid);
        oFromGrid->LockUpdate(false);
        oToGrid->LockUpdate(false);
        oFromGrid->Redraw(GridConst::RedrawAll);
        oToGrid->Redraw(GridConst::RedrawAll);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// Appends a copy of the row to the target if it belongs there. Returns how many rows its removal will leave.
std::int32_t GleanerCtl::CopyRow(GridControl& oFromGrid, GridControl& oToGrid, std::int32_t lRow,
                                 const DateFilter& oFilter) {
    const std::int32_t lRemaining = ToInt32(oFromGrid->NumRows() - 1);
    if (!BelongsInTarget(oFromGrid, oToGrid, lRow, oFilter)) return lRemaining;
    const double dNewRow = oToGrid->NumRows() + 1;
    oToGrid->SetRowCount(dNewRow);
    const std::int32_t lCols = ToInt32(oFromGrid->NumCols());
    for (std::int32_t lCol = 1; lCol <= lCols; ++lCol) {
        oToGrid->SetCellText(dNewRow, lCol, oFromGrid->GetCellText(lRow, lCol), GridConst::WriteText);
    }
    return lRemaining;
}

// By the row's own cells: its project must be the one on show, and on the way back its date must pass the
// filter. On the way into the selection dates are not tested.
bool GleanerCtl::BelongsInTarget(GridControl& oFromGrid, const GridControl& oToGrid, std::int32_t lRow,
                                 const DateFilter& oFilter) const {
    const double dProject = ToNumber(oFromGrid->GetCellText(lRow, ProjectColumn()));
    if (dProject != m_lProjectID && m_lProjectID != AllProjectsID) return false;
    if (!oFilter.bOn || !IsAvailableList(oToGrid)) return true;
    return oFilter.Admits(Platform().TextToDate(oFromGrid->GetCellText(lRow, 2)));
}

void GleanerCtl::MoveRecord(const GridControl& oToGrid, const std::string& sKey) {
    if (IsAvailableList(oToGrid)) {
        Deref(m_colSelectedItems).Remove(sKey);
    } else {
        const auto oRecord = Deref(m_colFragments).Item(sKey);
        Deref(m_colSelectedItems).Add(oRecord, sKey);
    }
}

// The row that slid into the place of the moved one, or the last row when the bottom one went. With no row in
// focus the helper is asked for row 0.
void GleanerCtl::HighlightAfterMove(GridControl& oFromGrid, std::int32_t lRemaining) {
    double& dRow = IsAvailableList(oFromGrid) ? m_dAvailableRow : m_dSelectedRow;
    if (dRow > lRemaining) --dRow;
    Deref(Context().GridHelper()).HighlightRow(*oFromGrid, ToInt32(dRow), {});
}

void GleanerCtl::cmdAddSingle_Click() {
    Terminal("cmdAddSingle_Click", [&] { MoveHighlighted(m_oAvailable, m_oSelected); });
}

void GleanerCtl::cmdRemoveSingle_Click() {
    Terminal("cmdRemoveSingle_Click", [&] { MoveHighlighted(m_oSelected, m_oAvailable); });
}

// The lists are locked and unlocked in one order, whichever way the rows go.
void GleanerCtl::MoveHighlighted(const Side& oFrom, const Side& oTo) {
    if (oFrom.dRow < 1) {
        if (!(oFrom.oGrid->NumRows() > oFrom.dRow)) return;
        HighlightRow(&oFrom.oGrid, 1);
    }
    Platform().ScreenCursor(Cursor::Wait);
    grdAvailable->LockUpdate(true);
    grdSelected->LockUpdate(true);
    const auto oRangeList = oFrom.oGrid->CreateRangeList();
    oFrom.oGrid->CopySelection(oRangeList, true);
    const std::int32_t lRanges = Deref(oRangeList).GetCount();
    if (lRanges < 1) {
        MoveSingleRow(oFrom.oGrid, oTo.oGrid, ToInt32(oFrom.dRow));
    } else {
        MoveRanges(oFrom, oTo, *oRangeList, lRanges);
    }
    SelectionChanged.Raise();
    grdAvailable->LockUpdate(false);
    grdAvailable->Redraw(GridConst::RedrawAll);
    grdSelected->LockUpdate(false);
    grdSelected->Redraw(GridConst::RedrawAll);
    oTo.dRow = 0;
    ShowButtons();
    MakeGridStatic(oTo.oGrid);
    Platform().ScreenCursor(Cursor::Default);
}

// From the bottom up, so that the row numbers still to come stay valid: rows arrive in reverse order. The row
// highlighted afterwards comes of taking the highlighted rows as one block, also when they are several.
void GleanerCtl::MoveRanges(const Side& oFrom, const Side& oTo, IGridRangeList& oRangeList,
                            std::int32_t lRanges) {
    const auto oRowIndex = Context().Libraries().CreateRowIndex();
    FillRowIndex(Deref(oRowIndex), oRangeList, lRanges);
    const auto aKeys = oRowIndex->Keys();
    const std::int32_t lCount = oRowIndex->Count();
    const std::int32_t lFirst = RowAt(*oRowIndex, aKeys, 1).ToInt32();
    const std::int32_t lLast = RowAt(*oRowIndex, aKeys, lCount).ToInt32();
    std::int32_t lNext = 0;
    if (oFrom.oGrid->NumRows() > lLast) {
        lNext = lLast + 1 - lCount;
    } else if (lFirst > 1) {
        lNext = lFirst - 1;
    }
    for (std::int32_t lPlace = lCount; lPlace >= 1; --lPlace) {
        MoveSingleRow(oFrom.oGrid, oTo.oGrid, RowAt(*oRowIndex, aKeys, lPlace).ToInt32());
    }
    if (lNext >= 1) Deref(Context().GridHelper()).HighlightRow(*oFrom.oGrid, lNext, {});
}

void GleanerCtl::cmdAddAll_Click() {
    Terminal("cmdAddAll_Click", [&] {
        MoveAllRows(grdAvailable, grdSelected);
        AddSelectedItemsInCollection();
        SelectionChanged.Raise();
    });
}

// The collection empties whatever project its items belong to.
void GleanerCtl::cmdRemoveAll_Click() {
    Terminal("cmdRemoveAll_Click", [&] {
        MoveAllRows(grdSelected, grdAvailable);
        ShowProjectRows(grdSelected, grdAvailable);
        RemoveSelectedItemsInCollection();
        SelectionChanged.Raise();
    });
}

// Rows of other projects are in the collection already, which makes the lookup in the records on show safe.
void GleanerCtl::AddSelectedItemsInCollection() {
    Raising("AddSelectedItemsInCollection", [&] {
        IKeyedCollection& colSelectedItems = Deref(m_colSelectedItems);
        const std::int32_t lRows = ToInt32(grdSelected->NumRows());
        for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
            const std::string sKey(grdSelected->GetCellText(lRow, KeyColumn()));
            if (Deref(Context().Utility()).IsInCollection(colSelectedItems, sKey)) continue;
            const auto oRecord = Deref(m_colFragments).Item(sKey);
            if (m_bRawData) {
                colSelectedItems.Add(oRecord, DecimalText(Deref(Cast<ISample>(oRecord)).SampleID()));
            } else {
                AddResultOnce(oRecord);
            }
        }
        lblSelectedCount.Caption("(" + DecimalText(colSelectedItems.Count()) + ")");
    });
}

// A result can come under a key that is not its own ID; one that is selected already is told and left out.
// Its row stays, so the list then shows one row more than there are items.
void GleanerCtl::AddResultOnce(const Ref<IObject>& oRecord) {
    IResult& oResult = Deref(Cast<IResult>(oRecord));
    const std::string sResultID = DecimalText(oResult.ResultID());
    if (!Deref(Context().Utility()).IsInCollection(*m_colSelectedItems, sResultID)) {
        m_colSelectedItems->Add(oRecord, sResultID);
        return;
    }
    std::string sText = "You have an item with a duplicate RECORD ID.";
    sText.append(LineBreak).append(LineBreak);
    sText.append("\tRecord ID: ").append(sResultID).append(LineBreak);
    sText.append("\tName: ").append(RightTrim(oResult.Name()));
    Platform().ShowMessage(sText, MessageStyle::Information, "Duplicate Record ID Found");
}

void GleanerCtl::RemoveSelectedItemsInCollection() {
    Raising("RemoveSelectedItemsInCollection", [&] {
        while (Deref(m_colSelectedItems).Count() >= 1) m_colSelectedItems->Remove(1);
        lblSelectedCount.Caption("");
    });
}

// Empty without items, never "(0)".
void GleanerCtl::ShowSelectedCount() {
    const std::int32_t lCount = Deref(m_colSelectedItems).Count();
    lblSelectedCount.Caption(lCount > 0 ? "(" + DecimalText(lCount) + ")" : "");
}

} // namespace GleanerSvc
