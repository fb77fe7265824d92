// A sized trace as the bytes that a lab keeps of it.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "workbench/calling/Sizing.h"
#include "workbench/store/LabError.h"

namespace GleanerSvc::Workbench {

// Numbers are little-endian; the first byte is the version of the form. What is unpacked equals what was
// packed, to the last bit.
std::vector<std::byte> PackSized(const SizedTrace& oTrace);

// Every length is checked before anything is read by it. Fails with LabError, telling the byte and what was
// wrong there.
SizedTrace UnpackSized(std::span<const std::byte> abContent);

} // namespace GleanerSvc::Workbench
