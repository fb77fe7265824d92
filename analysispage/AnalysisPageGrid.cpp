// The grid of the batch, the pass and fail decision, the details box, and the way from failure to failure.
#include "analysispage/AnalysisPage.h"
#include "pagebind/GridSteps.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::string_view NoResult = "-1";
constexpr std::int32_t PassColor = 65280; // green
constexpr std::int32_t FailColor = 255;   // red

} // namespace

// If it fails on its way, the hourglass and the paint lock stay until the next successful call: the pointer
// that stood before is remembered until then.
void AnalysisPage::InitializeGrid() {
    Raising("InitializeGrid", [&] {
        RememberCursor();
        Platform().ScreenCursor(Cursor::Wait);
        grdAnalyzeItems->LockUpdate(true);
        grdAnalyzeItems->KeySelection(false);
        const auto oRange = grdAnalyzeItems->CreateRangeObject();
        const auto oStyle = grdAnalyzeItems->CreateStyleObject();
        const std::int32_t lItems = Deref(m_colItems).Count();
        grdAnalyzeItems->RemoveRows(1, grdAnalyzeItems->NumRows());
        Deref(oStyle).SetControl(GridConst::CellControl);
        Deref(oRange).InitRange(1, 1, StatusColumn, lItems); // column 4 keeps the default cell
        grdAnalyzeItems->SetStyleRange(oRange, oStyle, GridConst::StyleOverride);
        grdAnalyzeItems->SetRowCount(lItems);
        const std::int32_t lRows = FillRows(lItems);
        lbTotalResults.Caption(m_bAlleleReanalysis ? "Total Results:" : "Total Samples:");
        grdAnalyzeItems->SetRowCount(lRows);
        MakeGridStatic(*grdAnalyzeItems);
        grdAnalyzeItems->LockUpdate(false);
        grdAnalyzeItems->Redraw(GridConst::RedrawAll);
        Platform().ScreenCursor(*m_iCursorBefore);
        m_iCursorBefore.reset();
    });
}

// An hourglass that a failed call left is not what stood before.
void AnalysisPage::RememberCursor() {
    const std::int16_t iCursor = Platform().ScreenCursor();
    if (iCursor != Cursor::Wait || !m_iCursorBefore) m_iCursorBefore = iCursor;
}

// Returns the number of rows written.
std::int32_t AnalysisPage::FillRows(std::int32_t lItems) {
    const std::string_view sStatus = m_bAlleleReanalysis ? "Pending" : "Unanalyzed";
    std::int32_t lRow = 1;
    for (; lRow <= lItems; ++lRow) {
        WriteItem(lRow);
        WriteText(lRow, StatusColumn, sStatus);
        grdAnalyzeItems->SetCellValue(lRow, ResultColumn, NoResult);
    }
    return lRow - 1;
}

void AnalysisPage::WriteItem(std::int32_t lRow) {
    const auto WriteName = [&](const std::string& sName) { WriteText(lRow, NameColumn, RightTrim(sName)); };
    const auto WriteDate = [&](Date dtItem) { WriteText(lRow, DateColumn, Platform().DateToText(dtItem)); };
    if (m_bAlleleReanalysis) {
        const auto oData = ItemAs<ISampleData>(*m_colItems, lRow);
        WriteName(Deref(oData).SampleName());
        WriteDate(oData->RunDate(oData->LastRunIndex()));
    } else {
        const auto oSample = ItemAs<ISample>(*m_colItems, lRow);
        WriteName(Deref(oSample).Name());
        WriteDate(oSample->DateLastModified());
    }
}

void AnalysisPage::ClearItems() {
    Raising("ClearItems", [&] {
        grdAnalyzeItems->KeySelection(false);
        const std::int32_t lRows = ToInt32(grdAnalyzeItems->NumRows());
        for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
            WriteText(lRow, StatusColumn, "Unanalyzed");
            grdAnalyzeItems->SetCurrentCell(1, 1);
            grdAnalyzeItems->SetCellValue(lRow, ResultColumn, NoResult);
        }
        ClearSelection(*grdAnalyzeItems);
        ProgressBar1.Value(0);
        txtDetails.Text("");
    });
}

