#include "workbench/traces/TableRows.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>

#include "workbench/traces/TraceText.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t MostTableBytes = std::size_t{4} * 1024 * 1024; // the largest kits have a twentieth
constexpr std::ptrdiff_t MostCells = 64;

std::string_view WithoutBlanks(std::string_view sText) {
    const auto nFirst = sText.find_first_not_of(' ');
    if (nFirst == std::string_view::npos) return {};
    return sText.substr(nFirst, sText.find_last_not_of(' ') - nFirst + 1);
}

std::string CellOf(std::string_view sText) {
    std::string sCell = TraceText(sText);
    std::erase(sCell, '"');
    return std::string(WithoutBlanks(sCell));
}

// Calls with each piece between separators, empty ones too.
template<typename Action>
void ForEachPiece(std::string_view sText, char cSeparator, const Action& Act) {
    for (auto nEnd = sText.find(cSeparator); nEnd != std::string_view::npos; nEnd = sText.find(cSeparator)) {
        Act(sText.substr(0, nEnd));
        sText.remove_prefix(nEnd + 1);
    }
    Act(sText);
}

TableRow RowOf(const std::string& sInput, std::size_t nLine, std::string_view sLine) {
    if (std::ranges::count(sLine, '\t') >= MostCells)
        FailAt(sInput, nLine, "it has more than " + std::to_string(MostCells) + " columns");
    TableRow oRow{nLine, {}};
    ForEachPiece(sLine, '\t', [&](std::string_view sCell) { oRow.asCells.push_back(CellOf(sCell)); });
    return oRow;
}

// The length of the line end at the front of the text.
std::size_t LineEnd(std::string_view sText) { return sText.starts_with("\r\n") ? 2 : 1; }

bool IsSkipped(const TableRow& oRow) {
    return oRow.asCells.front().starts_with('#') ||
           std::ranges::all_of(oRow.asCells, [](const std::string& sCell) { return sCell.empty(); });
}

bool IsSameWord(std::string_view sLeft, std::string_view sRight) {
    const auto Lower = [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); };
    return std::ranges::equal(sLeft, sRight, {}, Lower, Lower);
}

} // namespace

bool TableRow::Begins(std::string_view sKey) const {
    std::string_view sFirst = asCells.front();
    if (sFirst.ends_with(':')) sFirst.remove_suffix(1);
    return IsSameWord(sFirst, sKey);
}

std::string TableRow::Value() const {
    const auto it = std::ranges::find_if(asCells.begin() + 1, asCells.end(),
                                         [](const std::string& sCell) { return !sCell.empty(); });
    return it == asCells.end() ? std::string() : *it;
}

std::vector<TableRow> RowsOf(const std::string& sInput, std::string_view sText) {
    if (sText.size() > MostTableBytes)
        throw InputError(sInput, "",
                         "the table has " + std::to_string(sText.size()) + " bytes, one of a kit at most " +
                             std::to_string(MostTableBytes));
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (sText.starts_with(ByteOrderMark)) sText.remove_prefix(ByteOrderMark.size());
    std::vector<TableRow> aoRows;
    for (std::size_t nLine = 1; !sText.empty(); ++nLine) {
        const auto nLength = std::min(sText.find_first_of("\r\n"), sText.size());
        auto oRow = RowOf(sInput, nLine, sText.substr(0, nLength));
        sText.remove_prefix(nLength);
        if (!sText.empty()) sText.remove_prefix(LineEnd(sText));
        if (!IsSkipped(oRow)) aoRows.push_back(std::move(oRow));
    }
    return aoRows;
}

std::vector<std::string> ListOf(std::string_view sCell) {
    std::vector<std::string> asPieces;
    ForEachPiece(sCell, ',', [&](std::string_view sPiece) {
        if (const auto sTrimmed = WithoutBlanks(sPiece); !sTrimmed.empty()) asPieces.emplace_back(sTrimmed);
    });
    return asPieces;
}

void FailAt(const std::string& sInput, std::size_t nLine, const std::string& sWhat) {
    throw InputError(sInput, "line " + std::to_string(nLine), sWhat);
}

double NumberAt(const std::string& sInput, std::size_t nLine, const std::string& sText) {
    double dNumber = 0;
    const auto* pEnd = std::to_address(sText.end());
    const auto [pLast, eError] = std::from_chars(sText.data(), pEnd, dNumber);
    if (eError != std::errc{} || pLast != pEnd || !std::isfinite(dNumber))
        FailAt(sInput, nLine, "'" + sText + "' is no number");
    return dNumber;
}

} // namespace GleanerSvc::Workbench
