#include "workbench/store/Lab.h"

#include <algorithm>
#include <system_error>

#include "pagebind/Text.h"
#include "workbench/store/Columns.h"
#include "workbench/store/Database.h"
#include "workbench/store/Schema.h"

namespace GleanerSvc::Workbench {

namespace {

void RequireFile(const std::filesystem::path& oFile, LabMode eMode) {
    std::error_code oError;
    if (std::filesystem::is_directory(oFile, oError))
        throw LabError(oFile.string() + " is no lab: it is a folder");
    const bool bExists = std::filesystem::exists(oFile, oError);
    if (oError) throw LabError(oFile.string() + " cannot be opened: " + oError.message());
    if (eMode != LabMode::CreateIfMissing && !bExists) throw LabError("there is no lab " + oFile.string());
}

std::optional<ProjectRow> ReadProject(Statement&& oRows) {
    if (!oRows.Next()) return std::nullopt;
    return ProjectRow{oRows.Int(0), oRows.Text(1)};
}

} // namespace

Ref<Lab> Lab::Open(const std::filesystem::path& oFile, LabMode eMode) {
    RequireFile(oFile, eMode);
    const bool bReading = eMode == LabMode::Reading;
    auto oDatabase = std::make_unique<Database>(oFile, bReading ? Access::Reading : Access::Writing);
    if (VersionOf(*oDatabase) == 0 && eMode != LabMode::CreateIfMissing)
        throw LabError(oFile.string() + " is no lab: it is empty");
    RequireKnownVersion(*oDatabase);
    if (bReading) {
        RequireOwnVersion(*oDatabase);
    } else {
        oDatabase->PrepareToWrite();
        BringTo(*oDatabase, SchemaVersion);
    }
    return Ref<Lab>(new Lab(std::move(oDatabase)));
}

Lab::Lab(std::unique_ptr<Database> oDatabase) : m_oDatabase(std::move(oDatabase)) {}

Lab::~Lab() = default;

const std::filesystem::path& Lab::File() const { return m_oDatabase->File(); }

Lab::Transaction::Transaction(Lab& oLab) : m_oLab(oLab) { m_oLab.m_oDatabase->Begin(); }

void Lab::Transaction::Commit() {
    m_oLab.m_oDatabase->Commit();
    m_bCommitted = true;
    const auto lDepth = m_oLab.m_oDatabase->Depth();
    for (auto& oLogged : m_oLab.m_aoLogged) oLogged.first = std::min(oLogged.first, lDepth);
    if (lDepth == 0) m_oLab.m_aoLogged.clear();
}

Lab::Transaction::~Transaction() {
    if (m_bCommitted) return;
    m_oLab.m_oDatabase->Rollback();
    m_oLab.m_oPanels.reset();
    m_oLab.KeepLog();
}

std::int32_t Lab::AddProject(std::string_view sName) {
    if (FoldedName(sName) == FoldedName(AllProjectsName))
        throw InputError("project \"" + std::string(sName) + "\"", "", "the name stands for all projects");
    RequireNewName(FindProject(sName).has_value(), "project", sName);
    return m_oDatabase->Insert("INSERT INTO projects (name, folded_name) VALUES (?, ?)", RightTrim(sName),
                               FoldedName(sName));
}

std::optional<ProjectRow> Lab::FindProject(std::string_view sName) {
    return ReadProject(
        m_oDatabase->Query("SELECT project_id, name FROM projects WHERE folded_name = ?", FoldedName(sName)));
}

std::optional<ProjectRow> Lab::FindProject(std::int32_t lProjectID) {
    return ReadProject(
        m_oDatabase->Query("SELECT project_id, name FROM projects WHERE project_id = ?", lProjectID));
}

std::vector<ProjectRow> Lab::Projects() {
    std::vector<ProjectRow> aoProjects;
    Statement oRows = m_oDatabase->Query("SELECT project_id, name FROM projects ORDER BY folded_name");
    while (oRows.Next()) aoProjects.push_back({oRows.Int(0), oRows.Text(1)});
    return aoProjects;
}

std::int32_t Lab::AddPlate(std::int32_t lProjectID, std::string_view sName) {
    RequireRow("SELECT 1 FROM projects WHERE project_id = ?", "project", lProjectID);
    RequireNewName(FindPlate(lProjectID, sName).has_value(), "plate", sName);
    return m_oDatabase->Insert("INSERT INTO plates (project_id, name, folded_name) VALUES (?, ?, ?)",
                               lProjectID, RightTrim(sName), FoldedName(sName));
}

std::optional<PlateRow> Lab::FindPlate(std::int32_t lProjectID, std::string_view sName) {
    Statement oRows =
        m_oDatabase->Query("SELECT plate_id, name FROM plates WHERE project_id = ? AND folded_name = ?",
                           lProjectID, FoldedName(sName));
    if (!oRows.Next()) return std::nullopt;
    return PlateRow{oRows.Int(0), lProjectID, oRows.Text(1)};
}

std::vector<PlateRow> Lab::Plates(std::int32_t lProjectID) {
    std::vector<PlateRow> aoPlates;
    Statement oRows = m_oDatabase->Query(
        "SELECT plate_id, name FROM plates WHERE project_id = ? ORDER BY folded_name", lProjectID);
    while (oRows.Next()) aoPlates.push_back({oRows.Int(0), lProjectID, oRows.Text(1)});
    return aoPlates;
}

std::vector<Models::GridTypeRecord::Column> Lab::GridColumns(std::int32_t lGridTypeID) {
    std::vector<Models::GridTypeRecord::Column> aoColumns;
    Statement oRows = m_oDatabase->Query(
        "SELECT heading, width FROM grid_columns WHERE grid_type_id = ? ORDER BY place", lGridTypeID);
    while (oRows.Next()) aoColumns.push_back({oRows.Text(0), oRows.Int(1)});
    return aoColumns;
}

std::int32_t Lab::Setting(std::string_view sName, std::int32_t lDefault) {
    Statement oRows = m_oDatabase->Query("SELECT value FROM settings WHERE name = ?", sName);
    return oRows.Next() ? oRows.Int(0) : lDefault;
}

void Lab::ChangeSetting(std::string_view sName, std::int32_t lValue) {
    m_oDatabase->Write("INSERT INTO settings (name, value) VALUES (?, ?) "
                       "ON CONFLICT (name) DO UPDATE SET value = excluded.value",
                       sName, lValue);
}

double Lab::SizeMB() { return static_cast<double>(m_oDatabase->SizeBytes()) / BytesOfMB; }

void Lab::LimitSize(double dMB) { m_oDatabase->LimitSize(static_cast<std::int64_t>(dMB * BytesOfMB)); }

std::int64_t Lab::Revision() const { return m_oDatabase->Writes(); }

std::string Lab::CheckIntegrity() { return m_oDatabase->CheckIntegrity(); }

void Lab::RequireRow(std::string_view sSql, std::string_view sKind, std::int32_t lID) {
    if (m_oDatabase->Query(sSql, lID).Next()) return;
    Fail("has no " + std::string(sKind) + " " + DecimalText(lID));
}

void Lab::RequireNewName(bool bIsThere, std::string_view sKind, std::string_view sName) {
    if (bIsThere) Fail("has a " + std::string(sKind) + " \"" + std::string(sName) + "\" already");
    if (RightTrim(sName).empty()) Fail("cannot take a " + std::string(sKind) + " without a name");
}

void Lab::Fail(const std::string& sWhat) const { throw LabError("the lab " + File().string() + " " + sWhat); }

} // namespace GleanerSvc::Workbench
