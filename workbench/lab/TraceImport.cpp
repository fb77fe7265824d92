#include "workbench/lab/TraceImport.h"

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

SampleRow SampleOf(const std::string& sFile, const Trace& oTrace) {
    SampleRow oSample;
    oSample.sName =
        oTrace.sSampleName.empty() ? std::filesystem::path(sFile).stem().string() : oTrace.sSampleName;
    oSample.sType = oTrace.sSampleType;
    oSample.sPanel = oTrace.sPanel;
    oSample.sFile = sFile;
    oSample.oWell = ReadWell(oTrace.sWell);
    oSample.dtRun = DateOf(oTrace.oRunStart);
    oSample.dtCollected = DateOf(oTrace.oCollectionStart ? oTrace.oCollectionStart : oTrace.oRunStart);
    return oSample;
}

} // namespace

Imported ImportTrace(Lab& oLab, const Destination& oDestination, const std::string& sFile,
                     std::span<const std::byte> abTrace) {
    const Trace oTrace = ReadTrace(sFile, abTrace);
    Destination oPlace = oDestination;
    if (oPlace.sPlate.empty()) oPlace.sPlate = oTrace.sPlate;
    return ImportAs(oLab, oPlace, SampleOf(sFile, oTrace), abTrace);
}

Imported ImportTraceFile(Lab& oLab, const Destination& oDestination, const std::filesystem::path& oFile) {
    return ImportTrace(oLab, oDestination, oFile.filename().string(), ReadBytes(oFile));
}

Imported ImportAs(Lab& oLab, const Destination& oDestination, SampleRow oSample,
                  std::span<const std::byte> abTrace) {
    Lab::Transaction oTransaction(oLab);
    oSample.lProjectID = ProjectOf(oLab, oDestination);
    if (auto oKnown = oLab.FindSample(oSample.lProjectID, abTrace)) return {*oKnown, true};
    oSample.lPlateID = PlateOf(oLab, oSample.lProjectID, oDestination.sPlate);
    if (oSample.lPlateID == 0) oSample.oWell.reset(); // a well is one of a plate
    const std::int32_t lSampleID = oLab.AddSample(oSample, abTrace);
    oTransaction.Commit();
    return {*oLab.FindSample(lSampleID), false};
}

} // namespace GleanerSvc::Workbench
