#include "workbench/traces/TraceText.h"

#include <array>
#include <cstdint>
#include <optional>

namespace GleanerSvc::Workbench {

namespace {

struct Character {
    char32_t nCode = 0;
    std::size_t nBytes = 1;
};

std::uint32_t Byte(char c) { return static_cast<unsigned char>(c); }

// Bytes of the character that begins with it; 0 for a byte that begins none.
std::size_t LengthBy(std::uint32_t nLead) {
    if (nLead < 0x80) return 1;
    if (nLead < 0xC2 || nLead > 0xF4) return 0;
    return nLead < 0xE0 ? 2 : nLead < 0xF0 ? 3 : 4;
}

// The first character of what is UTF-8.
std::optional<Character> First(std::string_view sText) {
    constexpr std::array<std::uint32_t, 5> LeadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::array<std::uint32_t, 5> Lowest = {0, 0, 0x80, 0x800, 0x10000}; // that needs so many bytes
    const std::size_t nBytes = LengthBy(Byte(sText.front()));
    if (nBytes == 0 || nBytes > sText.size()) return {};
    std::uint32_t nCode = Byte(sText.front()) & LeadBits.at(nBytes);
    for (const char c : sText.substr(1, nBytes - 1)) {
        if ((Byte(c) & 0xC0U) != 0x80U) return {};
        nCode = nCode << 6U | (Byte(c) & 0x3FU);
    }
    const bool bSurrogate = nCode >= 0xD800 && nCode <= 0xDFFF;
    if (nCode < Lowest.at(nBytes) || nCode > 0x10FFFF || bSurrogate) return {};
    return Character{nCode, nBytes};
}

bool IsUtf8(std::string_view sText) {
    while (!sText.empty()) {
        const auto oFirst = First(sText);
        if (!oFirst) return false;
        sText.remove_prefix(oFirst->nBytes);
    }
    return true;
}

std::string FromLatin1(std::string_view sBytes) {
    std::string sText;
    for (const char c : sBytes) {
        if (Byte(c) < 0x80) {
            sText += c;
        } else {
            sText += static_cast<char>(0xC0U | Byte(c) >> 6U);
            sText += static_cast<char>(0x80U | (Byte(c) & 0x3FU));
        }
    }
    return sText;
}

bool IsControl(char32_t nCode) { return nCode < 0x20 || (nCode >= 0x7F && nCode < 0xA0); }

} // namespace

std::string TraceText(std::string_view sBytes) {
    const std::string sText = IsUtf8(sBytes) ? std::string(sBytes) : FromLatin1(sBytes);
    std::string sClean;
    for (std::string_view sRest = sText; !sRest.empty();) {
        const Character oFirst = First(sRest).value();
        sClean += IsControl(oFirst.nCode) ? std::string(" ") : std::string(sRest.substr(0, oFirst.nBytes));
        sRest.remove_prefix(oFirst.nBytes);
    }
    return sClean;
}

} // namespace GleanerSvc::Workbench
