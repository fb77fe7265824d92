#include "models/WizardHost.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

// A page that writes its events down, "2.Activate", and then does what a test has hung on them.
class WrittenPage final : public IPageAccess {
  public:
    WrittenPage(const Ref<Journal>& oJournal, std::string sName, std::string& sLog)
        : m_oBase(std::make_shared<PageBaseModel>(oJournal)), m_sName(std::move(sName)), m_sLog(sLog) {
        PageEvents& oEvents = m_oBase->Events();
        m_aoSubscriptions.push_back(
            oEvents.Initialize.Subscribe([this](const auto&) { Tell("Initialize"); }));
        m_aoSubscriptions.push_back(oEvents.Activate.Subscribe([this] { Tell("Activate"); }));
        m_aoSubscriptions.push_back(oEvents.Deactivate.Subscribe([this] { Tell("Deactivate"); }));
        m_aoSubscriptions.push_back(oEvents.Save.Subscribe([this] { Tell("Save"); }));
        m_aoSubscriptions.push_back(oEvents.Validate.Subscribe([this](bool& bIsValid) {
            Tell("Validate");
            bIsValid = bValid;
        }));
    }

    Ref<IPage> Page() override { return m_oBase; }

    PageBaseModel& Base() const { return *m_oBase; }
    void Press(std::int16_t iButton) const { m_oBase->Host()->PressButton(iButton); }

    bool bValid = true;
    std::map<std::string, std::function<void()>> On;

  private:
    void Tell(const std::string& sEvent) {
        m_sLog += (m_sLog.empty() ? "" : " ") + m_sName + "." + sEvent;
        if (const auto& fnHook = On[sEvent]) fnHook();
    }

    Ref<PageBaseModel> m_oBase;
    std::string m_sName;
    std::string& m_sLog;
    std::vector<Subscription> m_aoSubscriptions;
};

class WizardHostTest : public testing::Test {
  protected:
    WizardHostTest() {
        for (const char* sName : {"1", "2", "3"}) {
            m_aoPages.push_back(std::make_shared<WrittenPage>(m_oJournal, sName, m_sLog));
            m_oHost->AddPage(m_aoPages.back());
        }
    }

    WrittenPage& Page(std::size_t nPage) { return *m_aoPages[nPage - 1]; }
    void StartAt(std::int32_t lPage) {
        m_oHost->Start();
        while (m_oHost->CurrentPage() < lPage) m_oHost->PressNext();
        m_sLog.clear();
    }
    std::string TakeLog() { return std::exchange(m_sLog, ""); }
    static std::function<void()> Failing() {
        return [] { throw Failure::Of(FailureNumber::Overflow); };
    }

    std::string m_sLog;
    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<WizardHost> m_oHost = std::make_shared<WizardHost>(m_oJournal);
    std::vector<Ref<WrittenPage>> m_aoPages;
};

TEST_F(WizardHostTest, WalksThroughThePagesAndCommits) {
    m_oHost->Start();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate 1.Activate", TakeLog());
    EXPECT_EQ(R"(page=1/3 title="" finish=off cancel=on back=off next=on)", m_oHost->ToString());

    m_oHost->PressBack();
    m_oHost->PressFinish();
    EXPECT_EQ("", TakeLog()) << "both buttons are disabled";

    m_oHost->PressNext();
    EXPECT_EQ("1.Validate 1.Deactivate 2.Validate 2.Activate", TakeLog());
    m_oHost->PressBack();
    EXPECT_EQ("2.Deactivate 1.Validate 1.Activate", TakeLog());

    m_oHost->PressNext();
    m_oHost->PressNext();
    TakeLog();
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off)", m_oHost->ToString());
    m_oHost->PressFinish();
    EXPECT_EQ("3.Validate 3.Deactivate 1.Save 2.Save 3.Save", TakeLog());
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off finished)", m_oHost->ToString());

    m_oHost->PressBack();
    Page(1).Press(HostButton::Back);
    EXPECT_EQ("", TakeLog()) << "the run has ended";
}

TEST_F(WizardHostTest, WhatAPageSetsInActivateStandsUntilItIsLeft) {
    Page(2).On["Activate"] = [&] {
        m_oHost->Title("Analyze Data");
        m_oHost->EnableButton(HostButton::Next, false);
        m_oHost->EnableButton(HostButton::Finish, true);
    };
    StartAt(2);
    EXPECT_EQ(R"(page=2/3 title="Analyze Data" finish=on cancel=on back=on next=off)", m_oHost->ToString());
    m_oHost->PressBack();
    EXPECT_EQ(R"(page=1/3 title="Analyze Data" finish=off cancel=on back=off next=on)", m_oHost->ToString());
}

