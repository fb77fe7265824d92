// The decimal text of a record ID, read strictly: what keys and queries are given.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

// Nothing unless the text is exactly what DecimalText writes for a 32-bit number.
inline std::optional<std::int32_t> ReadId(std::string_view sText) {
    std::int32_t lID = 0;
    const auto oRead = std::from_chars(sText.data(), sText.data() + sText.size(), lID);
    if (oRead.ec != std::errc() || DecimalText(lID) != sText) return std::nullopt;
    return lID;
}

} // namespace GleanerSvc::Models
