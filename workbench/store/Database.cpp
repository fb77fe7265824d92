#include "workbench/store/Database.h"

#include <system_error>
#include <utility>

#include <QtCore/QFile>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtSql/QSqlError>

#include "pagebind/Text.h"
#include "workbench/store/Dialect.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr int LockWait = 500; // ms: a program that is just ending

QString ToQString(std::string_view sText) {
    return QString::fromUtf8(sText.data(), static_cast<qsizetype>(sText.size()));
}

std::filesystem::path RealFile(const std::filesystem::path& oFile) {
    std::error_code oError;
    auto oReal = std::filesystem::weakly_canonical(oFile, oError);
    return oError ? std::filesystem::absolute(oFile, oError) : oReal;
}

std::string Story(Dialect::Error eError, const std::string& sFile) {
    switch (eError) {
    case Dialect::Error::Busy:
    case Dialect::Error::Locked:
        return "another program uses the lab " + sFile;
    case Dialect::Error::ReadOnly:
        return "the lab " + sFile + " cannot be written";
    case Dialect::Error::Full:
        return "there is no room for the lab " + sFile + " to grow";
    case Dialect::Error::CannotOpen:
        return "the lab " + sFile + " cannot be opened";
    case Dialect::Error::NotADatabase:
        return sFile + " is no lab";
    }
    return "the lab " + sFile;
}

} // namespace

Database::Database(std::filesystem::path oFile, Access eAccess)
    : m_oFile(std::move(oFile)), m_oRealFile(RealFile(m_oFile)) {
    if (eAccess == Access::Writing) {
        Lock();
        Connect(Dialect::Options, RealName());
    } else {
        ConnectToRead();
    }
}

// What an interrupted program left in the log can only be read where it can be put in its place.
void Database::ConnectToRead() {
    try {
        Connect(Dialect::ReadingOptions, RealName());
    } catch (const LabError&) {
        std::error_code oError;
        const auto nLog = std::filesystem::file_size(m_oRealFile.string() + Dialect::LogSuffix, oError);
        const bool bInterrupted = !oError && nLog > 0;
        if (bInterrupted || !std::filesystem::exists(m_oRealFile, oError)) throw;
        QUrl oUnchanging = QUrl::fromLocalFile(RealName());
        oUnchanging.setQuery(Dialect::UnchangingQuery);
        Connect(Dialect::UnchangingOptions, oUnchanging.toString(QUrl::FullyEncoded));
    }
}

Database::~Database() {
    while (m_lDepth > 0) Rollback();
    Disconnect();
}

void Database::Lock() {
    const std::string sLock = m_oRealFile.string() + ".lock";
    m_oLock = std::make_unique<QLockFile>(ToQString(sLock));
    m_oLock->setStaleLockTime(0); // however old it is: what counts is whether its program still runs
    if (m_oLock->tryLock(LockWait)) return;
    if (m_oLock->error() != QLockFile::LockFailedError)
        Fail("the lab " + m_oFile.string() +
             " cannot be written: no file can be made in its folder, or its disk is full");
    qint64 lProcess = 0;
    QString sHost;
    QString sProgram;
    if (!m_oLock->getLockInfo(&lProcess, &sHost, &sProgram))
        Fail("another program may use the lab " + m_oFile.string() + ": " + sLock +
             " does not say which; remove that file if there is none");
    Fail("another program uses the lab " + m_oFile.string() + ": " + sProgram.toStdString() + ", process " +
         DecimalText(lProcess) + " on " + sHost.toStdString() + ", holds " + sLock);
}

QString Database::RealName() const { return ToQString(m_oRealFile.string()); }

void Database::Connect(const char* szOptions, const QString& sName) {
    m_oConnection = QSqlDatabase::addDatabase(Dialect::Driver, QUuid::createUuid().toString());
    m_oConnection.setConnectOptions(szOptions);
    m_oConnection.setDatabaseName(sName);
    try {
        if (!m_oConnection.open()) Fail(m_oConnection.lastError());
        Number(Dialect::CountTables); // only now the file is looked into
    } catch (...) {
        Disconnect();
        throw;
    }
}

void Database::Disconnect() {
    const QString sName = m_oConnection.connectionName();
    m_oStatements.clear();
    m_oConnection = QSqlDatabase();
    QSqlDatabase::removeDatabase(sName);
}

void Database::PrepareToWrite() {
    for (const auto sSql : Dialect::Opening) Run(sSql);
}

std::vector<std::string> Database::Tables() const {
    std::vector<std::string> asTables;
    const QStringList asNames = m_oConnection.tables();
    for (const auto& sTable : asNames) asTables.push_back(sTable.toStdString());
    return asTables;
}

