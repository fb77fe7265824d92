// Starting a run: the database gates, what the action stands for, the batch, and the call of the analyzer.
#include "analysispage/AnalysisPage.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t UpdatesPerRow = 150; // what the progress bar allows for

std::string Lines(std::initializer_list<std::string_view> asLines) {
    std::string sText;
    for (const auto sLine : asLines) {
        if (!sText.empty()) sText += LineBreak;
        sText += sLine;
    }
    return sText;
}

// Writes one element of a batch, which is as long as the page's items are many.
template<class T>
void Put(std::vector<T>& aBatch, std::int32_t lPlace, T oElement) {
    const auto nPlace = static_cast<std::size_t>(lPlace);
    if (nPlace >= aBatch.size()) {
        throw Failure(FailureNumber::Subscript, "AnalysisPage",
                      "\"ReAnalyzeResults\" holds more than the " + DecimalText(std::ssize(aBatch)) +
                          " items of the run.");
    }
    aBatch[nPlace] = std::move(oElement);
}

} // namespace

// "ReAnalyze" is one with no action at all here; only title and wizard buttons differ.
AnalysisPage::Run AnalysisPage::RunOf(std::string_view sAction) {
    if (sAction.empty() || EqualsIgnoringCase(sAction, ActionCode::ReAnalyze)) return Run::Samples;
    if (EqualsIgnoringCase(sAction, ActionCode::OptimizedReAnalyze)) return Run::Results;
    if (EqualsIgnoringCase(sAction, ActionCode::ReAnalyzeAlleleID)) return Run::Alleles;
    return Run::Unknown;
}

// Nothing follows the call of the analyzer: it may last as long as the run.
void AnalysisPage::cmdAnalyze_Click() {
    Terminal("cmdAnalyze_Click", [&] {
        ZeroCounters();
        for (Label* pCounter : Counters()) pCounter->Visible(true);
        if (!PassesDatabaseGates()) return;
        const Run eRun = RunOf(ActionForRun());
        EnableButton(HostButton::Back, false);
        EnableButton(HostButton::Cancel, false);
        cmdAnalyze.Enabled(false);
        cmdStop.Enabled(true);
        m_alFailRows.assign(static_cast<std::size_t>(Deref(m_colItems).Count()) + 1, 0);
        Value vBatch;
        switch (eRun) {
        case Run::Samples:
            vBatch = GatherSampleIDs();
            break;
        case Run::Results:
            vBatch = GatherResultIDs();
            break;
        case Run::Alleles:
            vBatch = GatherSampleData();
            break;
        case Run::Unknown: // found out only now; the buttons stay as they are
            Platform().ShowMessage("Unknown Reanalysis Action code", MessageStyle::Stop, "Internal Error");
            return;
        }
        ProgressBar1.Max(static_cast<float>(grdAnalyzeItems->NumRows() * UpdatesPerRow));
        lblStartAnalysis.Caption("Time started: " + Platform().DateToText(Platform().Now()));
        CreateAnalyzer();
        CallAnalyzer(eRun, vBatch);
    });
}

// What else earlier runs left stays: results, stop flag, progress, failure buttons.
void AnalysisPage::ZeroCounters() {
    m_lPassCount = 0;
    m_lFailCount = 0;
    m_lAnalyzedCount = 0;
    m_bRunEnded = false;
}

// The first is absolute, the second advice. Both are decided by the utility object.
bool AnalysisPage::PassesDatabaseGates() {
    if (Deref(Context().Utility()).WillDatabaseOverflow(Deref(m_colItems).Count())) {
        Platform().ShowMessage(
            Lines({"The size of the current working database is estimated to grow to be larger "
                   "than the 1.7 GB limit.",
                   "Please use a new database to complete this operation."}),
            MessageStyle::Stop, "");
        return false;
    }
    std::int32_t lSizeMB = 0;
    if (!Deref(Context().Utility()).IsDatabaseLarge(lSizeMB)) return true;
    const std::string sSize =
        "The size of the current working database is greater than " + DecimalText(lSizeMB) + " MB.";
    const std::int32_t lAnswer = Platform().ShowMessage(
        Lines({sSize, "To maintain system performance and facilitate data archiving on CD-ROM ",
               "please use a new database to complete this operation. Do you want to continue?"}),
        MessageStyle::QuestionYesNo, "");
    return lAnswer != MessageAnswer::No;
}

