#include "workbench/store/Statement.h"

#include <limits>

#include <QtSql/QSqlError>

#include "workbench/store/Database.h"

namespace GleanerSvc::Workbench {

QVariant Bound(std::int32_t lValue) { return {lValue}; }
QVariant Bound(std::int64_t lValue) { return QVariant::fromValue<qlonglong>(lValue); }
QVariant Bound(double dValue) { return {dValue}; }
QVariant Bound(bool bValue) { return {bValue ? 1 : 0}; }
QVariant Bound(std::string_view sValue) {
    return QString::fromUtf8(sValue.data(), static_cast<qsizetype>(sValue.size()));
}
QVariant Bound(std::span<const std::byte> abValue) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes as the database's library knows them
    const auto* pBytes = reinterpret_cast<const char*>(abValue.data());
    return QByteArray::fromRawData(pBytes, static_cast<qsizetype>(abValue.size()));
}

Statement::Statement(Database& oDatabase, std::shared_ptr<PreparedStatement> oPrepared)
    : m_oDatabase(oDatabase), m_oPrepared(std::move(oPrepared)) {
    m_oPrepared->bInUse = true;
}

Statement::~Statement() {
    m_oPrepared->oQuery.finish();
    m_oPrepared->bInUse = false;
}

bool Statement::Next() {
    auto& oQuery = m_oPrepared->oQuery;
    if (oQuery.next()) return true;
    if (oQuery.lastError().isValid()) m_oDatabase.Fail(oQuery.lastError());
    return false;
}

bool Statement::IsNull(int nColumn) const { return m_oPrepared->oQuery.isNull(nColumn); }

std::int32_t Statement::Int(int nColumn) const { return ToInt(m_oPrepared->oQuery.value(nColumn)); }

std::int32_t Statement::InsertedID() const { return ToInt(m_oPrepared->oQuery.lastInsertId()); }

std::int32_t Statement::ToInt(const QVariant& vValue) const {
    bool bIsNumber = false;
    const qlonglong lValue = vValue.isNull() ? 0 : vValue.toLongLong(&bIsNumber);
    using Limits = std::numeric_limits<std::int32_t>;
    if (bIsNumber && lValue >= Limits::min() && lValue <= Limits::max())
        return static_cast<std::int32_t>(lValue);
    m_oDatabase.Fail("the lab " + m_oDatabase.File().string() + " is damaged: \"" +
                     vValue.toString().toStdString() + "\" stands where a whole number is expected");
}

double Statement::Real(int nColumn) const { return m_oPrepared->oQuery.value(nColumn).toDouble(); }

std::string Statement::Text(int nColumn) const {
    return m_oPrepared->oQuery.value(nColumn).toString().toStdString();
}

std::vector<std::byte> Statement::Bytes(int nColumn) const {
    const QByteArray abValue = m_oPrepared->oQuery.value(nColumn).toByteArray();
    const auto abBytes = std::as_bytes(std::span(abValue.data(), static_cast<std::size_t>(abValue.size())));
    return {abBytes.begin(), abBytes.end()};
}

} // namespace GleanerSvc::Workbench
