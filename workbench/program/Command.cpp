#include "workbench/program/Command.h"

#include <QStandardPaths>

#include <filesystem>
#include <iostream>

#include "models/DateText.h"

namespace GleanerSvc::Workbench {

std::string LabFile(const Arguments& oArguments) {
    const auto sFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
    return oArguments.Text("lab", sFolder + "/gleaner-workbench/lab.sqlite");
}

Ref<Lab> OpenLab(const Arguments& oArguments, LabMode eMode) {
    const std::filesystem::path oFile = LabFile(oArguments);
    if (eMode == LabMode::CreateIfMissing && oFile.has_parent_path()) {
        std::error_code oError;
        std::filesystem::create_directories(oFile.parent_path(), oError);
        if (oError) throw LabError(oFile.parent_path().string() + ": " + oError.message());
    }
    return Lab::Open(oFile, eMode);
}

void Write(const Table& oTable, const Arguments& oArguments) {
    if (oArguments.Has("json")) {
        oTable.WriteJson(std::cout);
    } else {
        oTable.WriteText(std::cout);
    }
}

std::string TextOf(Date dtValue) { return dtValue == Date() ? "" : Models::WriteDateText(dtValue); }

ProjectRow RequireProject(Lab& oLab, const std::string& sName) {
    if (auto oProject = oLab.FindProject(sName)) return *oProject;
    throw InputError("project \"" + sName + "\"", "", "the lab has none of this name");
}

StudyRow RequireStudy(Lab& oLab, const std::string& sName) {
    if (auto oStudy = oLab.FindStudy(sName)) return *oStudy;
    throw InputError("study \"" + sName + "\"", "", "the lab has none of this name");
}

std::vector<ResultRow> ChosenResults(Lab& oLab, const Arguments& oArguments) {
    if (oArguments.Has("study"))
        return oLab.ResultsOfStudy(RequireStudy(oLab, oArguments.Text("study")).lStudyID);
    const std::int32_t lProjectID = oArguments.Has("project")
                                        ? RequireProject(oLab, oArguments.Text("project")).lProjectID
                                        : AllProjectsID;
    std::vector<ResultRow> aoResults;
    oLab.ForEachResult(lProjectID, [&](ResultRow&& oResult) { aoResults.push_back(std::move(oResult)); });
    return aoResults;
}

std::map<std::int32_t, std::string> PlateNames(Lab& oLab) {
    std::map<std::int32_t, std::string> oNames;
    for (const auto& oProject : oLab.Projects()) {
        for (const auto& oPlate : oLab.Plates(oProject.lProjectID)) oNames[oPlate.lPlateID] = oPlate.sName;
    }
    return oNames;
}

} // namespace GleanerSvc::Workbench
