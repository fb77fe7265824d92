// A picture by name: which drawing a view shows, and its size in twips. The artwork is the view's.
#pragma once

#include <cstdint>
#include <string>

namespace GleanerSvc {

struct Picture {
    std::string sName;
    std::int32_t lWidth = 0;
    std::int32_t lHeight = 0;

    friend bool operator==(const Picture&, const Picture&) = default;
};

} // namespace GleanerSvc
