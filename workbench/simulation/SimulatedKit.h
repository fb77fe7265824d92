// Two kits that exist nowhere else, as the tables that a kit is delivered with: they make the workbench
// complete without any file from outside.
#pragma once

#include "workbench/traces/PanelTables.h"

namespace GleanerSvc::Workbench {

struct KitTables {
    TableText oPanels;
    TableText oBins;
};

// The panel "Simulated_STR": 16 loci S01 to S16 in 4 dyes, with a ladder.
KitTables SimulatedStrKit();

// The panel "Simulated_SNP": 12 loci N01 to N12. The alleles G, A, C and T of a locus lie at about one size
// in blue, green, yellow and red. Every fourth locus has three alleles, the others two.
KitTables SimulatedSnpKit();

} // namespace GleanerSvc::Workbench
