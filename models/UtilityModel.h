// The framework's utility object, and the global object that hands it out.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "models/Journal.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

// One report of a failure: the arguments of LogError in their order.
struct Report {
    std::string sAppTitle;
    std::string sObjectType;
    std::string sProcedure;
    Failure oFailure;
    std::string sExtra;
    bool bShowUser = false;

    // "GleanerCtl.LoadPlates: 5 Collection: ...", with "!" behind the procedure when it was shown to the
    // user.
    std::string ToString() const;
};

// What the utility is told about the working database, in MB.
struct DatabaseFigures {
    double dSize = 0;
    double dPerResult = 0.25;
    double dLimit = 1740.8; // 1.7 GB; a database of just that size has not overflowed
    double dWarning = 650;  // a database of just that size is not large
};

// One object carries both interfaces, so make it with std::make_shared.
class UtilityModel final : public ITrellisGlobals,
                           public ITrellisUtility,
                           public std::enable_shared_from_this<UtilityModel>,
                           private Journaled {
  public:
    explicit UtilityModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "Utility") {}

    Ref<ITrellisUtility> Utility() override;

    void LogError(std::string_view sAppTitle, std::string_view sObjectType, std::string_view sProcedure,
                  const Failure& oErr, std::string_view sExtra, bool bShowUser) override;
    bool IsDebugBreakEnabled() override;
    bool CanDebugBreak(std::int32_t lAppValue) override;

    bool IsInCollection(const IKeyedCollection& colAny, std::string_view sKey) override;
    // Fails with invalid call, naming the folder, when the table has none of that name.
    std::string GetFolderPath(std::string_view sFolderName) override;
    // The size plus so many results is more than the limit.
    bool WillDatabaseOverflow(std::int32_t lNewResults) override;
    // lSizeMB is the warning size, whatever the answer.
    bool IsDatabaseLarge(std::int32_t& lSizeMB) override;
    Value GetWindowSlot(const Value& vFirst, const Value& vSecond) override;
    std::int16_t GetWindowMode(std::int16_t iSlot) override;

    const std::vector<Report>& Reports() const { return m_aoReports; }
    void ClearReports() { m_aoReports.clear(); }
    // The procedures that reported, in one line: "LoadPlates -> cmbProjects_Click!". "!" stands for one that
    // was shown to the user, which ends a chain; the next begins behind "; ".
    std::string Chain() const;

    // Both gates are closed at first.
    void EnableDebugBreak(bool bEnabled) { m_bBreakEnabled = bEnabled; }
    void AllowDebugBreak(bool bAllowed) { m_bBreakAllowed = bAllowed; }
    // What the second gate was last asked with; nothing before that.
    const std::optional<std::int32_t>& AppValue() const { return m_lAppValue; }

    // Folder names compare without regard to case. At first the table holds "images", at the path "images".
    void Folder(std::string_view sName, std::string_view sPath);
    const DatabaseFigures& Database() const { return m_oDatabase; }
    void Database(const DatabaseFigures& oDatabase) { m_oDatabase = oDatabase; }
    void WindowSlot(const Value& vSlot) { m_vWindowSlot = vSlot; } // 1 at first
    void WindowMode(std::int16_t iMode) { m_iWindowMode = iMode; } // 1 at first

    // "reports=1 gates=off/off database=0 MB slot=1 mode=1"
    std::string ToString() const;

  private:
    std::vector<Report> m_aoReports;
    bool m_bBreakEnabled = false;
    bool m_bBreakAllowed = false;
    std::optional<std::int32_t> m_lAppValue;
    std::map<std::string, std::string> m_asFolders{{"images", "images"}}; // by folded name
    DatabaseFigures m_oDatabase;
    Value m_vWindowSlot = std::int16_t{1};
    std::int16_t m_iWindowMode = 1;
};

} // namespace GleanerSvc::Models
