#include "models/PlatformModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pagebind/controls/PopupMenu.h"
#include "pagebind/controls/UserControl.h"
#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

using testing::ElementsAre;

class PlatformModelTest : public testing::Test {
  protected:
    PlatformModel m_oPlatform{std::make_shared<Journal>()};
};

TEST_F(PlatformModelTest, QuestionsTakeTheirAnswersFromTheScript) {
    std::string sMeanwhile;
    m_oPlatform.Answer(MessageAnswer::No, [&] { sMeanwhile = m_oPlatform.Messages().back().sText; });
    m_oPlatform.Answer(MessageAnswer::Ok);
    EXPECT_EQ(MessageAnswer::Ok, m_oPlatform.ShowMessage("Done.", MessageStyle::Information, "Run"));
    EXPECT_EQ(MessageAnswer::No, m_oPlatform.ShowMessage("Go on?", MessageStyle::QuestionYesNo, ""));
    EXPECT_EQ("Go on?", sMeanwhile);
    EXPECT_THAT(m_oPlatform.Messages(),
                ElementsAre(ShownMessage{"Done.", 64, "Run"}, ShownMessage{"Go on?", 36, ""}));

    const auto AskAgain = [&] { m_oPlatform.ShowMessage("Again?", MessageStyle::QuestionYesNo, ""); };
    const std::string sFailure = "5 Platform: No answer was scripted for the question \"Again?\".";
    EXPECT_EQ(sFailure, FailureOf(AskAgain).ToString()) << "OK is no answer to a question";
    m_oPlatform.ShowMessage("Stop.", MessageStyle::Stop, "");
    EXPECT_EQ(sFailure, FailureOf(AskAgain).ToString()) << "none is left";
}

TEST_F(PlatformModelTest, PopupsTakeTheirChoicesFromTheScript) {
    UserControl oPage("Page", 100, 100);
    PopupMenu oMenu(oPage, "mnuOptions", "Options");
    MenuEntry oAdd(oMenu, "mnuAdd", "Add");
    MenuEntry oView(oMenu, "mnuView", "Show View...");
    std::string sClicks;
    const auto oAddClick = oAdd.Click.Subscribe([&] { sClicks += "Add "; });
    const auto oViewClick = oView.Click.Subscribe([&] { sClicks += "View "; });
    oView.Enabled(false);

    m_oPlatform.Choose("show view...");
    m_oPlatform.Choose("mnuAdd");
    m_oPlatform.Choose("Show View...", [&] { oView.Enabled(true); });
    m_oPlatform.Choose("");
    m_oPlatform.Choose("Add");
    for (int nOpening = 0; nOpening < 4; ++nOpening) m_oPlatform.ShowPopup(oMenu, MenuForRightButton);
    EXPECT_EQ("Add View ", sClicks);
    EXPECT_EQ("Add, (Show View...)", m_oPlatform.Popups()[0].sShown);
    EXPECT_EQ((ShownPopup{"mnuOptions", "Add, Show View...", 2}), m_oPlatform.Popups()[3]);

    oAdd.Visible(false);
    m_oPlatform.ShowPopup(oMenu, MenuForRightButton);
    m_oPlatform.ShowPopup(oMenu, MenuForRightButton);
    EXPECT_EQ("Add View ", sClicks) << "a hidden entry, and an empty script";
    m_oPlatform.Choose("Sort");
    EXPECT_EQ("5 Platform: The menu mnuOptions has no entry \"Sort\".",
              FailureOf([&] { m_oPlatform.ShowPopup(oMenu, MenuForRightButton); }).ToString());
}

TEST_F(PlatformModelTest, AYieldRunsQueuedGestures) {
    std::string sRun;
    const auto QueueAll = [&] {
        for (const char* sName : {"a", "b", "c"}) {
            m_oPlatform.OnYield([&sRun, sName, this] {
                sRun += sName;
                if (sRun.size() == 4) m_oPlatform.OnYield([&sRun] { sRun += "later"; });
            });
        }
    };
    QueueAll();
    m_oPlatform.YieldOnce();
    EXPECT_EQ("a", sRun);
    m_oPlatform.YieldOnce();
    m_oPlatform.YieldOnce();
    m_oPlatform.YieldOnce();
    EXPECT_EQ("abc", sRun);

    m_oPlatform.Yielding(YieldMode::AllGestures);
    QueueAll();
    m_oPlatform.YieldOnce();
    EXPECT_EQ("abcabc", sRun) << "what a gesture queues waits for the next turn";
    EXPECT_EQ("cursor=0 messages=0 popups=0 yields=5 stops=0 scripted=1 now=2026-11-22 14:05:09",
              m_oPlatform.ToString());
}

} // namespace
} // namespace GleanerSvc::Models
