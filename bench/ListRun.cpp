#include "bench/ListRun.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Bench {

namespace {

constexpr std::int32_t Projects = 8;
constexpr std::int32_t RowsOfAName = 4;
constexpr double FirstDay = 45000; // serial
constexpr double Minute = 1.0 / 1440;

// Numbers from 0 to nEnd - 1, each once for nNumber from 0 to nEnd - 1, in no order.
std::int64_t Scatter(std::int64_t nNumber, std::int64_t nEnd) {
    constexpr std::int64_t Prime = 15485863; // above every count that is measured, so it divides none
    return nNumber * Prime % nEnd;
}

Models::SampleFields SampleAt(std::int32_t lSampleID, std::int32_t lSamples) {
    const std::int64_t nPlace = Scatter(lSampleID - 1, lSamples);
    Models::SampleFields oFields;
    oFields.lSampleID = lSampleID;
    oFields.lProjectID = lSampleID % Projects + 1;
    oFields.sName = "Sample " + DecimalText(nPlace / RowsOfAName);
    oFields.dtModified = Date(FirstDay + static_cast<double>(nPlace % 1000000) * Minute);
    oFields.dtCollected = Date(FirstDay);
    return oFields;
}

} // namespace

Ref<Models::ModelLibraries> MakeSamples(std::int32_t lSamples) {
    auto oLibraries = Models::ModelLibraries::Create();
    oLibraries->Journal().Recording(false);
    Models::DataStore& oStore = oLibraries->Store();
    for (std::int32_t lProject = 1; lProject <= Projects; ++lProject) {
        oStore.AddProject(lProject, "Project " + DecimalText(lProject));
    }
    for (std::int32_t lSampleID = 1; lSampleID <= lSamples; ++lSampleID) {
        oStore.AddSample(SampleAt(lSampleID, lSamples));
    }
    return oLibraries;
}

ListRun::ListRun(Models::ModelLibraries& oLibraries)
    : m_oLibraries(oLibraries), m_oList(oLibraries.MakeApartment()) {
    m_oList.Initialize("Raw Data", m_colSelected);
}

void ListRun::HighlightEverySecond() {
    auto& oGrid = Model(m_oList.grdAvailable);
    for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); lRow += 2) oGrid.ClickLeft(lRow, 1, Models::Keys::Ctrl);
}

void ListRun::SelectEverySecond() {
    const auto& aoSamples = m_oLibraries.Store().Samples().All();
    for (std::size_t nSample = 0; nSample < aoSamples.size(); nSample += 2) {
        m_colSelected->Add(aoSamples[nSample], DecimalText(aoSamples[nSample]->RecordID()));
    }
}

std::string ListRun::ToString() const {
    return "available=" + DecimalText(Available().Rows()) +
           " selected=" + DecimalText(Model(m_oList.grdSelected).Rows()) +
           " items=" + DecimalText(m_colSelected->Count()) +
           " reports=" + DecimalText(std::ssize(m_oLibraries.Utility().Reports()));
}

} // namespace GleanerSvc::Bench
