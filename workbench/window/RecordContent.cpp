#include "workbench/window/RecordContent.h"

#include <algorithm>
#include <cmath>

#include "workbench/calling/FixedText.h"
#include "workbench/lab/LadderShelf.h"
#include "workbench/lab/SizingAhead.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double BinReach = 0.5; // bp, as alleles are called

// How far off this run finds the ladder allele that is nearest to a bin. Nothing where it finds none.
std::optional<double> OffsetNear(const Locus& oLocus, const Ladder& oLadder, const Bin& oBin) {
    const auto itLocus = oLadder.oLoci.find(oLocus.sName);
    if (itLocus == oLadder.oLoci.end()) return std::nullopt;
    std::optional<double> oNearest;
    double dLeast = 0;
    for (const auto& [sAllele, dOffset] : itLocus->second.oOffsets) {
        const Bin* pBin = oLocus.FindBin(sAllele);
        if (!pBin) continue;
        const double dDistance = std::abs(pBin->dCentre - oBin.dCentre);
        if (oNearest && dDistance >= dLeast) continue;
        oNearest = dOffset;
        dLeast = dDistance;
    }
    return oNearest;
}

std::optional<BinMark> PlaceBin(const Panel& oPanel, const Locus& oLocus, const Bin& oBin,
                                const Ladder& oLadder) {
    if (oPanel.eType == AlleleType::Snp)
        return BinMark{oLocus.sName, oBin.sAllele, DyeOfColour(oBin.sColour),
                       oBin.dCentre - std::max(oBin.dLeft, BinReach),
                       oBin.dCentre + std::max(oBin.dRight, BinReach)};
    const auto oOffset = OffsetNear(oLocus, oLadder, oBin);
    if (!oOffset && !oLocus.asLadder.empty()) return std::nullopt;
    const double dCentre = oBin.dCentre + oOffset.value_or(0);
    return BinMark{oLocus.sName, oBin.sAllele, DyeOfColour(oLocus.sColour), dCentre - BinReach,
                   dCentre + BinReach};
}

// As the analyzer takes a ladder: its stored sizes, or those of now where it was never analyzed.
SizedTrace SizesOf(Lab& oLab, const SampleRow& oSample) {
    const auto aoResults = oLab.ResultsOfSample(oSample.lSampleID);
    if (!aoResults.empty()) return oLab.SizedOf(aoResults.back().lResultID);
    return SizingAhead(oLab, {}, 1).Of(oSample.lSampleID);
}

std::vector<BinMark> BinsFor(Lab& oLab, const SampleRow& oSample) {
    const auto oPanel = oLab.FindPanel(oSample.sPanel);
    if (!oPanel) return {};
    LadderShelf oShelf(oLab, [&](const SampleRow& oLadder) { return SizesOf(oLab, oLadder); });
    const auto oFound = oShelf.Find(oSample, *oPanel);
    return PlaceBins(*oPanel, oFound.pLadder ? *oFound.pLadder : Ladder());
}

void FindResult(Lab& oLab, const RecordChoice& oChoice, RecordContent& oContent) {
    if (oChoice.lResultID != 0) {
        oContent.oResult = oLab.FindResult(oChoice.lResultID);
        if (!oContent.oResult)
            throw LabError("The lab has no result " + std::to_string(oChoice.lResultID) + ".");
        return;
    }
    const auto aoResults = oLab.ResultsOfSample(oChoice.lSampleID);
    if (!aoResults.empty()) oContent.oResult = aoResults.back();
}

void Load(Lab& oLab, const RecordChoice& oChoice, RecordContent& oContent) {
    if (oChoice.lSampleID == 0 && oChoice.lResultID == 0)
        throw LabError("There is no sample and no result to show.");
    FindResult(oLab, oChoice, oContent);
    const auto lSampleID = oContent.oResult ? oContent.oResult->lSampleID : oChoice.lSampleID;
    const auto oSample = oLab.FindSample(lSampleID);
    if (!oSample) throw LabError("The lab has no sample " + std::to_string(lSampleID) + ".");
    oContent.oSample = *oSample;
    if (oContent.oResult) {
        oContent.oSized = oLab.SizedOf(oContent.oResult->lResultID);
        oContent.oCalled = oLab.CalledOf(oContent.oResult->lResultID);
    }
    oContent.oTrace = ReadTrace(oSample->sFile, oLab.TraceOf(lSampleID));
    if (!oContent.oResult) oContent.oSized = SizeTrace(oContent.oTrace);
    oContent.aoBins = BinsFor(oLab, *oSample);
    if (oContent.oTrace.Scans() == 0) oContent.sProblem = oSample->sFile + ": the trace holds no scans.";
}

} // namespace

std::string RecordContent::StatusLine() const {
    if (oResult) return oResult->sDescription;
    if (!sProblem.empty()) return "Not analyzed yet";
    return "Not analyzed yet; sized now: " + StatusText(static_cast<std::int32_t>(oSized.eStatus)) +
           (oSized.sReason.empty() ? "" : ": " + oSized.sReason);
}

std::string RecordContent::StandardLine() const {
    const SizeFit& oFit = oSized.oFit;
    if (oFit.aoPoints.empty()) return "Size standard: not found, the axis is in scans";
    return "Size standard: " + std::to_string(oFit.aoPoints.size()) + " fragments, R2 " +
           FixedText(oFit.dRSquared, 6) + ", largest error " + FixedText(oFit.dLeaveOneOut, 2) + " bp";
}

RecordContent LoadRecord(Lab& oLab, const RecordChoice& oChoice) {
    RecordContent oContent;
    try {
        Load(oLab, oChoice, oContent);
    } catch (const std::exception& oError) {
        oContent.sProblem = oError.what();
    }
    return oContent;
}

std::vector<BinMark> PlaceBins(const Panel& oPanel, const Ladder& oLadder) {
    std::vector<BinMark> aoMarks;
    for (const auto& oLocus : oPanel.aoLoci) {
        for (const auto& oBin : oLocus.aoBins) {
            if (auto oMark = PlaceBin(oPanel, oLocus, oBin, oLadder)) aoMarks.push_back(*std::move(oMark));
        }
    }
    return aoMarks;
}

} // namespace GleanerSvc::Workbench
