#include "workbench/lab/TraceImport.h"

#include <algorithm>

namespace GleanerSvc::Workbench {

namespace {

std::int32_t ProjectOf(Lab& oLab, const Destination& oDestination) {
    const auto oProject = oLab.FindProject(oDestination.sProject);
    return oProject ? oProject->lProjectID : oLab.AddProject(oDestination.sProject);
}

std::int32_t PlateOf(Lab& oLab, std::int32_t lProjectID, const std::string& sPlate) {
    if (sPlate.empty()) return 0;
    const auto oPlate = oLab.FindPlate(lProjectID, sPlate);
    return oPlate ? oPlate->lPlateID : oLab.AddPlate(lProjectID, sPlate);
}

Date DateOf(const std::optional<CivilTime>& oTime) { return oTime ? Date::Of(*oTime) : Date(); }

std::optional<Well> WellOf(const std::string& sInput, const Trace& oTrace) {
    auto oWell = ReadWell(oTrace.sWell);
    if (!oWell && !oTrace.sWell.empty())
        throw InputError(sInput, "well \"" + oTrace.sWell + "\"", "a plate has the wells A1 to H12");
    return oWell;
}

SampleRow SampleOf(const std::string& sFile, const Trace& oTrace) {
    SampleRow oSample;
    oSample.sName =
        oTrace.sSampleName.empty() ? std::filesystem::path(sFile).stem().string() : oTrace.sSampleName;
    oSample.sType = oTrace.sSampleType;
    oSample.sPanel = oTrace.sPanel;
    oSample.sFile = std::filesystem::path(sFile).filename().string();
    oSample.oWell = WellOf(sFile, oTrace);
    oSample.dtRun = DateOf(oTrace.oRunStart);
    oSample.dtCollected = DateOf(oTrace.oCollectionStart ? oTrace.oCollectionStart : oTrace.oRunStart);
    return oSample;
}

Imported Add(Lab& oLab, SampleRow oSample, std::span<const std::byte> abTrace) {
    if (oSample.lPlateID == 0) oSample.oWell.reset(); // a well is one of a plate
    return {*oLab.FindSample(oLab.AddSample(oSample, abTrace)), false};
}

} // namespace

Imported ImportTrace(Lab& oLab, const Destination& oDestination, const std::string& sFile,
                     std::span<const std::byte> abTrace) {
    const Trace oTrace = ReadTrace(sFile, abTrace);
    SampleRow oSample = SampleOf(sFile, oTrace);
    Lab::Transaction oTransaction(oLab);
    oSample.lProjectID = ProjectOf(oLab, oDestination);
    if (auto oKnown = oLab.FindSample(oSample.lProjectID, abTrace)) return {*oKnown, true};
    oSample.lPlateID =
        PlateOf(oLab, oSample.lProjectID, oDestination.sPlate.empty() ? oTrace.sPlate : oDestination.sPlate);
    Imported oImported = Add(oLab, std::move(oSample), abTrace);
    oTransaction.Commit();
    return oImported;
}

Imported ImportTraceFile(Lab& oLab, const Destination& oDestination, const std::filesystem::path& oFile) {
    return ImportTrace(oLab, oDestination, oFile.string(), ReadBytes(oFile));
}

Imported ImportIntoWell(Lab& oLab, const Destination& oDestination, SampleRow oSample,
                        std::span<const std::byte> abTrace) {
    Lab::Transaction oTransaction(oLab);
    oSample.lProjectID = ProjectOf(oLab, oDestination);
    oSample.lPlateID = PlateOf(oLab, oSample.lProjectID, oDestination.sPlate);
    for (const auto& oKnown : oLab.SamplesOfPlate(oSample.lPlateID)) {
        if (oKnown.oWell == oSample.oWell && std::ranges::equal(oLab.TraceOf(oKnown.lSampleID), abTrace))
            return {oKnown, true};
    }
    Imported oImported = Add(oLab, std::move(oSample), abTrace);
    oTransaction.Commit();
    return oImported;
}

} // namespace GleanerSvc::Workbench
