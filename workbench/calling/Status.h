// The outcome of an item: of one trace, sized and called.
#pragma once

#include <cstdint>
#include <string>

namespace GleanerSvc::Workbench {

// The order is that in which they are tested; the codes are stored.
enum class Status : std::int32_t {
    Pass = 0,
    ReadError = 1,
    NoData = 2,
    NoSizeStandard = 3,
    BadSizeStandard = 4,
    OffScale = 5,
    LowSignal = 6,
    NoPanel = 7,
    NoLadder = 8,
    LadderIncomplete = 9,
    LocusMissing = 10,
    OffLadder = 11,
    TooManyPeaks = 12
};

// "PASS", "NO SIZE STANDARD" and so on; "UNKNOWN STATUS" and the code for any other.
std::string StatusText(std::int32_t lStatus);

} // namespace GleanerSvc::Workbench
