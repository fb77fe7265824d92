#include "workbench/traces/TraceFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <fstream>
#include <iterator>
#include <memory>
#include <utility>

#include "workbench/traces/AbifDirectory.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::uintmax_t MostTraceBytes = std::uintmax_t{64} * 1024 * 1024; // a long run has about a quarter
constexpr std::size_t MostScans = 200'000;                                  // a long run has an eighth
constexpr std::array<std::int32_t, 5> DataNumbers = {1, 2, 3, 4, 105};      // 5 to 8 are telemetry

// Marks the places of run start and collection start among the dates and times.
enum class Moment : std::int32_t { RunStart = 1, CollectionStart = 3 };

bool IsCivil(const CivilTime& oTime) {
    using namespace std::chrono;
    const auto oDay = year{oTime.lYear} / static_cast<int>(oTime.lMonth) / static_cast<int>(oTime.lDay);
    return oDay.ok() && oTime.lYear >= 100 && oTime.lYear <= 9999 && oTime.lHour < 24 && oTime.lMinute < 60 &&
           oTime.lSecond < 60;
}

std::optional<CivilTime> ReadMoment(const AbifDirectory& oFile, Moment eMoment) {
    const auto lNumber = static_cast<std::int32_t>(eMoment);
    const auto oDate = oFile.Packed("RUND", lNumber, AbifType::Date);
    const auto oTime = oFile.Packed("RUNT", lNumber, AbifType::Time);
    if (!oDate || !oTime) return {};
    const auto Number = [](std::byte b) { return std::to_integer<std::int32_t>(b); };
    const CivilTime oMoment{BigEndian16(*oDate), Number((*oDate)[2]), Number((*oDate)[3]),
                            Number((*oTime)[0]), Number((*oTime)[1]), Number((*oTime)[2])};
    if (!IsCivil(oMoment)) oFile.Fail("RUND", lNumber, "it and the RUNT beside it are no date and time");
    return oMoment;
}

std::size_t ReadDyeCount(const AbifDirectory& oFile) {
    const auto oCount = oFile.Integer("Dye#", 1);
    if (!oCount) oFile.Fail("Dye#", 1, "it is missing");
    if (*oCount < 1 || std::cmp_greater(*oCount, DataNumbers.size()))
        oFile.Fail("Dye#", 1, "a run of " + std::to_string(*oCount) + " dyes is not possible");
    return static_cast<std::size_t>(*oCount);
}

std::vector<DyeSignal> ReadDyes(const AbifDirectory& oFile) {
    std::vector<DyeSignal> aoDyes(ReadDyeCount(oFile));
    for (std::size_t n = 0; n < aoDyes.size(); ++n) {
        auto oValues = oFile.Shorts("DATA", DataNumbers.at(n));
        if (!oValues) oFile.Fail("DATA", DataNumbers.at(n), "the trace of a dye is missing");
        aoDyes[n] = {oFile.Text("DyeN", static_cast<std::int32_t>(n + 1)), std::move(*oValues)};
        for (std::size_t nOther = 0; nOther < n; ++nOther)
            oFile.RequireApart("DATA", DataNumbers.at(nOther), DataNumbers.at(n));
        const auto nScans = aoDyes.front().aiValues.size();
        if (nScans > MostScans)
            oFile.Fail("DATA", DataNumbers.at(n),
                       "it has " + std::to_string(nScans) + " scans, a run at most " +
                           std::to_string(MostScans));
        if (aoDyes[n].aiValues.size() != nScans)
            oFile.Fail("DATA", DataNumbers.at(n),
                       "it has " + std::to_string(aoDyes[n].aiValues.size()) + " scans, the first dye " +
                           std::to_string(nScans));
    }
    return aoDyes;
}

std::vector<std::int32_t> ReadScans(const AbifDirectory& oFile, std::string_view sName, std::size_t nScans) {
    auto alScans = oFile.Longs(sName, 1);
    for (const auto lScan : alScans)
        if (lScan < 0 || std::cmp_greater_equal(lScan, nScans))
            oFile.Fail(sName, 1, "it lists scan " + std::to_string(lScan) + " of " + std::to_string(nScans));
    std::ranges::sort(alScans);
    return alScans;
}

