// Brings a simulated plate into a lab, its kit included.
#pragma once

#include <cstdint>
#include <vector>

#include "workbench/lab/TraceImport.h"
#include "workbench/simulation/SimulatedKit.h"
#include "workbench/simulation/Simulator.h"

namespace GleanerSvc::Workbench {

// A plate that is to be made up, and where it is to go; the destination names the plate.
struct SimulatedRun {
    Destination oDestination;
    AlleleType eType = AlleleType::Str;
    std::uint64_t nSeed = 1; // the same seed makes the same plate
    LadderState eLadder = LadderState::Complete;
    bool bWithFaults = true;
};

KitTables KitOf(AlleleType eType);
PlateOrder OrderOf(const SimulatedRun& oRun);

// Every trace goes through the reader, like one of an instrument; one that is damaged on purpose stands in
// its well all the same. All wells or none; those that are there already stay. Returns how many were added.
std::int32_t ImportPlate(Lab& oLab, const Destination& oDestination, const KitTables& oKit,
                         const std::vector<SimulatedWell>& aoWells);

} // namespace GleanerSvc::Workbench
