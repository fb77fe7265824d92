// The list beneath the plate, and how it removes.
#include <vector>

#include "pagebind/GridSteps.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"
#include "platepages/PlatePage.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t RemovedColumn = 4; // the key of a sample, but the project of a result

} // namespace

// Also makes the marks of the plate's records equal to the selection.
void PlatePage::ShowPlateRecords() {
    Raising(m_oKind.sShowPlateRecords, [&] {
        grdWells->KeySelection(false);
        grdWells->LockUpdate(true);
        grdWells->NumRows(0);
        const auto colItems = ItemsOf(PlateOnShow());
        const std::int32_t lItems = Deref(colItems).Count();
        for (std::int32_t lPlace = 1; lPlace <= lItems; ++lPlace)
            ItemOf(colItems->Item(lPlace)).IsSelected(false);
        const std::int32_t lRows = WriteListedRows(*colItems);
        grdWells->NumRows(lRows);
        grdWells->Redraw(GridConst::RedrawAll);
        grdWells->LockUpdate(false);
    });
}

// The selected records of the plate on show, in the order of the selection. Returns the number of rows.
std::int32_t PlatePage::WriteListedRows(IDataCollection& colItems) {
    std::int32_t lRow = 1;
    const std::int32_t lPlateID = PlateOnShow().PlateID();
    const std::int32_t lSelected = Deref(m_colSelected).Count();
    for (std::int32_t lPlace = 1; lPlace <= lSelected; ++lPlace) {
        const PlateItem oItem = ItemOf(ItemAs<IObject>(*m_colSelected, lPlace));
        if (oItem.PlateID() != lPlateID) continue;
        WriteRow(lRow, oItem);
        Deref(colItems.Item(oItem.Key())).PutMember(RecordMember::IsSelected, true);
        ++lRow;
    }
    return lRow - 1;
}

void PlatePage::WriteRow(std::int32_t lRow, const PlateItem& oItem) {
    std::int32_t lCol = 1;
    const auto Write = [&](const std::string& sText) {
        grdWells->SetCellText(lRow, lCol++, RightTrim(sText), GridConst::WriteText);
    };
    const Date dtItem = oItem.DateOf(ctlGleaner.DateIsLastModified());
    Write(oItem.Name());
    Write(Platform().DateToText(dtItem));
    if (m_oKind.bHasDescription) Write(oItem.Description());
    Write(DecimalText(oItem.ProjectID()));
    Write(oItem.Key());
}

void PlatePage::MakeGridStatic(IGrid& oGrid) {
    Raising("MakeGridStatic", [&] { SetStaticOptions(oGrid, 1); });
}

void PlatePage::GridSort(IGrid& oGrid, bool bDescending, bool bCase) {
    Raising("GridSort", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        SortRows(oGrid, m_dSortColumn, bDescending, bCase);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// A click on a row turns the direction of the next sort round as well.
void PlatePage::grdWells_OnLButtonClickedRowCol(double dRow, double dCol) {
    Terminal("grdWells_OnLButtonClickedRowCol", [&] {
        grdWells->LockUpdate(true);
        m_bSortFlag = !m_bSortFlag;
        if (dRow < 1) {
            if (dCol >= 1 && dCol <= m_oKind.dLastSortColumn) {
                m_dSortColumn = dCol;
                GridSort(*grdWells, m_bSortFlag, m_bSortFlag);
            }
            m_lGridRow = 0;
        } else {
            m_lGridRow = ToInt32(dRow);
        }
        grdWells->LockUpdate(false);
        grdWells->Redraw(GridConst::RedrawAll);
    });
}

void PlatePage::grdWells_OnRButtonClickedRowCol(double dRow) {
    Terminal("grdWells_OnRButtonClickedRowCol", [&] {
        if (dRow <= 0) return;
        m_lGridRow = ToInt32(dRow);
        ShowMenu("Remove", false);
        Platform().ShowPopup(mnuOptions, MenuForRightButton);
    });
}

void PlatePage::grdWells_OnGridKeyDown() {
    Terminal("grdWells_OnGridKeyDown", [&] { grdWells->KeySelection(true); });
}

void PlatePage::grdWells_OnGridKeyUp() {
    Terminal("grdWells_OnGridKeyUp", [&] { grdWells->KeySelection(false); });
}

// Without a range it takes the text of column 4 for the key, which on the page of results it is not.
void PlatePage::mnuRemove_Click() {
    Terminal("mnuRemove_Click", [&] {
        const auto oRanges = grdWells->CreateRangeList();
        grdWells->CopySelection(oRanges, true);
        const std::int32_t lRanges = Deref(oRanges).GetCount();
        if (lRanges < 1) {
            const std::string sKey(grdWells->GetCellText(m_lGridRow, RemovedColumn));
            Deref(m_colSelected).Remove(sKey);
        } else {
            RemoveRanges(*oRanges, lRanges);
        }
        cmbPlates_Click();
    });
}

// By place, not by key: a row of the list stands for the place of the same number in the selection. They
// agree as long as the whole selection lies on the plate on show and the list is not sorted. From the last to
// the first.
void PlatePage::RemoveRanges(IGridRangeList& oRanges, std::int32_t lRanges) {
    const auto oRows = Context().Libraries().CreateRowIndex();
    FillRowIndex(Deref(oRows), oRanges, lRanges);
    const std::vector<Value> avKeys = oRows->Keys();
    for (std::int32_t lPlace = oRows->Count(); lPlace >= 1; --lPlace) {
        Deref(m_colSelected).Remove(RowAt(*oRows, avKeys, lPlace));
    }
}

} // namespace GleanerSvc
