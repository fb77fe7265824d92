#include "workbench/store/Schema.h"

#include <algorithm>
#include <span>

#include "pagebind/Text.h"
#include "workbench/store/Dialect.h"
#include "workbench/store/GridLayouts.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::string_view VersionTable = "lab_schema";

// Names are unique by their folded form. Dates are serial days of local time. A well is its index from 1 to
// 96. What a list does not show, a trace and the peaks of a result, stands in a table of its own, so that
// reading a list does not pass over it.
constexpr std::string_view FirstTables[] = {
    "CREATE TABLE lab_schema (version INTEGER NOT NULL)",
    "INSERT INTO lab_schema (version) VALUES (0)",
    "CREATE TABLE projects (project_id {identity}, name TEXT NOT NULL, folded_name TEXT NOT NULL UNIQUE)",
    R"(CREATE TABLE plates (
        plate_id {identity}, project_id INTEGER NOT NULL REFERENCES projects, name TEXT NOT NULL,
        folded_name TEXT NOT NULL, UNIQUE (project_id, folded_name)))",
    R"(CREATE TABLE kits (
        kit_id {identity}, name TEXT NOT NULL, folded_name TEXT NOT NULL UNIQUE,
        panel_source TEXT NOT NULL, panel_table {bytes} NOT NULL, bin_source TEXT NOT NULL,
        bin_table {bytes} NOT NULL))",
    R"(CREATE TABLE samples (
        sample_id {identity}, project_id INTEGER NOT NULL REFERENCES projects,
        plate_id INTEGER REFERENCES plates, well INTEGER CHECK (well BETWEEN 1 AND 96),
        name TEXT NOT NULL, sample_type TEXT NOT NULL, panel TEXT NOT NULL, source_file TEXT NOT NULL,
        run_start DOUBLE PRECISION NOT NULL, collected DOUBLE PRECISION NOT NULL,
        modified DOUBLE PRECISION NOT NULL))",
    "CREATE INDEX samples_of_project ON samples (project_id)",
    "CREATE INDEX samples_of_plate ON samples (plate_id)",
    R"(CREATE TABLE traces (
        sample_id INTEGER PRIMARY KEY REFERENCES samples, digest TEXT NOT NULL, content {bytes} NOT NULL))",
    "CREATE INDEX traces_by_digest ON traces (digest)",
    R"(CREATE TABLE parameters (
        parameter_id {identity}, name TEXT NOT NULL, allele_type INTEGER NOT NULL, loci TEXT NOT NULL,
        UNIQUE (allele_type, loci)))",
    R"(CREATE TABLE results (
        result_id {identity}, sample_id INTEGER NOT NULL REFERENCES samples,
        parameter_id INTEGER REFERENCES parameters, description TEXT NOT NULL, status INTEGER NOT NULL,
        reason TEXT NOT NULL, modified DOUBLE PRECISION NOT NULL))",
    "CREATE INDEX results_of_sample ON results (sample_id)",
    R"(CREATE TABLE sized_traces (
        result_id INTEGER PRIMARY KEY REFERENCES results, content {bytes} NOT NULL))",
    R"(CREATE TABLE calls (
        result_id INTEGER NOT NULL REFERENCES results, place INTEGER NOT NULL, locus TEXT NOT NULL,
        allele TEXT NOT NULL, peak INTEGER NOT NULL, dye INTEGER NOT NULL,
        scan DOUBLE PRECISION NOT NULL, size DOUBLE PRECISION, height DOUBLE PRECISION NOT NULL,
        PRIMARY KEY (result_id, place)))",
    R"(CREATE TABLE studies (
        study_id {identity}, name TEXT NOT NULL, folded_name TEXT NOT NULL UNIQUE,
        created DOUBLE PRECISION NOT NULL))",
    R"(CREATE TABLE study_results (
        study_id INTEGER NOT NULL REFERENCES studies, place INTEGER NOT NULL,
        result_id INTEGER NOT NULL REFERENCES results, flag INTEGER NOT NULL,
        PRIMARY KEY (study_id, place), UNIQUE (study_id, result_id)))",
    R"(CREATE TABLE grid_columns (
        grid_type_id INTEGER NOT NULL, place INTEGER NOT NULL, heading TEXT NOT NULL,
        width INTEGER NOT NULL, PRIMARY KEY (grid_type_id, place)))",
    "CREATE TABLE settings (name TEXT PRIMARY KEY, value INTEGER NOT NULL)",
    R"(CREATE TABLE error_log (
        log_id {identity}, logged DOUBLE PRECISION NOT NULL, app_title TEXT NOT NULL,
        object_type TEXT NOT NULL, procedure_name TEXT NOT NULL, number INTEGER NOT NULL,
        source TEXT NOT NULL, description TEXT NOT NULL, help_file TEXT NOT NULL,
        help_context INTEGER NOT NULL, extra TEXT NOT NULL, show_user INTEGER NOT NULL))",
};

