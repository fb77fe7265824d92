// The base of what collections of a lab hold.
#pragma once

#include <cstdint>

#include "pagebind/Object.h"

namespace GleanerSvc::Workbench {

class LabRecord : public virtual IObject {
  public:
    virtual std::int32_t RecordID() const = 0; // by which a collection finds it
};

} // namespace GleanerSvc::Workbench
