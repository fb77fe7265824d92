// Numbers in an operator's lines.
#pragma once

#include <string>

namespace GleanerSvc::Workbench {

// With so many digits after the point, in any locale "0.99993".
std::string FixedText(double dValue, int nDigits);

} // namespace GleanerSvc::Workbench
