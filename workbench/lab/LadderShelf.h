// The allelic ladders that samples are called against.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// The ladder of a sample is the first complete one of its plate and run; if none is complete, the fullest.
// The next run moves the fragments otherwise, so its ladder would not do. A ladder is its own. What was
// calibrated once is kept.
class LadderShelf {
  public:
    using Sizer = std::function<SizedTrace(const SampleRow&)>;

    LadderShelf(Lab& oLab, Sizer fnSize) : m_oLab(oLab), m_fnSize(std::move(fnSize)) {}

    struct Found {
        SampleRow oSample;
        const Ladder* pLadder = nullptr; // nothing when the plate has no ladder of that panel
    };
    Found Find(const SampleRow& oSample, const Panel& oPanel);

  private:
    const Ladder& Calibrated(const SampleRow& oLadder, const Panel& oPanel);

    Lab& m_oLab;
    Sizer m_fnSize;
    std::map<std::pair<std::int32_t, std::string>, Ladder> m_oLadders; // by sample and panel
};

} // namespace GleanerSvc::Workbench
