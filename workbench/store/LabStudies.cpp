// The studies of a lab.
#include "pagebind/Text.h"
#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Lab.h"
#include "workbench/store/ResultQuery.h"

namespace GleanerSvc::Workbench {

namespace {

std::string SelectStudies(std::string_view sRest) {
    return "SELECT y.study_id, y.name, y.created, "
           "(SELECT COUNT(*) FROM study_results x WHERE x.study_id = y.study_id) FROM studies y " +
           std::string(sRest);
}

StudyRow ReadStudy(const Statement& oRow) {
    return {oRow.Int(0), oRow.Text(1), Date(oRow.Real(2)), oRow.Int(3)};
}

} // namespace

std::int32_t Lab::AddStudy(std::string_view sName) {
    RequireNewName(FindStudy(sName).has_value(), "study", sName);
    return m_oDatabase->Insert("INSERT INTO studies (name, folded_name, created) VALUES (?, ?, ?)",
                               RightTrim(sName), FoldedName(sName), LocalNow().Serial());
}

std::optional<StudyRow> Lab::FindStudy(std::string_view sName) {
    Statement oRows = m_oDatabase->Query(SelectStudies("WHERE y.folded_name = ?"), FoldedName(sName));
    return oRows.Next() ? std::optional(ReadStudy(oRows)) : std::nullopt;
}

std::vector<StudyRow> Lab::Studies() {
    std::vector<StudyRow> aoStudies;
    Statement oRows = m_oDatabase->Query(SelectStudies("ORDER BY y.folded_name"));
    while (oRows.Next()) aoStudies.push_back(ReadStudy(oRows));
    return aoStudies;
}

void Lab::AddStudyResult(std::int32_t lStudyID, std::int32_t lResultID, bool bFlag) {
    RequireRow("SELECT 1 FROM studies WHERE study_id = ?", "study", lStudyID);
    RequireRow("SELECT 1 FROM results WHERE result_id = ?", "result", lResultID);
    if (m_oDatabase
            ->Query("SELECT 1 FROM study_results WHERE study_id = ? AND result_id = ?", lStudyID, lResultID)
            .Next())
        Fail("has result " + DecimalText(lResultID) + " in study " + DecimalText(lStudyID) + " already");
    Transaction oAll(*this);
    m_oDatabase->Write("INSERT INTO study_results (study_id, place, result_id, flag) "
                       "SELECT ?, COALESCE(MAX(place), 0) + 1, ?, ? FROM study_results WHERE study_id = ?",
                       lStudyID, lResultID, bFlag, lStudyID);
    oAll.Commit();
}

std::vector<ResultRow> Lab::ResultsOfStudy(std::int32_t lStudyID) {
    return ReadResults(m_oDatabase->Query(
        SelectResults(
            "JOIN study_results x ON x.result_id = r.result_id WHERE x.study_id = ? ORDER BY x.place"),
        lStudyID));
}

} // namespace GleanerSvc::Workbench
