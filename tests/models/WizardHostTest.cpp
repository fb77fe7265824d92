#include "models/WizardHost.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/PageScene.h"

namespace GleanerSvc::Models {
namespace {

// Three pages that write their events down, "2.Activate", and then do what a test has hung on them.
class WizardHostTest : public testing::Test, protected WizardScene {
  protected:
    WizardHostTest() {
        for (const std::string sPage : {"1", "2", "3"}) {
            m_aoPages.push_back(std::make_shared<PlainPage>(oApartment));
            oHost->AddPage(m_aoPages.back());
            PageEvents& oEvents = Base(m_aoPages.size()).Events();
            Write(oEvents.Initialize, sPage + ".Initialize");
            Write(oEvents.Activate, sPage + ".Activate");
            Write(oEvents.Deactivate, sPage + ".Deactivate");
            Write(oEvents.Save, sPage + ".Save");
            Write(oEvents.Validate, sPage + ".Validate");
            m_aoHeld.push_back(
                oEvents.Validate.Subscribe([=, this](bool& bIsValid) { bIsValid = sPage != m_sInvalid; }));
        }
    }
    template<class... Args>
    void Write(Event<Args...>& oEvent, const std::string& sEvent) {
        m_aoHeld.push_back(oEvent.Subscribe([=, this](const auto&...) {
            m_sLog += (m_sLog.empty() ? "" : " ") + sEvent;
            if (const auto& fnHook = m_oHooks[sEvent]) fnHook();
        }));
    }

    IPageBase& Base(std::size_t nPage) { return *Cast<IPageBase>(m_aoPages[nPage - 1]->Page()); }
    void StartAt(std::int32_t lPage) {
        oHost->Start();
        while (oHost->CurrentPage() < lPage) oHost->PressNext();
        m_sLog.clear();
    }
    // What the operator's gesture makes the pages write.
    std::string After(void (WizardHost::*fnPress)()) {
        m_sLog.clear();
        ((*oHost).*fnPress)();
        return m_sLog;
    }
    static void Fail() { throw Failure::Of(FailureNumber::Overflow); }

    std::string m_sLog;
    std::string m_sInvalid;                                // the page that is not valid
    std::map<std::string, std::function<void()>> m_oHooks; // by "2.Activate"
    std::vector<Ref<PlainPage>> m_aoPages;
    std::vector<Subscription> m_aoHeld;
};

TEST_F(WizardHostTest, WalksThroughThePagesAndCommits) {
    oHost->Start();
    oHost->PressBack(); // disabled, as Finish is
    oHost->PressFinish();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate 1.Activate", m_sLog);
    EXPECT_EQ("1.Validate 1.Deactivate 2.Validate 2.Activate", After(&WizardHost::PressNext));
    EXPECT_EQ("2.Deactivate 1.Validate 1.Activate", After(&WizardHost::PressBack));
    for (int nTime = 0; nTime < 2; ++nTime) oHost->PressNext();
    EXPECT_EQ("3.Validate 3.Deactivate 1.Save 2.Save 3.Save", After(&WizardHost::PressFinish));
    oHost->PressButton(HostButton::Back);
    EXPECT_EQ("", After(&WizardHost::PressBack)); // the run has ended
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off finished)", oHost->ToString());
}

TEST_F(WizardHostTest, AnInvalidPageCannotBeLeftForwardButCanBeCancelled) {
    m_sInvalid = "2";
    StartAt(2);
    oHost->EnableButton(HostButton::Back, false);
    Base(2).ValidatePage(); // sets forward and resets back
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=off)", oHost->ToString());
    Base(3).ValidatePage();
    EXPECT_FALSE(oHost->IsEnabled(HostButton::Next)) << "the answer is not the current page's";
    m_sLog.clear();
    oHost->PressButton(HostButton::Next);
    oHost->PressButton(HostButton::Finish);
    EXPECT_EQ("2.Validate 2.Validate", m_sLog);
    EXPECT_EQ("2.Deactivate", After(&WizardHost::PressCancel));
    EXPECT_FALSE(oHost->IsRunning());
}

TEST_F(WizardHostTest, NavigationFromInsideAnEventWaitsForItsEndAndKeepsItsOrder) {
    m_oHooks["1.Initialize"] = [&] { oHost->PressButton(HostButton::Next); };
    m_oHooks["1.Validate"] = [&] {
        for (const auto iButton : {HostButton::Next, HostButton::Back, HostButton::Cancel, HostButton::Next})
            oHost->PressButton(iButton);
        m_sLog += " pressed";
    };
    oHost->Start();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate pressed 1.Activate "
              "1.Validate pressed 1.Deactivate 2.Validate 2.Activate 2.Validate 2.Deactivate "
              "3.Validate 3.Activate 3.Deactivate 2.Validate 2.Activate 2.Deactivate",
              m_sLog);
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=on cancelled)", oHost->ToString());
}

TEST_F(WizardHostTest, AFailureOfAnEventIsKeptAndEndsTheNavigation) {
    const std::pair<const char*, const char*> aoCases[] = {
        {"1.Validate", "1.Validate"},
        {"1.Deactivate", "1.Validate 1.Deactivate"},
        {"2.Activate", "1.Validate 1.Deactivate 2.Validate 2.Activate"}};
    StartAt(1);
    for (const auto& [sEvent, sLog] : aoCases) {
        m_oHooks[sEvent] = [&] {
            oHost->PressButton(HostButton::Cancel); // lapses
            Fail();
        };
        EXPECT_EQ(sLog, After(&WizardHost::PressNext));
        EXPECT_EQ("page " + std::string(sEvent).replace(1, 1, " ") + ": 6 GleanerSvc: Overflow",
                  oHost->Failures().back().ToString());
        EXPECT_EQ(DecimalText(oHost->CurrentPage()), std::string(sEvent, 1));
        m_oHooks.clear();
    }
    oHost->PressNext();
    m_oHooks["2.Save"] = Fail;
    oHost->PressFinish();
    m_oHooks.clear();
    // The run is still open, and its last page deactivated already.
    EXPECT_EQ("3.Validate 1.Save 2.Save 3.Save", After(&WizardHost::PressFinish));
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off finished failures=4)",
              oHost->ToString());
}

} // namespace
} // namespace GleanerSvc::Models