// Instruments write one list or the other, or both.
std::vector<std::int32_t> ReadOffScale(const AbifDirectory& oFile, std::size_t nScans) {
    std::vector<std::int32_t> alScans;
    std::ranges::set_union(ReadScans(oFile, "OfSc", nScans), ReadScans(oFile, "Satd", nScans),
                           std::back_inserter(alScans));
    alScans.erase(std::unique(alScans.begin(), alScans.end()), alScans.end());
    return alScans;
}

// Lays out a file: the header, the data that are too large for their entries, and the directory behind them.
class Writer {
  public:
    Writer() : m_abContent(HeaderSize) {}

    void PascalText(std::string_view sName, std::int32_t lNumber, const std::string& sText) {
        if (sText.empty()) return;
        std::vector<std::byte> abData = {static_cast<std::byte>(sText.size())};
        Append(abData, sText);
        Add(sName, lNumber, AbifType::PascalText, abData);
    }

    void CText(std::string_view sName, std::int32_t lNumber, const std::string& sText) {
        if (sText.empty()) return;
        std::vector<std::byte> abData;
        Append(abData, sText);
        abData.push_back(std::byte{0});
        Add(sName, lNumber, AbifType::CText, abData);
    }

    template<typename Numbers>
    void Integers(std::string_view sName, std::int32_t lNumber, AbifType eType, const Numbers& aNumbers) {
        std::vector<std::byte> abData;
        abData.reserve(aNumbers.size() * ElementSize(eType));
        for (const auto nNumber : aNumbers) Append(abData, nNumber, ElementSize(eType));
        Add(sName, lNumber, eType, abData);
    }

    void Times(Moment eMoment, const std::optional<CivilTime>& oTime) {
        if (!oTime) return;
        const auto lNumber = static_cast<std::int32_t>(eMoment);
        Integers("RUND", lNumber, AbifType::Date,
                 std::array{oTime->lYear << 16 | oTime->lMonth << 8 | oTime->lDay});
        Integers("RUNT", lNumber, AbifType::Time,
                 std::array{oTime->lHour << 24 | oTime->lMinute << 16 | oTime->lSecond << 8});
    }

    std::vector<std::byte> Finish() {
        std::vector<std::byte> abHeader;
        Append(abHeader, "ABIF");
        Append(abHeader, Version, 2);
        AppendEntry(abHeader, {"tdir", 1}, {DirectoryType, DirectoryElement}, m_nEntries,
                    m_abDirectory.size());
        Append(abHeader, m_abContent.size(), 4);
        Append(abHeader, 0, 4);
        std::ranges::copy(abHeader, m_abContent.begin());
        m_abContent.insert(m_abContent.end(), m_abDirectory.begin(), m_abDirectory.end());
        return std::move(m_abContent);
    }

  private:
    static constexpr std::size_t HeaderSize = 128;
    static constexpr int Version = 101;
    static constexpr int DirectoryType = 1023;
    static constexpr int DirectoryElement = 28;

    struct Tag {
        std::string_view sName;
        std::int32_t lNumber;
    };

    struct Element {
        int nType;
        std::size_t nSize;
    };

    static void Append(std::vector<std::byte>& abTo, std::string_view sText) {
        for (const char c : sText) abTo.push_back(static_cast<std::byte>(c));
    }

    template<typename Number>
    static void Append(std::vector<std::byte>& abTo, Number nNumber, std::size_t nBytes) {
        const auto nBits = static_cast<std::uint64_t>(nNumber);
        for (auto n = nBytes; n-- > 0;) abTo.push_back(static_cast<std::byte>(nBits >> 8U * n & 0xFFU));
    }

