// The tables of a lab, and the steps that bring an older lab up to date.
#pragma once

#include "workbench/store/Database.h"

namespace GleanerSvc::Workbench {

// Each version has its step, which makes it from the one before; a new lab takes them all. A step that has
// been delivered is never changed.
inline constexpr std::int32_t SchemaVersion = 2;

// 0 for an empty database. Fails for one that holds anything but a lab.
std::int32_t VersionOf(Database& oDatabase);

// Fails for a database of a newer version than this program's.
void RequireKnownVersion(Database& oDatabase);

// Fails for a database of any other version: one that is only read cannot be brought up to date.
void RequireOwnVersion(Database& oDatabase);

// Takes the steps from an older version to lVersion, in one transaction.
void BringTo(Database& oDatabase, std::int32_t lVersion);

} // namespace GleanerSvc::Workbench
