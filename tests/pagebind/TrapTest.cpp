#include "pagebind/Trap.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "models/ModelLibraries.h"
#include "tests/Failing.h"

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

std::string RaisedBy(const Body& fnRun) {
    try {
        fnRun();
    } catch (const Failure& oFailure) {
        return oFailure.ToString();
    }
    return "nothing";
}

class TrapTest : public testing::Test {
  protected:
    TrapTest() {
        m_oApartment->Utility(); // the global is there already
        m_oLibraries->Platform().ApplicationTitle("Bench");
        m_oLibraries->Platform().ApplicationValue(4711);
    }
    // The journal since the last call, without the steps that only fetch the utility.
    std::string Journal() {
        std::string sCalls;
        for (const auto& sEntry : m_oLibraries->Journal().Entries()) {
            if (!sEntry.starts_with("TrellisGlobals")) sCalls += sEntry + "\n";
        }
        m_oLibraries->Journal().Clear();
        return sCalls;
    }

    Ref<Models::ModelLibraries> m_oLibraries = Models::ModelLibraries::Create();
    Ref<Apartment> m_oApartment = m_oLibraries->MakeApartment();
    Probe m_oProbe{m_oApartment};
};

TEST_F(TrapTest, TailsReportThenAskTheGatesThenReturnOrRaise) {
    const std::string sFirst = "Utility.IsDebugBreakEnabled()\n";
    const std::string sSecond = sFirst + "Platform.ApplicationValue()\nUtility.CanDebugBreak(4711)\n";
    const std::string sBefore = "Platform.ApplicationTitle()\nUtility.LogError(\"Bench\", \"Probe\", ";
    const struct {
        bool bFirst;
        bool bSecond;
        std::string sAsked;
        std::string sRaising; // what each tail raises
        std::string sTerminal;
    } aoCases[] = {
        {false, true, sFirst, sTrouble, "nothing"},
        {true, false, sSecond, "0 : ", "nothing"}, // the trap was disarmed, and the record with it
        {true, true, sSecond + "Platform.DebugStop()\n", sTrouble, sTrouble},
    };
    for (const auto& oCase : aoCases) {
        m_oLibraries->Utility().EnableDebugBreak(oCase.bFirst);
        m_oLibraries->Utility().AllowDebugBreak(oCase.bSecond);
        Journal();
        EXPECT_EQ(RaisedBy([&] { m_oProbe.Work(Fail); }), oCase.sRaising);
        EXPECT_EQ(Journal(), sBefore + "\"Work\", " + sTrouble + ", \"\", False)\n" + oCase.sAsked);
        EXPECT_EQ(RaisedBy([&] { m_oProbe.cmdGo_Click(Fail); }), oCase.sTerminal);
        EXPECT_EQ(Journal(), sBefore + "\"cmdGo_Click\", " + sTrouble + ", \"\", True)\n" + oCase.sAsked);
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
        EXPECT_EQ(m_oLibraries->Utility().Reports().back().oFailure.ToString(), sFailure);
    }
}

// Title, utility, report; utility, first gate, value, utility, second gate, stop.
TEST_F(TrapTest, FailureInsideATailLeavesTheProcedureAsANewOne) {
    const Failure oNew(FailureNumber::Unexpected, "Log", "The disk is full");
    m_oLibraries->Utility().EnableDebugBreak(true);
    m_oLibraries->Utility().AllowDebugBreak(true);
    for (int nCall = 1; nCall <= 9; ++nCall) {
        SCOPED_TRACE(nCall);
        for (const Body& fnRun :
             {Body([&] { m_oProbe.Work(Fail); }), Body([&] { m_oProbe.cmdGo_Click(Fail); })}) {
            m_oLibraries->Utility().ClearReports();
            m_oLibraries->Journal().FailCall(nCall, oNew);
            EXPECT_EQ(FailureOf(fnRun), oNew);
            EXPECT_EQ(m_oLibraries->Utility().Reports().size(), nCall <= 3 ? 0U : 1U);
        }
    }
}

} // namespace
} // namespace GleanerSvc
