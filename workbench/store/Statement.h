// One run of a prepared statement.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QtCore/QVariant>
#include <QtSql/QSqlQuery>

namespace GleanerSvc::Workbench {

class Database;

// A statement that the database has prepared and keeps.
struct PreparedStatement {
    QSqlQuery oQuery;
    bool bInUse = false;
};

// Values as the database takes them; an empty optional is NULL. Bytes are not copied: they stay as they are
// until the statement has run.
QVariant Bound(std::int32_t lValue);
QVariant Bound(std::int64_t lValue);
QVariant Bound(double dValue);
QVariant Bound(bool bValue); // 0 or 1
QVariant Bound(std::string_view sValue);
QVariant Bound(std::span<const std::byte> abValue);
template<class T>
QVariant Bound(const std::optional<T>& oValue) {
    return oValue ? Bound(*oValue) : QVariant();
}

// Its rows are read forward, one at a time: while (oRows.Next()) ... Columns are 0-based. It ends with its
// life, and must do so before its database. Errors fail with LabError.
class Statement {
  public:
    Statement(Database& oDatabase, std::shared_ptr<PreparedStatement> oPrepared);
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    bool Next();
    bool IsNull(int nColumn) const;
    std::int32_t Int(int nColumn) const; // a value that is no 32-bit number fails, naming it
    double Real(int nColumn) const;
    bool Bool(int nColumn) const { return Int(nColumn) != 0; }
    std::string Text(int nColumn) const;
    std::vector<std::byte> Bytes(int nColumn) const;
    std::int32_t InsertedID() const; // that the database gave to the row which this has added

  private:
    std::int32_t ToInt(const QVariant& vValue) const;

    Database& m_oDatabase;
    std::shared_ptr<PreparedStatement> m_oPrepared;
};

} // namespace GleanerSvc::Workbench
