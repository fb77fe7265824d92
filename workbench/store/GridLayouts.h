// The columns of the grids of a new lab.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace GleanerSvc::Workbench {

struct GridLayoutColumn {
    std::int32_t lGridTypeID;
    std::int32_t lPlace; // from 1
    std::string sHeading;
    std::int32_t lWidth; // twips
};

// By grid type and place.
std::vector<GridLayoutColumn> GridLayoutColumns();

} // namespace GleanerSvc::Workbench
