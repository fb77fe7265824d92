// The peaks of each locus of a panel, each with the bin that it lies in.
#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include "workbench/calling/LadderCalibration.h"
#include "workbench/calling/Sizing.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

struct LocusPeak {
    const Bin* pBin = nullptr; // of the panel; nothing for a peak in no bin
    std::size_t nPeak = 0;     // place in the peaks of the sized trace
    double dHeight = 0;        // RFU
    double dSize = 0;          // bp
};

// The peaks that count as alleles, by size, for each locus that has any. One counts from 50 RFU and 25 % of
// the highest one of its locus on; lower ones are stutter, pull-up and noise; of two in one bin the higher.
//
// A peak belongs to the locus in whose bin it lies: within 0.5 bp of a centre moved by the offset of the
// nearest ladder allele, for an SNP within the bin's own widths, 0.5 bp at least, in the bin's dye. In no bin
// it belongs to the locus in whose range and dye it lies, the nearer one where two overlap, and to none
// otherwise. A locus of which the ladder shows no allele has no peaks. The result points into oPanel. A
// colour that no dye has fails with InputError.
std::map<const Locus*, std::vector<LocusPeak>> PeaksByLocus(const SizedTrace& oTrace, const Panel& oPanel,
                                                            const Ladder& oLadder);

} // namespace GleanerSvc::Workbench
