// The page's life: what it reads from the parameter store, how it sets the wizard's buttons, what it leaves
// behind.
#include "analysispage/AnalysisPage.h"

#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t GridHeight = 2775; // twips
constexpr std::int32_t GridColumns = 4;

} // namespace

AnalysisPage::AnalysisPage(const Ref<Apartment>& oApartment)
    : WizardPage(oApartment, "AnalysisPage", 10215, 7005) {
    cmdStop.Enabled(false);
    Connect();
    UserControl_Initialize();
}

void AnalysisPage::Connect() {
    On(cmdAnalyze.Click, [this] { cmdAnalyze_Click(); });
    On(cmdStop.Click, [this] { cmdStop_Click(); });
    On(cmdFailNext.Click, [this] { cmdFailNext_Click(); });
    On(cmdFailPrevious.Click, [this] { cmdFailPrevious_Click(); });
    GridEvents& oGrid = grdAnalyzeItems->Events();
    On(oGrid.OnLButtonClickedRowCol,
       [this](double dRow, double, GestureResult&) { grdAnalyzeItems_OnLButtonClickedRowCol(dRow); });
    On(oGrid.OnSelectionMoved,
       [this](const Ref<IGridRange>& oRange) { grdAnalyzeItems_OnSelectionMoved(oRange); });
    On(oGrid.OnGridKeyDown, [this](std::int32_t, GestureResult&) { grdAnalyzeItems_OnGridKeyDown(); });
    On(oGrid.OnGridKeyUp, [this](std::int32_t, GestureResult&) { grdAnalyzeItems_OnGridKeyUp(); });
    On(oGrid.OnLButtonDblClkRowCol,
       [this](double, double, GestureResult& oResult) { grdAnalyzeItems_OnLButtonDblClkRowCol(oResult); });
    On(oGrid.OnMouseEvent44,
       [this](double, double, GestureResult& oResult) { grdAnalyzeItems_OnMouseEvent44(oResult); });
}

void AnalysisPage::UserControl_Initialize() {
    Terminal("UserControl_Initialize", [&] {
        CreatePageBase();
        On(Events().Initialize, [this](const Ref<IObject>&) { m_oPageBase_Initialize(); });
        On(Events().Activate, [this] { m_oPageBase_Activate(); });
        On(Events().Deactivate, [this] { m_oPageBase_Deactivate(); });
        for (Label* pCounter : Counters()) pCounter->Visible(false);
        cmdFailPrevious.Visible(false);
        cmdFailNext.Visible(false);
    });
}

void AnalysisPage::m_oPageBase_Initialize() {
    Raising("m_oPageBase_Initialize", [&] {
        m_colResults = std::make_shared<KeyedCollection>();
        LetGoOfAnalyzer();
        m_oAlleleParameter = nullptr;
        m_oAnalysisParameter = nullptr;
        m_bAlleleReanalysis = false;
        m_lCurrentRow = -1;
        m_bPageLeft = false;
        m_bStopRequested = false;
        m_lProgress = 0;
        ClearItems();
        Deref(Context().GridHelper()).SetGridDefaults(*grdAnalyzeItems, true, {});
        ApplyGridType(GridTypeID::AnalyzeItems);
        grdAnalyzeItems->NumCols(GridColumns);
        grdAnalyzeItems->NumRows(0);
        grdAnalyzeItems.Height(GridHeight);
        MakeGridStatic(*grdAnalyzeItems);
    });
}

void AnalysisPage::m_oPageBase_Activate() {
    Raising("m_oPageBase_Activate", [&] {
        const auto colParameters = Parameters();
        const std::string sAction = ActionIn(Deref(colParameters));
        ShowAction(sAction);
        if (IsPassedOver(*colParameters) || !LoadWork(*colParameters, sAction)) return;
        RemoveIfPresent(*colParameters, ParameterKey::AnalyzedResults);
        InitializeGrid();
        const std::int32_t lItems = Deref(m_colItems).Count();
        cmdAnalyze.Enabled(lItems > 0);
        if (lItems > 0) lbTotalResults2.Caption(DecimalText(lItems));
    });
}

// The results of an allele reanalysis stay here.
void AnalysisPage::m_oPageBase_Deactivate() {
    Raising("m_oPageBase_Deactivate", [&] {
        if (Deref(m_colResults).Count() >= 1 && !m_bAlleleReanalysis) {
            Deref(Parameters()).Add(m_colResults, ParameterKey::AnalyzedResults);
        }
        if (m_oZemFragmentAnalyzer) {
            StopAnalyzer();
            LetGoOfAnalyzer();
            m_bPageLeft = true;
        }
    });
}

