// The samples of a lab and their traces.
#include <algorithm>
#include <cmath>
#include <tuple>

#include <QtCore/QCryptographicHash>

#include "pagebind/Text.h"
#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

namespace {

std::string SelectSamples(std::string_view sRest) {
    return "SELECT s.sample_id, s.project_id, s.plate_id, s.well, s.name, s.sample_type, s.panel, "
           "s.source_file, s.run_start, s.collected, s.modified FROM samples s " +
           std::string(sRest);
}

SampleRow ReadSample(const Statement& oRow) {
    return {oRow.Int(0),        oRow.Int(1),        IdAt(oRow, 2),      WellIn(oRow, 3),
            oRow.Text(4),       oRow.Text(5),       oRow.Text(6),       oRow.Text(7),
            Date(oRow.Real(8)), Date(oRow.Real(9)), Date(oRow.Real(10))};
}

// By ID; of one project or of all.
Statement QueryProject(Database& oDatabase, std::int32_t lProjectID, const std::string& sSelect) {
    if (lProjectID == AllProjectsID) return oDatabase.Query(sSelect + "ORDER BY sample_id");
    return oDatabase.Query(sSelect + "WHERE project_id = ? ORDER BY sample_id", lProjectID);
}

std::optional<SampleRow> ReadOne(Statement&& oRows) {
    return oRows.Next() ? std::optional(ReadSample(oRows)) : std::nullopt;
}

std::vector<SampleRow> ReadAll(Statement&& oRows) {
    std::vector<SampleRow> aoSamples;
    while (oRows.Next()) aoSamples.push_back(ReadSample(oRows));
    return aoSamples;
}

// By which a trace is known again.
std::string Digest(std::span<const std::byte> abTrace) {
    QCryptographicHash oHash(QCryptographicHash::Sha256);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes as the hash knows them
    const auto* pBytes = reinterpret_cast<const char*>(abTrace.data());
    oHash.addData(QByteArray::fromRawData(pBytes, static_cast<qsizetype>(abTrace.size())));
    return oHash.result().toHex().toStdString();
}

} // namespace

std::int32_t Lab::AddSample(const SampleRow& oSample, std::span<const std::byte> abTrace) {
    RequireRow("SELECT 1 FROM projects WHERE project_id = ?", "project", oSample.lProjectID);
    RequirePlate(oSample);
    Transaction oAll(*this);
    const auto lSampleID = m_oDatabase->Insert(
        "INSERT INTO samples (project_id, plate_id, well, name, sample_type, panel, source_file, run_start, "
        "collected, modified) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        oSample.lProjectID, IdOrNull(oSample.lPlateID), WellOrNull(oSample.oWell), oSample.sName,
        oSample.sType, oSample.sPanel, oSample.sFile, oSample.dtRun.Serial(), oSample.dtCollected.Serial(),
        LocalNow().Serial());
    m_oDatabase->Write("INSERT INTO traces (sample_id, digest, content) VALUES (?, ?, ?)", lSampleID,
                       Digest(abTrace), abTrace);
    oAll.Commit();
    return lSampleID;
}

void Lab::RequirePlate(const SampleRow& oSample) {
    if (oSample.lPlateID == 0) {
        if (oSample.oWell) Fail("cannot take sample \"" + oSample.sName + "\": it has a well, but no plate");
        return;
    }
    Statement oRows = m_oDatabase->Query("SELECT 1 FROM plates WHERE plate_id = ? AND project_id = ?",
                                         oSample.lPlateID, oSample.lProjectID);
    if (oRows.Next()) return;
    Fail("has no plate " + DecimalText(oSample.lPlateID) + " in project " + DecimalText(oSample.lProjectID));
}

std::optional<SampleRow> Lab::FindSample(std::int32_t lProjectID, std::span<const std::byte> abTrace) {
    // By the digest first: a project may hold a million samples.
    return ReadOne(m_oDatabase->Query(
        SelectSamples("WHERE s.sample_id IN (SELECT sample_id FROM traces WHERE digest = ?) "
                      "AND s.project_id = ? ORDER BY s.sample_id"),
        Digest(abTrace), lProjectID));
}

std::optional<SampleRow> Lab::FindSample(std::int32_t lSampleID) {
    return ReadOne(m_oDatabase->Query(SelectSamples("WHERE s.sample_id = ?"), lSampleID));
}

std::vector<std::byte> Lab::TraceOf(std::int32_t lSampleID) {
    Statement oRows = m_oDatabase->Query("SELECT content FROM traces WHERE sample_id = ?", lSampleID);
    if (!oRows.Next()) Fail("has no sample " + DecimalText(lSampleID));
    return oRows.Bytes(0);
}

void Lab::ForEachSample(std::int32_t lProjectID, const std::function<void(SampleRow&&)>& fnVisit) {
    Statement oRows = QueryProject(*m_oDatabase, lProjectID, SelectSamples(""));
    while (oRows.Next()) fnVisit(ReadSample(oRows));
}

void Lab::ForEachSampleHead(std::int32_t lProjectID, const std::function<void(SampleRow&&)>& fnVisit) {
    constexpr std::string_view sSelect =
        "SELECT sample_id, project_id, plate_id, name, collected, modified FROM samples ";
    Statement oRows = QueryProject(*m_oDatabase, lProjectID, std::string(sSelect));
    while (oRows.Next()) {
        SampleRow oHead;
        oHead.lSampleID = oRows.Int(0);
        oHead.lProjectID = oRows.Int(1);
        oHead.lPlateID = IdAt(oRows, 2);
        oHead.sName = oRows.Text(3);
        oHead.dtCollected = Date(oRows.Real(4));
        oHead.dtModified = Date(oRows.Real(5));
        fnVisit(std::move(oHead));
    }
}

std::vector<SampleRow> Lab::SamplesOfPlate(std::int32_t lPlateID) {
    return ReadAll(m_oDatabase->Query(SelectSamples("WHERE s.plate_id = ? ORDER BY s.sample_id"), lPlateID));
}

std::vector<SampleRow> Lab::LaddersFor(const SampleRow& oSample) {
    if (oSample.lPlateID == 0) return {};
    auto aoLadders = SamplesOfPlate(oSample.lPlateID);
    std::erase_if(aoLadders, [&](const SampleRow& oLadder) {
        return !oLadder.IsLadder() || oLadder.dtRun != oSample.dtRun ||
               !EqualsIgnoringCase(oLadder.sPanel, oSample.sPanel);
    });
    const auto Distance = [&](const SampleRow& oLadder) {
        return std::abs(oLadder.dtCollected.Serial() - oSample.dtCollected.Serial());
    };
    std::stable_sort(
        aoLadders.begin(), aoLadders.end(),
        [&](const SampleRow& oLeft, const SampleRow& oRight) { return Distance(oLeft) < Distance(oRight); });
    return aoLadders;
}

} // namespace GleanerSvc::Workbench
