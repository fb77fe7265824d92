// Plates that never were: 96 injections of one run, with everything known that an analysis should find out.
// The same order gives the same bytes on every platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "pagebind/Date.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

// Broken: some alleles of the ladder are not there.
enum class LadderState { Complete, Broken, Missing };

struct PlateOrder {
    std::uint64_t nSeed = 1;
    std::string sPlate; // name of the plate, also the beginning of sample and file names
    Panel oPanel; // a locus of three alleles or more, and room between its bins, is needed for the faults
    LadderState eLadder = LadderState::Complete; // a panel of SNPs has none in any case
    bool bWithFaults = true;                     // one well for each way in which a trace can fail
    CivilTime oRunStart = {2024, 3, 5, 9, 30, 0};
};

// The names that the peaks of a locus should get, in order of size: one for a homozygote, "OL" for a peak
// outside all bins, none for a locus that is missing.
struct KnownGenotype {
    std::string sLocus;
    std::vector<std::string> asAlleles;

    friend bool operator==(const KnownGenotype&, const KnownGenotype&) = default;
};

struct SimulatedWell {
    std::string sFile; // name of the file, "P1_B02.fsa"
    std::string sSampleName;
    std::string sWell;   // "B2"
    std::string sStatus; // what its analysis against the panel and the ladder of this plate should end in
    std::vector<KnownGenotype>
        aoGenotype;                   // of the DNA, whether or not the trace shows it; by the panel's loci
    std::vector<std::byte> abContent; // of the file

    friend bool operator==(const SimulatedWell&, const SimulatedWell&) = default;
};

// The wells by column: A1, B1 and on to H12. The ladder, where there is one, is in A1. Fails with InputError
// when the panel is not fit for it.
std::vector<SimulatedWell> SimulatePlate(const PlateOrder& oOrder);

} // namespace GleanerSvc::Workbench
