#include "workbench/lab/SizingAhead.h"

#include <string>

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
    : m_oLab(oLab), m_alSampleIDs(std::move(alSampleIDs)), m_nAhead(static_cast<std::size_t>(nThreads) * 2) {
    m_oWorkers.setMaxThreadCount(nThreads);
}

SizingAhead::~SizingAhead() {
    m_oWorkers.clear();
    m_oWorkers.waitForDone();
}

const SizedTrace& SizingAhead::Of(std::int32_t lSampleID) {
    const auto& oFuture = Begin(lSampleID);
    while (m_nNext < m_alSampleIDs.size() && m_oSized.size() <= m_nAhead) Begin(m_alSampleIDs[m_nNext++]);
    return oFuture.get();
}

const std::shared_future<SizedTrace>& SizingAhead::Begin(std::int32_t lSampleID) {
    const auto itSized = m_oSized.find(lSampleID);
    if (itSized != m_oSized.end()) return itSized->second;
    const auto oSample = m_oLab.FindSample(lSampleID);
    auto oTask = std::make_shared<std::packaged_task<SizedTrace()>>(
        [sInput = oSample ? oSample->sFile : "", abTrace = m_oLab.TraceOf(lSampleID)] {
            return SizeBytes(sInput, abTrace);
        });
    auto& oFuture = m_oSized[lSampleID] = oTask->get_future().share();
    m_oWorkers.start([oTask] { (*oTask)(); });
    return oFuture;
}

} // namespace GleanerSvc::Workbench
