#include "workbench/window/LogTable.h"

#include "workbench/lab/Table.h"

namespace GleanerSvc::Workbench {

namespace {

std::vector<StartColumn<LogRow>> LogColumns() {
    return {{"Logged", [](const LogRow& oEntry) { return TextCell(TextOf(oEntry.dtLogged)); }},
            {"Procedure", [](const LogRow& oEntry) { return TextCell(oEntry.sProcedure); }},
            {"Number", [](const LogRow& oEntry) { return QVariant(oEntry.oFailure.Number()); }},
            {"Description", [](const LogRow& oEntry) { return TextCell(oEntry.oFailure.Description()); }},
            {"Extra", [](const LogRow& oEntry) { return TextCell(oEntry.sExtra); }}};
}

} // namespace

LogTable::LogTable(QObject* pParent) : StartTable(LogColumns(), pParent) {}

QString LogTable::Details(const LogRow& oEntry) {
    const Failure& oFailure = oEntry.oFailure;
    const std::pair<const char*, std::string> aoFields[] = {
        {"Logged", TextOf(oEntry.dtLogged)},
        {"Application", oEntry.sAppTitle},
        {"Object", oEntry.sObjectType},
        {"Procedure", oEntry.sProcedure},
        {"Number", std::to_string(oFailure.Number())},
        {"Source", oFailure.Source()},
        {"Description", oFailure.Description()},
        {"Help", oFailure.HelpFile().empty()
                     ? ""
                     : oFailure.HelpFile() + ", context " + std::to_string(oFailure.HelpContext())},
        {"Extra", oEntry.sExtra},
        {"Shown to the user", oEntry.bShowUser ? "yes" : "no"}};
    QString sText;
    for (const auto& [szName, sValue] : aoFields) {
        if (!sValue.empty()) sText += QString("%1: %2\n").arg(szName, QString::fromStdString(sValue));
    }
    return sText;
}

} // namespace GleanerSvc::Workbench
