// The calibration of a panel on an allelic ladder: fragments of one length do not migrate as those of the
// size standard do, so each run moves the bins to where it finds the ladder's alleles.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/calling/Sizing.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

// How far each ladder allele of a locus lies from the centre of its bin in this run, in bp.
struct LocusCalibration {
    std::map<std::string, double> oOffsets; // by allele name

    friend bool operator==(const LocusCalibration&, const LocusCalibration&) = default;
};

struct Ladder {
    std::map<std::string, LocusCalibration> oLoci; // by locus name; each of the panel is there
    std::size_t nFound = 0;                        // ladder alleles found, of all loci
    std::size_t nExpected = 0;

    bool IsComplete() const { return nExpected > 0 && nFound == nExpected; }
    friend bool operator==(const Ladder&, const Ladder&) = default;
};

// The places of a locus's ladder alleles in the ladder's peaks, one for each in order, nothing for one that
// was not found. Any peak may be that of the first alleles; from there the others are looked for by the
// spacing of their bins, within 0.45 of the gap to the nearest allele and 0.8 bp, a little more after a wide
// gap. The walk that explains most peaks wins. Peaks below a third of the locus's median are too low for the
// ladder.
std::vector<std::optional<std::size_t>> LadderPeaks(const SizedTrace& oLadder, const Locus& oLocus);

// A ladder that is not sized finds none. A colour that no dye has fails with InputError.
Ladder CalibrateLadder(const SizedTrace& oLadder, const Panel& oPanel);

} // namespace GleanerSvc::Workbench
