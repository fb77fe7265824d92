// What a lab refuses, or its database: the message names the file and what was wrong.
#pragma once

#include <stdexcept>

namespace GleanerSvc::Workbench {

class LabError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace GleanerSvc::Workbench