    static void AppendEntry(std::vector<std::byte>& abTo, Tag oTag, Element oElement, std::size_t nElements,
                            std::size_t nDataSize) {
        Append(abTo, oTag.sName);
        Append(abTo, oTag.lNumber, 4);
        Append(abTo, oElement.nType, 2);
        Append(abTo, oElement.nSize, 2);
        Append(abTo, nElements, 4);
        Append(abTo, nDataSize, 4);
    }

    void Add(std::string_view sName, std::int32_t lNumber, AbifType eType, std::vector<std::byte> abData) {
        const auto nElement = ElementSize(eType);
        AppendEntry(m_abDirectory, {sName, lNumber}, {static_cast<int>(eType), nElement},
                    abData.size() / nElement, abData.size());
        if (abData.size() > 4) {
            Append(m_abDirectory, m_abContent.size(), 4);
            m_abContent.insert(m_abContent.end(), abData.begin(), abData.end());
        } else {
            abData.resize(4);
            m_abDirectory.insert(m_abDirectory.end(), abData.begin(), abData.end());
        }
        Append(m_abDirectory, 0, 4);
        ++m_nEntries;
    }

    std::vector<std::byte> m_abContent;
    std::vector<std::byte> m_abDirectory;
    std::size_t m_nEntries = 0;
};

void WriteDyes(Writer& oWriter, const std::vector<DyeSignal>& aoDyes) {
    oWriter.Integers("Dye#", 1, AbifType::Short, std::array{aoDyes.size()});
    for (std::size_t n = 0; n < std::min(aoDyes.size(), DataNumbers.size()); ++n) {
        oWriter.Integers("DATA", DataNumbers.at(n), AbifType::Short, aoDyes[n].aiValues);
        oWriter.PascalText("DyeN", static_cast<std::int32_t>(n + 1), aoDyes[n].sName);
    }
}

bool WriteStraight(const std::filesystem::path& oFile, std::span<const std::byte> abContent) {
    std::ofstream oStream(oFile, std::ios::binary);
    for (const auto bByte : abContent) oStream.put(static_cast<char>(bByte));
    oStream.close();
    return !oStream.fail();
}

// Under another name first, which then takes the place of the older file. A link goes on leading there.
bool WriteBeside(const std::filesystem::path& oFile, std::filesystem::file_status oOlder,
                 std::span<const std::byte> abContent) {
    std::error_code oError;
    const auto oReal = std::filesystem::weakly_canonical(oFile, oError);
    if (oError) return false;
    auto oBeside = oReal;
    oBeside += ".unfinished";
    bool bWritten = WriteStraight(oBeside, abContent);
    if (bWritten && std::filesystem::exists(oOlder)) {
        std::filesystem::permissions(oBeside, oOlder.permissions(), oError);
        bWritten = !oError;
    }
    if (bWritten) std::filesystem::rename(oBeside, oReal, oError);
    if (bWritten && !oError) return true;
    if (std::filesystem::is_regular_file(oBeside, oError)) std::filesystem::remove(oBeside, oError);
    return false;
}

} // namespace

std::string CanonicalWell(const std::string& sText) {
    if (sText.size() < 2) return sText;
    const char cRow = static_cast<char>(sText[0] >= 'a' && sText[0] <= 'z' ? sText[0] - 'a' + 'A' : sText[0]);
    int nColumn = 0;
    const auto* pEnd = std::to_address(sText.end());
    const auto [pLast, eError] = std::from_chars(std::to_address(sText.begin() + 1), pEnd, nColumn);
    if (cRow < 'A' || cRow > 'P' || eError != std::errc{} || pLast != pEnd || nColumn < 1 || nColumn > 24)
        return sText;
    return cRow + std::to_string(nColumn);
}

