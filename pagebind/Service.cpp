#include "pagebind/Service.h"

#include <utility>

namespace GleanerSvc {

Service::Service(Ref<Apartment> oApartment) : Trapped(std::move(oApartment)) {
    Raising("Class_Initialize", [&] {
        m_oServiceBase = Context().Libraries().CreateServiceBase();
        Deref(m_oServiceBase); // a filling without a service base fails here and not in the framework
    });
}

Ref<IService> Service::ServiceObject() {
    return Raising("IServiceAccess_Service (Get)", [&] { return Cast<IService>(m_oServiceBase); });
}

} // namespace GleanerSvc
