// Subscriptions that end together: with their holder, or at Clear.
#pragma once

#include <utility>
#include <vector>

#include "pagebind/Event.h"

namespace GleanerSvc {

class Subscriptions {
  public:
    template<class... Args, class F>
    void On(Event<Args...>& oEvent, F&& fnHandler) {
        m_aoHeld.push_back(oEvent.Subscribe(std::forward<F>(fnHandler)));
    }
    // Ends them all. A handler among them may do it while it runs.
    void Clear() { m_aoHeld.clear(); }

  private:
    std::vector<Subscription> m_aoHeld;
};

} // namespace GleanerSvc