Trace ReadTrace(std::string_view sInput, std::span<const std::byte> abContent) {
    const AbifDirectory oFile(sInput, abContent);
    Trace oTrace;
    oTrace.sSampleName = oFile.Text("SpNm", 1);
    oTrace.sWell = CanonicalWell(oFile.Text("TUBE", 1));
    oTrace.sPlate = oFile.Text("CTNM", 1);
    oTrace.sSampleType = oFile.Text("STYP", 1);
    oTrace.sPanel = oFile.Text("PANL", 1);
    oTrace.sSizeStandard = oFile.Text("StdF", 1);
    oTrace.lCapillary = oFile.Integer("LANE", 1).value_or(0);
    oTrace.oRunStart = ReadMoment(oFile, Moment::RunStart);
    oTrace.oCollectionStart = ReadMoment(oFile, Moment::CollectionStart);
    oTrace.aoDyes = ReadDyes(oFile);
    oTrace.alOffScale = ReadOffScale(oFile, oTrace.Scans());
    return oTrace;
}

std::vector<std::byte> ReadBytes(const std::filesystem::path& oFile) {
    std::error_code oError;
    const auto eType = std::filesystem::status(oFile, oError).type();
    if (eType != std::filesystem::file_type::not_found && eType != std::filesystem::file_type::regular)
        throw InputError(oFile.string(), "", "it is no regular file"); // a pipe may never end
    const auto nSize = std::filesystem::file_size(oFile, oError);
    std::ifstream oStream(oFile, std::ios::binary);
    if (oError || !oStream) throw InputError(oFile.string(), "", "the file cannot be opened");
    if (nSize > MostTraceBytes)
        throw InputError(oFile.string(), "",
                         "the file has " + std::to_string(nSize) + " bytes, a trace at most " +
                             std::to_string(MostTraceBytes));
    std::vector<char> acContent(static_cast<std::size_t>(nSize));
    oStream.read(acContent.data(), static_cast<std::streamsize>(acContent.size()));
    if (!oStream) throw InputError(oFile.string(), "", "the file cannot be read to its end");
    std::vector<std::byte> abContent(acContent.size());
    std::ranges::transform(acContent, abContent.begin(), [](char c) { return static_cast<std::byte>(c); });
    return abContent;
}

void WriteBytes(const std::filesystem::path& oFile, std::span<const std::byte> abContent) {
    std::error_code oError;
    const auto oOlder = std::filesystem::status(oFile, oError);
    bool bWritten = false;
    if (std::filesystem::exists(oOlder) && !std::filesystem::is_regular_file(oOlder)) {
        bWritten = WriteStraight(oFile, abContent); // a device, which no file may take the place of
    } else {
        bWritten = WriteBeside(oFile, oOlder, abContent);
    }
    if (!bWritten) throw InputError(oFile.string(), "", "the file cannot be written");
}

Trace ReadTraceFile(const std::filesystem::path& oFile) {
    return ReadTrace(oFile.string(), ReadBytes(oFile));
}

std::vector<std::byte> WriteTrace(const Trace& oTrace) {
    Writer oWriter;
    WriteDyes(oWriter, oTrace.aoDyes);
    oWriter.PascalText("SpNm", 1, oTrace.sSampleName);
    oWriter.PascalText("TUBE", 1, oTrace.sWell);
    oWriter.CText("CTNM", 1, oTrace.sPlate);
    oWriter.CText("STYP", 1, oTrace.sSampleType);
    oWriter.CText("PANL", 1, oTrace.sPanel);
    oWriter.PascalText("StdF", 1, oTrace.sSizeStandard);
    oWriter.Integers("LANE", 1, AbifType::Short, std::array{oTrace.lCapillary});
    oWriter.Times(Moment::RunStart, oTrace.oRunStart);
    oWriter.Times(Moment::CollectionStart, oTrace.oCollectionStart);
    if (!oTrace.alOffScale.empty()) oWriter.Integers("OfSc", 1, AbifType::Long, oTrace.alOffScale);
    auto abContent = oWriter.Finish();
    if (ReadTrace("trace of '" + oTrace.sSampleName + "'", abContent) != oTrace)
        throw InputError("trace of '" + oTrace.sSampleName + "'", "", "a trace file cannot hold it as it is");
    return abContent;
}

} // namespace GleanerSvc::Workbench
