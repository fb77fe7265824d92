// From sized peaks to alleles. Works on the sized trace alone, so that a stored sizing can be called again.
//
// Pure functions of their arguments, to be called on any thread.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "workbench/calling/LadderCalibration.h"
#include "workbench/calling/Sizing.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

// One peak with an allele's name; "OL" for a peak of a locus that lies in no bin.
struct AlleleCall {
    std::string sLocus;
    std::string sAllele;
    std::size_t nPeak = 0; // place in the peaks of the sized trace

    friend bool operator==(const AlleleCall&, const AlleleCall&) = default;
};

// Status is that of the sized trace unless it passed; then the first of NoPanel to TooManyPeaks that holds,
// or Pass. What could be called is there with any status.
struct CalledTrace {
    Status eStatus = Status::Pass;
    std::string sReason;             // one line for the operator: which locus, which peak
    std::vector<AlleleCall> aoCalls; // by locus in the panel's order, then size

    friend bool operator==(const CalledTrace&, const CalledTrace&) = default;
};

// The loci to call; empty for all of the panel. pPanel and pLadder may be nothing: no panel, no ladder of the
// same run. An SNP needs no ladder. The ladder itself needs none but its own peaks; it passes when each
// ladder allele of its loci is found, and has no other calls.
struct CallRequest {
    const Panel* pPanel = nullptr;
    const Ladder* pLadder = nullptr;
    std::vector<std::string> asLoci;
    bool bIsLadder = false;
};

// Which peaks are called, and as what, stands in LocusPeaks.h. A locus that the panel does not have is
// missing. A colour that no dye has fails with InputError.
CalledTrace CallAlleles(const SizedTrace& oTrace, const CallRequest& oRequest);

} // namespace GleanerSvc::Workbench
