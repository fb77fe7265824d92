// Rows of named columns, for people, for spreadsheets and for scripts.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "pagebind/Date.h"

namespace GleanerSvc::Workbench {

// Numbers stay numbers in JSON. Nothing is an empty cell, and null in JSON.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;

std::string TextOf(Date dtValue); // empty for no date

class Table {
  public:
    explicit Table(std::vector<std::string> asColumns) : m_asColumns(std::move(asColumns)) {}

    void Add(std::vector<Cell> aoCells); // one a column
    std::size_t Rows() const { return m_aoRows.size(); }

    void WriteText(std::ostream& oOut) const; // columns aligned, a heading above
    void WriteCsv(std::ostream& oOut) const;  // RFC 4180, with a heading
    void WriteJson(std::ostream& oOut) const; // an array of objects
    // As CSV. Leaves an older file of the name as it was unless all could be written, and fails with
    // InputError then.
    void SaveCsv(const std::filesystem::path& oFile) const;

  private:
    std::vector<std::string> m_asColumns;
    std::vector<std::vector<Cell>> m_aoRows;
};

} // namespace GleanerSvc::Workbench
