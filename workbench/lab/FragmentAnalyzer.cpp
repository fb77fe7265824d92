#include "workbench/lab/FragmentAnalyzer.h"

#include <algorithm>

#include "pagebind/Platform.h"
#include "workbench/lab/SizingAhead.h"
#include "workbench/store/SampleDataRecord.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::int32_t Refused = -2; // the index that tells of an item that cannot be analyzed

std::string TextOf(Status eStatus) { return StatusText(static_cast<std::int32_t>(eStatus)); }

std::string Description(const CalledTrace& oCalled) {
    return TextOf(oCalled.eStatus) + (oCalled.sReason.empty() ? "" : ": " + oCalled.sReason);
}

std::string WhyNoPanel(const std::string& sPanel, const std::optional<Panel>& oPanel) {
    if (sPanel.empty()) return "the trace names none";
    if (!oPanel) return "no kit of the lab has a panel \"" + sPanel + '"';
    return "the panel \"" + sPanel + "\" is for " + (oPanel->eType == AlleleType::Snp ? "SNP" : "STR") +
           ", and the other was chosen";
}

} // namespace

void FragmentAnalyzer::AnalyzeSamples(const Value& vSampleIDs, std::int32_t lParameterID) {
    Batch oBatch{{}, Parameter(lParameterID)};
    for (const std::int32_t lSampleID : vSampleIDs.ToInt32Array()) {
        const auto nIndex = static_cast<std::int32_t>(oBatch.aoItems.size());
        oBatch.aoItems.push_back({nIndex, lSampleID, 0});
    }
    SizeAndCall(oBatch);
}

void FragmentAnalyzer::ReanalyzeResults(const Value& vResultIDs, std::int32_t lParameterID) {
    Batch oBatch{{}, Parameter(lParameterID)};
    for (const std::int32_t lResultID : vResultIDs.ToInt32Array())
        oBatch.aoItems.push_back(ItemOfResult(static_cast<std::int32_t>(oBatch.aoItems.size()), lResultID));
    SizeAndCall(oBatch);
}

void FragmentAnalyzer::ReanalyzeAlleles(const Value& vSampleData, const Ref<IObject>& oFirstPart,
                                        const Ref<IObject>& /*oSecondPart*/, std::int16_t /*iOption*/) {
    auto& oDefinition = Deref(Cast<ParameterDefinition>(oFirstPart));
    Batch oBatch{{}, oDefinition.Choice()};
    oBatch.oParameter.lParameterID = oDefinition.ParameterID();
    for (const auto& oData : vSampleData.ToObjectArray())
        oBatch.aoItems.push_back(ItemOfData(static_cast<std::int32_t>(oBatch.aoItems.size()), oData));
    CallAgain(oBatch);
}

ParameterRow FragmentAnalyzer::Parameter(std::int32_t lParameterID) {
    if (auto oParameter = m_oLab->FindParameter(lParameterID)) return *oParameter;
    throw Failure(FailureNumber::InvalidCall, "Analyzer",
                  "The lab has no analysis parameters " + std::to_string(lParameterID) + ".");
}

FragmentAnalyzer::Item FragmentAnalyzer::ItemOfResult(std::int32_t nIndex, std::int32_t lResultID) {
    const auto oResult = m_oLab->FindResult(lResultID);
    if (!oResult) return {nIndex, 0, 0, "The lab has no result " + std::to_string(lResultID) + "."};
    return {nIndex, oResult->lSampleID, lResultID};
}

FragmentAnalyzer::Item FragmentAnalyzer::ItemOfData(std::int32_t nIndex, const Ref<IObject>& oData) {
    if (!oData) return {nIndex, 0, 0, "There is no record for item " + std::to_string(nIndex + 1) + "."};
    const auto& oRecord = Deref(Cast<SampleDataRecord>(oData));
    if (oRecord.ResultID() > 0) return ItemOfResult(nIndex, oRecord.ResultID());
    const auto aoResults = m_oLab->ResultsOfSample(oRecord.SampleID());
    if (!aoResults.empty()) return {nIndex, oRecord.SampleID(), aoResults.back().lResultID};
    return {nIndex, 0, 0, "Sample " + std::to_string(oRecord.SampleID()) + " was never analyzed."};
}

