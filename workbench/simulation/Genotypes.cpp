#include "workbench/simulation/Genotypes.h"

#include <algorithm>
#include <cmath>

#include "workbench/simulation/Capillary.h"
#include "workbench/traces/InputError.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double Resolved = 1.5;   // bp between peaks of one dye
constexpr double OffLadderGap = 3; // bp between bins, so that a peak amid them is in neither

bool AreResolved(const Bin& oLeft, const Bin& oRight) {
    return oLeft.sColour != oRight.sColour || std::abs(oLeft.dCentre - oRight.dCentre) >= Resolved;
}

bool IsResolved(const std::vector<Bin>& aoTaken, const Bin& oBin) {
    return std::ranges::all_of(aoTaken, [&](const Bin& oOther) { return AreResolved(oOther, oBin); });
}

// Draws one of the loci that the action can change, by trying them in random order.
template<typename Action>
void ChangeOne(Random& oRandom, std::vector<DrawnLocus>& aoLoci, const std::string& sWanted,
               const Action& Try) {
    std::vector<DrawnLocus*> apLoci;
    apLoci.reserve(aoLoci.size());
    for (auto& oLocus : aoLoci) apLoci.push_back(&oLocus);
    oRandom.Shuffle(apLoci);
    if (std::ranges::none_of(apLoci, [&](DrawnLocus* pLocus) { return Try(*pLocus); }))
        throw InputError("panel", "", "no locus of it has " + sWanted);
}

} // namespace

Genotypes::Genotypes(const Panel& oPanel) : m_oPanel(oPanel) {
    if (oPanel.aoLoci.empty()) throw InputError("panel '" + oPanel.sName + "'", "", "it has no locus");
    for (const auto& oLocus : oPanel.aoLoci) {
        const auto aoAlleles = Alleles(oLocus);
        const auto sPlace = "locus '" + oLocus.sName + "'";
        if (aoAlleles.empty())
            throw InputError("panel '" + oPanel.sName + "'", sPlace, "it has no allele to draw");
        for (const auto& oAllele : aoAlleles)
            if (DyeOfColour(oAllele.sColour) + 1 >= Capillary::Dyes)
                throw InputError("panel '" + oPanel.sName + "'", sPlace, "its dye is that of the standard");
    }
}

std::vector<DrawnLocus> Genotypes::Sample(Random& oRandom) const {
    std::vector<DrawnLocus> aoLoci;
    for (const auto& oLocus : m_oPanel.aoLoci)
        aoLoci.push_back({&oLocus, Draw(oRandom, oLocus, oRandom.Happens(0.8) ? 2 : 1)});
    return aoLoci;
}

std::vector<DrawnLocus> Genotypes::Ladder() const {
    std::vector<DrawnLocus> aoLoci;
    for (const auto& oLocus : m_oPanel.aoLoci) aoLoci.push_back({&oLocus, Alleles(oLocus)});
    return aoLoci;
}

void Genotypes::DropLocus(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const {
    aoLoci[oRandom.Below(aoLoci.size())].aoAlleles.clear();
}

void Genotypes::PutThreeAlleles(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const {
    ChangeOne(oRandom, aoLoci, "three alleles", [&](DrawnLocus& oDrawn) {
        auto aoAlleles = Draw(oRandom, *oDrawn.pLocus, 3);
        if (aoAlleles.size() < 3) return false;
        oDrawn.aoAlleles = std::move(aoAlleles);
        return true;
    });
}

// The fragment takes the place of one allele, and the other one stays.
void Genotypes::PutOffLadder(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const {
    ChangeOne(oRandom, aoLoci, "room between its bins", [&](DrawnLocus& oDrawn) {
        const auto aoPlaces = OffLadderPlaces(*oDrawn.pLocus);
        if (aoPlaces.empty()) return false;
        oDrawn.aoAlleles.resize(1);
        oDrawn.aoAlleles.push_back(aoPlaces[oRandom.Below(aoPlaces.size())]);
        std::ranges::stable_sort(oDrawn.aoAlleles, {}, &Bin::dCentre);
        return true;
    });
}

void Genotypes::DropLadderAllele(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const {
    ChangeOne(oRandom, aoLoci, "two alleles", [&](DrawnLocus& oDrawn) {
        if (oDrawn.aoAlleles.size() < 2) return false;
        const auto nAllele = oRandom.Below(oDrawn.aoAlleles.size());
        oDrawn.aoAlleles.erase(oDrawn.aoAlleles.begin() + static_cast<std::ptrdiff_t>(nAllele));
        return true;
    });
}

// Those that samples are drawn from: of the ladder, and for SNPs all.
std::vector<Bin> Genotypes::Alleles(const Locus& oLocus) const {
    if (m_oPanel.eType == AlleleType::Snp) return oLocus.aoBins;
    std::vector<Bin> aoAlleles;
    for (const auto& sAllele : oLocus.asLadder)
        if (const auto* pBin = oLocus.FindBin(sAllele)) aoAlleles.push_back(*pBin);
    return aoAlleles;
}

std::vector<Bin> Genotypes::Draw(Random& oRandom, const Locus& oLocus, std::size_t nMost) const {
    auto aoAlleles = Alleles(oLocus);
    oRandom.Shuffle(aoAlleles);
    std::vector<Bin> aoTaken;
    for (const auto& oAllele : aoAlleles)
        if (aoTaken.size() < nMost && IsResolved(aoTaken, oAllele)) aoTaken.push_back(oAllele);
    std::ranges::stable_sort(aoTaken, {}, &Bin::dCentre);
    return aoTaken;
}

// Midway between neighbouring bins; a dye of an SNP has but one bin, and room on both sides of it.
std::vector<Bin> Genotypes::OffLadderPlaces(const Locus& oLocus) const {
    std::vector<Bin> aoPlaces;
    const auto AddBetween = [&](double dLow, double dHigh, const std::string& sColour) {
        if (dHigh - dLow >= OffLadderGap)
            aoPlaces.push_back({"OL", sColour, (dLow + dHigh) / 2, 0, 0, false});
    };
    const auto& aoBins = oLocus.aoBins;
    if (m_oPanel.eType == AlleleType::Snp) {
        AddBetween(aoBins.back().dCentre, oLocus.dHigh, aoBins.back().sColour);
        return aoPlaces;
    }
    for (std::size_t n = 1; n < aoBins.size(); ++n)
        AddBetween(aoBins[n - 1].dCentre, aoBins[n].dCentre, aoBins[n].sColour);
    return aoPlaces;
}

} // namespace GleanerSvc::Workbench
