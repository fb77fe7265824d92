// The error log of a lab. An entry tells of a failure, and a failure takes transactions back: what was logged
// inside one is written again then.
#include <algorithm>
#include <exception>
#include <utility>

#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

void Lab::Log(const LogRow& oEntry) {
    LogRow oTimed = oEntry;
    oTimed.dtLogged = LocalNow();
    if (m_oDatabase->Depth() > 0) m_aoLogged.emplace_back(m_oDatabase->Depth(), oTimed);
    WriteLog(oTimed);
}

void Lab::WriteLog(const LogRow& oEntry) {
    Transaction oAll(*this);
    const Failure& oFailure = oEntry.oFailure;
    m_oDatabase->Write(
        "INSERT INTO error_log (logged, app_title, object_type, procedure_name, number, source, "
        "description, help_file, help_context, extra, show_user) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        oEntry.dtLogged.Serial(), oEntry.sAppTitle, oEntry.sObjectType, oEntry.sProcedure, oFailure.Number(),
        oFailure.Source(), oFailure.Description(), oFailure.HelpFile(), oFailure.HelpContext(), oEntry.sExtra,
        oEntry.bShowUser);
    oAll.Commit();
}

// Called when a transaction was taken back: what was logged inside belongs to the one around it now.
void Lab::KeepLog() noexcept {
    const auto lDepth = m_oDatabase->Depth();
    auto aoLogged = std::exchange(m_aoLogged, {}); // writing them has transactions of its own
    try {
        for (auto& [lLogged, oEntry] : aoLogged) {
            if (lLogged <= lDepth) continue;
            lLogged = lDepth;
            WriteLog(oEntry);
        }
    } catch (const std::exception&) {
        // The failure that took the transaction back is on its way to the caller; there is no room for
        // another.
    }
    if (lDepth > 0) m_aoLogged = std::move(aoLogged);
}

std::vector<LogRow> Lab::LogEntries(std::int32_t lLast) {
    std::vector<LogRow> aoEntries;
    Statement oRows =
        m_oDatabase->Query("SELECT log_id, logged, app_title, object_type, procedure_name, number, source, "
                           "description, help_file, "
                           "help_context, extra, show_user FROM error_log ORDER BY log_id DESC LIMIT ?",
                           lLast);
    while (oRows.Next()) {
        aoEntries.push_back({oRows.Int(0), Date(oRows.Real(1)), oRows.Text(2), oRows.Text(3), oRows.Text(4),
                             Failure(oRows.Int(5), oRows.Text(6), oRows.Text(7), oRows.Text(8), oRows.Int(9)),
                             oRows.Text(10), oRows.Bool(11)});
    }
    std::reverse(aoEntries.begin(), aoEntries.end());
    return aoEntries;
}

} // namespace GleanerSvc::Workbench
