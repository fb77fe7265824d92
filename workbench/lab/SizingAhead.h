// Sizes the traces of a batch on worker threads, ahead of the one that is asked for.
#pragma once

#include <QThreadPool>

#include <cstddef>
#include <future>
#include <map>
#include <set>
#include <vector>

#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// The lab is read on the caller's thread only; reading and sizing a trace run on the workers. A trace that
// cannot be read is sized as READ ERROR, with what was wrong as its reason.
class SizingAhead {
  public:
    // The samples will be asked for in this order; others may be asked for too.
    SizingAhead(Lab& oLab, std::vector<std::int32_t> alSampleIDs, int nThreads);
    SizingAhead(const SizingAhead&) = delete;
    SizingAhead& operator=(const SizingAhead&) = delete;
    ~SizingAhead(); // what has not begun is dropped; what has is waited for

    // Fails with LabError for a sample without a trace.
    const SizedTrace& Of(std::int32_t lSampleID);
    // A sample that is asked for no more.
    void Forget(std::int32_t lSampleID) { m_oSized.erase(lSampleID); }

  private:
    const std::shared_future<SizedTrace>& Begin(std::int32_t lSampleID);
    void LookAhead(std::int32_t lSampleID);

    Lab& m_oLab;
    std::vector<std::int32_t> m_alSampleIDs;
    std::size_t m_nNext = 0;          // the first that has not begun
    std::size_t m_nMostAhead;         // so many may be in work or wait to be asked for
    std::set<std::int32_t> m_oAhead;  // those
    std::set<std::int32_t> m_oServed; // that have been asked for
    std::map<std::int32_t, std::shared_future<SizedTrace>> m_oSized;
    QThreadPool m_oWorkers;
};

// Of the sample's latest result; one that was never analyzed is sized now.
SizedTrace StoredSizes(Lab& oLab, const SampleRow& oSample);

} // namespace GleanerSvc::Workbench
