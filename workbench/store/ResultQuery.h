// How the rows of results are asked for and read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/store/Rows.h"
#include "workbench/store/Statement.h"

namespace GleanerSvc::Workbench {

// r is the result, s its sample; sRest is what follows these tables.
std::string SelectResults(std::string_view sRest);
ResultRow ReadResult(const Statement& oRow);
std::vector<ResultRow> ReadResults(Statement&& oRows);

} // namespace GleanerSvc::Workbench
