#include "workbench/calling/FragmentSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t MaxAtEnd = 4;    // fragments missing before the first match, or after the last
constexpr std::size_t MaxSkipped = 2;  // fragments missing in a row
constexpr double MissingPrice = 0.06;  // of a fragment; an anomalous one in its place costs 0.04
constexpr double LeftOverPrice = 0.04; // of a candidate between two matches
constexpr double MaxLogarithm = 0.5;   // of the ratio of successive speeds
constexpr std::size_t MaxCandidates = 100;

// Two successive matches: a state of the search, for the speed between them is what the next is compared
// with.
struct Step {
    FragmentMatch oFrom;
    FragmentMatch oTo;
};

class FragmentSearch {
  public:
    FragmentSearch(std::span<const double> adFragments, std::span<const Peak> aoCandidates)
        : m_adFragments(adFragments), m_aoCandidates(aoCandidates),
          m_aoStates(adFragments.size() * (MaxSkipped + 1) * aoCandidates.size() * aoCandidates.size()) {}

    std::vector<FragmentMatch> Run() {
        for (std::size_t nTo = 1; nTo < m_adFragments.size(); ++nTo) {
            const std::size_t nFirst = nTo - std::min(nTo, MaxSkipped + 1);
            for (std::size_t nFrom = nFirst; nFrom < nTo; ++nFrom) ExtendAll(nFrom, nTo);
        }
        return m_oBest ? WayTo(*m_oBest) : std::vector<FragmentMatch>();
    }

  private:
    struct State {
        double dCost = std::numeric_limits<double>::infinity();
        std::optional<FragmentMatch> oBefore; // the match before the step's first
    };

    State& At(const Step& oStep) {
        const std::size_t nSkipped = oStep.oTo.nFragment - oStep.oFrom.nFragment - 1;
        const std::size_t nRow = oStep.oTo.nFragment * (MaxSkipped + 1) + nSkipped;
        const std::size_t nCount = m_aoCandidates.size();
        return m_aoStates[(nRow * nCount + oStep.oTo.nCandidate) * nCount + oStep.oFrom.nCandidate];
    }

    double Scan(const FragmentMatch& oMatch) const { return m_aoCandidates[oMatch.nCandidate].dScan; }

    double Speed(const Step& oStep) const {
        return (Scan(oStep.oTo) - Scan(oStep.oFrom)) /
               (m_adFragments[oStep.oTo.nFragment] - m_adFragments[oStep.oFrom.nFragment]);
    }

    static double Price(std::size_t nMissing) { return MissingPrice * static_cast<double>(nMissing); }

    // What two matches leave out between them.
    static double Price(const Step& oStep) {
        return Price(oStep.oTo.nFragment - oStep.oFrom.nFragment - 1) +
               LeftOverPrice * static_cast<double>(oStep.oTo.nCandidate - oStep.oFrom.nCandidate - 1);
    }

    // Every step between the two fragments, on to each match that can follow.
    void ExtendAll(std::size_t nFrom, std::size_t nTo) {
        for (std::size_t nRight = 1; nRight < m_aoCandidates.size(); ++nRight) {
            for (std::size_t nLeft = 0; nLeft < nRight; ++nLeft) Extend({{nFrom, nLeft}, {nTo, nRight}});
        }
    }

    void Extend(const Step& oStep) {
        State& oState = At(oStep);
        const double dAsFirst = Price(oStep.oFrom.nFragment) + Price(oStep);
        if (oStep.oFrom.nFragment <= MaxAtEnd && dAsFirst < oState.dCost) oState = {dAsFirst, {}};
        if (std::isinf(oState.dCost)) return;
        const double dInAll = oState.dCost + Price(m_adFragments.size() - 1 - oStep.oTo.nFragment);
        if (oStep.oTo.nFragment + MaxAtEnd + 1 >= m_adFragments.size() && dInAll < m_dLeast) {
            m_dLeast = dInAll;
            m_oBest = oStep;
        }
        const std::size_t nEnd = std::min(oStep.oTo.nFragment + MaxSkipped + 2, m_adFragments.size());
        for (std::size_t nNext = oStep.oTo.nFragment + 1; nNext < nEnd; ++nNext) Follow(oStep, oState, nNext);
    }

    // On to each candidate at which the next fragment can lie.
    void Follow(const Step& oStep, const State& oState, std::size_t nNext) {
        const double dSpeed = Speed(oStep);
        const double dExpected = dSpeed * (m_adFragments[nNext] - m_adFragments[oStep.oTo.nFragment]);
        for (std::size_t n = oStep.oTo.nCandidate + 1; n < m_aoCandidates.size(); ++n) {
            const double dRatio = (m_aoCandidates[n].dScan - Scan(oStep.oTo)) / dExpected;
            if (dRatio > std::exp(MaxLogarithm)) break;
            const double dLogarithm = std::log(dRatio);
            if (dLogarithm < -MaxLogarithm) continue;
            const Step oFollowing{oStep.oTo, {nNext, n}};
            State& oNext = At(oFollowing);
            const double dCost = oState.dCost + Price(oFollowing) + dLogarithm * dLogarithm;
            if (dCost < oNext.dCost) oNext = {dCost, oStep.oFrom};
        }
    }

    std::vector<FragmentMatch> WayTo(Step oStep) {
        std::vector<FragmentMatch> aoMatches{oStep.oTo, oStep.oFrom};
        while (const auto oBefore = At(oStep).oBefore) {
            aoMatches.push_back(*oBefore);
            oStep = {*oBefore, oStep.oFrom};
        }
        std::reverse(aoMatches.begin(), aoMatches.end());
        return aoMatches;
    }

    std::span<const double> m_adFragments;
    std::span<const Peak> m_aoCandidates;
    std::vector<State> m_aoStates;
    std::optional<Step> m_oBest;
    double m_dLeast = std::numeric_limits<double>::infinity();
};

} // namespace

std::vector<FragmentMatch> MatchFragments(std::span<const double> adFragments,
                                          std::span<const Peak> aoCandidates) {
    if (aoCandidates.size() > MaxCandidates) return {};
    return FragmentSearch(adFragments, aoCandidates).Run();
}

} // namespace GleanerSvc::Workbench
