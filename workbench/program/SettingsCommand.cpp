#include <algorithm>
#include <array>

#include "workbench/lab/LabSettings.h"
#include "workbench/lab/LabUtility.h"
#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

struct KnownSetting {
    const char* szName;
    std::int32_t lDefault;
    const char* szMeaning;
};

constexpr std::array KnownSettings = {
    KnownSetting{"MaximumResults", DefaultMaximumResults, "the most results that can be picked for a study"},
    KnownSetting{"WarningSizeMB", WarningSizeMB, "the size of the lab from which on a run asks first"}};

const KnownSetting& SettingOf(const std::string& sName) {
    const auto* const pKnown = std::ranges::find_if(
        KnownSettings, [&](const KnownSetting& oKnown) { return oKnown.szName == sName; });
    if (pKnown != KnownSettings.end()) return *pKnown;
    throw UsageError("settings: there is none \"" + sName +
                     "\"; without a word behind it the command lists them");
}

void Change(const Arguments& oArguments, const KnownSetting& oSetting, const std::string& sValue) {
    const std::string sWhat = std::string("settings: ") + oSetting.szName;
    const std::int32_t lValue = ReadNumber(sValue, sWhat);
    if (lValue < 1) throw UsageError(sWhat + " is " + sValue + ", below 1");
    OpenLab(oArguments, LabMode::Existing)->ChangeSetting(oSetting.szName, lValue);
}

int RunSettings(const Arguments& oArguments) {
    const auto asPlain = oArguments.Plain();
    if (asPlain.size() > 2) throw UsageError("settings: name one setting and its new value");
    if (asPlain.size() == 1) throw UsageError("settings: " + asPlain[0] + " needs a new value");
    if (asPlain.size() == 2) Change(oArguments, SettingOf(asPlain[0]), asPlain[1]);
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    Table oTable({"setting", "value", "meaning"});
    for (const auto& oKnown : KnownSettings) {
        oTable.Add({std::string(oKnown.szName), std::int64_t{oLab->Setting(oKnown.szName, oKnown.lDefault)},
                    std::string(oKnown.szMeaning)});
    }
    Write(oTable, oArguments);
    return ExitCode::Done;
}

} // namespace

Command SettingsCommand() {
    return {"settings",
            "Show the settings of a lab, or change one.",
            "[setting value]",
            "The setting to change, and its new value. Without them: all are shown.",
            {LabOption, JsonOption},
            RunSettings};
}

} // namespace GleanerSvc::Workbench