std::shared_ptr<PreparedStatement> Database::Prepare(std::string_view sSql) {
    const auto itKept = m_oStatements.find(sSql);
    if (itKept != m_oStatements.end() && !itKept->second->bInUse) return itKept->second;
    auto oPrepared = std::make_shared<PreparedStatement>(PreparedStatement{QSqlQuery(m_oConnection)});
    oPrepared->oQuery.setForwardOnly(true);
    if (!oPrepared->oQuery.prepare(ToQString(sSql))) Fail(oPrepared->oQuery.lastError());
    // One that is asked for while it runs is made a second time, for that time only.
    if (itKept == m_oStatements.end()) m_oStatements.emplace(sSql, oPrepared);
    return oPrepared;
}

Statement Database::Execute(std::string_view sSql, const std::vector<QVariant>& avValues) {
    auto oPrepared = Prepare(sSql);
    auto& oQuery = oPrepared->oQuery;
    for (std::size_t nValue = 0; nValue < avValues.size(); ++nValue)
        oQuery.bindValue(static_cast<int>(nValue), avValues[nValue]);
    if (!oQuery.exec()) Fail(oQuery.lastError());
    return {*this, std::move(oPrepared)};
}

Statement Database::Change(std::string_view sSql, const std::vector<QVariant>& avValues) {
    RequireTransaction();
    ++m_lWrites;
    return Execute(sSql, avValues);
}

void Database::Run(std::string_view sSql) {
    QSqlQuery oQuery(m_oConnection);
    if (!oQuery.exec(ToQString(sSql))) Fail(oQuery.lastError());
}

bool Database::TryRun(const std::string& sSql) noexcept {
    try {
        Run(sSql);
        return true;
    } catch (const std::exception&) {
        return false; // what is to be done then, the caller knows
    }
}

void Database::RequireTransaction() const {
    if (m_bLost) Fail("the database has taken back the transaction in the lab " + m_oFile.string());
}

void Database::Begin() {
    RequireTransaction();
    Run(m_lDepth == 0 ? std::string(Dialect::Begin) : "SAVEPOINT depth_" + DecimalText(m_lDepth));
    ++m_lDepth;
}

void Database::Commit() {
    RequireTransaction();
    Run(m_lDepth == 1 ? "COMMIT" : "RELEASE SAVEPOINT depth_" + DecimalText(m_lDepth - 1));
    --m_lDepth;
}

void Database::Rollback() noexcept {
    --m_lDepth;
    ++m_lWrites;
    if (m_lDepth == 0) {
        TryRun("ROLLBACK"); // fails when the database has done so already
        m_bLost = false;
        return;
    }
    const std::string sSavepoint = "SAVEPOINT depth_" + DecimalText(m_lDepth);
    if (!TryRun("ROLLBACK TO " + sSavepoint) || !TryRun("RELEASE " + sSavepoint)) m_bLost = true;
}

std::int64_t Database::Number(std::string_view sSql) {
    QSqlQuery oQuery(m_oConnection);
    if (!oQuery.exec(ToQString(sSql)) || !oQuery.next()) Fail(oQuery.lastError());
    return oQuery.value(0).toLongLong();
}

std::int64_t Database::SizeBytes() {
    std::error_code oError;
    const auto nLog = std::filesystem::file_size(m_oRealFile.string() + Dialect::LogSuffix, oError);
    return Number(Dialect::PageCount) * Number(Dialect::PageSize) +
           (oError ? 0 : static_cast<std::int64_t>(nLog));
}

void Database::LimitSize(std::int64_t lBytes) {
    const auto lPages = lBytes == 0 ? Dialect::NoPageLimit : lBytes / Number(Dialect::PageSize);
    Run(std::string(Dialect::PageLimit) + DecimalText(lPages));
}

std::string Database::CheckIntegrity() {
    try {
        std::string sFound;
        Statement oPages = Query(Dialect::CheckPages);
        while (oPages.Next()) sFound += (sFound.empty() ? "" : "; ") + oPages.Text(0);
        Statement oReferences = Query(Dialect::CheckReferences);
        while (oReferences.Next())
            sFound += "; a row of " + oReferences.Text(0) + " refers to none of " + oReferences.Text(2);
        return sFound;
    } catch (const LabError& oError) {
        return oError.what();
    }
}

void Database::Fail(const QSqlError& oError) const {
    constexpr int LowByte = 0xFF;
    const auto eError = static_cast<Dialect::Error>(oError.nativeErrorCode().toInt() & LowByte);
    const QString sSaid = oError.databaseText().isEmpty() ? oError.driverText() : oError.databaseText();
    Fail(Story(eError, m_oFile.string()) + ": " + sSaid.toStdString());
}

void Database::Fail(const std::string& sWhat) const { throw LabError(sWhat); }

} // namespace GleanerSvc::Workbench
