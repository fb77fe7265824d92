#include "workbench/store/SizedContent.h"

#include <bit>
#include <limits>
#include <string>

#include "pagebind/Text.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::uint8_t FormVersion = 1;
constexpr int ByteBits = 8;
constexpr std::size_t PeakBytes = 2 + 3 * sizeof(double); // at least: dye, mark of a size, three numbers
constexpr std::size_t PointBytes = 2 * sizeof(double);

class Packer {
  public:
    template<class T>
    void Whole(T nValue) {
        for (std::size_t nByte = 0; nByte < sizeof(T); ++nByte)
            m_abContent.push_back(static_cast<std::byte>(nValue >> (nByte * ByteBits)));
    }
    void Real(double dValue) { Whole(std::bit_cast<std::uint64_t>(dValue)); }
    void Count(std::size_t nCount) { Whole(static_cast<std::uint32_t>(nCount)); }
    void Text(const std::string& sText) {
        Count(sText.size());
        for (const char cText : sText) m_abContent.push_back(static_cast<std::byte>(cText));
    }
    std::vector<std::byte> Content() && { return std::move(m_abContent); }

  private:
    std::vector<std::byte> m_abContent;
};

class Unpacker {
  public:
    explicit Unpacker(std::span<const std::byte> abContent) : m_abContent(abContent) {}

    template<class T>
    T Whole() {
        Require(sizeof(T), "a number");
        T nValue = 0;
        for (std::size_t nByte = 0; nByte < sizeof(T); ++nByte)
            nValue = static_cast<T>(nValue | static_cast<T>(m_abContent[m_nAt++]) << (nByte * ByteBits));
        return nValue;
    }
    double Real() { return std::bit_cast<double>(Whole<std::uint64_t>()); }
    // Of entries that take so many bytes each, or more.
    std::size_t Count(std::size_t nEntryBytes, const char* sWhat) {
        const std::size_t nCount = Whole<std::uint32_t>();
        Require(nCount * nEntryBytes, sWhat);
        return nCount;
    }
    std::string Text() {
        std::string sText(Count(1, "a text"), '\0');
        for (char& cText : sText) cText = static_cast<char>(m_abContent[m_nAt++]);
        return sText;
    }
    void RequireEnd() const {
        if (m_nAt != m_abContent.size()) Fail("more follows after the end");
    }
    [[noreturn]] void Fail(const std::string& sWhat) const {
        throw LabError("byte " + DecimalText(static_cast<std::int64_t>(m_nAt)) + ": " + sWhat);
    }

  private:
    void Require(std::size_t nBytes, const char* sWhat) const {
        if (nBytes > m_abContent.size() - m_nAt)
            Fail(std::string(sWhat) + " reaches beyond the end at " +
                 DecimalText(static_cast<std::int64_t>(m_abContent.size())));
    }

    std::span<const std::byte> m_abContent;
    std::size_t m_nAt = 0;
};

Status UnpackStatus(Unpacker& oContent) {
    const auto nStatus = oContent.Whole<std::uint8_t>();
    if (nStatus > static_cast<std::uint8_t>(Status::TooManyPeaks))
        oContent.Fail("there is no status " + DecimalText(nStatus));
    return static_cast<Status>(nStatus);
}

void PackPeak(Packer& oContent, const Peak& oPeak) {
    oContent.Whole(static_cast<std::uint8_t>(oPeak.nDye));
    oContent.Real(oPeak.dScan);
    oContent.Real(oPeak.dHeight);
    oContent.Real(oPeak.dWidth);
    oContent.Whole(static_cast<std::uint8_t>(oPeak.dSize ? 1 : 0));
    if (oPeak.dSize) oContent.Real(*oPeak.dSize);
}

Peak UnpackPeak(Unpacker& oContent) {
    Peak oPeak;
    oPeak.nDye = oContent.Whole<std::uint8_t>();
    oPeak.dScan = oContent.Real();
    oPeak.dHeight = oContent.Real();
    oPeak.dWidth = oContent.Real();
    if (oContent.Whole<std::uint8_t>() != 0) oPeak.dSize = oContent.Real();
    return oPeak;
}

void PackFit(Packer& oContent, const SizeFit& oFit) {
    oContent.Count(oFit.aoPoints.size());
    for (const auto& oPoint : oFit.aoPoints) {
        oContent.Real(oPoint.dSize);
        oContent.Real(oPoint.dScan);
    }
    oContent.Real(oFit.dRSquared);
    oContent.Real(oFit.dLeaveOneOut);
    oContent.Real(oFit.dMatchedShare);
    oContent.Real(oFit.dHeightVariation);
}

SizeFit UnpackFit(Unpacker& oContent) {
    SizeFit oFit;
    oFit.aoPoints.resize(oContent.Count(PointBytes, "the list of points"));
    for (auto& oPoint : oFit.aoPoints) {
        oPoint.dSize = oContent.Real();
        oPoint.dScan = oContent.Real();
    }
    oFit.dRSquared = oContent.Real();
    oFit.dLeaveOneOut = oContent.Real();
    oFit.dMatchedShare = oContent.Real();
    oFit.dHeightVariation = oContent.Real();
    return oFit;
}

} // namespace

std::vector<std::byte> PackSized(const SizedTrace& oTrace) {
    Packer oContent;
    oContent.Whole(FormVersion);
    oContent.Whole(static_cast<std::uint8_t>(oTrace.eStatus));
    oContent.Text(oTrace.sReason);
    oContent.Count(oTrace.aoPeaks.size());
    for (const auto& oPeak : oTrace.aoPeaks) PackPeak(oContent, oPeak);
    PackFit(oContent, oTrace.oFit);
    return std::move(oContent).Content();
}

SizedTrace UnpackSized(std::span<const std::byte> abContent) {
    Unpacker oContent(abContent);
    const auto nVersion = oContent.Whole<std::uint8_t>();
    if (nVersion != FormVersion) oContent.Fail("the form " + DecimalText(nVersion) + " is not known");
    SizedTrace oTrace;
    oTrace.eStatus = UnpackStatus(oContent);
    oTrace.sReason = oContent.Text();
    oTrace.aoPeaks.resize(oContent.Count(PeakBytes, "the list of peaks"));
    for (auto& oPeak : oTrace.aoPeaks) oPeak = UnpackPeak(oContent);
    oTrace.oFit = UnpackFit(oContent);
    oContent.RequireEnd();
    return oTrace;
}

} // namespace GleanerSvc::Workbench
