// Any bytes end in a sound trace or in an error, never in anything else.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "workbench/traces/TraceFile.h"

using namespace GleanerSvc::Workbench;

namespace {

bool IsSound(const Trace& oTrace) {
    const auto nScans = oTrace.Scans();
    return !oTrace.aoDyes.empty() && oTrace.aoDyes.size() <= 5 &&
           std::ranges::all_of(oTrace.aoDyes,
                               [&](const DyeSignal& oDye) { return oDye.aiValues.size() == nScans; }) &&
           std::ranges::all_of(oTrace.alOffScale, [&](std::int32_t lScan) {
               return lScan >= 0 && static_cast<std::size_t>(lScan) < nScans;
           });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t nBytes) {
    try {
        const auto oTrace = ReadTrace("input", std::as_bytes(std::span(pBytes, nBytes)));
        if (!IsSound(oTrace)) std::abort();
        WriteTrace(oTrace); // compares what it reads back; a text of more than 255 characters is an error
    } catch (const InputError&) {
        return 0;
    }
    return 0;
}
