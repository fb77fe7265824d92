// Draws what the DNA of a simulated sample holds.
#pragma once

#include <vector>

#include "workbench/simulation/Random.h"
#include "workbench/traces/Panel.h"

namespace GleanerSvc::Workbench {

// The alleles that a sample has at a locus, in order of size. A fragment outside all bins is named "OL".
struct DrawnLocus {
    const Locus* pLocus = nullptr;
    std::vector<Bin> aoAlleles;
};

// Keeps the panel by reference. Fails with InputError when a locus has no allele to draw or no dye of a
// sample.
class Genotypes {
  public:
    explicit Genotypes(const Panel& oPanel);

    // One or two alleles at each locus, never so close that their peaks run into each other.
    std::vector<DrawnLocus> Sample(Random& oRandom) const;
    std::vector<DrawnLocus> Ladder() const;

    // Each changes one locus that it fits, drawn at random; fails with InputError when it fits none.
    void DropLocus(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const;
    void PutThreeAlleles(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const;
    void PutOffLadder(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const;
    void DropLadderAllele(Random& oRandom, std::vector<DrawnLocus>& aoLoci) const;

  private:
    std::vector<Bin> Alleles(const Locus& oLocus) const;
    std::vector<Bin> Draw(Random& oRandom, const Locus& oLocus, std::size_t nMost) const;
    std::vector<Bin> OffLadderPlaces(const Locus& oLocus) const;

    const Panel& m_oPanel;
};

} // namespace GleanerSvc::Workbench
