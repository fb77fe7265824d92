#include "workbench/lab/WorkbenchPlatform.h"

#include <QDateTime>

#include <filesystem>

#include "models/DateText.h"
#include "pagebind/Failure.h"

namespace GleanerSvc::Workbench {

std::string WorkbenchPlatform::DateToText(Date dtValue) { return Models::WriteDateText(dtValue); }

Date WorkbenchPlatform::TextToDate(std::string_view sText) {
    if (const auto dtRead = Models::ReadDateText(sText)) return *dtRead;
    throw Failure(FailureNumber::TypeMismatch, "Platform", "\"" + std::string(sText) + "\" is no date.");
}

Date WorkbenchPlatform::Now() {
    const QDateTime oNow = QDateTime::currentDateTime();
    const QDate oDay = oNow.date();
    const QTime oTime = oNow.time();
    return Date::Of({oDay.year(), oDay.month(), oDay.day(), oTime.hour(), oTime.minute(), oTime.second()});
}

std::string WorkbenchPlatform::JoinPath(std::string_view sFolder, std::string_view sName) {
    return (std::filesystem::path(sFolder) / sName).string();
}

} // namespace GleanerSvc::Workbench
