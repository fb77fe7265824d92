// Pictures of the windows in their main states, for documents and for whoever changes how they look.
#pragma once

#include <string>
#include <vector>

namespace GleanerSvc::Workbench {

// Walks over a simulated plate in a lab of its own, and leaves each state as PNG, light and dark, at 100 and
// at 200 percent: "plate-dark-200.png". Yields the files; one that cannot be written fails with InputError.
std::vector<std::string> TakeScreenshots(const std::string& sFolder);

} // namespace GleanerSvc::Workbench
