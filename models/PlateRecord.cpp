#include "models/PlateRecord.h"

#include <algorithm>

#include "models/DataCollectionModel.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

Ref<SampleRecord> CopyOf(const Ref<const StoreSettings>& oSettings, const SampleRecord& oSample) {
    return std::make_shared<SampleRecord>(oSettings, oSample.Made());
}

Ref<ResultRecord> CopyOf(const Ref<const StoreSettings>& oSettings, const ResultRecord& oResult) {
    return std::make_shared<ResultRecord>(oSettings, oResult.Made(), oResult.MadeFrom());
}

template<class T>
Ref<IDataCollection> CollectionOf(const Ref<const StoreSettings>& oSettings, std::string_view sName,
                                  const std::vector<Ref<T>>& aoRecords, std::vector<Ref<T>>& aoCopies) {
    if (!oSettings->bSeparateCopies) {
        return std::make_shared<DataCollectionModel>(oSettings->oJournal, sName, aoRecords);
    }
    while (aoCopies.size() < aoRecords.size()) {
        aoCopies.push_back(CopyOf(oSettings, *aoRecords[aoCopies.size()]));
    }
    return std::make_shared<DataCollectionModel>(oSettings->oJournal, sName, aoCopies);
}

bool IsEarlier(const Ref<ResultRecord>& oLeft, const Ref<ResultRecord>& oRight) {
    return std::pair(oLeft->Made().dtModified, oLeft->RecordID()) <
           std::pair(oRight->Made().dtModified, oRight->RecordID());
}

} // namespace

std::int32_t PlateRecord::PlateID() {
    Call("PlateID");
    return RecordID();
}

std::string PlateRecord::Name() {
    Call("Name");
    return Settings()->Padded(m_sName);
}

Ref<IDataCollection> PlateRecord::Results() {
    Call("Results");
    return CollectionOf(Settings(), "Results", m_aoResults, m_aoResultCopies);
}

Ref<IDataCollection> PlateRecord::Samples() {
    Call("Samples");
    return CollectionOf(Settings(), "Samples", m_aoSamples, m_aoSampleCopies);
}

Ref<IResult> PlateRecord::ResultAt(std::int32_t iCol, std::int32_t iRow) {
    Call("ResultAt", iCol, iRow);
    const Content& oContent = At({iCol, iRow});
    if (oContent.oResultOverride) return oContent.oResultOverride->oRecord;
    if (oContent.aoResults.empty()) return nullptr;
    return *std::max_element(oContent.aoResults.begin(), oContent.aoResults.end(), IsEarlier);
}

Ref<ISample> PlateRecord::SampleAt(std::int32_t iCol, std::int32_t iRow) {
    Call("SampleAt", iCol, iRow);
    const Content& oContent = At({iCol, iRow});
    if (oContent.oSampleOverride) return oContent.oSampleOverride->oRecord;
    return oContent.oSample;
}

std::int32_t PlateRecord::ResultState(std::int32_t iCol, std::int32_t iRow) {
    Call("ResultState", iCol, iRow);
    const Content& oContent = At({iCol, iRow});
    if (oContent.oResultOverride) return oContent.oResultOverride->lState;
    return oContent.aoResults.size() > 1 ? 2 : static_cast<std::int32_t>(oContent.aoResults.size());
}

std::int32_t PlateRecord::SampleState(std::int32_t iCol, std::int32_t iRow) {
    Call("SampleState", iCol, iRow);
    const Content& oContent = At({iCol, iRow});
    if (oContent.oSampleOverride) return oContent.oSampleOverride->lState;
    if (!oContent.oSample) return 0;
    return oContent.oSample->IsAnalyzed() ? 2 : 1;
}

void PlateRecord::Put(const Ref<SampleRecord>& oSample) {
    if (const auto& oWell = oSample->Made().oWell) {
        auto& oHeld = At(*oWell).oSample;
        if (oHeld) {
            throw Failure(FailureNumber::InvalidCall, std::string(ObjectName),
                          "Well " + WellText(*oWell) + " of plate \"" + m_sName +
                              "\" holds a sample already: " + oHeld->ToString() + ".");
        }
        oHeld = oSample;
    }
    m_aoSamples.push_back(oSample);
}

void PlateRecord::Put(const Ref<ResultRecord>& oResult) {
    if (const auto& oWell = oResult->Made().oWell) At(*oWell).aoResults.push_back(oResult);
    m_aoResults.push_back(oResult);
}

void PlateRecord::OverrideResult(const Well& oWell, std::int32_t lState, const Ref<IResult>& oResult) {
    At(oWell).oResultOverride = WellOverride<IResult>{lState, oResult};
}

void PlateRecord::OverrideSample(const Well& oWell, std::int32_t lState, const Ref<ISample>& oSample) {
    At(oWell).oSampleOverride = WellOverride<ISample>{lState, oSample};
}

std::string PlateRecord::ToString() const {
    return DecimalText(RecordID()) + " " + m_sName + " project=" + DecimalText(m_lProjectID) +
           " samples=" + DecimalText(std::ssize(m_aoSamples)) +
           " results=" + DecimalText(std::ssize(m_aoResults));
}

} // namespace GleanerSvc::Models
