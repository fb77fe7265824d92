// Trace files of the instrument (ABIF version 1, all numbers big-endian), read and written.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/traces/InputError.h"
#include "workbench/traces/Trace.h"

namespace GleanerSvc::Workbench {

// "A01", "a1" and "A1" are one well, "A1". What is no well of a plate stays as it is.
std::string CanonicalWell(const std::string& sText);

// Trusts nothing: each count, offset and size is checked before anything is read by it. Fails with
// InputError, naming the input, the entry and what was wrong. sInput is the name that errors carry.
Trace ReadTrace(std::string_view sInput, std::span<const std::byte> abContent);

// The whole file; one that cannot be opened, is no regular file or is larger than a trace can be fails with
// InputError.
std::vector<std::byte> ReadBytes(const std::filesystem::path& oFile);
Trace ReadTraceFile(const std::filesystem::path& oFile);
// All of it or nothing: an older file of the name stays until all is written. Fails with InputError.
void WriteBytes(const std::filesystem::path& oFile, std::span<const std::byte> abContent);

// A file that ReadTrace reads back as the same trace. A trace that no file can hold, such as one with six
// dyes or with a well named "B02", fails with InputError.
std::vector<std::byte> WriteTrace(const Trace& oTrace);

} // namespace GleanerSvc::Workbench
