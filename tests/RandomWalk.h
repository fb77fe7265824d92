// What random walks share: the seeds, and the numbers that are drawn.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace GleanerSvc {

inline std::int32_t Drawn(std::mt19937& oRandom, std::int32_t lEnd) {
    return std::uniform_int_distribution(0, lEnd - 1)(oRandom);
}

// Walks from seed 1 on, or the seed alone that the environment variable gives. Walk::Step makes a gesture and
// tells what differs, "" for nothing.
template<class Walk>
void WalkSeeds(const char* sVariable, int nSeeds, int nSteps) {
    const char* const sSeed = std::getenv(sVariable);
    const int nFirst = sSeed ? std::atoi(sSeed) : 1;
    for (int nSeed = nFirst; nSeed <= (sSeed ? nFirst : nSeeds); ++nSeed) {
        Walk oWalk(static_cast<std::uint32_t>(nSeed));
        for (int nStep = 1; nStep <= nSteps; ++nStep)
            ASSERT_EQ(oWalk.Step(), "") << "seed " << nSeed << ", step " << nStep;
    }
}

} // namespace GleanerSvc
