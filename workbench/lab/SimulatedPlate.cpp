#include "workbench/lab/SimulatedPlate.h"

namespace GleanerSvc::Workbench {

namespace {

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