// Ends with 0, where the other grids have 1.
void AnalysisPage::MakeGridStatic(IGrid& oGrid) {
    Raising("MakeGridStatic", [&] { SetStaticOptions(oGrid, 0); });
}

std::string AnalysisPage::StatusText(std::int32_t eStatus) const {
    Value vStatus = eStatus;
    return Deref(Context().GridHelper()).StatusText(vStatus);
}

// Told by the status's text and nothing else: every text but "PASS" is a failure.
void AnalysisPage::MarkItemResult(std::int32_t lRow, std::int32_t lCol, std::int32_t eStatus) {
    lbAnalyzed2.Caption(DecimalText(++m_lAnalyzedCount));
    const auto oRange = grdAnalyzeItems->CreateRangeObject();
    const auto oStyle = grdAnalyzeItems->CreateStyleObject();
    Deref(oRange).InitRange(lCol, lRow, lCol, lRow);
    const bool bPassed = UpperCase(StatusText(eStatus)) == "PASS";
    std::int32_t lColor = bPassed ? PassColor : FailColor;
    Deref(oStyle).SetInterior(lColor);
    oStyle->SetTextColor(Deref(Context().GridHelper()).ContrastColor(lColor));
    if (bPassed) {
        lbPass2.Caption(DecimalText(++m_lPassCount));
    } else {
        lbFail2.Caption(DecimalText(++m_lFailCount));
        StoreFailRow(lRow);
    }
    grdAnalyzeItems->SetStyleRange(oRange, oStyle, GridConst::StyleOverride);
}

void AnalysisPage::GoToRow(std::int32_t lRow) {
    grdAnalyzeItems->SetCurrentCell(lRow, 1);
    Deref(Context().GridHelper()).HighlightRow(*grdAnalyzeItems, lRow, {});
}

// lRow is the row at which the run ended.
void AnalysisPage::SetUpFailureButtons(std::int32_t lRow) {
    cmdFailPrevious.Visible(true);
    cmdFailNext.Visible(true);
    SetFailureButtons(true, false);
    m_lFailIndex = m_lFailCount;
    m_lCurrentRow = lRow;
    if (FailRow(1) == lRow && m_lFailCount == 1) cmdFailPrevious.Enabled(false); // nowhere to go
}

// At the place of the present count. The list is as long as the batch.
void AnalysisPage::StoreFailRow(std::int32_t lRow) {
    const auto nPlace = static_cast<std::size_t>(m_lFailCount);
    if (nPlace >= m_alFailRows.size()) {
        throw Failure(FailureNumber::Subscript, ClassName(), "More items failed than the run has.");
    }
    m_alFailRows[nPlace] = lRow;
}

std::int32_t AnalysisPage::FailRow(std::int32_t lPlace) const {
    const auto nPlace = static_cast<std::size_t>(lPlace);
    if (nPlace >= m_alFailRows.size()) {
        throw Failure(FailureNumber::Subscript, ClassName(),
                      "The run has no failure number " + DecimalText(lPlace) + ".");
    }
    return m_alFailRows[nPlace];
}

// For a row between two failures, the place of the earlier one.
std::int32_t AnalysisPage::FindFailIndex(std::int32_t lRow) const {
    for (std::int32_t lPlace = 1; lPlace <= m_lFailCount; ++lPlace) {
        if (FailRow(lPlace) > lRow) return lPlace - 1;
        if (FailRow(lPlace) == lRow) return lPlace;
    }
    return m_lFailCount;
}

void AnalysisPage::ShowRowDetails(std::int32_t lRow) {
    if (lRow < 1) {
        txtDetails.Text("");
        return;
    }
    ShowDetails(lRow);
    if (m_bRunEnded && m_lFailCount >= 1) {
        m_lCurrentRow = lRow;
        ShowPlaceAmongFailures(lRow);
    }
}

void AnalysisPage::ShowDetails(std::int32_t lRow) {
    const std::int32_t lResultIndex = ToInt32(grdAnalyzeItems->GetCellValue(lRow, ResultColumn));
    if (lResultIndex < 1) {
        txtDetails.Text("Result was not stored");
        return;
    }
    const auto oResult = ItemAs<IResult>(Deref(m_colResults), lResultIndex);
    const std::string sDetails = Deref(Deref(oResult).SampleData()).Details();
    txtDetails.Text(RightTrim(sDetails));
    ShowEndOfDetails();
}

