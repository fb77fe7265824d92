// The framework's base object of a service. It has no operation that the library calls.
#pragma once

#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

class ServiceBaseModel final : public IServiceBase, public IService {};

} // namespace GleanerSvc::Models
