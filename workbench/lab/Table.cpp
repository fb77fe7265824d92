#include "workbench/lab/Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <algorithm>
#include <ostream>
#include <span>
#include <sstream>
#include <type_traits>

#include "models/DateText.h"
#include "pagebind/Failure.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

std::string CellText(const Cell& oCell) {
    return std::visit(
        [](const auto& oHeld) -> std::string {
            using T = std::decay_t<decltype(oHeld)>;
            if constexpr (std::is_same_v<T, std::monostate>) return "";
            if constexpr (std::is_same_v<T, std::int64_t>) return std::to_string(oHeld);
            if constexpr (std::is_same_v<T, double>) return QString::number(oHeld, 'f', 2).toStdString();
            if constexpr (std::is_same_v<T, std::string>) return oHeld;
        },
        oCell);
}

QJsonValue CellJson(const Cell& oCell) {
    return std::visit(
        [](const auto& oHeld) -> QJsonValue {
            using T = std::decay_t<decltype(oHeld)>;
            if constexpr (std::is_same_v<T, std::monostate>) return QJsonValue::Null;
            if constexpr (std::is_same_v<T, std::int64_t>) return static_cast<qint64>(oHeld);
            if constexpr (std::is_same_v<T, double>) return oHeld;
            if constexpr (std::is_same_v<T, std::string>) return QString::fromStdString(oHeld);
        },
        oCell);
}

// Characters, not bytes, stand in a column.
std::size_t Width(const std::string& sText) {
    return static_cast<std::size_t>(QString::fromStdString(sText).size());
}

std::string Quoted(const std::string& sText) {
    if (sText.find_first_of(",\"\r\n") == std::string::npos) return sText;
    std::string sQuoted = "\"";
    for (const char cChar : sText) sQuoted += cChar == '"' ? std::string("\"\"") : std::string(1, cChar);
    return sQuoted + '"';
}

} // namespace

void Table::Add(std::vector<Cell> aoCells) {
    if (aoCells.size() != m_asColumns.size()) throw Failure::Of(FailureNumber::Subscript);
    m_aoRows.push_back(std::move(aoCells));
}

void Table::WriteText(std::ostream& oOut) const {
    std::vector<std::vector<std::string>> aasLines{m_asColumns};
    for (const auto& aoRow : m_aoRows) {
        aasLines.emplace_back();
        for (const auto& oCell : aoRow) aasLines.back().push_back(CellText(oCell));
    }
    std::vector<std::size_t> anWidths(m_asColumns.size());
    for (const auto& asLine : aasLines) {
        for (std::size_t nCol = 0; nCol < asLine.size(); ++nCol)
            anWidths[nCol] = std::max(anWidths[nCol], Width(asLine[nCol]));
    }
    for (const auto& asLine : aasLines) {
        for (std::size_t nCol = 0; nCol < asLine.size(); ++nCol) {
            oOut << asLine[nCol];
            if (nCol + 1 < asLine.size()) oOut << std::string(anWidths[nCol] - Width(asLine[nCol]) + 2, ' ');
        }
        oOut << '\n';
    }
}

void Table::WriteCsv(std::ostream& oOut) const {
    for (std::size_t nCol = 0; nCol < m_asColumns.size(); ++nCol)
        oOut << (nCol > 0 ? "," : "") << Quoted(m_asColumns[nCol]);
    oOut << "\r\n";
    for (const auto& aoRow : m_aoRows) {
        for (std::size_t nCol = 0; nCol < aoRow.size(); ++nCol)
            oOut << (nCol > 0 ? "," : "") << Quoted(CellText(aoRow[nCol]));
        oOut << "\r\n";
    }
}

void Table::WriteJson(std::ostream& oOut) const {
    QJsonArray oRows;
    for (const auto& aoRow : m_aoRows) {
        QJsonObject oObject;
        for (std::size_t nCol = 0; nCol < aoRow.size(); ++nCol)
            oObject.insert(QString::fromStdString(m_asColumns[nCol]), CellJson(aoRow[nCol]));
        oRows.append(oObject);
    }
    oOut << QJsonDocument(oRows).toJson().toStdString();
}

void Table::SaveCsv(const std::filesystem::path& oFile) const {
    std::ostringstream oText;
    WriteCsv(oText);
    const std::string sText = oText.str();
    WriteBytes(oFile, std::as_bytes(std::span(sText)));
}

std::string TextOf(Date dtValue) { return dtValue == Date() ? "" : Models::WriteDateText(dtValue); }

} // namespace GleanerSvc::Workbench
