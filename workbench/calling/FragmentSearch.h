// Which peaks are the fragments of a size standard: a search by dynamic programming.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "workbench/calling/Peaks.h"

namespace GleanerSvc::Workbench {

// A fragment found at a candidate, both by their places.
struct FragmentMatch {
    std::size_t nFragment = 0;
    std::size_t nCandidate = 0;

    friend bool operator==(const FragmentMatch&, const FragmentMatch&) = default;
};

// The matches, in order of both, between which the speed in scans per bp changes least: the least sum of
// squared logarithms of the ratios of successive speeds. A fragment may be missing at a price, two in a row
// at most; a logarithm above 0.5 is not followed; any candidate may be left over. Empty where nothing fits,
// and of more than 100 candidates: no standard looks so, and the time grows with their square. adFragments
// are sizes in bp, rising; aoCandidates are in order of their scans.
std::vector<FragmentMatch> MatchFragments(std::span<const double> adFragments,
                                          std::span<const Peak> aoCandidates);

} // namespace GleanerSvc::Workbench
