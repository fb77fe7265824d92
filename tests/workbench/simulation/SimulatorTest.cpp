#include "workbench/simulation/Simulator.h"

#include <gtest/gtest.h>

#include <map>

#include "workbench/calling/Calling.h"
#include "workbench/simulation/Random.h"
#include "workbench/simulation/SimulatedKit.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {
namespace {

Panel PanelOf(const KitTables& oKit) { return ReadPanelTables(oKit.oPanels, oKit.oBins).at(0); }

PlateOrder StrPlate(LadderState eLadder = LadderState::Complete) {
    return {7, "P 1", PanelOf(SimulatedStrKit()), eLadder, true, {2024, 3, 5, 9, 30, 0}};
}

PlateOrder SnpPlate() {
    auto oOrder = StrPlate();
    oOrder.oPanel = PanelOf(SimulatedSnpKit());
    return oOrder;
}

std::map<std::string, int> StatusCounts(const std::vector<SimulatedWell>& aoWells) {
    std::map<std::string, int> oCounts;
    for (const auto& oWell : aoWells) ++oCounts[oWell.sStatus];
    return oCounts;
}

// Analyses the wells of a plate against its own ladder.
class Analysis {
  public:
    Analysis(const PlateOrder& oOrder, const std::vector<SimulatedWell>& aoWells) : m_oPanel(oOrder.oPanel) {
        const auto oFirst = ReadTrace(aoWells[0].sFile, aoWells[0].abContent);
        if (oFirst.IsLadder()) m_oLadder = CalibrateLadder(SizeTrace(oFirst), m_oPanel);
    }

    // Its status, and by locus the names of its peaks.
    std::string Run(const SimulatedWell& oWell, std::vector<KnownGenotype>& aoFound) const {
        try {
            const auto oTrace = ReadTrace(oWell.sFile, oWell.abContent);
            CallRequest oRequest;
            oRequest.pPanel = oTrace.sPanel == m_oPanel.sName ? &m_oPanel : nullptr;
            oRequest.pLadder = m_oLadder ? &*m_oLadder : nullptr;
            oRequest.bIsLadder = oTrace.IsLadder();
            const auto oCalled = CallAlleles(SizeTrace(oTrace), oRequest);
            aoFound = Found(oCalled);
            return StatusText(static_cast<std::int32_t>(oCalled.eStatus));
        } catch (const InputError&) {
            return "READ ERROR";
        }
    }

  private:
    std::vector<KnownGenotype> Found(const CalledTrace& oCalled) const {
        std::vector<KnownGenotype> aoFound;
        for (const auto& oLocus : m_oPanel.aoLoci) {
            aoFound.push_back({oLocus.sName, {}});
            for (const auto& oCall : oCalled.aoCalls)
                if (oCall.sLocus == oLocus.sName) aoFound.back().asAlleles.push_back(oCall.sAllele);
        }
        return aoFound;
    }

    Panel m_oPanel;
    std::optional<Ladder> m_oLadder;
};

// The plate has each of the given statuses in as many wells, and an analysis finds what is known of each.
void ExpectFoundAsKnown(const PlateOrder& oOrder, const std::map<std::string, int>& oCounts) {
    const auto aoWells = SimulatePlate(oOrder);
    EXPECT_EQ(StatusCounts(aoWells), oCounts);
    const Analysis oAnalysis(oOrder, aoWells);
    for (const auto& oWell : aoWells) {
        std::vector<KnownGenotype> aoFound;
        EXPECT_EQ(oAnalysis.Run(oWell, aoFound), oWell.sStatus) << oWell.sFile;
        if (oWell.sStatus == "PASS" || oWell.sStatus == "OFF LADDER" || oWell.sStatus == "LOCUS MISSING") {
            EXPECT_EQ(aoFound, oWell.aoGenotype) << oWell.sFile;
        }
    }
}

TEST(SimulatorTest, RandomNumbersAreTheSameEverywhere) {
    auto oRandom = Random::Of(1, 2);
    EXPECT_EQ(oRandom.Below(1000000), 722069U);
    EXPECT_DOUBLE_EQ(oRandom.Uniform(0, 1), 0.4021541905089937);
    EXPECT_DOUBLE_EQ(oRandom.Normal(), -0.9571525843468244);
}

TEST(SimulatorTest, SameOrderGivesTheSamePlate) {
    auto oOrder = StrPlate();
    oOrder.bWithFaults = false;
    const auto aoWells = SimulatePlate(oOrder);
    EXPECT_EQ(StatusCounts(aoWells), (std::map<std::string, int>{{"PASS", 96}}));
    EXPECT_EQ(aoWells, SimulatePlate(oOrder));
    ++oOrder.nSeed;
    EXPECT_NE(aoWells[1].abContent, SimulatePlate(oOrder)[1].abContent);
    EXPECT_EQ(aoWells[9].sFile, "P_1_B02.fsa");
    EXPECT_EQ(aoWells[9].sWell, "B2");
    const auto oLadder = ReadTrace("ladder", aoWells[0].abContent);
    EXPECT_TRUE(oLadder.IsLadder());
    EXPECT_EQ(oLadder.sWell + oLadder.sPlate + oLadder.sPanel, "A1P 1Simulated_STR");
    EXPECT_EQ(oLadder.oCollectionStart, (CivilTime{2024, 3, 5, 9, 45, 0}));
    EXPECT_FALSE(oLadder.alOffScale.empty()); // what is left of the primers
}

// Those that do not depend on the ladder.
const std::map<std::string, int> Faults = {
    {"READ ERROR", 2}, {"NO DATA", 1},    {"NO SIZE STANDARD", 1}, {"BAD SIZE STANDARD", 1},
    {"OFF SCALE", 1},  {"LOW SIGNAL", 1}, {"NO PANEL", 1}};

TEST(SimulatorTest, AnalysisFindsWhatIsKnown) {
    auto oCounts = Faults;
    oCounts.insert({{"LOCUS MISSING", 1}, {"OFF LADDER", 1}, {"TOO MANY PEAKS", 1}, {"PASS", 85}});
    ExpectFoundAsKnown(StrPlate(), oCounts);
    ExpectFoundAsKnown(SnpPlate(), oCounts);
}

TEST(SimulatorTest, AnalysisFindsWhatIsWrongWithTheLadder) {
    for (const auto& [eLadder, sStatus] : {std::pair{LadderState::Missing, "NO LADDER"},
                                           std::pair{LadderState::Broken, "LADDER INCOMPLETE"}}) {
        auto oCounts = Faults;
        oCounts[sStatus] = 88;
        ExpectFoundAsKnown(StrPlate(eLadder), oCounts);
    }
}

TEST(SimulatorTest, UnfitPanelIsRefused) {
    const std::pair<const char*, void (*)(Panel&)> aoCases[] = {
        {"no locus", [](Panel& o) { o.aoLoci.clear(); }},
        {"no allele", [](Panel& o) { o.aoLoci[3].asLadder.clear(); }},
        {"dye of the standard", [](Panel& o) { o.aoLoci[3].aoBins[0].sColour = "orange"; }},
        {"no three alleles", [](Panel& o) {
             for (auto& oLocus : o.aoLoci) oLocus.asLadder.resize(2);
         }}};
    for (const auto& [sCase, Change] : aoCases) {
        auto oOrder = StrPlate();
        Change(oOrder.oPanel);
        EXPECT_THROW(SimulatePlate(oOrder), InputError) << sCase;
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
