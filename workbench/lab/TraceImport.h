// Brings traces into a lab.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "workbench/store/Lab.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

// Where traces go. Project and plate are made when they are not there yet. Without a plate's name it is the
// one that the trace names, if any.
struct Destination {
    std::string sProject;
    std::string sPlate{};
};

struct Imported {
    SampleRow oSample;
    bool bWasThere = false; // the project has a sample with just this trace already: nothing was added
};

// sFile names the trace in errors, and the sample keeps the last part of it. Each trace is a change of its
// own: what was imported before a refusal stays. A trace that cannot be read, or whose well is none of a
// plate, fails with InputError, naming the file, and leaves the lab as it was.
Imported ImportTrace(Lab& oLab, const Destination& oDestination, const std::string& sFile,
                     std::span<const std::byte> abTrace);
Imported ImportTraceFile(Lab& oLab, const Destination& oDestination, const std::filesystem::path& oFile);

// Puts a trace that need not be readable into a well that is known from elsewhere. Cut short, two traces may
// be alike: it was there only if that very well holds it.
Imported ImportIntoWell(Lab& oLab, const Destination& oDestination, SampleRow oSample,
                        std::span<const std::byte> abTrace);

} // namespace GleanerSvc::Workbench
