#include "workbench/traces/AbifDirectory.h"

#include <algorithm>
#include <utility>

#include "workbench/traces/TraceText.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::size_t HeaderSize = 6; // the magic word and the version
constexpr std::size_t EntrySize = 28;
constexpr std::size_t InEntryOffset = 20; // of the data offset, which small data stand in place of
constexpr std::int32_t InEntrySize = 4;
constexpr std::int32_t MostEntries = 4096; // an instrument writes about a hundred
constexpr std::size_t MostTwins = 8;

std::string CharactersOf(std::span<const std::byte> abBytes) {
    std::string sText(abBytes.size(), '\0');
    std::ranges::transform(abBytes, sText.begin(), [](std::byte b) { return std::to_integer<char>(b); });
    return sText;
}

std::string Trimmed(std::string sText) {
    sText.resize(std::min(sText.find('\0'), sText.size()));
    sText = TraceText(sText);
    sText.resize(sText.find_last_not_of(" \t\r\n") + 1);
    return sText;
}

// The entry's data stand in the place of its offset when they fit there.
AbifEntry EntryAt(std::span<const std::byte> abContent, std::size_t nAt) {
    const auto abEntry = abContent.subspan(nAt, EntrySize);
    AbifEntry oEntry;
    oEntry.sName = CharactersOf(abEntry.first(4));
    oEntry.lNumber = BigEndian32(abEntry.subspan(4));
    oEntry.eType = static_cast<AbifType>(BigEndian16(abEntry.subspan(8)));
    oEntry.iElementSize = BigEndian16(abEntry.subspan(10));
    oEntry.lElements = BigEndian32(abEntry.subspan(12));
    oEntry.lDataSize = BigEndian32(abEntry.subspan(16));
    const auto nOffset = static_cast<std::uint32_t>(BigEndian32(abEntry.subspan(InEntryOffset)));
    oEntry.nOffset = oEntry.lDataSize <= InEntrySize ? nAt + InEntryOffset : nOffset;
    return oEntry;
}

std::string TagOf(std::string_view sName, std::int32_t lNumber) {
    return std::string(sName) + ' ' + std::to_string(lNumber);
}

// Where a span of the file ends. Neither operand is above 2^32, so 64 bits cannot overflow.
std::uint64_t EndOf(std::uint64_t nOffset, std::uint64_t nSize) { return nOffset + nSize; }

std::string EndsBeyond(const std::string& sWhat, std::uint64_t nEnd, std::size_t nFile) {
    return sWhat + " at byte " + std::to_string(nEnd) + ", the file at " + std::to_string(nFile);
}

} // namespace

std::size_t ElementSize(AbifType eType) {
    switch (eType) {
    case AbifType::Characters:
    case AbifType::PascalText:
    case AbifType::CText:
        return 1;
    case AbifType::Short:
        return 2;
    case AbifType::Long:
    case AbifType::Date:
    case AbifType::Time:
        return 4;
    }
    return 0;
}

std::int16_t BigEndian16(std::span<const std::byte> abBytes) {
    const auto nHigh = std::to_integer<unsigned>(abBytes[0]);
    return static_cast<std::int16_t>(nHigh << 8U | std::to_integer<unsigned>(abBytes[1]));
}

std::int32_t BigEndian32(std::span<const std::byte> abBytes) {
    std::uint32_t nNumber = 0;
    for (const auto b : abBytes.first(4)) nNumber = nNumber << 8U | std::to_integer<std::uint32_t>(b);
    return static_cast<std::int32_t>(nNumber);
}

AbifDirectory::AbifDirectory(std::string_view sInput, std::span<const std::byte> abContent)
    : m_sInput(sInput), m_abContent(abContent) {
    const auto Fail = [&](const std::string& sWhat) { throw InputError(m_sInput, "header", sWhat); };
    if (abContent.size() < HeaderSize + EntrySize)
        Fail("the file has " + std::to_string(abContent.size()) + " bytes, too few for a trace");
    if (CharactersOf(abContent.first(4)) != "ABIF") Fail("it does not begin with ABIF");
    const auto iVersion = BigEndian16(abContent.subspan(4));
    if (iVersion / 100 != 1) Fail("its version is " + std::to_string(iVersion) + ", not 1xx");
    ReadEntries();
}

