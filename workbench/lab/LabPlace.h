// Where the user's lab lies, and the folders that a lab's file needs.
#pragma once

#include <filesystem>

#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

std::filesystem::path UsualLabFile(); // lab.sqlite in the user's data folder
// As Lab::Open; a lab that may be made gets its folder made as well.
Ref<Lab> OpenLabFile(const std::filesystem::path& oFile, LabMode eMode);

} // namespace GleanerSvc::Workbench
