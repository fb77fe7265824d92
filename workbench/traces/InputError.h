// What is wrong with an input that came from outside: a trace file, a table, an argument.
#pragma once

#include <stdexcept>
#include <string>

namespace GleanerSvc::Workbench {

// The message reads "B02.fsa: directory entry 17 (DATA 105): its data end at byte 220044, the file at
// 109299". The place may be empty.
class InputError : public std::runtime_error {
  public:
    InputError(const std::string& sInput, const std::string& sPlace, const std::string& sWhat)
        : std::runtime_error(sInput + (sPlace.empty() ? "" : ": " + sPlace) + ": " + sWhat) {}
};

} // namespace GleanerSvc::Workbench
