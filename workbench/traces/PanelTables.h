// Panel and bin tables of a kit, tab-separated, with LF, CR or both as line end.
//
// A table of SNPs says "SNP" as its kit type. There a locus has one line for each dye, all with its name, and
// its n-th list of bins is that of its n-th line.
#pragma once

#include <string_view>
#include <vector>

#include "workbench/traces/InputError.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

// One table as it was delivered, under the name that errors carry.
struct TableText {
    std::string sInput;
    std::string sText;
};

// The panels of the panel table, their loci filled with bins from the bin table. A panel without any bins is
// left out. A broken line fails with InputError, naming the table, the line (from 1) and what was wrong.
std::vector<Panel> ReadPanelTables(const TableText& oPanels, const TableText& oBins);

} // namespace GleanerSvc::Workbench
