#include "workbench/store/PlateRecord.h"

#include <algorithm>

#include "workbench/store/RecordCollection.h"

namespace GleanerSvc::Workbench {

namespace {

std::size_t PlaceOf(const Well& oWell) { return static_cast<std::size_t>(WellIndex(oWell)) - 1; }

template<class T>
Ref<IDataCollection> Collect(const char* sName, const std::vector<Ref<T>>& aoRecords) {
    auto colRecords = std::make_shared<RecordCollection>(sName);
    for (const auto& oRecord : aoRecords) colRecords->Put(oRecord);
    return colRecords;
}

} // namespace

const PlateRecord::Reading& PlateRecord::Read() {
    if (m_lRevision == m_oLab->Revision()) return m_oReading;
    Reading oReading;
    ReadSamples(oReading);
    ReadResults(oReading);
    m_oReading = std::move(oReading);
    m_lRevision = m_oLab->Revision();
    return m_oReading;
}

void PlateRecord::ReadSamples(Reading& oReading) const {
    for (auto& oRow : m_oLab->SamplesOfPlate(m_oRow.lPlateID)) {
        const auto oWell = oRow.oWell;
        auto oSample = std::make_shared<SampleRecord>(m_oLab, std::move(oRow));
        oReading.aoSamples.push_back(oSample);
        if (!oWell) continue;
        auto& oHeld = oReading.aoWells[PlaceOf(*oWell)].oSample;
        if (!oHeld || oHeld->DateCollected() <= oSample->DateCollected()) oHeld = std::move(oSample);
    }
}

void PlateRecord::ReadResults(Reading& oReading) const {
    for (auto& oRow : m_oLab->ResultsOfPlate(m_oRow.lPlateID)) {
        const auto oWell = oRow.oWell;
        const auto lSampleID = oRow.lSampleID;
        const auto oResult = std::make_shared<ResultRecord>(m_oLab, std::move(oRow));
        oReading.aoResults.push_back(oResult);
        if (!oWell) continue;
        auto& oContent = oReading.aoWells[PlaceOf(*oWell)];
        oContent.oResult = oResult;
        ++oContent.lResults;
        oContent.bAnalyzed |= oContent.oSample && oContent.oSample->RecordID() == lSampleID;
    }
}

const PlateRecord::Content& PlateRecord::At(std::int32_t iCol, std::int32_t iRow) {
    const auto nPlace = PlaceOf({iCol, iRow});
    return Read().aoWells[nPlace];
}

Ref<IDataCollection> PlateRecord::Results() { return Collect("Results", Read().aoResults); }

Ref<IDataCollection> PlateRecord::Samples() { return Collect("Samples", Read().aoSamples); }

Ref<IResult> PlateRecord::ResultAt(std::int32_t iCol, std::int32_t iRow) { return At(iCol, iRow).oResult; }

Ref<ISample> PlateRecord::SampleAt(std::int32_t iCol, std::int32_t iRow) { return At(iCol, iRow).oSample; }

std::int32_t PlateRecord::ResultState(std::int32_t iCol, std::int32_t iRow) {
    return std::min(At(iCol, iRow).lResults, 2);
}

std::int32_t PlateRecord::SampleState(std::int32_t iCol, std::int32_t iRow) {
    const Content& oContent = At(iCol, iRow);
    if (!oContent.oSample) return 0;
    return oContent.bAnalyzed ? 2 : 1;
}

} // namespace GleanerSvc::Workbench
