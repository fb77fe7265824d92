#include "workbench/simulation/Random.h"

namespace GleanerSvc::Workbench {

namespace {

// Spreads neighbouring numbers over all 64 bits (the finalizer of SplitMix64).
std::uint64_t Spread(std::uint64_t n) {
    n = (n ^ n >> 30U) * 0xBF58476D1CE4E5B9U;
    n = (n ^ n >> 27U) * 0x94D049BB133111EBU;
    return n ^ n >> 31U;
}

} // namespace

Random Random::Of(std::uint64_t nSeed, std::uint64_t nPart) {
    return Random(Spread(Spread(nSeed) + nPart + 1));
}

double Random::Uniform(double dLow, double dHigh) {
    constexpr double Step = 1.0 / 9007199254740992.0; // 2 to the power of -53
    return dLow + (dHigh - dLow) * static_cast<double>(m_oEngine() >> 11U) * Step;
}

std::size_t Random::Below(std::size_t nLimit) { return static_cast<std::size_t>(m_oEngine() % nLimit); }

// Sums the four 16-bit parts of one draw: four uniform numbers, their sum of variance 4 / 12.
double Random::Normal() {
    constexpr double Mean = 2 * 65535.0;
    constexpr double Deviation = 37837.22741; // 65536 times the root of a third
    const auto nDraw = m_oEngine();
    const auto nSum =
        (nDraw & 0xFFFFU) + (nDraw >> 16U & 0xFFFFU) + (nDraw >> 32U & 0xFFFFU) + (nDraw >> 48U);
    return (static_cast<double>(nSum) - Mean) / Deviation;
}

} // namespace GleanerSvc::Workbench
