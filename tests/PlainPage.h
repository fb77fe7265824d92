// A page that stands for one of another part of the wizard: it does what a test hangs on its events.
#pragma once

#include <functional>

#include "pagebind/WizardPage.h"

namespace GleanerSvc {

class PlainPage final : public WizardPage {
  public:
    using Step = std::function<void(IKeyedCollection& colParameters)>;

    explicit PlainPage(const Ref<Apartment>& oApartment, Step fnActivate = {}, Step fnDeactivate = {})
        : WizardPage(oApartment, "PlainPage", 10215, 7005) {
        CreatePageBase();
        if (fnActivate) On(Events().Activate, [this, fnActivate] { fnActivate(*Parameters()); });
        if (fnDeactivate) On(Events().Deactivate, [this, fnDeactivate] { fnDeactivate(*Parameters()); });
    }

  private:
    std::string ClassName() const override { return "PlainPage"; }
};

} // namespace GleanerSvc