std::string AnalysisPage::ActionForRun() {
    const auto colParameters = Parameters();
    if (!IsIn(Deref(colParameters), ParameterKey::Action)) return "";
    EnableButton(HostButton::Finish, false);
    return colParameters->Item(ParameterKey::Action).ToText();
}

Int32Array AnalysisPage::GatherSampleIDs() const {
    const std::int32_t lItems = Deref(m_colItems).Count();
    Int32Array alIDs(static_cast<std::size_t>(lItems));
    for (std::int32_t lPlace = 0; lPlace < lItems; ++lPlace) {
        alIDs[static_cast<std::size_t>(lPlace)] = Deref(ItemAs<ISample>(*m_colItems, lPlace + 1)).SampleID();
    }
    return alIDs;
}

// Sized from the page's items: with fewer results than those, zeros stand at the end.
Int32Array AnalysisPage::GatherResultIDs() const {
    Int32Array alIDs(static_cast<std::size_t>(Deref(m_colItems).Count()));
    const auto colResults = ItemAs<IKeyedCollection>(Deref(Parameters()), ParameterKey::ReAnalyzeResults);
    const std::int32_t lResults = Deref(colResults).Count();
    for (std::int32_t lPlace = 0; lPlace < lResults; ++lPlace) {
        Put(alIDs, lPlace, Deref(ItemAs<IResult>(*colResults, lPlace + 1)).ResultID());
    }
    return alIDs;
}

ObjectArray AnalysisPage::GatherSampleData() const {
    ObjectArray aoSampleData(static_cast<std::size_t>(Deref(m_colItems).Count()));
    const auto colData = ItemAs<IKeyedCollection>(Deref(Parameters()), ParameterKey::ReAnalyzeResults);
    const std::int32_t lCount = Deref(colData).Count();
    for (std::int32_t lPlace = 0; lPlace < lCount; ++lPlace) {
        Put(aoSampleData, lPlace, Ref<IObject>(ItemAs<ISampleData>(*colData, lPlace + 1)));
    }
    return aoSampleData;
}

// Replaces an earlier analyzer of this page.
void AnalysisPage::CreateAnalyzer() {
    const auto oAnalyzer = Context().Libraries().CreateAnalyzer();
    AnalyzerEvents& oEvents = Deref(oAnalyzer).Events();
    LetGoOfAnalyzer();
    m_oZemFragmentAnalyzer = oAnalyzer;
    m_oAnalyzerEvents.On(oEvents.OnStatusUpdate, [this](std::int32_t nIndex, std::string_view bstrMsg) {
        m_oZemFragmentAnalyzer_OnStatusUpdate(nIndex, bstrMsg);
    });
    m_oAnalyzerEvents.On(oEvents.OnComplete,
                         [this](std::int32_t nIndex, std::int32_t nResultID, std::int32_t eStatus) {
                             m_oZemFragmentAnalyzer_OnComplete(nIndex, nResultID, eStatus);
                         });
}

// The page may let go of the analyzer while the call lasts, so the call holds it.
void AnalysisPage::CallAnalyzer(Run eRun, const Value& vBatch) {
    const auto oAnalyzer = m_oZemFragmentAnalyzer;
    if (eRun == Run::Alleles) {
        const auto oFirstPart = Deref(m_oAlleleParameter).FirstPart(0);
        const auto oSecondPart = m_oAlleleParameter->SecondPart(0);
        oAnalyzer->ReanalyzeAlleles(vBatch, oFirstPart, oSecondPart, 0);
    } else if (eRun == Run::Results) {
        oAnalyzer->ReanalyzeResults(vBatch, Deref(m_oAnalysisParameter).ParameterID());
    } else {
        oAnalyzer->AnalyzeSamples(vBatch, Deref(m_oAnalysisParameter).ParameterID());
    }
}

} // namespace GleanerSvc
