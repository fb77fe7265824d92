// The events of a run, each of which ends in one turn of the message loop: then a stop and clicks on the grid
// are served.
#include "analysispage/AnalysisPage.h"
#include "pagebind/Numbers.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t NoItem = -1; // below it, an item cannot be analyzed

std::int32_t RowOf(std::int32_t nIndex) { return ToInt32(nIndex + 1.0); }

} // namespace

// Only asks: the stop takes effect at the next event.
void AnalysisPage::cmdStop_Click() {
    Terminal("cmdStop_Click", [&] {
        m_bStopRequested = true;
        cmdStop.Enabled(false);
    });
}

// A message for no item is dropped.
void AnalysisPage::m_oZemFragmentAnalyzer_OnStatusUpdate(std::int32_t nIndex, std::string_view bstrMsg) {
    Raising("m_oZemFragmentAnalyzer_OnStatusUpdate", [&] {
        std::string_view sText;
        grdAnalyzeItems->KeySelection(false);
        if (nIndex != NoItem) {
            sText = bstrMsg;
            CountProgress();
        }
        txtDetails.AppendText(sText);
        ShowEndOfDetails();
        if (nIndex > NoItem) {
            BringIntoView(nIndex);
            if (m_bStopRequested) ShowStopping(RowOf(nIndex));
        }
        if (nIndex < NoItem) RefuseItem(bstrMsg);
        Platform().YieldOnce();
    });
}

// Past its maximum the bar stays where it is.
void AnalysisPage::CountProgress() {
    m_lProgress = ToInt32(m_lProgress + 1.0);
    if (static_cast<double>(ProgressBar1.Max()) < m_lProgress) return;
    ProgressBar1.Value(static_cast<float>(m_lProgress));
}

void AnalysisPage::ShowEndOfDetails() {
    txtDetails.SelStart(txtDetails.TextLength());
    txtDetails.Refresh();
}

void AnalysisPage::BringIntoView(std::int32_t nIndex) {
    if (m_lCurrentRow == nIndex) return;
    GoToRow(RowOf(nIndex));
    m_lCurrentRow = nIndex;
}

// Again at every update for as long as the run goes on.
void AnalysisPage::ShowStopping(std::int32_t lRow) {
    cmdAnalyze.Caption("Stopped");
    cmdStop.Enabled(false);
    EnableButton(HostButton::Back, false);
    WriteText(lRow, StatusColumn, "Stopping");
}

void AnalysisPage::RefuseItem(std::string_view bstrMsg) {
    std::string sText = "Sample cannot be analyzed.";
    sText.append(LineBreak).append("Error: ").append(bstrMsg);
    Platform().ShowMessage(sText, MessageStyle::Stop, "Analysis Error");
    StopAnalyzer();
}

// The last item is tested before the stop flag: a stop that comes too late changes nothing.
void AnalysisPage::m_oZemFragmentAnalyzer_OnComplete(std::int32_t nIndex, std::int32_t nResultID,
                                                     std::int32_t eStatus) {
    Raising("m_oZemFragmentAnalyzer_OnComplete", [&] {
        if (m_bPageLeft) return;
        const std::int32_t lResultIndex = StoreResult(nResultID);
        const std::int32_t lRow = RowOf(nIndex);
        grdAnalyzeItems->KeySelection(false);
        GoToRow(lRow);
        WriteText(lRow, StatusColumn, StatusText(eStatus));
        MarkItemResult(lRow, StatusColumn, eStatus);
        WriteText(lRow, EndedColumn, Platform().DateToText(Platform().Now()));
        grdAnalyzeItems->SetCellValue(lRow, ResultColumn, DecimalText(lResultIndex));
        txtDetails.AppendText(LineBreak);
        if (nIndex == Deref(m_colItems).Count() - 1) {
            FinishRun();
        } else if (m_bStopRequested) {
            EndStoppedRun();
        } else {
            txtDetails.Text("");
        }
        ShowEndOfDetails();
        if (m_bRunEnded && m_lFailCount > 0) SetUpFailureButtons(lRow);
        Platform().YieldOnce();
    });
}

// The 1-based place of the result in the page's results, -1 when nothing was stored.
std::int32_t AnalysisPage::StoreResult(std::int32_t nResultID) {
    if (nResultID <= 0) return -1;
    const auto oResult =
        Cast<IResult>(Deref(Context().DataFactory())
                          .GetRecord(RecordName::Result, KeyName::ResultID, DecimalText(nResultID), 0, true));
    Deref(m_colResults).Add(oResult, DecimalText(Deref(oResult).ResultID()));
    return m_colResults->Count();
}

// "Finished" is written and hidden within one event. The details grow into the freed room.
void AnalysisPage::FinishRun() {
    ProgressBar1.Value(ProgressBar1.Max());
    cmdAnalyze.Caption("Finished");
    cmdStop.Enabled(false);
    m_bRunEnded = true;
    EnableButton(HostButton::Back, false);
    EnableButton(HostButton::Cancel, true);
    EnableButton(WayOn(), true);
    ProgressBar1.Visible(false);
    cmdAnalyze.Visible(false);
    cmdStop.Visible(false);
    txtDetails.Height(ProgressBar1.Place().lTop - txtDetails.Place().lTop);
}

// The wizard button that a run opens at its end: a wizard that was started for an action may end here.
std::int16_t AnalysisPage::WayOn() const {
    return IsIn(Deref(Parameters()), ParameterKey::Action) ? HostButton::Finish : HostButton::Next;
}

// Unlike a finished run it hides nothing.
void AnalysisPage::EndStoppedRun() {
    StopAnalyzer();
    ProgressBar1.Value(ProgressBar1.Max());
    m_bRunEnded = true;
    EnableButton(WayOn(), true);
    EnableButton(HostButton::Cancel, true);
}

} // namespace GleanerSvc
