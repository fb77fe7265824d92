#include "workbench/simulation/Simulator.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <numeric>
#include <string_view>

#include "workbench/simulation/Capillary.h"
#include "workbench/simulation/Genotypes.h"
#include "workbench/simulation/Random.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t Rows = 8;
constexpr std::size_t Wells = 96;
constexpr std::uint64_t RunPart = Wells; // of the random numbers; the others are those of the wells

// What is wrong with a well. A fault up to NoPanel tells whatever the ladder is like.
enum class Fault {
    Truncated,
    Corrupt,
    NoData,
    NoSizeStandard,
    BadSizeStandard,
    OffScale,
    LowSignal,
    NoPanel,
    None, // as far as the sample goes
    LocusMissing,
    OffLadder,
    TooManyPeaks
};

constexpr std::array<std::string_view, 12> Statuses = {
    "READ ERROR", "READ ERROR", "NO DATA", "NO SIZE STANDARD", "BAD SIZE STANDARD", "OFF SCALE",
    "LOW SIGNAL", "NO PANEL",   "PASS",    "LOCUS MISSING",    "OFF LADDER",        "TOO MANY PEAKS"};

struct Fragment {
    std::size_t nDye = 0;
    double dSize = 0;   // as it migrates
    double dHeight = 0; // RFU
};

std::string WellName(std::size_t nWell, bool bPadded) {
    const auto nColumn = nWell / Rows + 1;
    const std::string sRow(1, static_cast<char>('A' + nWell % Rows));
    return sRow + (bPadded && nColumn < 10 ? "0" : "") + std::to_string(nColumn);
}

// Whatever a file system might take amiss becomes an underscore.
std::string FileNameOf(std::string sName) {
    const auto IsPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
    };
    std::ranges::replace_if(sName, std::not_fn(IsPlain), '_');
    return sName + ".fsa";
}

std::vector<KnownGenotype> Known(const std::vector<DrawnLocus>& aoLoci) {
    std::vector<KnownGenotype> aoKnown;
    for (const auto& oDrawn : aoLoci) {
        aoKnown.push_back({oDrawn.pLocus->sName, {}});
        for (const auto& oAllele : oDrawn.aoAlleles) aoKnown.back().asAlleles.push_back(oAllele.sAllele);
    }
    return aoKnown;
}

class PlateMaker {
  public:
    explicit PlateMaker(const PlateOrder& oOrder)
        : m_oOrder(oOrder), m_oGenotypes(oOrder.oPanel), m_aeFaults(Wells, Fault::None) {
        auto oRandom = Random::Of(oOrder.nSeed, RunPart);
        DrawShifts(oRandom);
        if (oOrder.bWithFaults) DrawFaults(oRandom);
    }

    SimulatedWell Make(std::size_t nWell) const {
        auto oRandom = Random::Of(m_oOrder.nSeed, nWell);
        const auto eFault = m_aeFaults[nWell];
        const auto aoLoci = IsLadder(nWell) ? DrawLadder(oRandom) : DrawSample(oRandom, eFault);
        const auto oTrace = Inject(oRandom, nWell, aoLoci);
        SimulatedWell oWell{FileNameOf(m_oOrder.sPlate + "_" + WellName(nWell, true)),
                            oTrace.sSampleName,
                            oTrace.sWell,
                            StatusOf(eFault),
                            Known(aoLoci),
                            WriteTrace(oTrace)};
        Damage(oRandom, eFault, oWell.abContent);
        return oWell;
    }

  private:
    bool IsSnp() const { return m_oOrder.oPanel.eType == AlleleType::Snp; }
    bool IsLadder(std::size_t nWell) const {
        return nWell == 0 && !IsSnp() && m_oOrder.eLadder != LadderState::Missing;
    }

    // Fragments of a locus run a little off their nominal sizes, in the ladder as in the samples.
    void DrawShifts(Random& oRandom) {
        const double dRun = oRandom.Uniform(0.6, 1) * (oRandom.Happens(0.5) ? 1 : -1);
        for (const auto& oLocus : m_oOrder.oPanel.aoLoci)
            m_oShifts[oLocus.sName] =
                IsSnp() ? oRandom.Uniform(-0.2, 0.2) : dRun + oRandom.Uniform(-0.3, 0.3);
    }

    // The first well is kept for the ladder.
    void DrawFaults(Random& oRandom) {
        std::vector<std::size_t> anWells(Wells - 1);
        std::iota(anWells.begin(), anWells.end(), std::size_t{1});
        oRandom.Shuffle(anWells);
        for (std::size_t n = 0; n < Statuses.size(); ++n) m_aeFaults[anWells[n]] = static_cast<Fault>(n);
    }

    std::string StatusOf(Fault eFault) const {
        std::string sOwn(Statuses.at(static_cast<std::size_t>(eFault)));
        if (eFault <= Fault::NoPanel || IsSnp() || m_oOrder.eLadder == LadderState::Complete) return sOwn;
        return m_oOrder.eLadder == LadderState::Missing ? "NO LADDER" : "LADDER INCOMPLETE";
    }

    std::vector<DrawnLocus> DrawLadder(Random& oRandom) const {
        auto aoLoci = m_oGenotypes.Ladder();
        if (m_oOrder.eLadder == LadderState::Broken)
            for (int n = 0; n < 3; ++n) m_oGenotypes.DropLadderAllele(oRandom, aoLoci);
        return aoLoci;
    }

