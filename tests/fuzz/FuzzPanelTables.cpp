// Any two texts end in sound panels or in an error, never in anything else. A NUL parts the texts.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "workbench/traces/PanelTables.h"

using namespace GleanerSvc::Workbench;

namespace {

bool IsSound(const Locus& oLocus) {
    return oLocus.dLow < oLocus.dHigh && DyeOfColour(oLocus.sColour) < 5 &&
           std::ranges::is_sorted(oLocus.aoBins, {}, &Bin::dCentre) &&
           std::ranges::all_of(oLocus.asLadder, [&](const std::string& sAllele) {
               return oLocus.FindBin(sAllele) != nullptr;
           });
}

bool IsSound(const Panel& oPanel) {
    return !oPanel.aoLoci.empty() &&
           std::ranges::all_of(oPanel.aoLoci, [](const Locus& oLocus) { return IsSound(oLocus); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nBytes) {
    std::string sPanels;
    for (const auto nByte : std::span(pBytes, nBytes)) sPanels += static_cast<char>(nByte);
    const auto nEnd = std::min(sPanels.find('\0'), sPanels.size());
    const auto sBins = nEnd == sPanels.size() ? std::string() : sPanels.substr(nEnd + 1);
    sPanels.resize(nEnd);
    try {
        const auto aoPanels = ReadPanelTables({"panels", sPanels}, {"bins", sBins});
        if (!std::ranges::all_of(aoPanels, [](const Panel& oPanel) { return IsSound(oPanel); })) std::abort();
    } catch (const InputError&) {
        return 0;
    }
    return 0;
}
