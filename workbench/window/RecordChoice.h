// Which sample or result a single view shows.
#pragma once

#include <cstdint>
#include <string>

#include "workbench/lab/WizardLauncher.h"

namespace GleanerSvc::Workbench {

// A result is shown as it is stored. Of a sample it is the latest result; one that has none is read and
// sized.
struct RecordChoice {
    std::int32_t lSampleID = 0;
    std::int32_t lResultID = 0; // 0 for a sample
    std::string sTitle{};       // of the window; the sample's name where it is empty
};

// What the opener put into the wizard's parameters. Both IDs are 0 where it put nothing that can be shown.
RecordChoice ChoiceOf(const FurtherWizard& oWizard);

} // namespace GleanerSvc::Workbench