// Empty when the store holds none.
std::string AnalysisPage::ActionIn(const IKeyedCollection& colParameters) const {
    if (!IsIn(colParameters, ParameterKey::Action)) return "";
    return colParameters.Item(ParameterKey::Action).ToText();
}

// Any other action leaves the title as the host had it, and is found out when the run is started.
void AnalysisPage::ShowAction(std::string_view sAction) {
    switch (RunOf(sAction)) {
    case Run::Samples:
        Deref(Host()).Title(sAction.empty() ? "Analyze Data" : "Reanalyze Data");
        break;
    case Run::Results:
        Deref(Host()).Title("Reanalyze Data");
        break;
    case Run::Alleles:
        Deref(Host()).Title("Reanalyze Data");
        m_bAlleleReanalysis = true;
        ApplyGridType(GridTypeID::AlleleItems);
        break;
    case Run::Unknown:
        break;
    }
}

// A run without samples passes over this page in both directions. The forward mark leaves one for the way
// back, which stays until the sample page takes it.
bool AnalysisPage::IsPassedOver(IKeyedCollection& colParameters) {
    if (IsIn(colParameters, ParameterKey::SkipForward)) {
        colParameters.Remove(ParameterKey::SkipForward);
        colParameters.Add(SkipValue, ParameterKey::SkipBackward);
        Deref(Host()).PressButton(HostButton::Next);
        return true;
    }
    if (!IsIn(colParameters, ParameterKey::SkipBackward)) return false;
    Deref(Host()).PressButton(HostButton::Back);
    return true;
}

// Without work the page passes on to the next and loads nothing.
bool AnalysisPage::LoadWork(const IKeyedCollection& colParameters, std::string_view sAction) {
    if (!IsIn(colParameters, m_bAlleleReanalysis ? ParameterKey::ReAnalyzeResults : ParameterKey::Samples)) {
        Deref(Host()).PressButton(HostButton::Next);
        return false;
    }
    if (m_bAlleleReanalysis) {
        LoadAlleles(colParameters);
    } else {
        LoadSamples(colParameters, sAction);
    }
    return true;
}

void AnalysisPage::LoadSamples(const IKeyedCollection& colParameters, std::string_view sAction) {
    m_oAnalysisParameter = ItemAs<IAnalysisParameter>(colParameters, ParameterKey::AnalysisParameter);
    m_colItems = ItemAs<IKeyedCollection>(colParameters, ParameterKey::Samples);
    EnableButton(HostButton::Finish, false);
    if (sAction.empty()) EnableButton(HostButton::Next, false);
    const std::string sName = Deref(m_oAnalysisParameter).Name();
    lblParameterName.Caption(RightTrim(sName));
}

void AnalysisPage::LoadAlleles(const IKeyedCollection& colParameters) {
    m_oAlleleParameter = ItemAs<IParameterDefinition>(colParameters, ParameterKey::AnalysisParameter);
    m_colItems = ItemAs<IKeyedCollection>(colParameters, ParameterKey::ReAnalyzeResults);
    EnableButton(HostButton::Finish, false);
    EnableButton(HostButton::Next, false);
    lblParameterName.Visible(false);
    lblAnalysisParameter.Visible(false);
}

void AnalysisPage::ApplyGridType(std::string_view sGridTypeID) {
    m_oGridType = Deref(Context().DataFactory())
                      .GetRecord(RecordName::GridType, KeyName::GridTypeID, sGridTypeID, 0, true);
    Deref(Context().GridHelper()).ApplyGridType(*grdAnalyzeItems, m_oGridType, false, false, false, {});
}

// A handler that Stop leads to may let go of the analyzer, so the call holds it.
void AnalysisPage::StopAnalyzer() const {
    const auto oAnalyzer = m_oZemFragmentAnalyzer;
    Deref(oAnalyzer).Stop();
}

void AnalysisPage::LetGoOfAnalyzer() {
    m_oAnalyzerEvents.Clear();
    m_oZemFragmentAnalyzer = nullptr;
}

std::string AnalysisPage::StateText() const {
    return " items=" + DecimalText(m_colItems ? m_colItems->Count() : 0) +
           " analyzed=" + DecimalText(m_lAnalyzedCount) + " passed=" + DecimalText(m_lPassCount) +
           " failed=" + DecimalText(m_lFailCount) + " row=" + DecimalText(m_lCurrentRow) +
           " failure=" + DecimalText(m_lFailIndex) + (m_bAlleleReanalysis ? " alleles" : "") +
           (m_bRunEnded ? " ended" : "") + (m_bStopRequested ? " stop" : "") + (m_bPageLeft ? " left" : "");
}

} // namespace GleanerSvc
