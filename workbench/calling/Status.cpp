#include "workbench/calling/Status.h"

#include <array>
#include <string_view>

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array<std::string_view, 13> Texts{
    "PASS",          "READ ERROR", "NO DATA",       "NO SIZE STANDARD", "BAD SIZE STANDARD",
    "OFF SCALE",     "LOW SIGNAL", "NO PANEL",      "NO LADDER",        "LADDER INCOMPLETE",
    "LOCUS MISSING", "OFF LADDER", "TOO MANY PEAKS"};

} // namespace

std::string StatusText(std::int32_t lStatus) {
    const auto nStatus = static_cast<std::size_t>(lStatus); // of a negative one it is past the end
    if (nStatus < Texts.size()) return std::string(Texts[nStatus]);
    return "UNKNOWN STATUS " + std::to_string(lStatus);
}

} // namespace GleanerSvc::Workbench
