// A page or a control of the library's own: the container at the root of its controls.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class UserControl : public Container {
  public:
    // Stands alone until a host embeds it; the size is the design's.
    UserControl(std::string sName, std::int32_t lWidth, std::int32_t lHeight)
        : Container(nullptr, std::move(sName), {0, 0, lWidth, lHeight}) {}
    UserControl(Container& oContainer, std::string sName, Bounds oBounds)
        : Container(&oContainer, std::move(sName), oBounds) {}
};

} // namespace GleanerSvc
