#include "workbench/simulation/SimulatedKit.h"

#include <array>
#include <charconv>
#include <string>
#include <vector>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t SampleDyes = 4;
constexpr std::array<std::string_view, SampleDyes> Bases = {"G", "A", "C", "T"}; // by dye

std::string Number(double dNumber) {
    std::array<char, 32> acText{};
    const auto oEnd = std::to_chars(acText.begin(), acText.end(), dNumber, std::chars_format::fixed, 2);
    return {acText.begin(), oEnd.ptr};
}

std::string LocusName(char cKind, std::size_t n) {
    return std::string(1, cKind) + (n < 9 ? "0" : "") + std::to_string(n + 1);
}

std::string BinLine(std::string_view sAllele, double dCentre, double dWidth) {
    return std::string(sAllele) + '\t' + Number(dCentre) + '\t' + Number(dWidth) + '\t' + Number(dWidth);
}

KitTables EmptyKit(const std::string& sName, const std::string& sType) {
    return {{sName + "_panels.txt",
             "Version\t1.0\nKit type\t" + sType + "\nChemistry Kit\t" + sName + "\nPanel\t" + sName + "\n"},
            {sName + "_bins.txt", "Version\t1.0\nChemistry Kit\t" + sName + "\nBinSet Name\t" + sName +
                                      "\nPanel Name\t" + sName + "\n"}};
}

void AddStrLocus(KitTables& oKit, std::size_t n) {
    constexpr double Repeat = 4;
    const auto nDye = n / 4;
    const double dLow = 80 + 95 * static_cast<double>(n % 4) + 5 * static_cast<double>(nDye);
    const double dFirst = dLow + 8 + static_cast<double>(n * 13 % 100) / 100;
    const auto nAlleles = 9 + n * 5 % 6;
    const auto nFirst = 5 + n * 3 % 8; // repeats of the shortest allele
    std::string sLadder;
    auto& sBins = oKit.oBins.sText += "Marker Name\t" + LocusName('S', n) + '\n';
    const auto AddBin = [&](const std::string& sAllele, double dCentre, bool bIsInLadder) {
        if (bIsInLadder) sLadder += sAllele + ", ";
        sBins += BinLine(sAllele, dCentre, 0.5) + (bIsInLadder ? "\n" : "\tvirtual\n");
    };
    for (std::size_t k = 0; k < nAlleles; ++k) {
        const double dCentre = dFirst + Repeat * static_cast<double>(k);
        AddBin(std::to_string(nFirst + k), dCentre, true);
        // Every fourth locus has an allele with half a repeat in its ladder.
        if (n % 4 == 3 && k == 3) AddBin(std::to_string(nFirst + k) + ".2", dCentre + Repeat / 2, true);
    }
    const double dLast = dFirst + Repeat * static_cast<double>(nAlleles);
    AddBin(std::to_string(nFirst + nAlleles), dLast, false);
    oKit.oPanels.sText += LocusName('S', n) + '\t' + std::string(ColourOfDye(nDye)) + '\t' + Number(dLow) +
                          '\t' + Number(dLast + 6) + '\t' + std::to_string(nFirst + 1) + '\t' +
                          Number(Repeat) + "\t0.10\tnone\t" + sLadder + '\n';
}

void AddSnpLine(KitTables& oKit, std::size_t n, std::size_t nDye) {
    const double dSize = 90 + 30 * static_cast<double>(n) + 0.6 * static_cast<double>(nDye);
    const auto sName = LocusName('N', n);
    oKit.oPanels.sText += sName + '\t' + std::string(ColourOfDye(nDye)) + '\t' + Number(dSize - 7) + '\t' +
                          Number(dSize + 7) + "\tnone\t0\t0\tnone\n";
    oKit.oBins.sText += "Marker Name\t" + sName + '\n' + BinLine(Bases.at(nDye), dSize, 1) + '\n';
}

} // namespace

KitTables SimulatedStrKit() {
    auto oKit = EmptyKit("Simulated_STR", "Microsatellite");
    for (std::size_t n = 0; n < 16; ++n) AddStrLocus(oKit, n);
    return oKit;
}

KitTables SimulatedSnpKit() {
    auto oKit = EmptyKit("Simulated_SNP", "SNP");
    for (std::size_t n = 0; n < 12; ++n) {
        const auto nDyes = std::size_t{n % 4 == 3 ? 3U : 2U};
        for (std::size_t k = 0; k < nDyes; ++k) AddSnpLine(oKit, n, (n + k) % SampleDyes);
    }
    return oKit;
}

} // namespace GleanerSvc::Workbench
