#include <iostream>
#include <sstream>

#include "workbench/program/Command.h"

namespace GleanerSvc::Workbench {

namespace {

// One row for each allele, and one without an allele for a result that has none.
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

int RunExport(const Arguments& oArguments) {
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    auto oPlates = PlateNames(*oLab);
    Table oTable(
        {"result", "sample", "plate", "well", "status", "locus", "allele", "dye", "size_bp", "height_rfu"});
    for (const auto& oResult : ChosenResults(*oLab, oArguments))
        AddResult(oTable, *oLab, oResult, oPlates[oResult.lPlateID]);
    if (!oArguments.Has("file")) {
        oTable.WriteCsv(std::cout);
        return ExitCode::Done;
    }
    const std::string sFile = oArguments.Text("file");
    std::ostringstream oText;
    oTable.WriteCsv(oText);
    SaveText(oText.str(), sFile);
    std::cerr << oTable.Rows() << " rows are in " << sFile << ".\n";
    return ExitCode::Done;
}

} // namespace

Command ExportCommand() {
    return {"export",
            "Write results as CSV, a row for each allele.",
            nullptr,
            nullptr,
            {LabOption,
             StudyOption,
             ProjectOption,
             {"file", "file", "Where to. Without it: the standard output."}},
            RunExport};
}

} // namespace GleanerSvc::Workbench
