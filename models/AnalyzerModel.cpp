#include "models/AnalyzerModel.h"

#include "pagebind/Records.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

AnalyzerScript& AnalyzerScript::Update(std::int32_t lIndex, std::string_view sText) {
    aoSteps.emplace_back(StatusUpdate{lIndex, std::string(sText)});
    return *this;
}

AnalyzerScript& AnalyzerScript::Complete(std::int32_t lIndex, std::int32_t lResultID, std::int32_t lStatus) {
    aoSteps.emplace_back(Completion{lIndex, lResultID, lStatus});
    return *this;
}

std::string AnalyzerCall::ToString() const {
    std::string sText = sOperation + "(" + vItems.ToString() + ", ";
    if (sOperation != "ReanalyzeAlleles") return sText + DecimalText(lParameterID) + ")";
    sText += Value(oFirstPart).ToString() + ", " + Value(oSecondPart).ToString();
    return sText + ", " + DecimalText(iOption) + ")";
}

void AnalyzerModel::AnalyzeSamples(const Value& vSampleIDs, std::int32_t lParameterID) {
    Call("AnalyzeSamples", vSampleIDs, lParameterID);
    Run({"AnalyzeSamples", vSampleIDs.ToInt32Array(), lParameterID, nullptr, nullptr, 0});
}

void AnalyzerModel::ReanalyzeResults(const Value& vResultIDs, std::int32_t lParameterID) {
    Call("ReanalyzeResults", vResultIDs, lParameterID);
    Run({"ReanalyzeResults", vResultIDs.ToInt32Array(), lParameterID, nullptr, nullptr, 0});
}

void AnalyzerModel::ReanalyzeAlleles(const Value& vSampleData, const Ref<IObject>& oFirstPart,
                                     const Ref<IObject>& oSecondPart, std::int16_t iOption) {
    Call("ReanalyzeAlleles", vSampleData, oFirstPart, oSecondPart, iOption);
    for (const auto& oItem : vSampleData.ToObjectArray()) Cast<ISampleData>(oItem);
    Run({"ReanalyzeAlleles", vSampleData, 0, oFirstPart, oSecondPart, iOption});
}

void AnalyzerModel::Stop() {
    Call("Stop");
    ++m_lStops;
    m_bStopping = true;
}

void AnalyzerModel::Run(AnalyzerCall oCall) {
    const auto oSelf = shared_from_this();
    m_oCall = std::move(oCall);
    m_nPlayed = 0;
    m_bBroken = false;
    m_bStopping = false;
    m_lItem.reset();
    if (m_oScript.ePlay == PlayMode::InsideCall) PlayAll();
}

void AnalyzerModel::PlayAll() {
    const auto oSelf = shared_from_this();
    while (PlayNext()) {
    }
}

bool AnalyzerModel::PlayNext() {
    const auto oSelf = shared_from_this();
    if (!m_oCall || HasEnded()) return false;
    Play(m_oScript.aoSteps[m_nPlayed++]);
    return true;
}

bool AnalyzerModel::IsOver() const {
    if (m_nPlayed >= m_oScript.aoSteps.size()) return true;
    if (!m_bStopping || m_oScript.eStop == StopMode::Ignored) return false;
    if (m_oScript.eStop == StopMode::AtOnce || !m_lItem) return true;
    const auto lIndex =
        std::visit([](const auto& oStep) { return oStep.lIndex; }, m_oScript.aoSteps[m_nPlayed]);
    return lIndex >= 0 && lIndex != *m_lItem;
}

void AnalyzerModel::Play(const AnalyzerScript::Step& oStep) {
    try {
        std::visit([this](const auto& oEvent) { PlayStep(oEvent); }, oStep);
    } catch (...) {
        m_oFailure = Failure::Pending();
        if (m_oScript.eFailure == HandlerFailure::End) m_bBroken = true;
    }
}

void AnalyzerModel::PlayStep(const AnalyzerScript::StatusUpdate& oUpdate) {
    if (oUpdate.lIndex >= 0) m_lItem = oUpdate.lIndex;
    m_oEvents.OnStatusUpdate.Raise(oUpdate.lIndex, oUpdate.sText);
}

void AnalyzerModel::PlayStep(const AnalyzerScript::Completion& oCompletion) {
    m_lItem.reset();
    m_oEvents.OnComplete.Raise(oCompletion.lIndex, oCompletion.lResultID, oCompletion.lStatus);
}

std::string AnalyzerModel::ToString() const {
    if (!m_oCall) return "idle";
    return m_oCall->ToString() + " played=" + std::to_string(m_nPlayed) + "/" +
           std::to_string(m_oScript.aoSteps.size()) + " stops=" + DecimalText(m_lStops) +
           (HasEnded() ? " ended" : "");
}

} // namespace GleanerSvc::Models
