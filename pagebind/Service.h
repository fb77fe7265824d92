// The library's entry object: it holds the service base that the framework asks for.
#pragma once

#include "pagebind/Framework.h"
#include "pagebind/Trap.h"

namespace GleanerSvc {

class Service final : public IServiceAccess, private Trapped {
  public:
    // Creates the service base. A failure is reported under "Class_Initialize" and goes on.
    explicit Service(Ref<Apartment> oApartment);

    // The one service base, at each call the same.
    Ref<IService> ServiceObject() override;

  private:
    std::string ClassName() const override { return "Service"; }

    Ref<IServiceBase> m_oServiceBase;
};

} // namespace GleanerSvc
