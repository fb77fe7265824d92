// Where every gesture of an operator passes on its way into the models: a failure that leaves a handler is
// shown and goes no further.
#pragma once

#include <functional>
#include <string>

namespace GleanerSvc::Workbench {

class GestureDoor {
  public:
    // Told of a failure's description; shows a message box unless it is set.
    std::function<void(const std::string&)> OnFailure;

    void operator()(const std::function<void()>& fnGesture) const;
};

} // namespace GleanerSvc::Workbench
