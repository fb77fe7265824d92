// All that a single view shows of a sample or a result.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/pictures/TracePicture.h"
#include "workbench/store/Lab.h"
#include "workbench/window/RecordChoice.h"

namespace GleanerSvc::Workbench {

struct RecordContent {
    std::string sProblem; // why there is nothing to draw, in the operator's words; empty when all is there
    SampleRow oSample;
    std::optional<ResultRow> oResult;
    Trace oTrace;
    SizedTrace oSized;
    CalledTrace oCalled;
    std::vector<BinMark> aoBins;

    // The stored description of a result, otherwise what the sizing came to.
    std::string StatusLine() const;
    std::string StandardLine() const;
};

// Never fails: what the lab or the trace's reader refuses becomes the problem, and what was read until then
// stays.
RecordContent LoadRecord(Lab& oLab, const RecordChoice& oChoice);

// The bins of the panel where the run of a sample finds them: those of an STR follow the ladder's alleles,
// and a locus of which the ladder shows none has no bins.
std::vector<BinMark> PlaceBins(const Panel& oPanel, const Ladder& oLadder);

} // namespace GleanerSvc::Workbench
