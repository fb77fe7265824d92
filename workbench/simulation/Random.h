// Random numbers that are the same on every platform: the distributions of the standard library are not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace GleanerSvc::Workbench {

class Random {
  public:
    explicit Random(std::uint64_t nSeed) : m_oEngine(nSeed) {}

    // Another sequence for each part of a whole, so that a change in one part leaves the others as they were.
    static Random Of(std::uint64_t nSeed, std::uint64_t nPart);

    double Uniform(double dLow, double dHigh);
    std::size_t Below(std::size_t nLimit); // 0 to nLimit - 1; nLimit is not 0
    bool Happens(double dProbability) { return Uniform(0, 1) < dProbability; }

    // Of mean 0 and deviation 1, from a sum of four: it never leaves -3.5 to 3.5.
    double Normal();

    template<typename Value>
    void Shuffle(std::vector<Value>& aoValues) {
        for (auto n = aoValues.size(); n > 1; --n) std::swap(aoValues[n - 1], aoValues[Below(n)]);
    }

  private:
    std::mt19937_64 m_oEngine;
};

} // namespace GleanerSvc::Workbench