void AnalysisPage::ShowPlaceAmongFailures(std::int32_t lRow) {
    const std::int32_t lFirst = FailRow(1);
    const std::int32_t lLast = FailRow(m_lFailCount);
    if (m_lFailCount == 1) {
        SetFailureButtons(lRow > lFirst, lRow < lFirst);
        m_lFailIndex = 1;
    } else if (lRow <= lFirst) {
        SetFailureButtons(false, true);
        m_lFailIndex = 1;
    } else if (lRow >= lLast) {
        SetFailureButtons(true, false);
        m_lFailIndex = m_lFailCount;
    } else {
        SetFailureButtons(true, true);
        m_lFailIndex = FindFailIndex(lRow);
    }
}

void AnalysisPage::SetFailureButtons(bool bPrevious, bool bNext) {
    cmdFailPrevious.Enabled(bPrevious);
    cmdFailNext.Enabled(bNext);
}

// The tests of the two ways differ: a row between failures counts as the earlier one's. Going back from it
// must stop at that one, going on must not.
void AnalysisPage::cmdFailNext_Click() {
    std::int32_t lNext = m_lFailIndex;
    if (m_lCurrentRow >= FailRow(lNext) && m_lFailCount > 1) ++lNext;
    if (lNext > 1 && lNext < m_lFailCount) SetFailureButtons(true, true);
    if (lNext == m_lFailCount) {
        cmdFailNext.Enabled(false);
        if (m_lFailCount > 1) cmdFailPrevious.Enabled(true);
    }
    GoToFailure(lNext);
}

void AnalysisPage::cmdFailPrevious_Click() {
    std::int32_t lPrev = m_lFailIndex;
    if (m_lCurrentRow == FailRow(lPrev) && m_lFailCount >= 1 && lPrev > 1) --lPrev;
    if (lPrev > 1 && lPrev < m_lFailCount) SetFailureButtons(true, true);
    if (lPrev == 1) {
        cmdFailPrevious.Enabled(false);
        if (m_lFailCount > 1) cmdFailNext.Enabled(true);
    }
    GoToFailure(lPrev);
}

void AnalysisPage::GoToFailure(std::int32_t lPlace) {
    if (lPlace >= 1 && lPlace <= m_lFailCount) {
        m_lFailIndex = lPlace;
        m_lCurrentRow = FailRow(lPlace);
    }
    if (m_lCurrentRow < 1 || m_lCurrentRow > grdAnalyzeItems->NumRows()) return;
    GoToRow(m_lCurrentRow);
    ShowDetails(m_lCurrentRow);
}

void AnalysisPage::grdAnalyzeItems_OnLButtonClickedRowCol(double dRow) {
    Terminal("grdAnalyzeItems_OnLButtonClickedRowCol", [&] {
        if (dRow > 0) ShowRowDetails(ToInt32(dRow));
    });
}

// No trap here, nor in the two swallowing handlers below.
void AnalysisPage::grdAnalyzeItems_OnSelectionMoved(const Ref<IGridRange>& oRange) {
    if (!m_bRunEnded) return;
    const std::int32_t lTop = ToInt32(Deref(oRange).Top());
    if (lTop > 0) ShowRowDetails(lTop);
}

void AnalysisPage::grdAnalyzeItems_OnGridKeyDown() {
    Terminal("grdAnalyzeItems_OnGridKeyDown", [&] { grdAnalyzeItems->KeySelection(true); });
}

void AnalysisPage::grdAnalyzeItems_OnGridKeyUp() {
    Terminal("grdAnalyzeItems_OnGridKeyUp", [&] { grdAnalyzeItems->KeySelection(false); });
}

void AnalysisPage::grdAnalyzeItems_OnLButtonDblClkRowCol(GestureResult& oResult) { oResult.vValue = true; }

void AnalysisPage::grdAnalyzeItems_OnMouseEvent44(GestureResult& oResult) { oResult.vValue = true; }

} // namespace GleanerSvc
