#include "workbench/store/Columns.h"

#include <QtCore/QDateTime>

#include "pagebind/Text.h"

namespace GleanerSvc::Workbench {

std::string FoldedName(std::string_view sName) {
    const auto sTrimmed = RightTrim(sName);
    return QString::fromUtf8(sTrimmed.data(), static_cast<qsizetype>(sTrimmed.size()))
        .toCaseFolded()
        .toStdString();
}

Date LocalNow() {
    const QDateTime oNow = QDateTime::currentDateTime();
    return Date::Of({oNow.date().year(), oNow.date().month(), oNow.date().day(), oNow.time().hour(),
                     oNow.time().minute(), oNow.time().second()});
}

std::optional<std::int32_t> IdOrNull(std::int32_t lID) {
    return lID == 0 ? std::nullopt : std::optional(lID);
}

std::int32_t IdAt(const Statement& oRow, int nColumn) { return oRow.IsNull(nColumn) ? 0 : oRow.Int(nColumn); }

std::optional<std::int32_t> WellOrNull(const std::optional<Well>& oWell) {
    return oWell ? std::optional<std::int32_t>(WellIndex(*oWell)) : std::nullopt;
}

std::optional<Well> WellIn(const Statement& oRow, int nColumn) {
    if (oRow.IsNull(nColumn)) return std::nullopt;
    return WellAt(static_cast<std::int16_t>(oRow.Int(nColumn)));
}

} // namespace GleanerSvc::Workbench
