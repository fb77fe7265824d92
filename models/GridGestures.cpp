// The operator's door of the grid model.
#include <algorithm>

#include "models/GridModel.h"

namespace GleanerSvc::Models {

GestureResult GridModel::ClickLeft(double dRow, double dCol, Keys eKeys) {
    GestureResult oResult;
    if (!CanReach(dRow, dCol)) return oResult;
    StartSelection(dRow, dCol);
    Highlight(static_cast<std::size_t>(dRow), eKeys);
    m_oEvents.OnLButtonClickedRowCol.Raise(dRow, dCol, oResult);
    return oResult;
}

GestureResult GridModel::DoubleClick(double dRow, double dCol) {
    GestureResult oResult;
    if (!CanReach(dRow, dCol)) return oResult;
    StartSelection(dRow, dCol);
    const auto nRow = static_cast<std::size_t>(dRow);
    if (!m_oSelection->Holds(nRow)) Highlight(nRow, Keys::None);
    GestureResult oClicked;
    m_oEvents.OnLButtonClickedRowCol.Raise(dRow, dCol, oClicked);
    m_oEvents.OnLButtonDblClkRowCol.Raise(dRow, dCol, oResult);
    return oResult;
}

GestureResult GridModel::ClickRight(double dRow, double dCol) {
    GestureResult oResult;
    if (!CanReach(dRow, dCol)) return oResult;
    TakeFocus();
    m_oEvents.OnRButtonClickedRowCol.Raise(dRow, dCol, oResult);
    return oResult;
}

void GridModel::DragRows(double dFirst, double dLast) {
    if (!CanReach(dFirst, 0) || !CanReach(dLast, 0) || dFirst < 1 || dLast < 1) return;
    StartSelection(dFirst, 1);
    m_nAnchorRow = static_cast<std::size_t>(dFirst);
    m_nCurrentRow = static_cast<std::size_t>(dLast);
    MoveSelection({std::min(m_nAnchorRow, m_nCurrentRow), std::max(m_nAnchorRow, m_nCurrentRow)});
}

void GridModel::PressKey(GridKey eKey) {
    if (!m_oSite.CanOperate()) return;
    TakeFocus();
    const auto lCode = static_cast<std::int32_t>(eKey);
    GestureResult oDown;
    m_oEvents.OnGridKeyDown.Raise(lCode, oDown);
    if (eKey == GridKey::Up && m_nCurrentRow > 1) MoveCurrentRow(m_nCurrentRow - 1);
    if (eKey == GridKey::Down && m_nCurrentRow < m_oTable.Rows()) MoveCurrentRow(m_nCurrentRow + 1);
    GestureResult oUp;
    m_oEvents.OnGridKeyUp.Raise(lCode, oUp);
}

GestureResult GridModel::DragColumnWidth(double dCol, std::int32_t lWidth) {
    GestureResult oResult;
    if (!CanReach(0, dCol)) return oResult;
    m_oEvents.OnTrackColWidthEnd.Raise(dCol, oResult);
    const bool bRefused = !oResult.vValue.IsEmpty() && oResult.vValue.ToInt32() == 0;
    if (!bRefused) ChangeColumns(dCol, dCol, [lWidth](Column& oColumn) { oColumn.lWidth = lWidth; });
    return oResult;
}

GestureResult GridModel::MoveMouse44(double dRow, double dCol) {
    GestureResult oResult;
    if (CanReach(dRow, dCol)) m_oEvents.OnMouseEvent44.Raise(dRow, dCol, oResult);
    return oResult;
}

void GridModel::Focus() {
    if (m_oSite.CanOperate()) TakeFocus();
}

void GridModel::NotifyA() { Notify(m_oEvents.OnGridNotifyA); }

void GridModel::NotifyB() { Notify(m_oEvents.OnGridNotifyB); }

bool GridModel::CanReach(double dRow, double dCol) const {
    const bool bExists = IsPlace(dRow, m_oTable.Rows()) && IsPlace(dCol, m_oTable.Cols());
    return bExists && m_oSite.CanOperate() && !IsColumnHidden(static_cast<std::int32_t>(dCol));
}

void GridModel::TakeFocus() {
    if (HasFocus()) return;
    m_oFocus->pHolder = this;
    m_oEvents.GotFocus.Raise();
}

void GridModel::StartSelection(double dRow, double dCol) {
    TakeFocus();
    GestureResult oResult;
    m_oEvents.OnStartSelection.Raise(dRow, dCol, oResult);
    m_nCurrentCol = static_cast<std::size_t>(dCol);
}

// The row may have gone in a handler.
void GridModel::Highlight(std::size_t nRow, Keys eKeys) {
    if (nRow == 0 || nRow > m_oTable.Rows()) return;
    m_nCurrentRow = nRow;
    if (eKeys == Keys::Ctrl && m_oSelection->Holds(nRow)) {
        m_oSelection->TakeOut({nRow, nRow});
    } else if (eKeys == Keys::Ctrl) {
        m_oSelection->Add({nRow, nRow});
    } else {
        const bool bFromAnchor = eKeys == Keys::Shift && m_nAnchorRow > 0 && m_nAnchorRow <= m_oTable.Rows();
        const std::size_t nFrom = bFromAnchor ? m_nAnchorRow : nRow;
        m_oSelection->Clear();
        m_oSelection->Add({std::min(nFrom, nRow), std::max(nFrom, nRow)});
    }
    if (eKeys != Keys::Shift) m_nAnchorRow = nRow;
}

void GridModel::MoveSelection(RowSpan oRows) {
    oRows.nBottom = std::min(oRows.nBottom, m_oTable.Rows());
    m_oSelection->Clear();
    m_oSelection->Add(oRows);
    m_oEvents.OnSelectionMoved.Raise(NewRange(oRows));
}

void GridModel::MoveCurrentRow(std::size_t nRow) {
    m_nCurrentRow = nRow;
    m_nAnchorRow = nRow;
    Changed();
    if (m_bKeySelection) MoveSelection({nRow, nRow});
}

void GridModel::Notify(const Event<GestureResult&>& oEvent) {
    if (!m_oSite.CanOperate()) return;
    GestureResult oResult;
    oEvent.Raise(oResult);
}

} // namespace GleanerSvc::Models
