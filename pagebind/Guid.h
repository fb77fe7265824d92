// A 128-bit identifier of a class, an interface or a library.
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace GleanerSvc {

class Guid {
  public:
    constexpr Guid() = default; // all zero

    // Reads "C80923FA-BD76-4A90-BFD6-63F30EC4F0EB", in either case, with braces around it or without. Any
    // other text fails with type mismatch, and does not compile where the result is a constant.
    static constexpr Guid Of(std::string_view sText);

    // In the order of the text.
    constexpr const std::array<std::uint8_t, 16>& Bytes() const { return m_anBytes; }

    // In upper case.
    std::string Text() const;
    std::string BracedText() const { return "{" + Text() + "}"; }

    // In the order of the texts.
    friend constexpr auto operator<=>(const Guid&,
                                      const Guid&) = default; // NOLINT(modernize-use-nullptr): a false find

  private:
    static constexpr std::size_t TextSize = 36;

    [[noreturn]] static void FailOn(std::string_view sText);
    static constexpr int Digit(char cDigit);

    // Whether a "-" stands in front of that byte's two digits.
    static constexpr bool HasDashBefore(std::size_t nByte) {
        return nByte == 4 || nByte == 6 || nByte == 8 || nByte == 10;
    }

    std::array<std::uint8_t, 16> m_anBytes{};
};

constexpr Guid Guid::Of(std::string_view sText) {
    std::string_view sRest = sText;
    if (sRest.size() == TextSize + 2 && sRest.front() == '{' && sRest.back() == '}') {
        sRest = sRest.substr(1, TextSize);
    }
    if (sRest.size() != TextSize) FailOn(sText);
    Guid oGuid;
    for (std::size_t nByte = 0, nPlace = 0; nByte < oGuid.m_anBytes.size(); ++nByte, nPlace += 2) {
        if (HasDashBefore(nByte) && sRest[nPlace++] != '-') FailOn(sText);
        const int nHigh = Digit(sRest[nPlace]);
        const int nLow = Digit(sRest[nPlace + 1]);
        if (nHigh < 0 || nLow < 0) FailOn(sText);
        oGuid.m_anBytes[nByte] = static_cast<std::uint8_t>(nHigh * 16 + nLow);
    }
    return oGuid;
}

// -1 for what is no hexadecimal digit.
constexpr int Guid::Digit(char cDigit) {
    if (cDigit >= '0' && cDigit <= '9') return cDigit - '0';
    if (cDigit >= 'A' && cDigit <= 'F') return cDigit - 'A' + 10;
    if (cDigit >= 'a' && cDigit <= 'f') return cDigit - 'a' + 10;
    return -1;
}

} // namespace GleanerSvc
