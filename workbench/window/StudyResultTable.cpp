#include "workbench/window/StudyResultTable.h"

#include "workbench/lab/Table.h"

namespace GleanerSvc::Workbench {

namespace {

QVariant WellCell(const ResultRow& oResult) {
    return TextCell(oResult.oWell ? WellText(*oResult.oWell) : "");
}

// By the plate's columns, as plates are filled.
QVariant WellKey(const ResultRow& oResult) {
    return oResult.oWell ? oResult.oWell->iCol * PlateRows + oResult.oWell->iRow : -1;
}

} // namespace

StudyResultTable::StudyResultTable(QObject* pParent)
    : StartTable({{"Result", [](const ResultRow& oResult) { return QVariant(oResult.lResultID); }},
                  {"Sample", [](const ResultRow& oResult) { return TextCell(oResult.sName); }},
                  {"Plate", [this](const ResultRow& oResult) { return PlateOf(oResult); }},
                  {"Well", WellCell, WellKey},
                  {"Status",
                   [](const ResultRow& oResult) {
                       return TextCell(StatusText(static_cast<std::int32_t>(oResult.eStatus)));
                   }},
                  {"Stored", [](const ResultRow& oResult) { return TextCell(TextOf(oResult.dtModified)); }},
                  {"Description", [](const ResultRow& oResult) { return TextCell(oResult.sDescription); }}},
                 pParent) {}

void StudyResultTable::ShowResults(std::vector<ResultRow> aoResults,
                                   std::map<std::int32_t, std::string> oPlates) {
    m_oPlates = std::move(oPlates);
    Show(std::move(aoResults));
}

QVariant StudyResultTable::PlateOf(const ResultRow& oResult) const {
    const auto itPlate = m_oPlates.find(oResult.lPlateID);
    return TextCell(itPlate == m_oPlates.end() ? "" : itPlate->second);
}

} // namespace GleanerSvc::Workbench
