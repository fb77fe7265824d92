// Small conversions between a lab's values and its columns.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pagebind/Date.h"
#include "pagebind/Well.h"
#include "workbench/store/Statement.h"

namespace GleanerSvc::Workbench {

// By which names are compared: without the blanks at its end, letters of every script in lower case.
std::string FoldedName(std::string_view sName);

Date LocalNow(); // to the second

std::optional<std::int32_t> IdOrNull(std::int32_t lID); // none for 0
std::int32_t IdAt(const Statement& oRow, int nColumn);  // 0 for none
std::optional<std::int32_t> WellOrNull(const std::optional<Well>& oWell);
std::optional<Well> WellIn(const Statement& oRow, int nColumn);

} // namespace GleanerSvc::Workbench
