#include "workbench/lab/SizingAhead.h"

#include <string>
#include <utility>

#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

SizedTrace SizeBytes(const std::string& sInput, const std::vector<std::byte>& abTrace) {
    try {
        return SizeTrace(ReadTrace(sInput, abTrace));
    } catch (const InputError& oError) {
        SizedTrace oSized;
        oSized.eStatus = Status::ReadError;
        oSized.sReason = oError.what();
        return oSized;
    }
}

} // namespace

SizingAhead::SizingAhead(Lab& oLab, std::vector<std::int32_t> alSampleIDs, int nThreads)
    : m_oLab(oLab), m_alSampleIDs(std::move(alSampleIDs)),
      m_nMostAhead(static_cast<std::size_t>(nThreads) * 2) {
    m_oWorkers.setMaxThreadCount(nThreads);
}

SizingAhead::~SizingAhead() {
    m_oWorkers.clear();
    m_oWorkers.waitForDone();
}

const SizedTrace& SizingAhead::Of(std::int32_t lSampleID) {
    const auto& oFuture = Begin(lSampleID);
    m_oAhead.erase(lSampleID);
    m_oServed.insert(lSampleID);
    while (m_nNext < m_alSampleIDs.size() && m_oAhead.size() < m_nMostAhead)
        LookAhead(m_alSampleIDs[m_nNext++]);
    return oFuture.get();
}

void SizingAhead::LookAhead(std::int32_t lSampleID) {
    if (m_oServed.contains(lSampleID)) return;
    try {
        Begin(lSampleID);
        m_oAhead.insert(lSampleID);
    } catch (const LabError&) {
        // It comes up again when this sample is asked for; until then it is nobody's failure.
    }
}

const std::shared_future<SizedTrace>& SizingAhead::Begin(std::int32_t lSampleID) {
    const auto itSized = m_oSized.find(lSampleID);
    if (itSized != m_oSized.end()) return itSized->second;
    const auto oSample = m_oLab.FindSample(lSampleID);
    auto oTask = std::make_shared<std::packaged_task<SizedTrace()>>(
        [sInput = oSample ? oSample->sFile : "", abTrace = m_oLab.TraceOf(lSampleID)]() mutable {
            return SizeBytes(sInput,
                             std::exchange(abTrace, {})); // a result is kept for longer than its trace
        });
    auto& oFuture = m_oSized[lSampleID] = oTask->get_future().share();
    m_oWorkers.start([oTask] { (*oTask)(); });
    return oFuture;
}

SizedTrace StoredSizes(Lab& oLab, const SampleRow& oSample) {
    const auto aoResults = oLab.ResultsOfSample(oSample.lSampleID);
    if (!aoResults.empty()) return oLab.SizedOf(aoResults.back().lResultID);
    return SizingAhead(oLab, {}, 1).Of(oSample.lSampleID);
}

} // namespace GleanerSvc::Workbench
