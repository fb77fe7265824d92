// The wizard page that runs the analyzer over what earlier pages chose: it starts a run, watches and stops
// it, shows its outcome row by row, and steps through the failures. Reads its work from the parameter store
// and leaves "AnalyzedResults" there.
//
// Grid row r, from 1, stands for item r - 1 of the analyzer's numbering. Columns: 1 name, 2 date, 3 status, 4
// when the item ended; column 0 holds the 1-based place of the row's stored result, "-1" for none.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/WizardPage.h"
#include "pagebind/controls/Button.h"
#include "pagebind/controls/GridControl.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/ProgressBar.h"
#include "pagebind/controls/TextBox.h"

namespace GleanerSvc {

class AnalysisPage final : public WizardPage {
  public:
    // Fails when the grid cannot be made. A page base that cannot be made is reported, and the page has none.
    explicit AnalysisPage(const Ref<Apartment>& oApartment);
    AnalysisPage(const AnalysisPage&) = delete;
    AnalysisPage& operator=(const AnalysisPage&) = delete;
    ~AnalysisPage() override { Disconnect(); }

    // The controls, in twips.
    Label lblAnalysisParameter{*this, "lblAnalysisParameter", {120, 120, 1575, 255}, "Analysis Parameter:"};
    Label lblParameterName{*this, "lblParameterName", {1800, 120, 5055, 255}};
    Label lblStartAnalysis{*this, "lblStartAnalysis", {7080, 120, 3015, 255}};
    GridControl grdAnalyzeItems{*this, "grdAnalyzeItems", {0, 600, 10215, 2775}, Context()};
    TextBox txtDetails{*this, "txtDetails", {0, 3480, 10215, 2295}};
    ProgressBar ProgressBar1{*this, "ProgressBar1", {0, 6120, 7455, 255}};
    Button cmdAnalyze{*this, "cmdAnalyze", {7560, 6000, 1215, 375}, "&Analyze"};
    Button cmdStop{*this, "cmdStop", {8880, 6000, 1215, 375}, "&Stop"};
    Label lbTotalResults{*this, "lbTotalResults", {0, 6600, 1125, 330}, "Total Samples:"};
    Label lbTotalResults2{*this, "lbTotalResults2", {1200, 6600, 650, 255}, "0"};
    Label lbAnalyzed{*this, "lbAnalyzed", {2160, 6600, 735, 255}, "Analyzed:"};
    Label lbAnalyzed2{*this, "lbAnalyzed2", {3000, 6600, 650, 255}, "0"};
    Label lbPass{*this, "lbPass", {3960, 6600, 615, 255}, "Passed:"};
    Label lbPass2{*this, "lbPass2", {4680, 6600, 650, 255}, "0"};
    Label lbFail{*this, "lbFail", {5760, 6600, 495, 255}, "Failed:"};
    Label lbFail2{*this, "lbFail2", {6360, 6600, 650, 255}, "0"};
    Button cmdFailPrevious{*this, "cmdFailPrevious", {7560, 6550, 910, 300}, "<< Failure"};
    Button cmdFailNext{*this, "cmdFailNext", {9000, 6550, 910, 300}, "Failure >>"};

  protected:
    // "AnalysisPage items=3 analyzed=2 passed=1 failed=1 row=2 failure=1 alleles ended stop left": the words
    // only for an allele reanalysis, when the run has ended, when a stop was asked for, and when the page was
    // left with a live analyzer.
    std::string StateText() const override;

  private:
    // What the action text stands for.
    enum class Run { Samples, Results, Alleles, Unknown };

    static constexpr std::int32_t ResultColumn = 0;
    static constexpr std::int32_t NameColumn = 1;
    static constexpr std::int32_t DateColumn = 2;
    static constexpr std::int32_t StatusColumn = 3;
    static constexpr std::int32_t EndedColumn = 4;

    std::string ClassName() const override { return "AnalysisPage"; }
    void Connect();
    std::vector<Label*> Counters() { // with their titles, in the order of showing and hiding
        return {&lbTotalResults, &lbTotalResults2, &lbAnalyzed, &lbAnalyzed2,
                &lbPass,         &lbPass2,         &lbFail,     &lbFail2};
    }

    // Lifecycle (AnalysisPage.cpp).
    void UserControl_Initialize();
    void m_oPageBase_Initialize();
    void m_oPageBase_Activate();
    void m_oPageBase_Deactivate();
    std::string ActionIn(const IKeyedCollection& colParameters) const;
    void ShowAction(std::string_view sAction);
    bool IsPassedOver(IKeyedCollection& colParameters);
    bool LoadWork(const IKeyedCollection& colParameters, std::string_view sAction);
    void LoadSamples(const IKeyedCollection& colParameters, std::string_view sAction);
    void LoadAlleles(const IKeyedCollection& colParameters);
    void ApplyGridType(std::string_view sGridTypeID);
    void EnableButton(std::int16_t iButton, bool bEnabled) const {
        Deref(Host()).EnableButton(iButton, bEnabled);
    }
    void StopAnalyzer() const;
    void LetGoOfAnalyzer();

