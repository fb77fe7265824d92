#include "workbench/calling/Calling.h"

#include <algorithm>
#include <string_view>

#include "workbench/calling/FixedText.h"
#include "workbench/calling/LocusPeaks.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t MaxAlleles = 2;
constexpr std::string_view OffLadderName = "OL";

// Some words for an operator: the first few by name.
std::string Listed(const std::vector<std::string>& asWords) {
    constexpr std::size_t Most = 4;
    std::string sList;
    for (std::size_t nWord = 0; nWord < std::min(Most, asWords.size()); ++nWord) {
        sList += (nWord == 0 ? "" : ", ") + asWords[nWord];
    }
    if (asWords.size() > Most) sList += " and " + std::to_string(asWords.size() - Most) + " more";
    return sList;
}

// The first fault that is told stays.
void Judge(CalledTrace& oCalled, Status eStatus, const std::string& sReason) {
    if (oCalled.eStatus != Status::Pass) return;
    oCalled.eStatus = eStatus;
    oCalled.sReason = sReason;
}

// A fault that some loci share, if any do.
void JudgeAll(CalledTrace& oCalled, Status eStatus, const std::string& sFault,
              const std::vector<std::string>& asWhere) {
    if (!asWhere.empty()) Judge(oCalled, eStatus, sFault + Listed(asWhere));
}

// The loci asked for, in the panel's order.
std::vector<const Locus*> WantedLoci(const CallRequest& oRequest) {
    const auto& asNames = oRequest.asLoci;
    std::vector<const Locus*> apLoci;
    for (const auto& oLocus : oRequest.pPanel->aoLoci) {
        if (asNames.empty() || std::find(asNames.begin(), asNames.end(), oLocus.sName) != asNames.end()) {
            apLoci.push_back(&oLocus);
        }
    }
    return apLoci;
}

// The ladder alleles of the locus that a ladder did not show, "TH01 13.3".
std::vector<std::string> LadderGaps(const Locus& oLocus, const Ladder& oLadder) {
    const auto oFound = oLadder.oLoci.find(oLocus.sName);
    std::vector<std::string> asGaps;
    for (const auto& sAllele : oLocus.asLadder) {
        if (oFound == oLadder.oLoci.end() || !oFound->second.oOffsets.contains(sAllele)) {
            asGaps.push_back(oLocus.sName + " " + sAllele);
        }
    }
    return asGaps;
}

void JudgeUnknownLoci(CalledTrace& oCalled, const CallRequest& oRequest) {
    std::vector<std::string> asUnknown;
    for (const auto& sLocus : oRequest.asLoci) {
        if (!oRequest.pPanel->FindLocus(sLocus)) asUnknown.push_back(sLocus);
    }
    JudgeAll(oCalled, Status::LocusMissing, "panel " + oRequest.pPanel->sName + " has no locus ", asUnknown);
}

void CallLadder(CalledTrace& oCalled, const SizedTrace& oTrace, const CallRequest& oRequest) {
    std::vector<std::string> asGaps;
    for (const Locus* pLocus : WantedLoci(oRequest)) {
        const auto anPeaks = LadderPeaks(oTrace, *pLocus);
        for (std::size_t nAllele = 0; nAllele < anPeaks.size(); ++nAllele) {
            const auto& sAllele = pLocus->asLadder[nAllele];
            if (anPeaks[nAllele]) {
                oCalled.aoCalls.push_back({pLocus->sName, sAllele, *anPeaks[nAllele]});
            } else {
                asGaps.push_back(pLocus->sName + " " + sAllele);
            }
        }
    }
    JudgeAll(oCalled, Status::LadderIncomplete, "no peak at ", asGaps);
    if (oCalled.aoCalls.empty()) Judge(oCalled, Status::LadderIncomplete, "the loci have no ladder alleles");
    JudgeUnknownLoci(oCalled, oRequest);
    if (oCalled.eStatus == Status::Pass) {
        oCalled.sReason = std::to_string(oCalled.aoCalls.size()) + " ladder alleles";
    }
}

