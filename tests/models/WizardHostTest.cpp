#include "models/WizardHost.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace GleanerSvc::Models {
namespace {

// A page that writes its events down, "2.Activate", and then does what a test has hung on them.
class WrittenPage final : public IPageAccess {
  public:
    WrittenPage(const Ref<Journal>& oJournal, std::string sName, std::string& sLog)
        : m_oBase(std::make_shared<PageBaseModel>(oJournal)), m_sName(std::move(sName)), m_sLog(sLog) {
        PageEvents& oEvents = m_oBase->Events();
        Write(oEvents.Initialize, "Initialize");
        Write(oEvents.Activate, "Activate");
        Write(oEvents.Deactivate, "Deactivate");
        Write(oEvents.Save, "Save");
        Write(oEvents.Validate, "Validate");
        m_aoSubscriptions.push_back(
            oEvents.Validate.Subscribe([this](bool& bIsValid) { bIsValid = bValid; }));
    }

    Ref<IPage> Page() override { return m_oBase; }

    PageBaseModel& Base() const { return *m_oBase; }
    void Press(std::int16_t iButton) const { m_oBase->Host()->PressButton(iButton); }

    bool bValid = true;
    std::map<std::string, std::function<void()>> On;

  private:
    template<class... Args>
    void Write(Event<Args...>& oEvent, const char* sEvent) {
        m_aoSubscriptions.push_back(oEvent.Subscribe([this, sEvent](const auto&...) {
            m_sLog += (m_sLog.empty() ? "" : " ") + m_sName + "." + sEvent;
            if (const auto& fnHook = On[sEvent]) fnHook();
        }));
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
    static void Fail() { throw Failure::Of(FailureNumber::Overflow); }

    std::string m_sLog;
    Ref<Journal> m_oJournal = std::make_shared<Journal>();
    Ref<WizardHost> m_oHost = std::make_shared<WizardHost>(m_oJournal);
    std::vector<Ref<WrittenPage>> m_aoPages;
};

TEST_F(WizardHostTest, WalksThroughThePagesAndCommits) {
    m_oHost->Start();
    m_oHost->PressBack(); // disabled, as Finish is
    m_oHost->PressFinish();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate 1.Activate", TakeLog());
    m_oHost->PressNext();
    EXPECT_EQ("1.Validate 1.Deactivate 2.Validate 2.Activate", TakeLog());
    m_oHost->PressBack();
    EXPECT_EQ("2.Deactivate 1.Validate 1.Activate", TakeLog());
    for (int nTime = 0; nTime < 2; ++nTime) m_oHost->PressNext();
    TakeLog();
    m_oHost->PressFinish();
    m_oHost->PressBack(); // the run has ended
    Page(1).Press(HostButton::Back);
    EXPECT_EQ("3.Validate 3.Deactivate 1.Save 2.Save 3.Save", TakeLog());
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off finished)", m_oHost->ToString());
}

TEST_F(WizardHostTest, AnInvalidPageCannotBeLeftForwardButCanBeCancelled) {
    Page(2).bValid = false;
    StartAt(2);
    m_oHost->EnableButton(HostButton::Back, false);
    Page(2).Base().ValidatePage(); // sets forward and resets back
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=off)", m_oHost->ToString());
    Page(3).Base().ValidatePage();
    EXPECT_FALSE(m_oHost->IsEnabled(HostButton::Next)) << "the answer is not the current page's";
    TakeLog();
    Page(2).Press(HostButton::Next);
    Page(2).Press(HostButton::Finish);
    EXPECT_EQ("2.Validate 2.Validate", TakeLog());
    m_oHost->PressCancel();
    EXPECT_EQ("2.Deactivate", TakeLog());
    EXPECT_FALSE(m_oHost->IsRunning());
}

TEST_F(WizardHostTest, NavigationFromInsideAnEventWaitsForItsEndAndKeepsItsOrder) {
    Page(1).On["Initialize"] = [&] { Page(1).Press(HostButton::Next); };
    Page(1).On["Validate"] = [&] {
        for (const auto iButton : {HostButton::Next, HostButton::Back, HostButton::Cancel, HostButton::Next})
            Page(1).Press(iButton);
        m_sLog += " pressed";
    };
    m_oHost->Start();
    EXPECT_EQ("1.Initialize 2.Initialize 3.Initialize 1.Validate pressed 1.Activate "
              "1.Validate pressed 1.Deactivate 2.Validate 2.Activate 2.Validate 2.Deactivate "
              "3.Validate 3.Activate 3.Deactivate 2.Validate 2.Activate 2.Deactivate",
              TakeLog());
    EXPECT_EQ(R"(page=2/3 title="" finish=off cancel=on back=on next=on cancelled)", m_oHost->ToString());
}

TEST_F(WizardHostTest, AFailureOfAnEventIsKeptAndEndsTheNavigation) {
    const struct {
        const char* sEvent;
        std::size_t nPage;
        const char* sLog;
    } aoCases[] = {{"Validate", 1, "1.Validate"},
                   {"Deactivate", 1, "1.Validate 1.Deactivate"},
                   {"Activate", 2, "1.Validate 1.Deactivate 2.Validate 2.Activate"}};
    StartAt(1);
    for (const auto& oCase : aoCases) {
        Page(oCase.nPage).On[oCase.sEvent] = [&] {
            Page(1).Press(HostButton::Cancel); // lapses
            Fail();
        };
        m_oHost->PressNext();
        EXPECT_EQ(oCase.sLog, TakeLog());
        EXPECT_EQ("page " + std::to_string(oCase.nPage) + " " + oCase.sEvent + ": 6 GleanerSvc: Overflow",
                  m_oHost->Failures().back().ToString());
        EXPECT_EQ(oCase.nPage, static_cast<std::size_t>(m_oHost->CurrentPage()));
        Page(oCase.nPage).On.clear();
    }
    m_oHost->PressNext();
    Page(2).On["Save"] = Fail;
    m_oHost->PressFinish();
    Page(2).On.clear();
    TakeLog();
    m_oHost->PressFinish(); // the run is still open, and its last page deactivated already
    EXPECT_EQ("3.Validate 1.Save 2.Save 3.Save", TakeLog());
    EXPECT_EQ(R"(page=3/3 title="" finish=on cancel=on back=on next=off finished failures=4)",
              m_oHost->ToString());
}

} // namespace
} // namespace GleanerSvc::Models