    // Starting a run (AnalysisPageStart.cpp).
    static Run RunOf(std::string_view sAction);
    void cmdAnalyze_Click();
    void ZeroCounters();
    bool PassesDatabaseGates();
    std::string ActionForRun();
    Int32Array GatherSampleIDs() const;
    Int32Array GatherResultIDs() const;
    ObjectArray GatherSampleData() const;
    void CreateAnalyzer();
    void CallAnalyzer(Run eRun, const Value& vBatch);

    // Events of a run (AnalysisPageEvents.cpp).
    void cmdStop_Click();
    void m_oZemFragmentAnalyzer_OnStatusUpdate(std::int32_t nIndex, std::string_view bstrMsg);
    void m_oZemFragmentAnalyzer_OnComplete(std::int32_t nIndex, std::int32_t nResultID, std::int32_t eStatus);
    void CountProgress();
    void BringIntoView(std::int32_t nIndex);
    void ShowStopping(std::int32_t lRow);
    void RefuseItem(std::string_view bstrMsg);
    std::int32_t StoreResult(std::int32_t nResultID);
    void FinishRun();
    void EndStoppedRun();
    std::int16_t WayOn() const;
    void ShowEndOfDetails();

    // The grid and the failure buttons (AnalysisPageGrid.cpp).
    void InitializeGrid();
    void RememberCursor();
    std::int32_t FillRows(std::int32_t lItems);
    void WriteItem(std::int32_t lRow);
    void WriteText(std::int32_t lRow, std::int32_t lCol, std::string_view sText) const {
        grdAnalyzeItems->SetCellText(lRow, lCol, sText, GridConst::WriteText);
    }
    void ClearItems();
    void MakeGridStatic(IGrid& oGrid);
    void MarkItemResult(std::int32_t lRow, std::int32_t lCol, std::int32_t eStatus);
    std::string StatusText(std::int32_t eStatus) const;
    void GoToRow(std::int32_t lRow);
    void SetUpFailureButtons(std::int32_t lRow);
    void StoreFailRow(std::int32_t lRow);
    std::int32_t FailRow(std::int32_t lPlace) const;
    std::int32_t FindFailIndex(std::int32_t lRow) const;
    void ShowRowDetails(std::int32_t lRow);
    void ShowDetails(std::int32_t lRow);
    void ShowPlaceAmongFailures(std::int32_t lRow);
    void SetFailureButtons(bool bPrevious, bool bNext);
    void GoToFailure(std::int32_t lPlace);
    void cmdFailNext_Click();
    void cmdFailPrevious_Click();
    void grdAnalyzeItems_OnLButtonClickedRowCol(double dRow);
    void grdAnalyzeItems_OnSelectionMoved(const Ref<IGridRange>& oRange);
    void grdAnalyzeItems_OnGridKeyDown();
    void grdAnalyzeItems_OnGridKeyUp();
    void grdAnalyzeItems_OnLButtonDblClkRowCol(GestureResult& oResult);
    void grdAnalyzeItems_OnMouseEvent44(GestureResult& oResult);

    Ref<IObject> m_oGridType;
    Ref<IKeyedCollection> m_colItems;   // of the run: ISample, or ISampleData on an allele reanalysis
    Ref<IKeyedCollection> m_colResults; // IResult, grows over several runs
    Ref<IAnalysisParameter> m_oAnalysisParameter;     // of an analysis or a plain reanalysis
    Ref<IParameterDefinition> m_oAlleleParameter;     // of an allele reanalysis
    Ref<IZemFragmentAnalyzer> m_oZemFragmentAnalyzer; // of the present or last run
    Subscriptions m_oAnalyzerEvents;
    // In a run the 0-based item last brought into view; after it the 1-based row on show.
    std::int32_t m_lCurrentRow = -1;
    std::int32_t m_lProgress = 0; // status updates so far; cleared by Initialize only, as the next two are
    bool m_bPageLeft = false;     // the page was left with a live analyzer: no run ends on it any more
    bool m_bStopRequested = false;
    bool m_bAlleleReanalysis = false;
    bool m_bRunEnded = false;
    std::int32_t m_lPassCount = 0;
    std::int32_t m_lFailCount = 0;
    std::int32_t m_lAnalyzedCount = 0;
    std::vector<std::int32_t> m_alFailRows; // grid rows of the failures, ascending, from place 1
    std::int32_t m_lFailIndex = 0;          // the place last gone to
    // The pointer that stood before the hourglass, until the grid is filled.
    std::optional<std::int16_t> m_iCursorBefore;
};

} // namespace GleanerSvc
