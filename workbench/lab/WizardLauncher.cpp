#include "workbench/lab/WizardLauncher.h"

#include <algorithm>
#include <array>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array<std::string_view, 2> FurtherWizards = {"SingleRawSample", "SingleSample"};

} // namespace

void FurtherWizard::Title(std::string_view sTitle) {
    m_sTitle = sTitle;
    OnTitle.Raise();
}

void FurtherWizard::Show() { OnShow.Raise(); }

Ref<IPageHost> WizardLauncher::OpenWizard(std::string_view sName, const Ref<IKeyedCollection>& colParameters,
                                          const Ref<IWizardOptions>& /*oOptions*/, std::int16_t /*iFirst*/,
                                          bool /*bSecond*/, std::int16_t /*iThird*/, std::int16_t /*iFourth*/,
                                          bool /*bFifth*/, bool /*bSixth*/, std::string_view /*sSeventh*/,
                                          bool bShowNow, bool /*bLast*/) {
    if (std::find(FurtherWizards.begin(), FurtherWizards.end(), sName) == FurtherWizards.end()) {
        throw Failure(FailureNumber::InvalidCall, "Launcher",
                      "There is no wizard \"" + std::string(sName) + "\".");
    }
    auto oWizard = std::make_shared<FurtherWizard>(sName, colParameters);
    std::erase_if(m_aoOpened, [](const auto& oOpened) { return oOpened.expired(); });
    m_aoOpened.push_back(oWizard);
    OnOpened.Raise(oWizard);
    if (bShowNow) oWizard->Show();
    return oWizard;
}

std::int16_t WizardLauncher::OpenCount() const {
    return static_cast<std::int16_t>(std::count_if(m_aoOpened.begin(), m_aoOpened.end(),
                                                   [](const auto& oOpened) { return !oOpened.expired(); }));
}

} // namespace GleanerSvc::Workbench