// The data size of the directory counts spare slots too: only the number of its elements tells.
void AbifDirectory::ReadEntries() {
    const auto oDirectory = EntryAt(m_abContent, HeaderSize);
    const auto nOffset =
        static_cast<std::uint32_t>(BigEndian32(m_abContent.subspan(HeaderSize + InEntryOffset)));
    const auto Fail = [&](const std::string& sWhat) { throw InputError(m_sInput, "directory", sWhat); };
    if (oDirectory.sName != "tdir") Fail("no entry named tdir leads to it");
    if (oDirectory.lElements < 0 || oDirectory.lElements > MostEntries)
        Fail("it has " + std::to_string(oDirectory.lElements) + " entries, at most " +
             std::to_string(MostEntries) + " are possible");
    const auto nEntries = static_cast<std::size_t>(oDirectory.lElements);
    const auto nEnd = EndOf(nOffset, nEntries * EntrySize);
    if (nEnd > m_abContent.size()) Fail(EndsBeyond("it ends", nEnd, m_abContent.size()));
    m_aoEntries.reserve(nEntries);
    for (std::size_t n = 0; n < nEntries; ++n) {
        m_aoEntries.push_back(EntryAt(m_abContent, nOffset + n * EntrySize));
        m_aoEntries.back().nPlace = n;
    }
}

std::string AbifDirectory::Text(std::string_view sName, std::int32_t lNumber) const {
    const auto* pEntry =
        Checked(sName, lNumber, {AbifType::PascalText, AbifType::CText, AbifType::Characters});
    if (pEntry == nullptr) return {};
    const auto abData = Data(*pEntry);
    if (pEntry->eType != AbifType::PascalText) return Trimmed(CharactersOf(abData));
    if (abData.empty()) Fail(*pEntry, "its text has no length byte");
    const auto nLength = std::to_integer<std::size_t>(abData[0]);
    if (nLength >= abData.size())
        Fail(*pEntry, "its text is " + std::to_string(nLength) + " characters long, there are " +
                          std::to_string(abData.size() - 1));
    return Trimmed(CharactersOf(abData.subspan(1, nLength)));
}

std::optional<std::int32_t> AbifDirectory::Integer(std::string_view sName, std::int32_t lNumber) const {
    const auto* pEntry = Checked(sName, lNumber, {AbifType::Short, AbifType::Long});
    if (pEntry == nullptr) return {};
    if (pEntry->lElements != 1)
        Fail(*pEntry, "it has " + std::to_string(pEntry->lElements) + " numbers, one belongs there");
    const auto abData = Data(*pEntry);
    return pEntry->eType == AbifType::Short ? BigEndian16(abData) : BigEndian32(abData);
}

std::optional<std::vector<std::int16_t>> AbifDirectory::Shorts(std::string_view sName,
                                                               std::int32_t lNumber) const {
    const auto* pEntry = Checked(sName, lNumber, {AbifType::Short});
    if (pEntry == nullptr) return {};
    const auto abData = Data(*pEntry);
    std::vector<std::int16_t> aiNumbers(abData.size() / 2);
    for (std::size_t n = 0; n < aiNumbers.size(); ++n) aiNumbers[n] = BigEndian16(abData.subspan(2 * n, 2));
    return aiNumbers;
}

std::vector<std::int32_t> AbifDirectory::Longs(std::string_view sName, std::int32_t lNumber) const {
    const auto* pEntry = Checked(sName, lNumber, {AbifType::Long});
    if (pEntry == nullptr) return {};
    const auto abData = Data(*pEntry);
    std::vector<std::int32_t> alNumbers(abData.size() / 4);
    for (std::size_t n = 0; n < alNumbers.size(); ++n) alNumbers[n] = BigEndian32(abData.subspan(4 * n, 4));
    return alNumbers;
}

std::optional<std::span<const std::byte>> AbifDirectory::Packed(std::string_view sName, std::int32_t lNumber,
                                                                AbifType eType) const {
    const auto* pEntry = Checked(sName, lNumber, {eType});
    if (pEntry == nullptr) return {};
    if (pEntry->lElements != 1)
        Fail(*pEntry, "it has " + std::to_string(pEntry->lElements) + " elements, one belongs there");
    return Data(*pEntry);
}

