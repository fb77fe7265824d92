#include "workbench/program/Command.h"

#include <QBuffer>

#include <filesystem>
#include <iostream>
#include <span>

#include "workbench/lab/LabPlace.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

std::string LabFile(const Arguments& oArguments) {
    const std::string sFile = oArguments.Text("lab", UsualLabFile().string());
    return std::filesystem::absolute(sFile).string(); // to the database some relative names are no files
}

Ref<Lab> OpenLab(const Arguments& oArguments, LabMode eMode) {
    return OpenLabFile(LabFile(oArguments), eMode);
}

void Write(const Table& oTable, const Arguments& oArguments) {
    if (oArguments.Has("json")) {
        oTable.WriteJson(std::cout);
    } else {
        oTable.WriteText(std::cout);
    }
}

void SaveText(const std::string& sText, const std::string& sFile) {
    WriteBytes(sFile, std::as_bytes(std::span(sText)));
}

void SavePicture(const QImage& oPicture, const std::string& sFile) {
    QBuffer oContent;
    if (!oPicture.save(&oContent, "PNG")) throw InputError(sFile, "", "the picture cannot be made");
    SaveText(oContent.data().toStdString(), sFile);
}

ProjectRow RequireProject(Lab& oLab, const std::string& sName) {
    if (auto oProject = oLab.FindProject(sName)) return *oProject;
    throw InputError("project \"" + sName + "\"", "", "the lab has none of this name");
}

StudyRow RequireStudy(Lab& oLab, const std::string& sName) {
    if (auto oStudy = oLab.FindStudy(sName)) return *oStudy;
    throw InputError("study \"" + sName + "\"", "", "the lab has none of this name");
}

PlateRow RequirePlate(Lab& oLab, const ProjectRow& oProject, const std::string& sName) {
    if (auto oPlate = oLab.FindPlate(oProject.lProjectID, sName)) return *oPlate;
    throw InputError("plate \"" + sName + "\"", "",
                     "project \"" + oProject.sName + "\" has none of this name");
}

std::vector<ResultRow> ChosenResults(Lab& oLab, const Arguments& oArguments) {
    oArguments.RefuseBeside("project", "study");
    if (oArguments.Has("study"))
        return oLab.ResultsOfStudy(RequireStudy(oLab, oArguments.Text("study")).lStudyID);
    const std::int32_t lProjectID = oArguments.Has("project")
                                        ? RequireProject(oLab, oArguments.Text("project")).lProjectID
                                        : AllProjectsID;
    std::vector<ResultRow> aoResults;
    oLab.ForEachResult(lProjectID, [&](ResultRow&& oResult) { aoResults.push_back(std::move(oResult)); });
    return aoResults;
}

} // namespace GleanerSvc::Workbench