void FragmentAnalyzer::SizeAndCall(const Batch& oBatch) {
    std::vector<std::int32_t> alSampleIDs;
    for (const auto& oItem : oBatch.aoItems) {
        if (m_oLab->FindSample(oItem.lSampleID)) alSampleIDs.push_back(oItem.lSampleID);
    }
    SizingAhead oAhead(*m_oLab, std::move(alSampleIDs), m_nThreads);
    LadderShelf oLadders(*m_oLab, [&](const SampleRow& oLadder) { return oAhead.Of(oLadder.lSampleID); });
    ForEachItem(oBatch, [&](const Item& oItem, const SampleRow& oSample) {
        Tell(oItem, "Reading " + oSample.sFile);
        Finish(oItem, oBatch.oParameter, oSample, oAhead.Of(oSample.lSampleID), oLadders);
        if (!oSample.IsLadder()) oAhead.Forget(oSample.lSampleID);
    });
}

void FragmentAnalyzer::CallAgain(const Batch& oBatch) {
    LadderShelf oLadders(*m_oLab, [&](const SampleRow& oLadder) { return StoredSizes(*m_oLab, oLadder); });
    ForEachItem(oBatch, [&](const Item& oItem, const SampleRow& oSample) {
        Tell(oItem, "Using the sizes of result " + std::to_string(oItem.lResultID));
        Finish(oItem, oBatch.oParameter, oSample, m_oLab->SizedOf(oItem.lResultID), oLadders);
    });
}

template<class F>
void FragmentAnalyzer::ForEachItem(const Batch& oBatch, F&& fnAnalyze) {
    const auto oSelf = shared_from_this(); // a handler may let go of the last reference
    m_bStopped = false;
    for (const auto& oItem : oBatch.aoItems) {
        if (m_bStopped) return;
        m_nTold = 0;
        const auto oSample = m_oLab->FindSample(oItem.lSampleID);
        if (oSample) {
            fnAnalyze(oItem, *oSample);
        } else {
            m_oEvents.OnStatusUpdate.Raise(Refused, oItem.sTrouble.empty()
                                                        ? "The lab has no sample " +
                                                              std::to_string(oItem.lSampleID) + "."
                                                        : oItem.sTrouble);
        }
    }
}

void FragmentAnalyzer::Finish(const Item& oItem, const ParameterRow& oParameter, const SampleRow& oSample,
                              const SizedTrace& oSized, LadderShelf& oLadders) {
    if (!oSized.sReason.empty()) Tell(oItem, oSized.sReason);
    const CalledTrace oCalled = Call(oItem, oParameter, oSample, oSized, oLadders);
    Tell(oItem, Description(oCalled));
    FillProgress(oItem);
    if (m_bStopped) return;
    const std::int32_t lResultID = m_oLab->AddResult(
        {oSample.lSampleID, oParameter.lParameterID, Description(oCalled), oSized, oCalled});
    m_oEvents.OnComplete.Raise(oItem.nIndex, lResultID, static_cast<std::int32_t>(oCalled.eStatus));
}

CalledTrace FragmentAnalyzer::Call(const Item& oItem, const ParameterRow& oParameter,
                                   const SampleRow& oSample, const SizedTrace& oSized,
                                   LadderShelf& oLadders) {
    const auto oPanel = m_oLab->FindPanel(oSample.sPanel);
    if (!oPanel || oPanel->eType != oParameter.eType) {
        CalledTrace oCalled = CallAlleles(oSized, {});
        if (oCalled.eStatus == Status::NoPanel) oCalled.sReason = WhyNoPanel(oSample.sPanel, oPanel);
        return oCalled;
    }
    CallRequest oRequest{&*oPanel, nullptr, oParameter.asLoci, oSample.IsLadder()};
    LadderShelf::Found oLadder;
    if (oSized.IsSized() && oPanel->eType == AlleleType::Str) oLadder = oLadders.Find(oSample, *oPanel);
    if (oLadder.pLadder) {
        oRequest.pLadder = oLadder.pLadder;
        Tell(oItem, "Ladder " + oLadder.oSample.sFile + ": " + std::to_string(oLadder.pLadder->nFound) +
                        " of " + std::to_string(oLadder.pLadder->nExpected) + " alleles");
    }
    return CallAlleles(oSized, oRequest);
}

void FragmentAnalyzer::Tell(const Item& oItem, const std::string& sText) {
    ++m_nTold;
    m_oEvents.OnStatusUpdate.Raise(oItem.nIndex, sText + std::string(LineBreak));
}

// The page's bar counts updates and allows for so many of an item: without the rest of them it would hardly
// move.
void FragmentAnalyzer::FillProgress(const Item& oItem) {
    constexpr int UpdatesOfAnItem = 150;
    for (; m_nTold < UpdatesOfAnItem && !m_bStopped; ++m_nTold)
        m_oEvents.OnStatusUpdate.Raise(oItem.nIndex, "");
}

} // namespace GleanerSvc::Workbench