const AbifEntry* AbifDirectory::Find(std::string_view sName, std::int32_t lNumber) const {
    const auto it = std::ranges::find_if(m_aoEntries, [&](const AbifEntry& oEntry) {
        return oEntry.lNumber == lNumber && oEntry.sName == sName;
    });
    return it == m_aoEntries.end() ? nullptr : &*it;
}

const AbifEntry* AbifDirectory::Checked(std::string_view sName, std::int32_t lNumber,
                                        std::initializer_list<AbifType> aeTypes) const {
    const auto* pEntry = Find(sName, lNumber);
    if (pEntry == nullptr) return nullptr;
    if (std::ranges::find(aeTypes, pEntry->eType) == aeTypes.end())
        Fail(*pEntry, "its element type " + std::to_string(static_cast<int>(pEntry->eType)) +
                          " does not belong there");
    CheckSizes(*pEntry);
    CheckTwins(*pEntry);
    return pEntry;
}

void AbifDirectory::CheckSizes(const AbifEntry& oEntry) const {
    const auto nElement = ElementSize(oEntry.eType);
    if (std::cmp_not_equal(oEntry.iElementSize, nElement))
        Fail(oEntry, "its element size is " + std::to_string(oEntry.iElementSize) + ", not " +
                         std::to_string(nElement));
    if (oEntry.lElements < 0) Fail(oEntry, "it counts " + std::to_string(oEntry.lElements) + " elements");
    const auto nSize = static_cast<std::uint64_t>(oEntry.lElements) * nElement;
    if (std::cmp_not_equal(oEntry.lDataSize, nSize))
        Fail(oEntry, "its elements are " + std::to_string(nSize) + " bytes, its data size says " +
                         std::to_string(oEntry.lDataSize));
    const auto nEnd = EndOf(oEntry.nOffset, nSize);
    if (nEnd > m_abContent.size()) Fail(oEntry, EndsBeyond("its data end", nEnd, m_abContent.size()));
}

void AbifDirectory::RequireApart(std::string_view sName, std::int32_t lFirst, std::int32_t lSecond) const {
    const auto* pFirst = Find(sName, lFirst);
    const auto* pSecond = Find(sName, lSecond);
    if (pFirst == nullptr || pSecond == nullptr) return;
    const auto EndOfData = [this](const AbifEntry* pEntry) { return pEntry->nOffset + Data(*pEntry).size(); };
    if (pFirst->nOffset < EndOfData(pSecond) && pSecond->nOffset < EndOfData(pFirst))
        Fail(*pSecond, "its data overlap those of " + TagOf(sName, lFirst));
}

// The same name and number twice is harmless as long as both say the same. So many that comparing them would
// take its time, nobody writes.
void AbifDirectory::CheckTwins(const AbifEntry& oFirst) const {
    std::size_t nTwins = 1;
    for (std::size_t n = oFirst.nPlace + 1; n < m_aoEntries.size(); ++n) {
        const auto& oEntry = m_aoEntries[n];
        if (oEntry.lNumber != oFirst.lNumber || oEntry.sName != oFirst.sName) continue;
        if (++nTwins > MostTwins)
            Fail(oEntry, "it stands there more than " + std::to_string(MostTwins) + " times");
        CheckSizes(oEntry);
        if (oEntry.eType != oFirst.eType || !std::ranges::equal(Data(oEntry), Data(oFirst)))
            Fail(oEntry, "it differs from entry " + std::to_string(oFirst.nPlace + 1) + " of that name");
    }
}

// Only of an entry whose sizes have been checked.
std::span<const std::byte> AbifDirectory::Data(const AbifEntry& oEntry) const {
    return m_abContent.subspan(oEntry.nOffset, static_cast<std::size_t>(oEntry.lDataSize));
}

void AbifDirectory::Fail(const AbifEntry& oEntry, const std::string& sWhat) const {
    const auto sPlace = "directory entry " + std::to_string(oEntry.nPlace + 1);
    throw InputError(m_sInput, sPlace + " (" + TagOf(oEntry.sName, oEntry.lNumber) + ")", sWhat);
}

void AbifDirectory::Fail(std::string_view sName, std::int32_t lNumber, const std::string& sWhat) const {
    if (const auto* pEntry = Find(sName, lNumber)) Fail(*pEntry, sWhat);
    throw InputError(m_sInput, TagOf(sName, lNumber), sWhat);
}

} // namespace GleanerSvc::Workbench
