// The results of a lab, with their peaks and calls.
#include "pagebind/Text.h"
#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"
#include "workbench/store/ResultQuery.h"
#include "workbench/store/SizedContent.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double BytesOfRow = 250; // of a result's row, with its places in the indices
constexpr double BytesOfCall = 120;
constexpr double UsualResultMB = 0.02; // before there is one

} // namespace

std::int32_t Lab::AddResult(const NewResult& oResult) {
    RequireRow("SELECT 1 FROM samples WHERE sample_id = ?", "sample", oResult.lSampleID);
    if (oResult.lParameterID != 0)
        RequireRow("SELECT 1 FROM parameters WHERE parameter_id = ?", "parameter", oResult.lParameterID);
    Transaction oAll(*this);
    const auto lResultID = m_oDatabase->Insert(
        "INSERT INTO results (sample_id, parameter_id, description, status, reason, modified) "
        "VALUES (?, ?, ?, ?, ?, ?)",
        oResult.lSampleID, IdOrNull(oResult.lParameterID), oResult.sDescription,
        static_cast<std::int32_t>(oResult.oCalled.eStatus), oResult.oCalled.sReason, LocalNow().Serial());
    const auto abContent = PackSized(oResult.oSized);
    m_oDatabase->Write("INSERT INTO sized_traces (result_id, content) VALUES (?, ?)", lResultID,
                       std::span<const std::byte>(abContent));
    AddCalls(lResultID, oResult);
    oAll.Commit();
    return lResultID;
}

// Each call with its peak, so that calls can be asked for without the sized trace.
void Lab::AddCalls(std::int32_t lResultID, const NewResult& oResult) {
    std::int32_t lPlace = 0;
    for (const auto& oCall : oResult.oCalled.aoCalls) {
        if (oCall.nPeak >= oResult.oSized.aoPeaks.size()) {
            Fail("cannot take a call of locus \"" + oCall.sLocus + "\": there is no peak " +
                 DecimalText(static_cast<std::int64_t>(oCall.nPeak)));
        }
        const Peak& oPeak = oResult.oSized.aoPeaks[oCall.nPeak];
        m_oDatabase->Write(
            "INSERT INTO calls (result_id, place, locus, allele, peak, dye, scan, size, height) "
            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
            lResultID, ++lPlace, oCall.sLocus, oCall.sAllele, static_cast<std::int32_t>(oCall.nPeak),
            static_cast<std::int32_t>(oPeak.nDye), oPeak.dScan, oPeak.dSize, oPeak.dHeight);
    }
}

std::optional<ResultRow> Lab::FindResult(std::int32_t lResultID) {
    Statement oRows = m_oDatabase->Query(SelectResults("WHERE r.result_id = ?"), lResultID);
    return oRows.Next() ? std::optional(ReadResult(oRows)) : std::nullopt;
}

void Lab::ForEachResult(std::int32_t lProjectID, const std::function<void(ResultRow&&)>& fnVisit) {
    Statement oRows =
        lProjectID == AllProjectsID
            ? m_oDatabase->Query(SelectResults("ORDER BY r.result_id"))
            : m_oDatabase->Query(SelectResults("WHERE s.project_id = ? ORDER BY r.result_id"), lProjectID);
    while (oRows.Next()) fnVisit(ReadResult(oRows));
}

std::vector<ResultRow> Lab::ResultsOfPlate(std::int32_t lPlateID) {
    return ReadResults(
        m_oDatabase->Query(SelectResults("WHERE s.plate_id = ? ORDER BY r.result_id"), lPlateID));
}

std::vector<ResultRow> Lab::ResultsOfSample(std::int32_t lSampleID) {
    return ReadResults(
        m_oDatabase->Query(SelectResults("WHERE r.sample_id = ? ORDER BY r.result_id"), lSampleID));
}

SizedTrace Lab::SizedOf(std::int32_t lResultID) {
    Statement oRows = m_oDatabase->Query("SELECT content FROM sized_traces WHERE result_id = ?", lResultID);
    if (!oRows.Next()) Fail("has no result " + DecimalText(lResultID));
    try {
        return UnpackSized(oRows.Bytes(0));
    } catch (const LabError& oError) {
        Fail("holds damaged peaks of result " + DecimalText(lResultID) + ": " + oError.what());
    }
}

CalledTrace Lab::CalledOf(std::int32_t lResultID) {
    Statement oResult =
        m_oDatabase->Query("SELECT status, reason FROM results WHERE result_id = ?", lResultID);
    if (!oResult.Next()) Fail("has no result " + DecimalText(lResultID));
    CalledTrace oCalled{static_cast<Status>(oResult.Int(0)), oResult.Text(1), {}};
    Statement oRows = m_oDatabase->Query(
        "SELECT locus, allele, peak FROM calls WHERE result_id = ? ORDER BY place", lResultID);
    while (oRows.Next())
        oCalled.aoCalls.push_back({oRows.Text(0), oRows.Text(1), static_cast<std::size_t>(oRows.Int(2))});
    return oCalled;
}

double Lab::ResultMB() {
    Statement oRows = m_oDatabase->Query(
        "SELECT AVG(LENGTH(t.content)), AVG((SELECT COUNT(*) FROM calls c WHERE c.result_id = t.result_id)) "
        "FROM (SELECT result_id, content FROM sized_traces ORDER BY result_id DESC LIMIT 100) t");
    if (!oRows.Next() || oRows.IsNull(0)) return UsualResultMB;
    return (oRows.Real(0) + BytesOfCall * oRows.Real(1) + BytesOfRow) / BytesOfMB;
}

} // namespace GleanerSvc::Workbench
