#include "workbench/traces/TraceFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <limits>

#include "tests/workbench/traces/RealTraces.h"
#include "workbench/traces/AbifDirectory.h"

namespace GleanerSvc::Workbench {
namespace {

// The fields of a directory entry.
constexpr std::size_t Name = 0, Number = 4, Type = 8, ElementWidth = 10, Count = 12, DataSize = 16,
                      Offset = 20;
constexpr std::size_t Tdir = 6;

Trace SmallTrace() {
    Trace oTrace{"Sample 7", "B12", "Plate 3", "Sample", "Kit", "Standard", 5, {}, {}, {}, {3, 4}};
    oTrace.oRunStart = CivilTime{2024, 2, 29, 23, 59, 58};
    oTrace.oCollectionStart = CivilTime{2024, 3, 1, 0, 14, 0};
    for (const auto* sName : {"Blue", "Green", "Yellow", "Red", "Orange"})
        oTrace.aoDyes.push_back({sName, {0, 1, -1, 32767, -32768, static_cast<std::int16_t>(*sName)}});
    return oTrace;
}

// A file of the small trace, with a hand on its bytes.
class Bytes {
  public:
    Bytes() : m_abContent(WriteTrace(SmallTrace())) {}

    std::size_t Entry(std::string_view sTag, std::int32_t lNumber = 1) const {
        for (std::size_t n = Directory(); n < m_abContent.size(); n += 28)
            if (TextAt(n, 4) == sTag && Long(n + Number) == lNumber) return n;
        ADD_FAILURE() << "no entry " << sTag << ' ' << lNumber;
        return Tdir;
    }

    std::size_t Directory() const { return static_cast<std::size_t>(Long(Tdir + Offset)); }
    std::int32_t Long(std::size_t nAt) const { return BigEndian32(std::span(m_abContent).subspan(nAt)); }

    Bytes& Put(std::size_t nAt, std::string_view sBytes) {
        std::ranges::transform(sBytes, m_abContent.begin() + static_cast<std::ptrdiff_t>(nAt),
                               [](char c) { return static_cast<std::byte>(c); });
        return *this;
    }
    Bytes& PutLong(std::size_t nAt, std::int32_t lNumber) {
        for (unsigned n = 0; n < 4; ++n)
            m_abContent[nAt + n] =
                static_cast<std::byte>(static_cast<std::uint32_t>(lNumber) >> (24 - 8 * n));
        return *this;
    }
    Bytes& PutShort(std::size_t nAt, std::uint16_t nNumber) {
        m_abContent[nAt] = static_cast<std::byte>(nNumber >> 8U);
        m_abContent[nAt + 1] = static_cast<std::byte>(nNumber);
        return *this;
    }

    Trace Read() const { return ReadTrace("t.fsa", m_abContent); }
    std::string Message() const { return MessageOf(m_abContent); }

    // What reading fails with; empty when it succeeds.
    static std::string MessageOf(std::span<const std::byte> abContent) {
        try {
            ReadTrace("t.fsa", abContent);
        } catch (const InputError& oError) {
            return oError.what();
        }
        return {};
    }

    std::vector<std::byte> m_abContent;

