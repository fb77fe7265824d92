// The container of a trace file: a directory of entries that point at typed data. All numbers are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/traces/InputError.h"

namespace GleanerSvc::Workbench {

// The element types that a trace uses. A file may hold others.
enum class AbifType : std::int16_t {
    Characters = 2,
    Short = 4,
    Long = 5,
    Date = 10, // year as a short, month, day
    Time = 11, // hour, minute, second, hundredth
    PascalText = 18,
    CText = 19
};

// Bytes of one element; 0 for a type that is not listed above.
std::size_t ElementSize(AbifType eType);

struct AbifEntry {
    std::size_t nPlace = 0; // in the directory, from 0
    std::string sName;      // 4 characters, case counts
    std::int32_t lNumber = 0;
    AbifType eType = AbifType::Characters;
    std::int16_t iElementSize = 0;
    std::int32_t lElements = 0;
    std::int32_t lDataSize = 0;
    std::size_t nOffset = 0; // where the data begin, in the entry itself when they are 4 bytes or fewer
};

// A 16- or 32-bit number at the start of the bytes.
std::int16_t BigEndian16(std::span<const std::byte> abBytes);
std::int32_t BigEndian32(std::span<const std::byte> abBytes);

// Reads what is asked for by name and number and leaves alone whatever else the file holds. An entry that is
// asked for and is wrong fails with InputError: its type is none of those asked for, its sizes contradict
// each other, its data reach out of the file, or another entry gives the same name and number to other data.
class AbifDirectory {
  public:
    // Keeps the content by reference. Fails with InputError when there is no directory in it.
    AbifDirectory(std::string_view sInput, std::span<const std::byte> abContent);

    // Each is empty when there is no such entry. Text is cut at its first NUL, is UTF-8 without control
    // characters, and has no blanks at its end.
    std::string Text(std::string_view sName, std::int32_t lNumber) const;
    std::optional<std::int32_t> Integer(std::string_view sName, std::int32_t lNumber) const;
    std::optional<std::vector<std::int16_t>> Shorts(std::string_view sName, std::int32_t lNumber) const;
    std::vector<std::int32_t> Longs(std::string_view sName, std::int32_t lNumber) const;
    // The 4 bytes of a date or a time.
    std::optional<std::span<const std::byte>> Packed(std::string_view sName, std::int32_t lNumber,
                                                     AbifType eType) const;

    // Fails when the data of both stand in the same bytes.
    void RequireApart(std::string_view sName, std::int32_t lFirst, std::int32_t lSecond) const;

    // Names the entry, or just its name and number when there is none.
    [[noreturn]] void Fail(std::string_view sName, std::int32_t lNumber, const std::string& sWhat) const;

  private:
    const AbifEntry* Find(std::string_view sName, std::int32_t lNumber) const;
    const AbifEntry* Checked(std::string_view sName, std::int32_t lNumber,
                             std::initializer_list<AbifType> aeTypes) const;
    void CheckSizes(const AbifEntry& oEntry) const;
    void CheckTwins(const AbifEntry& oFirst) const;
    std::span<const std::byte> Data(const AbifEntry& oEntry) const;
    [[noreturn]] void Fail(const AbifEntry& oEntry, const std::string& sWhat) const;
    void ReadEntries();

    std::string m_sInput;
    std::span<const std::byte> m_abContent;
    std::vector<AbifEntry> m_aoEntries;
};

} // namespace GleanerSvc::Workbench
