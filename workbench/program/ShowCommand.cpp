#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <iostream>

#include "workbench/pictures/TracePicture.h"
#include "workbench/program/Command.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

// A result with all that the lab has of it.
struct Shown {
    ResultRow oResult;
    SampleRow oSample;
    SizedTrace oSized;
    CalledTrace oCalled;

    std::string Status() const { return StatusText(static_cast<std::int32_t>(oResult.eStatus)); }
    const Peak& PeakOf(const AlleleCall& oCall) const { return oSized.aoPeaks.at(oCall.nPeak); }
};

Shown Load(Lab& oLab, std::int32_t lResultID) {
    const auto oResult = oLab.FindResult(lResultID);
    if (!oResult)
        throw InputError("result " + std::to_string(lResultID), "", "the lab has none of this number");
    return {*oResult, oLab.FindSample(oResult->lSampleID).value(), oLab.SizedOf(lResultID),
            oLab.CalledOf(lResultID)};
}

Table CallTable(const Shown& oShown) {
    Table oTable({"locus", "allele", "dye", "size_bp", "height_rfu", "scan"});
    for (const auto& oCall : oShown.oCalled.aoCalls) {
        const Peak& oPeak = oShown.PeakOf(oCall);
        oTable.Add({oCall.sLocus, oCall.sAllele, std::string(ColourOfDye(oPeak.nDye)),
                    oPeak.dSize ? Cell(*oPeak.dSize) : Cell(), oPeak.dHeight, oPeak.dScan});
    }
    return oTable;
}

void ShowText(const Shown& oShown) {
    std::cout << "Result " << oShown.oResult.lResultID << ": " << oShown.oSample.sName << " ("
              << oShown.oSample.sFile << ")\n"
              << "Status: " << oShown.oResult.sDescription << '\n'
              << "Size standard: " << FitText(oShown.oSized.oFit) << '\n'
              << "Peaks: " << oShown.oSized.aoPeaks.size() << ", calls: " << oShown.oCalled.aoCalls.size()
              << "\n\n";
    CallTable(oShown).WriteText(std::cout);
}

void ShowJson(const Shown& oShown) {
    QJsonArray oCalls;
    for (const auto& oCall : oShown.oCalled.aoCalls) {
        const Peak& oPeak = oShown.PeakOf(oCall);
        oCalls.append(QJsonObject{{"locus", QString::fromStdString(oCall.sLocus)},
                                  {"allele", QString::fromStdString(oCall.sAllele)},
                                  {"dye", QString::fromStdString(std::string(ColourOfDye(oPeak.nDye)))},
                                  {"size_bp", oPeak.dSize ? QJsonValue(*oPeak.dSize) : QJsonValue::Null},
                                  {"height_rfu", oPeak.dHeight},
                                  {"scan", oPeak.dScan}});
    }
    QJsonArray oStandard;
    for (const auto& oPoint : oShown.oSized.oFit.aoPoints)
        oStandard.append(QJsonObject{{"size_bp", oPoint.dSize}, {"scan", oPoint.dScan}});
    const QJsonObject oAll{{"result", oShown.oResult.lResultID},
                           {"sample", QString::fromStdString(oShown.oSample.sName)},
                           {"file", QString::fromStdString(oShown.oSample.sFile)},
                           {"status", QString::fromStdString(oShown.Status())},
                           {"description", QString::fromStdString(oShown.oResult.sDescription)},
                           {"standard", oStandard},
                           {"calls", oCalls}};
    std::cout << QJsonDocument(oAll).toJson().toStdString();
}

void SaveTrace(Lab& oLab, const Shown& oShown, const std::string& sFile) {
    const Trace oTrace = ReadTrace(oShown.oSample.sFile, oLab.TraceOf(oShown.oSample.lSampleID));
    const std::string sTitle = oShown.oSample.sName + ": " + oShown.oResult.sDescription;
    SavePicture(DrawTrace({oTrace, oShown.oSized, oShown.oCalled, sTitle}, 1600, 1200), sFile);
}

int RunShow(const Arguments& oArguments) {
    const auto asPlain = oArguments.Plain();
    if (asPlain.size() != 1) throw UsageError("show: name one result by its number, as \"results\" lists it");
    const std::int32_t lResultID = ReadNumber(asPlain[0], "show: the result");
    const auto oLab = OpenLab(oArguments, LabMode::Reading);
    const Shown oShown = Load(*oLab, lResultID);
    if (oArguments.Has("json")) {
        ShowJson(oShown);
    } else {
        ShowText(oShown);
    }
    if (oArguments.Has("picture")) SaveTrace(*oLab, oShown, oArguments.Text("picture"));
    return ExitCode::Done;
}

} // namespace

Command ShowCommand() {
    return {"show",
            "Show one result: its size standard, sizes and calls, and its trace as a picture.",
            "result",
            "The number of the result.",
            {LabOption, {"picture", "file", "Write the trace with its calls as PNG."}, JsonOption},
            RunShow};
}

} // namespace GleanerSvc::Workbench
