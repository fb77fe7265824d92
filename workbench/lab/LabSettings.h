// The settings of a lab, with the context and the global object that lead to them.
#pragma once

#include <functional>
#include <memory>

#include "pagebind/Framework.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

inline constexpr std::int32_t DefaultMaximumResults = 1000;

// One object carries the three interfaces, so make it with std::make_shared.
class LabSettings final : public ISettingsGlobals,
                          public IAppContext,
                          public ISettings,
                          public std::enable_shared_from_this<LabSettings> {
  public:
    // fnWindows tells how many windows of further wizards are open.
    LabSettings(Ref<Lab> oLab, std::function<std::int16_t()> fnWindows)
        : m_oLab(std::move(oLab)), m_fnWindows(std::move(fnWindows)) {}

    Ref<IAppContext> Context() override { return shared_from_this(); }
    Ref<ISettings> Settings() override { return shared_from_this(); }
    std::int32_t MaximumResults() override {
        return m_oLab->Setting("MaximumResults", DefaultMaximumResults);
    }
    std::int16_t WindowCount() override {
        return static_cast<std::int16_t>(m_fnWindows() + 1);
    } // and the main one

  private:
    Ref<Lab> m_oLab;
    std::function<std::int16_t()> m_fnWindows;
};

} // namespace GleanerSvc::Workbench
