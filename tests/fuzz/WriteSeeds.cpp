// Writes what the fuzzers start from into the given folder: small sound inputs.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "workbench/simulation/SimulatedKit.h"
#include "workbench/traces/TraceFile.h"

using namespace GleanerSvc::Workbench;

namespace {

constexpr std::string_view SmallPanels =
    "#\nVersion\t1\nKit type\tMicrosatellite\nChemistry Kit\tK\nPanel\t\tK\n"
    "L1\tblue\t 90.5\t120\t\t14,15\t4\t0.1\tnone\t10, 11,\r\nL2\t\tred\t130\t150\t8\t9\t0\tnone\t\"X\"\r";
constexpr std::string_view SmallBins =
    "Version\t1\nChemistry Kit\tK\nBinSet Name\tK\nPanel Name\tK\nMarker Name\tL1\n10\t100\t0.5\t0.5\n"
    "11\t104\t0.5\t0.5\tvirtual\nMarker Name\tL2\nX\t135\t0.5\t0.5\n";

void Write(const std::filesystem::path& oFile, const std::string& sContent) {
    std::ofstream oStream(oFile, std::ios::binary);
    oStream << sContent;
    if (!oStream.flush()) throw InputError(oFile.string(), "", "the file cannot be written");
}

void WriteTraceSeed(const std::filesystem::path& oFile, std::size_t nDyes, std::size_t nScans) {
    Trace oTrace{"S", "B2", "Plate", "Allelic Ladder", "Kit", "Standard", 2, {}, {}, {}, {}};
    oTrace.oRunStart = GleanerSvc::CivilTime{2024, 3, 5, 9, 30, 0};
    oTrace.oCollectionStart = oTrace.oRunStart;
    oTrace.aoDyes.assign(nDyes, {"Dye", std::vector<std::int16_t>(nScans, -2)});
    for (std::size_t n = 0; n < nScans; n += 2) oTrace.alOffScale.push_back(static_cast<std::int32_t>(n));
    std::string sContent;
    for (const auto b : WriteTrace(oTrace)) sContent += std::to_integer<char>(b);
    Write(oFile, sContent);
}

} // namespace

int main(int nArguments, char** asArguments) {
    try {
        if (nArguments != 2) throw InputError("write-seeds", "", "wants the folder to write into");
        const std::filesystem::path oFolder = std::span(asArguments, 2)[1];
        std::filesystem::create_directories(oFolder);
        WriteTraceSeed(oFolder / "five_dyes.fsa", 5, 5);
        WriteTraceSeed(oFolder / "four_dyes.fsa", 4, 1);
        WriteTraceSeed(oFolder / "no_scans.fsa", 5, 0);
        Write(oFolder / "str_tables", std::string(SmallPanels) + '\0' + std::string(SmallBins));
        const auto oKit = SimulatedSnpKit();
        Write(oFolder / "snp_tables", oKit.oPanels.sText + '\0' + oKit.oBins.sText);
    } catch (const std::exception& oError) {
        std::cerr << oError.what() << '\n';
        return 1;
    }
    return 0;
}
