// The framework's utility object over a lab: the error log, the size gates, and the small helpers.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "pagebind/Framework.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// Sizes of the working database, in MB.
inline constexpr double DatabaseLimitMB = 1740.8; // 1.7 GB
inline constexpr std::int32_t WarningSizeMB =
    650; // that of a CD-ROM, unless the lab's settings say otherwise

// One object carries both interfaces, so make it with std::make_shared.
class LabUtility final : public ITrellisGlobals,
                         public ITrellisUtility,
                         public std::enable_shared_from_this<LabUtility> {
  public:
    explicit LabUtility(Ref<Lab> oLab) : m_oLab(std::move(oLab)) {}

    // Told of each report that the operator is to see.
    std::function<void(const LogRow&)> OnShown;

    Ref<ITrellisUtility> Utility() override { return shared_from_this(); }
    // Every argument is kept in the lab's error log. A log that cannot be written takes no failure with it:
    // the report is then shown, whatever the flag says, with the reason behind it.
    void LogError(std::string_view sAppTitle, std::string_view sObjectType, std::string_view sProcedure,
                  const Failure& oErr, std::string_view sExtra, bool bShowUser) override;
    bool IsDebugBreakEnabled() override { return false; }
    bool CanDebugBreak(std::int32_t /*lAppValue*/) override { return false; }
    bool IsInCollection(const IKeyedCollection& colAny, std::string_view sKey) override;
    std::string
    GetFolderPath(std::string_view sFolderName) override; // the folder of that name beside the lab
    // The results to come are reckoned to be as large as those that are there.
    bool WillDatabaseOverflow(std::int32_t lNewResults) override;
    bool IsDatabaseLarge(std::int32_t& lSizeMB) override;
    Value GetWindowSlot(const Value& vFirst, const Value& vSecond) override; // the first: a window of its own
    std::int16_t GetWindowMode(std::int16_t iSlot) override { return iSlot; }

  private:
    Ref<Lab> m_oLab;
};

} // namespace GleanerSvc::Workbench
