#include "workbench/store/SampleDataRecord.h"

#include "pagebind/Text.h"
#include "workbench/calling/FixedText.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::string_view LineEnd = "\r\n";

void AddLine(std::string& sText, std::string_view sName, std::string_view sValue) {
    if (!sValue.empty()) sText.append(sName).append(": ").append(sValue).append(LineEnd);
}

std::string CallText(const AlleleCall& oCall, const SizedTrace& oSized) {
    std::string sText = oCall.sAllele;
    if (oCall.nPeak >= oSized.aoPeaks.size()) return sText;
    const Peak& oPeak = oSized.aoPeaks[oCall.nPeak];
    if (oPeak.dSize) sText += " at " + FixedText(*oPeak.dSize, 2) + " bp";
    return sText + " (" + FixedText(oPeak.dHeight, 0) + " RFU)";
}

// One line a locus, in the order of its first call.
void AddCalls(std::string& sText, const CalledTrace& oCalled, const SizedTrace& oSized) {
    std::string sLocus;
    std::string sAlleles;
    for (const auto& oCall : oCalled.aoCalls) {
        if (oCall.sLocus != sLocus) {
            AddLine(sText, sLocus, sAlleles);
            sLocus = oCall.sLocus;
            sAlleles.clear();
        }
        sAlleles += (sAlleles.empty() ? "" : ", ") + CallText(oCall, oSized);
    }
    AddLine(sText, sLocus, sAlleles);
}

std::string SampleDetails(Lab& oLab, std::int32_t lSampleID) {
    std::string sText;
    if (const auto oSample = oLab.FindSample(lSampleID)) {
        AddLine(sText, "File", oSample->sFile);
        AddLine(sText, "Panel", oSample->sPanel);
        AddLine(sText, "Type", oSample->sType);
    }
    return sText;
}

std::string ResultDetails(Lab& oLab, std::int32_t lResultID) {
    const auto oCalled = oLab.CalledOf(lResultID);
    const auto oSized = oLab.SizedOf(lResultID);
    std::string sText;
    AddLine(sText, "Status", StatusText(static_cast<std::int32_t>(oCalled.eStatus)));
    AddLine(sText, "Reason", oCalled.sReason);
    AddLine(sText, "Size standard", FitText(oSized.oFit));
    AddCalls(sText, oCalled, oSized);
    return sText;
}

} // namespace

SampleDataRecord::SampleDataRecord(Ref<Lab> oLab, std::int32_t lSampleID, std::int32_t lResultID,
                                   std::string sSampleName, Date dtRun)
    : m_oLab(std::move(oLab)), m_lSampleID(lSampleID), m_lResultID(lResultID),
      m_sSampleName(std::move(sSampleName)), m_dtRun(dtRun) {}

Date SampleDataRecord::RunDate(std::int32_t lIndex) {
    if (lIndex == 0) return m_dtRun;
    throw Failure(FailureNumber::Subscript, "SampleData",
                  "The data of \"" + m_sSampleName + "\" have no run " + DecimalText(lIndex) + ".");
}

std::string SampleDataRecord::Details() {
    return m_lResultID == 0 ? SampleDetails(*m_oLab, m_lSampleID) : ResultDetails(*m_oLab, m_lResultID);
}

} // namespace GleanerSvc::Workbench
