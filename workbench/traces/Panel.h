// A panel: the loci that a kit amplifies, each with the bins that its alleles fall into.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace GleanerSvc::Workbench {

enum class AlleleType { Str, Snp };

// Sizes are in bp. A bin reaches from centre - left to centre + right.
struct Bin {
    std::string sAllele;
    std::string sColour; // of the dye that carries it; an SNP tells its alleles by dye and size
    double dCentre = 0;
    double dLeft = 0;
    double dRight = 0;
    bool bVirtual = false; // marked as not part of the ladder

    friend bool operator==(const Bin&, const Bin&) = default;
};

struct Locus {
    std::string sName;
    std::string sColour; // of the dye; of the first one for an SNP
    double dLow = 0;     // bp
    double dHigh = 0;
    double dRepeat = 0;                // bp; 0 for an SNP
    std::vector<std::string> asLadder; // alleles of the allelic ladder, in order of size; none for an SNP
    std::vector<Bin> aoBins;           // in order of their centres

    const Bin* FindBin(std::string_view sAllele) const; // nothing when it has none of that name

    friend bool operator==(const Locus&, const Locus&) = default;
};

struct Panel {
    std::string sName;
    AlleleType eType = AlleleType::Str;
    std::vector<Locus> aoLoci;

    const Locus* FindLocus(std::string_view sLocus) const;
    std::size_t LadderAlleles() const; // of all loci

    friend bool operator==(const Panel&, const Panel&) = default;
};

// The place in a trace of the dye of a colour: blue, green, yellow, red (and orange for the standard of
// five). Without regard to case; fails with InputError for another word.
bool IsColour(std::string_view sColour);
std::size_t DyeOfColour(std::string_view sColour);
std::string_view ColourOfDye(std::size_t nDye);

} // namespace GleanerSvc::Workbench
