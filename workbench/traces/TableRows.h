// The rows of a tab-separated table as kits deliver them: LF, CR or both end a line, and a spreadsheet may
// have left blanks and quotation marks about.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/traces/InputError.h"

namespace GleanerSvc::Workbench {

struct TableRow {
    std::size_t nLine = 0;            // in the table, from 1
    std::vector<std::string> asCells; // without quotation marks and blanks at their ends; never none

    bool Begins(std::string_view sKey) const; // as its first cell, without regard to case and a colon behind
    std::string Value() const;                // the first filled cell behind the first; may be empty
};

// Leaves out blank lines and those that begin with '#'. A table or a line far beyond a kit's fails with
// InputError.
std::vector<TableRow> RowsOf(const std::string& sInput, std::string_view sText);

// The pieces between commas, without blanks at their ends; empty ones are left out.
std::vector<std::string> ListOf(std::string_view sCell);

[[noreturn]] void FailAt(const std::string& sInput, std::size_t nLine, const std::string& sWhat);

// The whole text as a number; another text fails at the line.
double NumberAt(const std::string& sInput, std::size_t nLine, const std::string& sText);

} // namespace GleanerSvc::Workbench