  private:
    std::string TextAt(std::size_t nAt, std::size_t nLength) const {
        std::string sText;
        for (std::size_t n = 0; n < nLength; ++n) sText += std::to_integer<char>(m_abContent[nAt + n]);
        return sText;
    }
};

TEST(TraceFileTest, WrittenTraceComesBack) {
    EXPECT_EQ(Bytes().Read(), SmallTrace());
    Trace oBare;
    oBare.aoDyes.resize(4); // no texts, no times, no scans
    EXPECT_EQ(ReadTrace("t.fsa", WriteTrace(oBare)), oBare);
}

TEST(TraceFileTest, TraceThatNoFileHoldsIsNotWritten) {
    const std::pair<const char*, void (*)(Trace&)> aoCases[] = {
        {"no dye", [](Trace& o) { o.aoDyes.clear(); }},
        {"six dyes", [](Trace& o) { o.aoDyes.push_back(o.aoDyes[0]); }},
        {"unequal dyes", [](Trace& o) { o.aoDyes[2].aiValues.pop_back(); }},
        {"name too long", [](Trace& o) { o.sSampleName.assign(256, 'x'); }},
        {"blank at the end", [](Trace& o) { o.sPanel += ' '; }},
        {"well of another form", [](Trace& o) { o.sWell = "B02"; }},
        {"capillary beyond 16 bits", [](Trace& o) { o.lCapillary = 70000; }},
        {"scan beyond the last", [](Trace& o) { o.alOffScale = {6}; }},
        {"no such day", [](Trace& o) { o.oRunStart->lYear = 2023; }},
    };
    for (const auto& [sCase, Change] : aoCases) {
        auto oTrace = SmallTrace();
        Change(oTrace);
        EXPECT_THROW(WriteTrace(oTrace), InputError) << sCase;
    }
}

TEST(TraceFileTest, BrokenHeaderIsNamed) {
    EXPECT_EQ(Bytes::MessageOf({}), "t.fsa: header: the file has 0 bytes, too few for a trace");
    EXPECT_EQ(Bytes().Put(0, "AB1F").Message(), "t.fsa: header: it does not begin with ABIF");
    EXPECT_EQ(Bytes().PutShort(4, 200).Message(), "t.fsa: header: its version is 200, not 1xx");
    EXPECT_EQ(Bytes().Put(Tdir, "tdiR").Message(), "t.fsa: directory: no entry named tdir leads to it");
    EXPECT_EQ(Bytes().PutLong(Tdir + Count, -1).Message(),
              "t.fsa: directory: it has -1 entries, at most 4096 are possible");
    EXPECT_EQ(Bytes().PutLong(Tdir + Offset, -1).PutLong(Tdir + Count, 1).Message(),
              "t.fsa: directory: it ends at byte 4294967323, the file at " +
                  std::to_string(Bytes().m_abContent.size()));
    EXPECT_EQ(Bytes().PutLong(Tdir + DataSize, -1).Message(), ""); // counts spare slots too and is not used
}

TEST(TraceFileTest, BrokenEntryIsNamed) {
    struct Case {
        const char* sTag;
        std::int32_t lNumber;
        std::size_t nField;
        std::int32_t lValue; // put there in 16 bits or 32, as the field is wide
        std::string sMessage;
    };
    const auto nEnd = std::to_string(Bytes().m_abContent.size());
    const Case aoCases[] = {
        {"DATA", 2, Type, 5, "entry 4 (DATA 2): its element type 5 does not belong there"},
        {"DATA", 2, ElementWidth, 1, "entry 4 (DATA 2): its element size is 1, not 2"},
        {"DATA", 2, Count, -6, "entry 4 (DATA 2): it counts -6 elements"},
        {"DATA", 2, Count, 7, "entry 4 (DATA 2): its elements are 14 bytes, its data size says 12"},
        {"DATA", 2, Count, 0x40000006,
         "entry 4 (DATA 2): its elements are 2147483660 bytes, its data size says 12"},
        {"DATA", 2, DataSize, 13, "entry 4 (DATA 2): its elements are 12 bytes, its data size says 13"},
        {"DATA", 2, Offset, -1, "entry 4 (DATA 2): its data end at byte 4294967307, the file at " + nEnd},
        {"DATA", 105, Number, 5, "DATA 105: the trace of a dye is missing"},
        {"Dye#", 1, Name, 0x44796524, "Dye# 1: it is missing"},
        {"Dye#", 1, Offset, 6 << 16, "entry 1 (Dye# 1): a run of 6 dyes is not possible"},
        {"Dye#", 1, Offset, 0, "entry 1 (Dye# 1): a run of 0 dyes is not possible"},
        {"LANE", 1, DataSize, 4, "entry 18 (LANE 1): its elements are 2 bytes, its data size says 4"},
        {"TUBE", 1, Offset, 0x04423132, "entry 13 (TUBE 1): its text is 4 characters long, there are 3"},
        {"TUBE", 1, Type, 4, "entry 13 (TUBE 1): its element type 4 does not belong there"},
        {"RUND", 1, Offset, 2023 << 16 | 2 << 8 | 29,
         "entry 19 (RUND 1): it and the RUNT beside it are no date and time"},
        {"RUNT", 3, Offset, 24 << 24, "entry 21 (RUND 3): it and the RUNT beside it are no date and time"},
        {"STYP", 1, Name, 0x50414E4C, "entry 16 (PANL 1): it differs from entry 15 of that name"},
    };
    for (const auto& oCase : aoCases) {
        Bytes oBytes;
        const auto nAt = oBytes.Entry(oCase.sTag, oCase.lNumber) + oCase.nField;
        if (oCase.nField == Type || oCase.nField == ElementWidth)
            oBytes.PutShort(nAt, static_cast<std::uint16_t>(oCase.lValue));
        else
            oBytes.PutLong(nAt, oCase.lValue);
        const auto* sPlace = oCase.sMessage.starts_with("entry") ? "t.fsa: directory " : "t.fsa: ";
        EXPECT_EQ(oBytes.Message(), sPlace + oCase.sMessage);
    }
}

TEST(TraceFileTest, DyesThatShareTheirScansAndManyTwinsAreNamed) {
    Bytes oShared;
    oShared.PutLong(oShared.Entry("DATA", 2) + Offset, oShared.Long(oShared.Entry("DATA", 1) + Offset) + 10);
    EXPECT_EQ(oShared.Message(), "t.fsa: directory entry 4 (DATA 2): its data overlap those of DATA 1");
    Bytes oTwins; // nine entries, each the first dye's
    const auto nFirst = oTwins.Entry("DATA", 1);
    for (std::size_t n = 1; n < 9; ++n)
        std::copy_n(oTwins.m_abContent.begin() + static_cast<std::ptrdiff_t>(nFirst), 28,
                    oTwins.m_abContent.begin() + static_cast<std::ptrdiff_t>(nFirst + 28 * n));
    EXPECT_EQ(oTwins.Message(), "t.fsa: directory entry 10 (DATA 1): it stands there more than 8 times");
    auto oLong = SmallTrace();
    for (auto& oDye : oLong.aoDyes) oDye.aiValues.resize(200'001);
    try {
        WriteTrace(oLong);
        ADD_FAILURE() << "longer than any run";
    } catch (const InputError& oError) {
        EXPECT_THAT(oError.what(), testing::HasSubstr("it has 200001 scans, a run at most 200000"));
    }
}

TEST(TraceFileTest, UnequalDyesAndFarScansAreNamed) {
    Bytes oShort;
    const auto nData = oShort.Entry("DATA", 3);
    oShort.PutLong(nData + Count, 5).PutLong(nData + DataSize, 10);
    EXPECT_EQ(oShort.Message(), "t.fsa: directory entry 6 (DATA 3): it has 5 scans, the first dye 6");
    Bytes oFar;
    oFar.PutLong(static_cast<std::size_t>(oFar.Long(oFar.Entry("OfSc") + Offset)), 6);
    EXPECT_EQ(oFar.Message(), "t.fsa: directory entry 23 (OfSc 1): it lists scan 6 of 6");
}

// Whatever is broken, reading ends in a trace or in an error that names the input.
TEST(TraceFileTest, NoDamageGetsPastTheChecks) {
    const Bytes oWhole;
    for (std::size_t nLength = 0; nLength < oWhole.m_abContent.size(); nLength += 7)
        EXPECT_TRUE(Bytes::MessageOf(std::span(oWhole.m_abContent).first(nLength)).starts_with("t.fsa: "));
    std::size_t nRefused = 0;
    for (std::size_t nAt = Tdir; nAt + 4 <= oWhole.m_abContent.size(); nAt += nAt == Tdir + 24 ? 98 : 2) {
        for (const auto lValue :
             {0, 1, -1, 5, 0x7FFFFFFF, std::numeric_limits<std::int32_t>::min(), 0x40000000}) {
            auto oBytes = oWhole;
            const auto sMessage = oBytes.PutLong(nAt, lValue).Message();
            EXPECT_TRUE(sMessage.empty() || sMessage.starts_with("t.fsa: ")) << sMessage;
            nRefused += sMessage.empty() ? 0U : 1U;
        }
    }
    EXPECT_GT(nRefused, 1000U);
}

TEST(TraceFileTest, OtherTagsAndTrueCopiesAreHarmless) {
    Bytes oBytes;
    const auto nEntry = oBytes.Entry("PANL");
    auto oExpected = SmallTrace();
    oExpected.sPanel.clear();
    auto oOther = oBytes;
    oOther.Put(nEntry + Name, "Rate").PutShort(nEntry + Type, 1024).PutLong(nEntry + Offset, -1);
    EXPECT_EQ(oOther.Read(), oExpected);
    oBytes.Put(nEntry + Name, "STYP");
    for (const auto nField : {Count, DataSize, Offset})
        oBytes.PutLong(nEntry + nField, oBytes.Long(oBytes.Entry("STYP") + nField));
    EXPECT_EQ(oBytes.Read(), oExpected);
}

TEST(TraceFileTest, EitherListOfOffScaleScansCounts) {
    Bytes oBytes;
    oBytes.Put(oBytes.Entry("OfSc") + Name, "Satd");
    EXPECT_EQ(oBytes.Read().alOffScale, SmallTrace().alOffScale);
}

TEST(TraceFileTest, WellsAndTextsTakeOneForm) {
    const std::pair<std::string_view, const char*> aoWells[] = {
        {"B02", "B2"},  {"b12", "B12"}, {"P24", "P24"}, {"Q12", "Q12"},
        {"B25", "B25"}, {"B1 ", "B1"},  {"B00", "B00"}};
    for (const auto& [sText, sWell] : aoWells) {
        Bytes oBytes;
        EXPECT_EQ(oBytes.Put(oBytes.Entry("TUBE") + Offset + 1, sText).Read().sWell, sWell);
    }
    for (const auto sEnd :
         {std::string_view("\0\0", 2), std::string_view(" \0", 2), std::string_view("  ")}) {
        Bytes oBytes;
        const auto nText = static_cast<std::size_t>(oBytes.Long(oBytes.Entry("SpNm") + Offset)) + 1;
        EXPECT_EQ(oBytes.Put(nText + 6, sEnd).Read().sSampleName, "Sample");
    }
}

TEST(TraceFileTest, FilesAreReadFromDisk) {
    const auto oFolder = std::filesystem::path(testing::TempDir());
    const auto oFile = oFolder / "TraceFileTest.fsa";
    std::ofstream oStream(oFile, std::ios::binary);
    for (const auto b : Bytes().m_abContent) oStream.put(std::to_integer<char>(b));
    oStream.close();
    EXPECT_EQ(ReadTraceFile(oFile), SmallTrace());
    std::filesystem::resize_file(oFile, 64 * 1024 * 1024 + 1);
    EXPECT_THROW(ReadTraceFile(oFile), InputError);
    std::filesystem::remove(oFile);
    EXPECT_THROW(ReadTraceFile(oFile), InputError);
    EXPECT_THROW(ReadTraceFile(oFolder), InputError);
}

TEST(TraceFileTest, AFileThatCannotBeWrittenLeavesTheOlderOne) {
    const auto oFolder = std::filesystem::path(testing::TempDir()) / "TraceFileTest";
    std::filesystem::create_directories(oFolder);
    const auto oFile = oFolder / "older.fsa";
    WriteBytes(oFile, Bytes().m_abContent);
    std::filesystem::create_directories(oFolder / "older.fsa.unfinished"); // in the way
    EXPECT_THROW(WriteBytes(oFile, std::span<const std::byte>()), InputError);
    EXPECT_EQ(ReadTraceFile(oFile), SmallTrace());
    std::filesystem::remove(oFolder / "older.fsa.unfinished");
    std::filesystem::create_symlink(oFile, oFolder / "link.fsa");
    WriteBytes(oFolder / "link.fsa", std::vector<std::byte>(5));
    EXPECT_EQ(std::filesystem::file_size(oFile), 5U);
    EXPECT_THROW(WriteBytes("/dev/full", Bytes().m_abContent), InputError);
    EXPECT_THROW(ReadBytes("/dev/zero"), InputError);
    std::filesystem::remove_all(oFolder);
}

std::string Outline(const Trace& oTrace) {
    const auto oStart = oTrace.oRunStart.value_or(CivilTime());
    return oTrace.sSampleName + ' ' + oTrace.sWell + ' ' + std::to_string(oTrace.aoDyes.size()) + " x " +
           std::to_string(oTrace.Scans()) + ", " + std::to_string(oTrace.alOffScale.size()) + " off scale, " +
           std::to_string(oStart.lHour) + (oStart.lMinute < 10 ? ":0" : ":") + std::to_string(oStart.lMinute);
}

TEST(TraceFileTest, RealTracesAreRead) {
    const auto oFolder = RealTraces();
    if (!oFolder) GTEST_SKIP() << "GLEANER_REAL_TRACES names no folder of real traces";
    const std::pair<const char*, const char*> aoCases[] = {
        {"1_0000206138_C01_005.fsa", "0000206138 C1 5 x 9960, 0 off scale, 14:04"},
        {"2_0000206138_C01_005.fsa", "0000206138 C1 5 x 9960, 22 off scale, 14:46"},
        {"1_FAC321_0000205983_B02_004.fsa", "FAC321_0000205983 B2 5 x 9960, 309 off scale, 14:04"},
        {"2_FAC321_0000205983_B02_004.fsa", "FAC321_0000205983 B2 5 x 9960, 702 off scale, 14:46"},
        {"samplefsa2ps.fsa", "PC2au07 A1 4 x 24959, 326 off scale, 16:08"},
    };
    for (const auto& [sFile, sKnown] : aoCases) {
        const auto oTrace = ReadTraceFile(*oFolder / sFile);
        EXPECT_EQ(Outline(oTrace), sKnown);
        EXPECT_EQ(oTrace.IsLadder(), oTrace.sWell == "C1");
        EXPECT_EQ(ReadTrace("again", WriteTrace(oTrace)), oTrace);
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
