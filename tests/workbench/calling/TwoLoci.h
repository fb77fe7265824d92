// A small panel and its ladder.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/workbench/calling/SyntheticTrace.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

inline Locus StrLocus(const std::string& sName, const std::string& sColour,
                      const std::vector<std::pair<std::string, double>>& aoAlleles) {
    Locus oLocus{sName, sColour, aoAlleles.front().second - 8, aoAlleles.back().second + 8, 4, {}, {}};
    for (const auto& [sAllele, dCentre] : aoAlleles) {
        oLocus.asLadder.push_back(sAllele);
        oLocus.aoBins.push_back({sAllele, sColour, dCentre, 0.5, 0.5});
    }
    return oLocus;
}

// A blue locus with a microvariant, a wide gap and a bin that the ladder does not have, and a green one.
inline Panel TwoLoci() {
    Panel oPanel{"Two", AlleleType::Str, {}};
    oPanel.aoLoci.push_back(StrLocus(
        "D1", "blue", {{"8", 120}, {"9", 124}, {"9.3", 127}, {"10", 128}, {"11", 132}, {"20", 168}}));
    oPanel.aoLoci.push_back(StrLocus("D2", "green", {{"15", 200}, {"16", 204}, {"17", 208}, {"18", 212}}));
    oPanel.aoLoci[0].aoBins.push_back({"12", "blue", 136, 0.5, 0.5, true});
    return oPanel;
}

// D1 runs 2 bp ahead and stretches by a bp, D2 runs 1.5 bp late.
inline std::vector<Fragment> TwoLociLadder() {
    return {{0, 118},   {0, 122.05}, {0, 125.1}, {0, 126.1}, {0, 130.2},
            {0, 167.2}, {1, 201.5},  {1, 205.5}, {1, 209.5}, {1, 213.5}};
}

} // namespace GleanerSvc::Workbench
