// The connection to the database of a lab: its statements, its transactions and its errors.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <QtCore/QLockFile>
#include <QtSql/QSqlDatabase>

#include "workbench/store/LabError.h"
#include "workbench/store/Statement.h"

class QSqlError;

namespace GleanerSvc::Workbench {

enum class Access { Reading, Writing };

// For writing, holds the right to do so from the start to its end, by a lock file beside it that a program
// which died does not keep. Needs no application object of Qt. Everything fails with LabError.
class Database {
  public:
    // For writing, makes an empty database where there is no file. Nothing is written before PrepareToWrite.
    explicit Database(std::filesystem::path oFile, Access eAccess = Access::Writing);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    void PrepareToWrite();
    const std::filesystem::path& File() const { return m_oFile; }
    std::vector<std::string> Tables() const;

    // The statement with these values at its question marks, run; kept for the next time under its text.
    template<class... T>
    Statement Query(std::string_view sSql, const T&... oValues) {
        return Execute(sSql, {Bound(oValues)...});
    }
    // The same for a statement that writes. Without a transaction it is on disk on return.
    template<class... T>
    void Write(std::string_view sSql, const T&... oValues) {
        Change(sSql, {Bound(oValues)...});
    }
    // The ID that the database gave to the new row.
    template<class... T>
    std::int32_t Insert(std::string_view sSql, const T&... oValues) {
        return Change(sSql, {Bound(oValues)...}).InsertedID();
    }
    void Run(std::string_view sSql); // not kept

    // Transactions nest. When the database itself took back the outermost one, as it may on a full disk, all
    // that follows fails until that one is rolled back.
    void Begin();
    void Commit();
    void Rollback() noexcept;
    std::int32_t Depth() const { return m_lDepth; }

    std::int64_t Writes() const { return m_lWrites; } // grows with each write and each rollback
    std::int64_t SizeBytes();
    void LimitSize(std::int64_t lBytes); // 0 for no limit; what is there already stays
    std::string CheckIntegrity();

    // Fails with what the database said, or with this about it.
    [[noreturn]] void Fail(const QSqlError& oError) const;
    [[noreturn]] void Fail(const std::string& sWhat) const;

  private:
    void Lock();
    QString RealName() const;
    void ConnectToRead();
    void Connect(const char* szOptions, const QString& sName);
    void Disconnect();
    std::shared_ptr<PreparedStatement> Prepare(std::string_view sSql);
    Statement Execute(std::string_view sSql, const std::vector<QVariant>& avValues);
    Statement Change(std::string_view sSql, const std::vector<QVariant>& avValues);
    bool TryRun(const std::string& sSql) noexcept;
    void RequireTransaction() const;
    std::int64_t Number(std::string_view sSql);

    std::filesystem::path m_oFile;     // as it was named
    std::filesystem::path m_oRealFile; // absolute, links followed
    std::unique_ptr<QLockFile> m_oLock;
    QSqlDatabase m_oConnection;
    std::map<std::string, std::shared_ptr<PreparedStatement>, std::less<>> m_oStatements;
    std::int32_t m_lDepth = 0;
    bool m_bLost = false; // the outermost transaction is gone
    std::int64_t m_lWrites = 0;
};

} // namespace GleanerSvc::Workbench
