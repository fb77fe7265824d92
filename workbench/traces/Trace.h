// One injection of one sample: the signal of each dye over the scans of a capillary run, and what the
// instrument noted about it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "pagebind/Date.h"

namespace GleanerSvc::Workbench {

struct DyeSignal {
    std::string sName;                  // as the instrument names it, "6-FAM"
    std::vector<std::int16_t> aiValues; // RFU, one a scan

    friend bool operator==(const DyeSignal&, const DyeSignal&) = default;
};

// Texts are empty where the instrument noted none.
struct Trace {
    std::string sSampleName;
    std::string sWell;         // "B2"
    std::string sPlate;        // name of the plate
    std::string sSampleType;   // "Sample", "Allelic Ladder"
    std::string sPanel;        // name of the panel that the operator named at the instrument
    std::string sSizeStandard; // name of the size standard
    std::int32_t lCapillary = 0;
    std::optional<CivilTime> oRunStart;        // what injections of one run have in common
    std::optional<CivilTime> oCollectionStart; // of this injection
    std::vector<DyeSignal> aoDyes;             // all of one length; the size standard runs in the last
    std::vector<std::int32_t> alOffScale;      // scans at which some dye left the detector's range, 0-based

    bool IsLadder() const { return sSampleType == "Allelic Ladder"; }
    std::size_t Scans() const { return aoDyes.empty() ? 0 : aoDyes.front().aiValues.size(); }

    friend bool operator==(const Trace&, const Trace&) = default;
};

} // namespace GleanerSvc::Workbench