std::string InDialect(std::string_view sSql) {
    std::string sText(sSql);
    const auto Put = [&sText](std::string_view sMark, std::string_view sWord) {
        for (auto nAt = sText.find(sMark); nAt != std::string::npos; nAt = sText.find(sMark))
            sText.replace(nAt, sMark.size(), sWord);
    };
    Put(Dialect::IdentityMark, Dialect::Identity);
    Put(Dialect::BytesMark, Dialect::Bytes);
    return sText;
}

void MakeTables(Database& oDatabase) {
    for (const auto sSql : FirstTables) oDatabase.Run(InDialect(sSql));
    for (const auto& oColumn : GridLayoutColumns()) {
        oDatabase.Write("INSERT INTO grid_columns (grid_type_id, place, heading, width) VALUES (?, ?, ?, ?)",
                        oColumn.lGridTypeID, oColumn.lPlace, std::string_view(oColumn.sHeading),
                        oColumn.lWidth);
    }
}

// Alleles are looked for over all results.
void IndexCalls(Database& oDatabase) {
    oDatabase.Run("CREATE INDEX calls_by_allele ON calls (locus, allele)");
}

constexpr void (*Steps[SchemaVersion])(Database&) = {MakeTables, IndexCalls}; // to the versions 1, 2 ...

} // namespace

std::int32_t VersionOf(Database& oDatabase) {
    const auto asTables = oDatabase.Tables();
    if (asTables.empty()) return 0;
    if (std::find(asTables.begin(), asTables.end(), VersionTable) == asTables.end())
        oDatabase.Fail(oDatabase.File().string() + " is no lab: it has no table \"lab_schema\"");
    Statement oRows = oDatabase.Query("SELECT version FROM lab_schema");
    if (!oRows.Next()) oDatabase.Fail(oDatabase.File().string() + " is no lab: its version is missing");
    const auto lVersion = oRows.Int(0);
    if (lVersion < 1)
        oDatabase.Fail(oDatabase.File().string() + " is no lab: its version is " + DecimalText(lVersion));
    return lVersion;
}

void RequireKnownVersion(Database& oDatabase) {
    const auto lVersion = VersionOf(oDatabase);
    if (lVersion <= SchemaVersion) return;
    oDatabase.Fail("the lab " + oDatabase.File().string() + " is of version " + DecimalText(lVersion) +
                   "; this program knows versions up to " + DecimalText(SchemaVersion));
}

void RequireOwnVersion(Database& oDatabase) {
    const auto lVersion = VersionOf(oDatabase);
    if (lVersion == SchemaVersion) return;
    oDatabase.Fail("the lab " + oDatabase.File().string() + " is of version " + DecimalText(lVersion) +
                   "; the next command that writes to it brings it to version " + DecimalText(SchemaVersion));
}

void BringTo(Database& oDatabase, std::int32_t lVersion) {
    const auto lPresent = VersionOf(oDatabase);
    if (lPresent >= lVersion) return;
    oDatabase.Begin();
    try {
        const auto nTaken = static_cast<std::size_t>(lPresent);
        for (const auto fnStep :
             std::span(Steps).subspan(nTaken, static_cast<std::size_t>(lVersion) - nTaken))
            fnStep(oDatabase);
        oDatabase.Write("UPDATE lab_schema SET version = ?", lVersion);
        oDatabase.Commit();
    } catch (...) {
        oDatabase.Rollback();
        throw;
    }
}

} // namespace GleanerSvc::Workbench
