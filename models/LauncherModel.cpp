#include "models/LauncherModel.h"

namespace GleanerSvc::Models {

Ref<IWizardSet> LauncherModel::Wizards() {
    SharedJournal()->Call("WizardGlobals", "Wizards");
    return shared_from_this();
}

Ref<IWizardLauncher> LauncherModel::Launcher() {
    SharedJournal()->Call("WizardSet", "Launcher");
    return shared_from_this();
}

Ref<IPageHost> LauncherModel::OpenWizard(std::string_view sName, const Ref<IKeyedCollection>& colParameters,
                                         const Ref<IWizardOptions>& oOptions, std::int16_t iFirst,
                                         bool bSecond, std::int16_t iThird, std::int16_t iFourth, bool bFifth,
                                         bool bSixth, std::string_view sSeventh, bool bShowNow, bool bLast) {
    Call("OpenWizard", sName, colParameters, oOptions, iFirst, bSecond, iThird, iFourth, bFifth, bSixth,
         sSeventh, bShowNow, bLast);
    auto oHost = std::make_shared<WizardHost>(SharedJournal(), colParameters);
    m_aoOpened.push_back({std::string(sName), colParameters, bShowNow, oHost});
    return oHost;
}

std::string LauncherModel::ToString() const {
    std::string sText;
    for (const auto& oOpened : m_aoOpened) {
        sText +=
            (sText.empty() ? "" : ", ") + oOpened.sName + " showNow=" + (oOpened.bShowNow ? "on" : "off");
    }
    return sText.empty() ? "none" : sText;
}

} // namespace GleanerSvc::Models
