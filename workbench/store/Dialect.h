// The few words in which databases differ. All other statements of a lab are the same for each of them.
#pragma once

#include <string>
#include <string_view>

namespace GleanerSvc::Workbench::Dialect {

inline constexpr const char* Driver = "QSQLITE";
inline constexpr const char* Options = "QSQLITE_BUSY_TIMEOUT=5000"; // ms that a write waits for its turn
inline constexpr const char* ReadingOptions = "QSQLITE_BUSY_TIMEOUT=5000;QSQLITE_OPEN_READONLY";
// Of a folder that lets nobody write, where the files that readers share cannot be made: the database is
// taken as one that nobody changes.
inline constexpr const char* UnchangingOptions = "QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI";
inline constexpr const char* UnchangingQuery = "immutable=1";

// Said once to each connection that is to write: a log that is on disk before a write returns, and checked
// references.
inline constexpr std::string_view Opening[] = {"PRAGMA journal_mode = WAL", "PRAGMA synchronous = FULL",
                                               "PRAGMA foreign_keys = ON"};
inline constexpr std::string_view Begin = "BEGIN IMMEDIATE"; // the right to write is had from the start

// What stands for these in the statements of the schema.
inline constexpr std::string_view IdentityMark = "{identity}";
inline constexpr std::string_view Identity = "INTEGER PRIMARY KEY"; // given by the database when left out
inline constexpr std::string_view BytesMark = "{bytes}";
inline constexpr std::string_view Bytes = "BLOB";

inline constexpr std::string_view CountTables = "SELECT COUNT(*) FROM sqlite_master";

// The size of the database in bytes, and the largest that it may grow to in pages.
inline constexpr std::string_view PageSize = "PRAGMA page_size";
inline constexpr std::string_view PageCount = "PRAGMA page_count";
inline constexpr std::string_view PageLimit = "PRAGMA max_page_count = ";
inline constexpr std::int64_t NoPageLimit = 4294967294;
inline constexpr const char* LogSuffix = "-wal"; // of the file that stands beside the database

// Each yields a line for what is wrong; the first one says "ok" when nothing is.
inline constexpr std::string_view CheckPages = "PRAGMA integrity_check";
inline constexpr std::string_view CheckReferences = "PRAGMA foreign_key_check";

// What the low byte of the database's error number says.
enum class Error { Busy = 5, Locked = 6, ReadOnly = 8, Full = 13, CannotOpen = 14, NotADatabase = 26 };

} // namespace GleanerSvc::Workbench::Dialect
