// The rows of a lab as plain values: what commands and the analyzer read and write. Records of the closed
// interfaces stand on top of them.
//
// IDs are 1 and up; a plate ID of 0 is no plate. Dates without a time zone: as the instrument tells them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pagebind/Date.h"
#include "pagebind/Failure.h"
#include "pagebind/Well.h"
#include "workbench/calling/Calling.h"

namespace GleanerSvc::Workbench {

constexpr double BytesOfMB = 1024.0 * 1024.0;

struct ProjectRow {
    std::int32_t lProjectID = 0;
    std::string sName;
};

struct PlateRow {
    std::int32_t lPlateID = 0;
    std::int32_t lProjectID = 0;
    std::string sName;
};

// All of a sample but its trace.
struct SampleRow {
    std::int32_t lSampleID = 0;
    std::int32_t lProjectID = 0;
    std::int32_t lPlateID = 0;
    std::optional<Well> oWell;
    std::string sName;
    std::string sType;  // "Sample", "Allelic Ladder"
    std::string sPanel; // that the trace names; may be unknown to the lab
    std::string sFile;  // name of the file it came from
    Date dtRun;         // start of the run: injections of one run share it
    Date dtCollected;
    Date dtModified; // of the row

    bool IsLadder() const { return sType == "Allelic Ladder"; }
};

// What an analyzer is to do: the type, and of each panel only these loci; none named means all.
struct ParameterRow {
    std::int32_t lParameterID = 0;
    std::string sName;
    AlleleType eType = AlleleType::Str;
    std::vector<std::string> asLoci;
};

// The outcome of one item, as it is to be stored. The description is the status text and its reason.
struct NewResult {
    std::int32_t lSampleID = 0;
    std::int32_t lParameterID = 0; // 0 for none
    std::string sDescription;
    SizedTrace oSized;
    CalledTrace oCalled;
};

struct ResultRow {
    std::int32_t lResultID = 0;
    std::int32_t lSampleID = 0;
    std::int32_t lParameterID = 0;
    std::int32_t lProjectID = 0; // the sample's, as plate and well
    std::int32_t lPlateID = 0;
    std::optional<Well> oWell;
    std::string sName; // the sample's
    std::string sDescription;
    Status eStatus = Status::Pass;
    Date dtCollected; // the sample's
    Date dtModified;  // when it was stored
};

struct StudyRow {
    std::int32_t lStudyID = 0;
    std::string sName;
    Date dtCreated;
    std::int32_t lResults = 0; // how many it holds
};

// A report of a failure: the arguments of LogError, and when it came.
struct LogRow {
    std::int32_t lLogID = 0;
    Date dtLogged;
    std::string sAppTitle;
    std::string sObjectType;
    std::string sProcedure;
    Failure oFailure;
    std::string sExtra;
    bool bShowUser = false;
};

} // namespace GleanerSvc::Workbench
