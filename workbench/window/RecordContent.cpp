#include "workbench/window/RecordContent.h"

#include "workbench/calling/FixedText.h"
#include "workbench/calling/PlacedBins.h"
#include "workbench/lab/LadderShelf.h"
#include "workbench/lab/SizingAhead.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

std::vector<BinMark> BinsFor(Lab& oLab, const SampleRow& oSample) {
    const auto oPanel = oLab.FindPanel(oSample.sPanel);
    if (!oPanel) return {};
    LadderShelf oShelf(oLab, [&](const SampleRow& oLadder) { return StoredSizes(oLab, oLadder); });
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
    return "Size standard: " + FitText(oFit);
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
    for (const auto& oLocus : PlaceLoci(oPanel, oLadder)) {
        for (const auto& oBin : oLocus.aoBins)
            aoMarks.push_back({oLocus.pLocus->sName, oBin.pBin->sAllele, oBin.nDye, oBin.dLow, oBin.dHigh});
    }
    return aoMarks;
}

} // namespace GleanerSvc::Workbench