std::string AtSize(const Locus& oLocus, double dSize) {
    return oLocus.sName + " at " + FixedText(dSize, 1) + " bp";
}

void JudgeLadder(CalledTrace& oCalled, const CallRequest& oRequest) {
    std::vector<std::string> asGaps;
    for (const Locus* pLocus : WantedLoci(oRequest)) {
        const auto asOfLocus = LadderGaps(*pLocus, *oRequest.pLadder);
        asGaps.insert(asGaps.end(), asOfLocus.begin(), asOfLocus.end());
    }
    JudgeAll(oCalled, Status::LadderIncomplete, "the ladder has no peak at ", asGaps);
}

// The loci at which something is wrong, by what it is.
struct Faults {
    std::vector<std::string> asMissing;
    std::vector<std::string> asOffLadder;
    std::vector<std::string> asTooMany;
};

void CallLocus(CalledTrace& oCalled, Faults& oFaults, const Locus& oLocus,
               const std::vector<LocusPeak>& aoAlleles) {
    for (const auto& oPeak : aoAlleles) {
        oCalled.aoCalls.push_back(
            {oLocus.sName, oPeak.pBin ? oPeak.pBin->sAllele : std::string(OffLadderName), oPeak.nPeak});
        if (!oPeak.pBin) oFaults.asOffLadder.push_back(AtSize(oLocus, oPeak.dSize));
    }
    if (aoAlleles.empty()) oFaults.asMissing.push_back(oLocus.sName);
    if (aoAlleles.size() > MaxAlleles) {
        oFaults.asTooMany.push_back(oLocus.sName + " with " + std::to_string(aoAlleles.size()));
    }
}

std::string Counted(std::size_t nCount, const char* szOne, const char* szMany) {
    return std::to_string(nCount) + ' ' + (nCount == 1 ? szOne : szMany);
}

void CallSample(CalledTrace& oCalled, const SizedTrace& oTrace, const CallRequest& oRequest) {
    auto oPeaks = PeaksByLocus(oTrace, *oRequest.pPanel, oRequest.pLadder ? *oRequest.pLadder : Ladder());
    const auto apLoci = WantedLoci(oRequest);
    Faults oFaults;
    for (const Locus* pLocus : apLoci) CallLocus(oCalled, oFaults, *pLocus, oPeaks[pLocus]);
    JudgeUnknownLoci(oCalled, oRequest);
    JudgeAll(oCalled, Status::LocusMissing, "no peak at ", oFaults.asMissing);
    JudgeAll(oCalled, Status::OffLadder, "in no bin: ", oFaults.asOffLadder);
    JudgeAll(oCalled, Status::TooManyPeaks, "more than two peaks: ", oFaults.asTooMany);
    if (oCalled.eStatus == Status::Pass) {
        oCalled.sReason =
            Counted(apLoci.size(), "locus", "loci") + ", " + Counted(oCalled.aoCalls.size(), "peak", "peaks");
    }
}

} // namespace

CalledTrace CallAlleles(const SizedTrace& oTrace, const CallRequest& oRequest) {
    CalledTrace oCalled{oTrace.eStatus, oTrace.sReason, {}};
    if (!oRequest.pPanel) Judge(oCalled, Status::NoPanel, "no panel to call by");
    if (!oRequest.pPanel || !oTrace.IsSized()) return oCalled;
    if (oRequest.bIsLadder) {
        CallLadder(oCalled, oTrace, oRequest);
    } else if (oRequest.pPanel->eType == AlleleType::Snp) {
        CallSample(oCalled, oTrace, oRequest);
    } else if (!oRequest.pLadder) {
        Judge(oCalled, Status::NoLadder, "no ladder of the same run");
    } else {
        JudgeLadder(oCalled, oRequest);
        CallSample(oCalled, oTrace, oRequest);
    }
    return oCalled;
}

} // namespace GleanerSvc::Workbench
