#include "workbench/lab/LadderShelf.h"

#include <vector>

namespace GleanerSvc::Workbench {

LadderShelf::Found LadderShelf::Find(const SampleRow& oSample, const Panel& oPanel) {
    const auto aoCandidates =
        oSample.IsLadder() ? std::vector<SampleRow>{oSample} : m_oLab.LaddersFor(oSample);
    Found oBest;
    for (const auto& oCandidate : aoCandidates) {
        const Ladder& oLadder = Calibrated(oCandidate, oPanel);
        if (!oBest.pLadder || oLadder.nFound > oBest.pLadder->nFound) oBest = {oCandidate, &oLadder};
        if (oLadder.IsComplete()) break;
    }
    return oBest;
}

const Ladder& LadderShelf::Calibrated(const SampleRow& oLadder, const Panel& oPanel) {
    const std::pair oKey(oLadder.lSampleID, oPanel.sName);
    const auto itKnown = m_oLadders.find(oKey);
    if (itKnown != m_oLadders.end()) return itKnown->second;
    return m_oLadders.emplace(oKey, CalibrateLadder(m_fnSize(oLadder), oPanel)).first->second;
}

} // namespace GleanerSvc::Workbench
