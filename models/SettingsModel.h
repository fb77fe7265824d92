// The settings of the workstation, with the context and the global object that lead to them.
#pragma once

#include <memory>
#include <string>

#include "models/Journal.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

// One object carries the three interfaces, so make it with std::make_shared.
class SettingsModel final : public ISettingsGlobals,
                            public IAppContext,
                            public ISettings,
                            public std::enable_shared_from_this<SettingsModel>,
                            private Journaled {
  public:
    explicit SettingsModel(Ref<Journal> oJournal) : Journaled(std::move(oJournal), "Settings") {}

    Ref<IAppContext> Context() override;
    Ref<ISettings> Settings() override;
    std::int32_t MaximumResults() override;
    std::int16_t WindowCount() override;

    void MaximumResults(std::int32_t lMaximum) { m_lMaximumResults = lMaximum; } // 1000 at first
    void WindowCount(std::int16_t iCount) { m_iWindowCount = iCount; }           // 1 at first

    // "maximumResults=1000 windowCount=1"
    std::string ToString() const;

  private:
    std::int32_t m_lMaximumResults = 1000;
    std::int16_t m_iWindowCount = 1;
};

} // namespace GleanerSvc::Models
