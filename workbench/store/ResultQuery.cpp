#include "workbench/store/ResultQuery.h"

#include "workbench/store/Columns.h"

namespace GleanerSvc::Workbench {

std::string SelectResults(std::string_view sRest) {
    return "SELECT r.result_id, r.sample_id, r.parameter_id, s.project_id, s.plate_id, s.well, s.name, "
           "r.description, r.status, s.collected, r.modified "
           "FROM results r JOIN samples s ON s.sample_id = r.sample_id " +
           std::string(sRest);
}

ResultRow ReadResult(const Statement& oRow) {
    return {oRow.Int(0),        oRow.Int(1),        IdAt(oRow, 2),
            oRow.Int(3),        IdAt(oRow, 4),      WellIn(oRow, 5),
            oRow.Text(6),       oRow.Text(7),       static_cast<Status>(oRow.Int(8)),
            Date(oRow.Real(9)), Date(oRow.Real(10))};
}

std::vector<ResultRow> ReadResults(Statement&& oRows) {
    std::vector<ResultRow> aoResults;
    while (oRows.Next()) aoResults.push_back(ReadResult(oRows));
    return aoResults;
}

} // namespace GleanerSvc::Workbench
