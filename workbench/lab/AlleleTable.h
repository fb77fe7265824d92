// Results as a table with a row for each allele: what leaves the lab as CSV.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/lab/Table.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

std::map<std::int32_t, std::string> PlateNames(Lab& oLab); // of all projects, by ID

// A result without alleles has one row all the same.
Table AlleleTable(Lab& oLab, const std::vector<ResultRow>& aoResults);

} // namespace GleanerSvc::Workbench
