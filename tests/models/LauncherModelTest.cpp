#include "models/LauncherModel.h"

#include <gtest/gtest.h>

namespace GleanerSvc::Models {
namespace {

TEST(LauncherModelTest, RecordsEachOpenedWizard) {
    const auto oJournal = std::make_shared<Journal>();
    const auto oLauncher = std::make_shared<LauncherModel>(oJournal);
    EXPECT_EQ("none", oLauncher->ToString());
    const auto Open = [&](const char* sName, const Ref<IKeyedCollection>& colStore, bool bShowNow) {
        return oLauncher->Wizards()->Launcher()->OpenWizard(sName, colStore, nullptr, 1, true, 1, 0, true,
                                                            true, "", bShowNow, true);
    };
    const auto colStore = std::make_shared<KeyedCollection>();
    const auto oFirst = Open("SingleRawSample", colStore, false);
    const auto oSecond = Open("SingleSample", std::make_shared<KeyedCollection>(), true);
    oSecond->SetOwner(3);
    oSecond->Title("Single Sample View - A1  ");
    oSecond->Show();

    EXPECT_EQ("SingleRawSample showNow=off, SingleSample showNow=on", oLauncher->ToString());
    EXPECT_EQ(oFirst, oLauncher->Opened()[0].oHost);
    EXPECT_EQ(colStore, oLauncher->Opened()[0].oHost->Parameters());
    const WizardHost& oHost = *oLauncher->Opened()[1].oHost;
    EXPECT_EQ(R"(page=0/0 title="Single Sample View - A1  " finish=off cancel=off back=off next=off)",
              oHost.ToString());
    EXPECT_EQ(std::vector<std::int16_t>{3}, oHost.Owners());
    EXPECT_EQ(1, oHost.ShowCount());
    EXPECT_EQ("Launcher.OpenWizard(\"SingleSample\", object, nothing, 1, True, 1, 0, True, True, \"\", True, "
              "True)",
              oJournal->EntriesOf("Launcher.").back());
}

} // namespace
} // namespace GleanerSvc::Models
