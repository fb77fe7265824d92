// The texts of traces and of kits' tables.
#pragma once

#include <string>
#include <string_view>

namespace GleanerSvc::Workbench {

// As UTF-8. Bytes that are none are read as Latin-1, so that two names stay two. What controls a terminal
// becomes a blank: a name goes into lines that people and scripts read.
std::string TraceText(std::string_view sBytes);

} // namespace GleanerSvc::Workbench
