// The bins of a panel where a run finds them.
#pragma once

#include <cstddef>
#include <vector>

#include "workbench/calling/LadderCalibration.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

struct PlacedBin {
    const Bin* pBin = nullptr; // of the panel
    std::size_t nDye = 0;
    double dLow = 0; // bp
    double dCentre = 0;
    double dHigh = 0;
};

struct PlacedLocus {
    const Locus* pLocus = nullptr; // of the panel
    std::vector<PlacedBin> aoBins; // none where the ladder shows no allele of the locus
};

// A bin of an STR reaches 0.5 bp about its centre, which is moved by the offset of the nearest ladder allele;
// that of an SNP has its own widths, 0.5 bp at least. In the panel's order. A colour that no dye has fails
// with InputError.
std::vector<PlacedLocus> PlaceLoci(const Panel& oPanel, const Ladder& oLadder);

} // namespace GleanerSvc::Workbench
