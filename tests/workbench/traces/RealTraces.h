// Trace files and tables of a real instrument, for tests that are skipped where there are none.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>

namespace GleanerSvc::Workbench {

inline std::optional<std::filesystem::path> RealTraces() {
    const char* sFolder = std::getenv("GLEANER_REAL_TRACES");
    if (sFolder == nullptr || *sFolder == '\0') return {};
    return sFolder;
}

} // namespace GleanerSvc::Workbench
