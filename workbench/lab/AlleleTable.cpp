#include "workbench/lab/AlleleTable.h"

namespace GleanerSvc::Workbench {

namespace {

void AddResult(Table& oTable, Lab& oLab, const ResultRow& oResult, const std::string& sPlate) {
    const std::vector<Cell> aoBegin = {std::int64_t{oResult.lResultID}, oResult.sName, sPlate,
                                       oResult.oWell ? WellText(*oResult.oWell) : "",
                                       StatusText(static_cast<std::int32_t>(oResult.eStatus))};
    const auto fnAdd = [&](std::vector<Cell> aoEnd) {
        std::vector<Cell> aoRow = aoBegin;
        aoRow.insert(aoRow.end(), aoEnd.begin(), aoEnd.end());
        oTable.Add(std::move(aoRow));
    };
    const SizedTrace oSized = oLab.SizedOf(oResult.lResultID);
    const CalledTrace oCalled = oLab.CalledOf(oResult.lResultID);
    if (oCalled.aoCalls.empty()) fnAdd({Cell(), Cell(), Cell(), Cell(), Cell()});
    for (const auto& oCall : oCalled.aoCalls) {
        const Peak& oPeak = oSized.aoPeaks.at(oCall.nPeak);
        fnAdd({oCall.sLocus, oCall.sAllele, std::string(ColourOfDye(oPeak.nDye)),
               oPeak.dSize ? Cell(*oPeak.dSize) : Cell(), oPeak.dHeight});
    }
}

} // namespace

std::map<std::int32_t, std::string> PlateNames(Lab& oLab) {
    std::map<std::int32_t, std::string> oNames;
    for (const auto& oProject : oLab.Projects()) {
        for (const auto& oPlate : oLab.Plates(oProject.lProjectID)) oNames[oPlate.lPlateID] = oPlate.sName;
    }
    return oNames;
}

Table AlleleTable(Lab& oLab, const std::vector<ResultRow>& aoResults) {
    auto oPlates = PlateNames(oLab);
    Table oTable(
        {"result", "sample", "plate", "well", "status", "locus", "allele", "dye", "size_bp", "height_rfu"});
    for (const auto& oResult : aoResults) AddResult(oTable, oLab, oResult, oPlates[oResult.lPlateID]);
    return oTable;
}

} // namespace GleanerSvc::Workbench
