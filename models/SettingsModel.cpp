#include "models/SettingsModel.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

Ref<IAppContext> SettingsModel::Context() {
    SharedJournal()->Call("SettingsGlobals", "Context");
    return shared_from_this();
}

Ref<ISettings> SettingsModel::Settings() {
    SharedJournal()->Call("Context", "Settings");
    return shared_from_this();
}

std::int32_t SettingsModel::MaximumResults() {
    Call("MaximumResults");
    return m_lMaximumResults;
}

std::int16_t SettingsModel::WindowCount() {
    Call("WindowCount");
    return m_iWindowCount;
}

std::string SettingsModel::ToString() const {
    return "maximumResults=" + DecimalText(m_lMaximumResults) + " windowCount=" + DecimalText(m_iWindowCount);
}

} // namespace GleanerSvc::Models
