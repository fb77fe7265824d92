#include "workbench/lab/SimulatedPlate.h"

namespace GleanerSvc::Workbench {

namespace {

// Each seed is a run of its own, an hour behind that of the seed before: what was calibrated by the ladder of
// one does not hold for the other.
CivilTime RunStartOf(std::uint64_t nSeed) {
    constexpr std::uint64_t Runs = 20'000; // more than two years of them
    constexpr double HoursOfDay = 24;
    const auto dHours = static_cast<double>((nSeed + Runs - 1) % Runs);
    return Date(Date::Of(PlateOrder().oRunStart).Serial() + dHours / HoursOfDay).Civil();
}

Imported ImportWell(Lab& oLab, const Destination& oDestination, const SimulatedWell& oWell) {
    try {
        return ImportTrace(oLab, oDestination, oWell.sFile, oWell.abContent);
    } catch (const InputError&) {
        SampleRow oSample;
        oSample.oWell = ReadWell(oWell.sWell);
        oSample.sName = oWell.sSampleName;
        oSample.sFile = oWell.sFile;
        return ImportIntoWell(oLab, oDestination, oSample, oWell.abContent);
    }
}

} // namespace

KitTables KitOf(AlleleType eType) { return eType == AlleleType::Str ? SimulatedStrKit() : SimulatedSnpKit(); }

PlateOrder OrderOf(const SimulatedRun& oRun) {
    const KitTables oKit = KitOf(oRun.eType);
    PlateOrder oOrder;
    oOrder.nSeed = oRun.nSeed;
    oOrder.oRunStart = RunStartOf(oRun.nSeed);
    oOrder.sPlate = oRun.oDestination.sPlate;
    oOrder.oPanel = ReadPanelTables(oKit.oPanels, oKit.oBins).front();
    oOrder.eLadder = oRun.eLadder;
    oOrder.bWithFaults = oRun.bWithFaults;
    return oOrder;
}

std::int32_t ImportPlate(Lab& oLab, const Destination& oDestination, const KitTables& oKit,
                         const std::vector<SimulatedWell>& aoWells) {
    Lab::Transaction oTransaction(oLab);
    oLab.SaveKit(ReadPanelTables(oKit.oPanels, oKit.oBins).front().sName, oKit.oPanels, oKit.oBins);
    std::int32_t lAdded = 0;
    for (const auto& oWell : aoWells) lAdded += ImportWell(oLab, oDestination, oWell).bWasThere ? 0 : 1;
    oTransaction.Commit();
    return lAdded;
}

} // namespace GleanerSvc::Workbench
