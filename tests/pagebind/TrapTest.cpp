#include "pagebind/Trap.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "tests/Failing.h"
#include "tests/PageScene.h"

namespace GleanerSvc {
namespace {

using Body = std::function<void()>;

class Probe final : private Trapped {
  public:
    explicit Probe(const Ref<Apartment>& oApartment) : Trapped(oApartment) {}
    void Work(const Body& fnBody) const { Raising("Work", fnBody); }
    void cmdGo_Click(const Body& fnBody) const { Terminal("cmdGo_Click", fnBody); }

  private:
    std::string ClassName() const override { return "Probe"; }
};

const Failure Trouble(1234, "Store", "No such record", "store.hlp", 77);
const std::string sTrouble = Trouble.ToString();
void Fail() { throw Failure(Trouble); }

class TrapTest : public testing::Test, protected ModelScene {
  protected:
    TrapTest() {
        oApartment->Utility(); // the global is there already
        Platform().ApplicationTitle("Bench");
        Platform().ApplicationValue(4711);
    }
    Probe m_oProbe{oApartment};
};

TEST_F(TrapTest, TailsReportThenAskTheGatesThenReturnOrRaise) {
    const std::string sFirst = "Utility.IsDebugBreakEnabled(); ";
    const std::string sSecond = sFirst + "Platform.ApplicationValue(); Utility.CanDebugBreak(4711); ";
    const std::string sBefore = "Platform.ApplicationTitle(); Utility.LogError(Bench, Probe, ";
    const struct {
        bool bFirst;
        bool bSecond;
        std::string sAsked;
        std::string sRaising; // what each tail raises
        std::string sTerminal;
    } aoCases[] = {
        {false, true, sFirst, sTrouble, ""},
        {true, false, sSecond, "0 : ", ""}, // the trap was disarmed, and the record with it
        {true, true, sSecond + "Platform.DebugStop(); ", sTrouble, sTrouble},
    };
    const auto Expect = [&](const Body& fnRun, const std::string& sRaised, const std::string& sCalls) {
        Journal().Clear();
        EXPECT_EQ(sRaised.empty() ? (fnRun(), "") : FailureOf(fnRun).ToString(), sRaised);
        EXPECT_EQ(Calls("^(?!TrellisGlobals).*"), sBefore + sCalls);
    };
    for (const auto& [bFirst, bSecond, sAsked, sRaising, sTerminal] : aoCases) {
        Utility().EnableDebugBreak(bFirst);
        Utility().AllowDebugBreak(bSecond);
        Expect([&] { m_oProbe.Work(Fail); }, sRaising, "Work, " + sTrouble + ", , False); " + sAsked);
        Expect([&] { m_oProbe.cmdGo_Click(Fail); }, sTerminal,
               "cmdGo_Click, " + sTrouble + ", , True); " + sAsked);
    }
    EXPECT_EQ(FailureOf([&] { m_oProbe.Work(Fail); }), Trouble); // all five fields
}

TEST_F(TrapTest, OtherExceptionsTravelUnderANumber) {
    const std::pair<Body, const char*> aoCases[] = {
        {[] { throw std::bad_alloc(); }, "7 GleanerSvc: Out of memory"},
        {[] { throw std::runtime_error("odd"); }, "51 GleanerSvc: odd"},
        {[] { throw 1; }, "51 GleanerSvc: Internal error"},
        {[] { Deref(Ref<IObject>()); }, "91 GleanerSvc: Object variable not set"},
    };
    for (const auto& [fnBody, sFailure] : aoCases) {
        EXPECT_EQ(FailureOf([&, fnWork = fnBody] { m_oProbe.Work(fnWork); }).ToString(), sFailure);
        EXPECT_EQ(Utility().Reports().back().oFailure.ToString(), sFailure);
    }
}

// Title, utility, report; utility, first gate, value, utility, second gate, stop.
TEST_F(TrapTest, FailureInsideATailLeavesTheProcedureAsANewOne) {
    const Failure oNew(FailureNumber::Unexpected, "Log", "The disk is full");
    Utility().EnableDebugBreak(true);
    Utility().AllowDebugBreak(true);
    for (int nCall = 1; nCall <= 9; ++nCall) {
        SCOPED_TRACE(nCall);
        for (const Body& fnRun :
             {Body([&] { m_oProbe.Work(Fail); }), Body([&] { m_oProbe.cmdGo_Click(Fail); })}) {
            Utility().ClearReports();
            Journal().FailCall(nCall, oNew);
            EXPECT_EQ(FailureOf(fnRun), oNew);
            EXPECT_EQ(Utility().Reports().size(), nCall <= 3 ? 0U : 1U);
        }
    }
}

} // namespace
} // namespace GleanerSvc