TEST_F(WizardHostTest, AnInvalidPageCannotBeLeftForwardButCanBeCancelled) {
    Page(2).bValid = false;
    StartAt(2);
    m_oHost->PressNext();
    EXPECT_EQ("", TakeLog()) << "Next is off from the start";
    Page(2).Press(HostButton::Next);
    EXPECT_EQ("2.Validate", TakeLog());
    Page(2).Press(HostButton::Finish);
    EXPECT_EQ("2.Validate", TakeLog());
    m_oHost->PressCancel();
    EXPECT_EQ("2.Deactivate", TakeLog());
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=off cancelled)", m_oHost->ToString());
}

TEST_F(WizardHostTest, ValidatePageSetsForwardAndResetsBack) {
    Page(2).On["Initialize"] = [&] { Page(2).Base().ValidatePage(); };
    Page(2).bValid = false;
    m_oHost->Start();
    EXPECT_EQ("1.Initialize 2.Initialize 2.Validate 3.Initialize 1.Validate 1.Activate", TakeLog());
    EXPECT_TRUE(m_oHost->IsEnabled(HostButton::Next)) << "the answer is not the current page's";

    Page(2).bValid = true;
    m_oHost->PressNext();
    m_oHost->EnableButton(HostButton::Back, false);
    Page(2).bValid = false;
    Page(2).Base().ValidatePage();
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=off)", m_oHost->ToString());
    Page(2).bValid = true;
    Page(2).Base().ValidatePage();
    EXPECT_TRUE(m_oHost->IsEnabled(HostButton::Next));

    m_oHost->PressNext();
    Page(3).bValid = false;
    Page(3).Base().ValidatePage();
    EXPECT_EQ(R"(page=3/3 title="" finish=off cancel=on back=on next=off)", m_oHost->ToString());
}

TEST_F(WizardHostTest, NavigationFromInsideAnEventWaitsForItsEnd) {
    Page(2).On["Activate"] = [&] {
        m_oHost->EnableButton(HostButton::Next, false);
        Page(2).Press(HostButton::Next);
        EXPECT_EQ(2, m_oHost->CurrentPage());
        m_sLog += " pressed";
    };
    StartAt(1);
    m_oHost->PressNext();
    EXPECT_EQ(
        "1.Validate 1.Deactivate 2.Validate 2.Activate pressed 2.Validate 2.Deactivate 3.Validate 3.Activate",
        TakeLog());
}

TEST_F(WizardHostTest, SeveralRequestsAreCarriedOutInOrder) {
    Page(1).On["Initialize"] = [&] { Page(1).Press(HostButton::Next); };
    Page(1).On["Validate"] = [&] {
        Page(1).Press(HostButton::Next);
        Page(1).Press(HostButton::Back);
        Page(1).Press(HostButton::Cancel);
        Page(1).Press(HostButton::Next);
    };
    m_oHost->Start();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate 1.Activate 1.Validate 1.Deactivate "
              "2.Validate 2.Activate 2.Validate 2.Deactivate 3.Validate 3.Activate 3.Deactivate 2.Validate "
              "2.Activate 2.Deactivate",
              TakeLog());
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=on cancelled)", m_oHost->ToString());
}

TEST_F(WizardHostTest, AFailureOfAnEventIsKeptAndEndsTheNavigation) {
    struct Case {
        const char* sEvent;
        std::size_t nPage;
        const char* sLog;
        std::int32_t lCurrentPage;
    };
    const Case aoCases[] = {{"Validate", 1, "1.Validate", 1},
                            {"Deactivate", 1, "1.Validate 1.Deactivate", 1},
                            {"Activate", 2, "1.Validate 1.Deactivate 2.Validate 2.Activate", 2}};
    StartAt(1);
    for (const auto& oCase : aoCases) {
        Page(oCase.nPage).On[oCase.sEvent] = [&] {
            Page(1).Press(HostButton::Cancel); // lapses
            Failing()();
        };
        m_oHost->PressNext();
        EXPECT_EQ(oCase.sLog, TakeLog());
        EXPECT_EQ("page " + std::to_string(oCase.nPage) + " " + oCase.sEvent + ": 6 GleanerSvc: Overflow",
                  m_oHost->Failures().back().ToString());
        EXPECT_EQ(oCase.lCurrentPage, m_oHost->CurrentPage());
        EXPECT_TRUE(m_oHost->IsRunning());
        Page(oCase.nPage).On.clear();
    }
    m_oHost->EnableButton(HostButton::Back, false);
    Page(2).On["Validate"] = Failing();
    Page(2).Base().ValidatePage();
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=off next=on failures=4)", m_oHost->ToString());
}

TEST_F(WizardHostTest, AFailedSaveLeavesTheRunOpenForAnotherFinish) {
    StartAt(3);
    Page(2).On["Save"] = Failing();
    m_oHost->PressFinish();
    EXPECT_EQ("3.Validate 3.Deactivate 1.Save 2.Save", TakeLog());
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off failures=1)", m_oHost->ToString());

    Page(2).On.clear();
    m_oHost->PressFinish();
    EXPECT_EQ("3.Validate 1.Save 2.Save 3.Save", TakeLog()) << "the page was deactivated already";
    EXPECT_FALSE(m_oHost->IsRunning());
}

} // namespace
} // namespace GleanerSvc::Models
