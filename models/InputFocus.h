// Which grid of a desktop holds the input focus. Shared by all grids of one filling.
#pragma once

namespace GleanerSvc::Models {

class GridModel;

struct InputFocus {
    const GridModel* pHolder = nullptr; // null while the focus is on none of them
};

} // namespace GleanerSvc::Models
