// The grid of the batch, the pass and fail decision, the details box, and the way from failure to failure.
#include "analysispage/AnalysisPage.h"
#include "pagebind/GridSteps.h"
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t ResultColumn = 0;
constexpr std::int32_t StatusColumn = 3;
constexpr std::string_view NoResult = "-1";
constexpr std::int32_t PassColor = 65280; // green
constexpr std::int32_t FailColor = 255;   // red

} // namespace

// If it fails on its way, the hourglass and the paint lock stay.
void AnalysisPage::InitializeGrid() {
    Raising("InitializeGrid", [&] {
        const std::int16_t iCursor = Platform().ScreenCursor();
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
        Platform().ScreenCursor(iCursor);
    });
}

// Returns the number of rows written.
std::int32_t AnalysisPage::FillRows(std::int32_t lItems) {
    std::int32_t lRow = 1;
    for (; lRow <= lItems; ++lRow) {
        std::string sName;
        Date dtItem;
        if (m_bAlleleReanalysis) {
            ISampleData& oData = Deref(ItemAs<ISampleData>(*m_colItems, lRow));
            sName = oData.SampleName();
            dtItem = oData.RunDate(oData.LastRunIndex());
        } else {
            ISample& oSample = Deref(ItemAs<ISample>(*m_colItems, lRow));
            sName = oSample.Name();
            dtItem = oSample.DateLastModified();
        }
        grdAnalyzeItems->SetCellText(lRow, 1, RightTrim(sName), GridConst::WriteText);
        grdAnalyzeItems->SetCellText(lRow, 2, Platform().DateToText(dtItem), GridConst::WriteText);
        grdAnalyzeItems->SetCellText(lRow, StatusColumn, m_bAlleleReanalysis ? "Pending" : "Unanalyzed",
                                     GridConst::WriteText);
        grdAnalyzeItems->SetCellValue(lRow, ResultColumn, NoResult);
    }
    return lRow - 1;
}

void AnalysisPage::ClearItems() {
    Raising("ClearItems", [&] {
        grdAnalyzeItems->KeySelection(false);
        const std::int32_t lRows = ToInt32(grdAnalyzeItems->NumRows());
        for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
            grdAnalyzeItems->SetCellText(lRow, StatusColumn, "Unanalyzed", GridConst::WriteText);
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
        if (m_lFailCount >= std::ssize(m_alFailRows)) throw Failure::Of(FailureNumber::Subscript);
        m_alFailRows[static_cast<std::size_t>(m_lFailCount)] = lRow;
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

std::int32_t AnalysisPage::FailRow(std::int32_t lPlace) const {
    if (lPlace < 0 || lPlace >= std::ssize(m_alFailRows)) throw Failure::Of(FailureNumber::Subscript);
    return m_alFailRows[static_cast<std::size_t>(lPlace)];
}

// A row between two failures maps to the failure before it.
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
    txtDetails.Text(Deref(Deref(oResult).SampleData()).Details());
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

// Forward moves on from a row at or past the failure, backward only from a row that is exactly on it: rows
// between failures belong to the earlier one, so both directions land on the nearest failure.
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
