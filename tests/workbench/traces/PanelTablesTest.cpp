#include "workbench/traces/PanelTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/workbench/traces/RealTraces.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {
namespace {

constexpr std::string_view Head = "Version\t1\nKit type\tMicrosatellite\nChemistry Kit\tK\n";
constexpr std::string_view BinHead = "Version\t1\nChemistry Kit\tK\nBinSet Name\tK\n";

std::string WithLineEnd(std::string sText, std::string_view sEnd) {
    for (auto n = sText.find('\n'); n != std::string::npos; n = sText.find('\n', n + sEnd.size()))
        sText.replace(n, 1, sEnd);
    return sText;
}

// Of the two heads and what follows them.
std::vector<Panel> Read(const std::string& sPanels, const std::string& sBins, std::string_view sEnd = "\n") {
    return ReadPanelTables({"p.txt", WithLineEnd(std::string(Head) + sPanels, sEnd)},
                           {"b.txt", WithLineEnd(std::string(BinHead) + sBins, sEnd)});
}

std::string MessageOf(const std::string& sPanels, const std::string& sBins) {
    try {
        Read(sPanels, sBins);
    } catch (const InputError& oError) {
        return oError.what();
    }
    return {};
}

// In the order of their names, so that a panel table and its bin table have the same place.
std::vector<std::filesystem::path> TablesNamed(const std::filesystem::path& oFolder, std::string_view sPart) {
    std::vector<std::filesystem::path> aoFiles;
    for (const auto& oEntry : std::filesystem::directory_iterator(oFolder))
        if (oEntry.path().filename().string().find(sPart) != std::string::npos)
            aoFiles.push_back(oEntry.path());
    std::ranges::sort(aoFiles);
    return aoFiles;
}

TableText ReadTable(const std::filesystem::path& oFile) {
    TableText oTable{oFile.filename().string(), {}};
    for (const auto b : ReadBytes(oFile)) oTable.sText += std::to_integer<char>(b);
    return oTable;
}

TEST(PanelTablesTest, TablesAreReadAsKitsDeliverThem) {
    const std::string sPanels =
        "# a remark\nPanel\t\tK\t\t\nL1\tBlue\t 90.5\t120\t\t14,15\t4\t0.1\tnone\t12, 10, 11, 99,\n"
        "\t\t\n\nL2\t\tred\t130\t150\t8\t9\t0\tnone\t\"X, Y\"\nPanel\tEmpty\tnull\n"
        "L1\tred\t1\t2\t8\t4\t0\tnone\t1\nPanel\tBare\nL1\tred\t1\t2\t8\t4\t0\tnone\t1\n";
    const std::string sBins =
        "Panel Name\tK\nMarker Name\tL1\n12\t108.0\t0.5\t0.4\t\n10\t100.0\t0\t0\n"
        "11\t104.0\t0.5\t0.5\n13\t112.0\t0.5\t0.5\tvirtual\nMarker Name\tL2  \n"
        "X \t135\t.5\t.5\nY\t141\t.5\t.5\nPanel Name\tOther\nMarker Name\tL9\nX\t135\t.5\t.5\n"
        "Panel Name\tBare\nMarker Name\tL1\n";
    const std::vector<Bin> aoFirst = {{"10", "blue", 100, 0, 0, false},
                                      {"11", "blue", 104, 0.5, 0.5, false},
                                      {"12", "blue", 108, 0.5, 0.4, false},
                                      {"13", "blue", 112, 0.5, 0.5, true}};
    const std::vector<Bin> aoSecond = {{"X", "red", 135, 0.5, 0.5, false},
                                       {"Y", "red", 141, 0.5, 0.5, false}};
    const Locus oFirst{"L1", "blue", 90.5, 120, 4, {"10", "11", "12"}, aoFirst}; // 99 has no bin
    const Locus oSecond{"L2", "red", 130, 150, 9, {"X", "Y"}, aoSecond};
    const Panel oExpected{"K", AlleleType::Str, {oFirst, oSecond}};
    for (const auto* sEnd : {"\n", "\r", "\r\n"})
        EXPECT_EQ(Read(sPanels, sBins, sEnd), std::vector{oExpected}) << static_cast<int>(*sEnd);
    EXPECT_EQ(ReadPanelTables({"p.txt", "\xEF\xBB\xBF" + std::string(Head) + sPanels},
                              {"b.txt", std::string(BinHead) + sBins}),
              std::vector{oExpected})
        << "as some editors leave it";
    EXPECT_EQ(oExpected.LadderAlleles(), 5U);
    EXPECT_EQ(oExpected.FindLocus("L2")->FindBin("Y")->dCentre, 141);
    EXPECT_EQ(oExpected.FindLocus("L3"), nullptr);
    EXPECT_EQ(oExpected.FindLocus("L1")->FindBin("Y"), nullptr);
}

TEST(PanelTablesTest, SnpHasALineAndAListOfBinsForEachDye) {
    const TableText oPanels{"p.txt",
                            "Kit type:\tsnp\nPanel\tK\nN1\tblue\t90\t100\tnone\t0\t0\tnone\n"
                            "N2\tred\t50\t60\tnone\t0\t0\tnone\nN1\tgreen\t91\t101\tnone\t0\t0\tnone\n"};
    const TableText oBins{"b.txt",
                          "Panel Name\tK\nMarker Name\tN1\nG\t95\t1\t1\nMarker Name\tN1\nA\t94\t1\t1\n"
                          "Marker Name\tN2\nT\t55\t1\t1\n"};
    const std::vector<Bin> aoFirst = {{"A", "green", 94, 1, 1, false}, {"G", "blue", 95, 1, 1, false}};
    const Locus oFirst{"N1", "blue", 90, 101, 0, {}, aoFirst};
    const Locus oSecond{"N2", "red", 50, 60, 0, {}, {{"T", "red", 55, 1, 1, false}}};
    const Panel oExpected{"K", AlleleType::Snp, {oFirst, oSecond}};
    EXPECT_EQ(ReadPanelTables(oPanels, oBins), std::vector{oExpected});
}

TEST(PanelTablesTest, BrokenLineIsNamed) {
    const std::string sPanels = "Panel\tK\nL1\tblue\t90\t120\t14\t4\t0.1\tnone\t10, 11\n";
    const std::string sBins = "Panel Name\tK\nMarker Name\tL1\n10\t100\t0.5\t0.5\n";
    EXPECT_EQ(MessageOf(sPanels, sBins), "");
    const std::pair<std::string, std::string> aoPanels[] = {
        {"", "p.txt: the table has no panel"},
        {"L1\tblue\n", "p.txt: line 4: 'L1' stands before the first panel"},
        {"Kit type\tRFLP\n", "p.txt: line 4: the kit type 'RFLP' is unknown"},
        {"Panel\t\t\n", "p.txt: line 4: the panel has no name"},
        {sPanels + "Panel\tK\n", "p.txt: line 6: the panel 'K' stands there twice"},
        {sPanels + sPanels.substr(8), "p.txt: line 6: the locus 'L1' stands there twice"},
        {sPanels + "L2\tred\t90\t120\t14\t4\t0.1\tnone\t10\n",
         "p.txt: line 6: b.txt has no bins for the locus 'L2'"},
        {std::string(64, '\t'), "p.txt: line 4: it has more than 64 columns"},
        {std::string(5'000'000, '\n'), "p.txt: the table has 5000050 bytes, one of a kit at most 4194304"},
        {sPanels + "L2\tblue\t9\n", "p.txt: line 6: a locus has 9 filled columns, this line 3"},
        {sPanels + "L2\tpink\t90\t120\t14\t4\t0.1\tnone\t10\n",
         "p.txt: line 6: 'pink' is no colour of a dye"},
        {sPanels + "L2\tblue\t9O\t120\t14\t4\t0.1\tnone\t10\n", "p.txt: line 6: '9O' is no number"},
        {sPanels + "L2\tblue\tnan\t120\t14\t4\t0.1\tnone\t10\n", "p.txt: line 6: 'nan' is no number"},
        {sPanels + "L2\tblue\t-9\t120\t14\t4\t0.1\tnone\t10\n", "p.txt: line 6: '-9' is no size in bp"},
        {sPanels + "L2\tblue\t90\t1e9\t14\t4\t0.1\tnone\t10\n", "p.txt: line 6: '1e9' is no size in bp"},
        {sPanels + "L2\tblue\t90\t90\t14\t4\t0.1\tnone\t10\n",
         "p.txt: line 6: the lowest size is not below the highest"},
        {sPanels + "L2\tblue\t90\t99\t14\t0\t0.1\tnone\t10\n", "p.txt: line 6: the repeat has no length"},
        {sPanels + "L2\tblue\t90\t99\t14\t4\t0.1\tnone\t9, 10, 9\n",
         "p.txt: line 6: the ladder has the allele '9' twice"},
    };
    for (const auto& [sText, sMessage] : aoPanels) EXPECT_EQ(MessageOf(sText, sBins), sMessage);
    const std::pair<std::string, std::string> aoBins[] = {
        {"", "b.txt: the table has no panel"},
        {"10\t100\t0.5\t0.5\n", "b.txt: line 4: '10' stands before the first panel"},
        {"Panel Name\n", "b.txt: line 4: the panel has no name"},
        {sBins + "Panel Name\tK\n", "b.txt: line 7: the panel 'K' stands there twice"},
        {"Panel Name\tK\n10\t100\t0.5\t0.5\n",
         "b.txt: line 5: a bin stands before the first locus of its panel"},
        {sBins + "Marker Name\n", "b.txt: line 7: the locus has no name"},
        {sBins + "Marker Name\tL2\n",
         "b.txt: line 7: the panel 'K' has no such locus, or not so often: 'L2'"},
        {sBins + "Marker Name\tL1\n",
         "b.txt: line 7: the panel 'K' has no such locus, or not so often: 'L1'"},
        {sBins + "11\t104\t0.5\n", "b.txt: line 7: a bin has 4 or 5 filled columns, this line 3"},
        {sBins + "11\t1O4\t0.5\t0.5\n", "b.txt: line 7: '1O4' is no number"},
        {sBins + "11\t104\t-0.5\t0.5\n", "b.txt: line 7: '-0.5' is no size in bp"},
        {sBins + "10\t104\t0.5\t0.5\n", "b.txt: line 7: the locus 'L1' has the allele '10' twice"},
    };
    for (const auto& [sText, sMessage] : aoBins) EXPECT_EQ(MessageOf(sPanels, sText), sMessage);
}

TEST(PanelTablesTest, ColoursAreDyesInOrder) {
    for (std::size_t nDye = 0; nDye < 5; ++nDye) EXPECT_EQ(DyeOfColour(ColourOfDye(nDye)), nDye);
    EXPECT_EQ(DyeOfColour("RED"), 3U);
    EXPECT_THROW(DyeOfColour("re"), InputError);
    EXPECT_THROW(ColourOfDye(5), InputError);
}

TEST(PanelTablesTest, RealTablesAreRead) {
    const auto oFolder = RealTraces();
    if (!oFolder) GTEST_SKIP() << "GLEANER_REAL_TRACES names no folder of real traces";
    const auto aoPanelTables = TablesNamed(*oFolder, "_Pa");
    const auto aoBinTables = TablesNamed(*oFolder, "_Bins");
    ASSERT_EQ(aoPanelTables.size(), 4U);
    ASSERT_EQ(aoBinTables.size(), 4U);
    const auto sNamed = ReadTraceFile(*oFolder / "1_0000206138_C01_005.fsa").sPanel;
    std::vector<std::size_t> anPanels;
    std::set<std::pair<std::size_t, std::size_t>> oNamed; // loci and ladder alleles
    for (std::size_t n = 0; n < aoPanelTables.size(); ++n) {
        const auto aoPanels = ReadPanelTables(ReadTable(aoPanelTables[n]), ReadTable(aoBinTables[n]));
        anPanels.push_back(aoPanels.size());
        for (const auto& oPanel : aoPanels)
            if (oPanel.sName == sNamed) oNamed.emplace(oPanel.aoLoci.size(), oPanel.LadderAlleles());
    }
    EXPECT_EQ(anPanels, (std::vector<std::size_t>{11, 21, 7, 1}));
    EXPECT_EQ(oNamed, (std::set<std::pair<std::size_t, std::size_t>>{{16, 205}}));
}

} // namespace
} // namespace GleanerSvc::Workbench