    std::vector<DrawnLocus> DrawSample(Random& oRandom, Fault eFault) const {
        auto aoLoci = m_oGenotypes.Sample(oRandom);
        if (eFault == Fault::LocusMissing) m_oGenotypes.DropLocus(oRandom, aoLoci);
        if (eFault == Fault::OffLadder) m_oGenotypes.PutOffLadder(oRandom, aoLoci);
        if (eFault == Fault::TooManyPeaks) m_oGenotypes.PutThreeAlleles(oRandom, aoLoci);
        return aoLoci;
    }

    Trace Inject(Random& oRandom, std::size_t nWell, const std::vector<DrawnLocus>& aoLoci) const {
        const auto eFault = m_aeFaults[nWell];
        Trace oTrace;
        oTrace.sSampleName = IsLadder(nWell) ? "Ladder" : m_oOrder.sPlate + "-" + WellName(nWell, true);
        oTrace.sWell = WellName(nWell, false);
        oTrace.sPlate = m_oOrder.sPlate;
        oTrace.sSampleType = IsLadder(nWell) ? "Allelic Ladder" : "Sample";
        oTrace.sPanel = eFault == Fault::NoPanel ? "Unknown_Kit" : m_oOrder.oPanel.sName;
        oTrace.sSizeStandard = "SIM500";
        oTrace.lCapillary = static_cast<std::int32_t>(nWell + 1);
        oTrace.oRunStart = m_oOrder.oRunStart;
        oTrace.oCollectionStart = Date(Date::Of(m_oOrder.oRunStart).Serial() + 15.0 / 1440).Civil();
        Run(oRandom, eFault, Amplify(oRandom, nWell, aoLoci), oTrace);
        return oTrace;
    }

    std::vector<Fragment> Amplify(Random& oRandom, std::size_t nWell,
                                  const std::vector<DrawnLocus>& aoLoci) const {
        std::vector<Fragment> aoFragments;
        const double dInjection = 0.03 * oRandom.Normal();
        for (const auto& oDrawn : aoLoci) {
            const bool bIsSingle = !IsLadder(nWell) && oDrawn.aoAlleles.size() == 1;
            const double dHeight = oRandom.Uniform(500, 1600) * (bIsSingle ? 1.7 : 1);
            const double dShift = m_oShifts.at(oDrawn.pLocus->sName) + dInjection;
            for (const auto& oAllele : oDrawn.aoAlleles)
                aoFragments.push_back({DyeOfColour(oAllele.sColour),
                                       oAllele.dCentre + dShift + 0.02 * oRandom.Normal(),
                                       dHeight * oRandom.Uniform(0.8, 1)});
            AddStutter(oRandom, *oDrawn.pLocus, oDrawn.aoAlleles.size(), aoFragments);
        }
        Adjust(oRandom, m_aeFaults[nWell], aoFragments);
        return aoFragments;
    }

    // A part of each allele's copies lost a repeat.
    void AddStutter(Random& oRandom, const Locus& oLocus, std::size_t nAlleles,
                    std::vector<Fragment>& aoFragments) const {
        if (IsSnp()) return;
        const auto nEnd = aoFragments.size();
        for (auto n = nEnd - nAlleles; n < nEnd; ++n) {
            const auto oAllele = aoFragments[n];
            aoFragments.push_back({oAllele.nDye, oAllele.dSize - oLocus.dRepeat,
                                   oAllele.dHeight * oRandom.Uniform(0.04, 0.09)});
        }
    }

    static void Adjust(Random& oRandom, Fault eFault, std::vector<Fragment>& aoFragments) {
        if (eFault == Fault::OffScale) aoFragments[oRandom.Below(aoFragments.size())].dHeight = 15000;
        if (eFault == Fault::LowSignal)
            for (auto& oFragment : aoFragments) oFragment.dHeight *= 0.04;
    }

    static void Run(Random& oRandom, Fault eFault, const std::vector<Fragment>& aoFragments, Trace& oTrace) {
        Capillary oCapillary(oRandom);
        if (eFault != Fault::NoData) {
            oCapillary.AddPrimers();
            for (const auto& oFragment : aoFragments)
                oCapillary.AddFragment(oFragment.nDye, oFragment.dSize, oFragment.dHeight);
            if (eFault == Fault::BadSizeStandard)
                oCapillary.AddFalseStandard();
            else if (eFault != Fault::NoSizeStandard)
                oCapillary.AddStandard();
        }
        oCapillary.Detect(oTrace);
    }

    // The directory stands at the end of a file; its place, in the header.
    static void Damage(Random& oRandom, Fault eFault, std::vector<std::byte>& abContent) {
        constexpr std::ptrdiff_t DirectoryOffset = 26;
        if (eFault == Fault::Truncated) abContent.resize(abContent.size() / 10 * (1 + oRandom.Below(9)));
        if (eFault == Fault::Corrupt) std::fill_n(abContent.begin() + DirectoryOffset, 4, std::byte{0x7F});
    }

    const PlateOrder& m_oOrder;
    Genotypes m_oGenotypes;
    std::map<std::string, double> m_oShifts; // bp by locus
    std::vector<Fault> m_aeFaults;           // by well
};

} // namespace

std::vector<SimulatedWell> SimulatePlate(const PlateOrder& oOrder) {
    const PlateMaker oMaker(oOrder);
    std::vector<SimulatedWell> aoWells;
    for (std::size_t nWell = 0; nWell < Wells; ++nWell) aoWells.push_back(oMaker.Make(nWell));
    return aoWells;
}

} // namespace GleanerSvc::Workbench
