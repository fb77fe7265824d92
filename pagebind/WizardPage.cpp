#include "pagebind/WizardPage.h"

#include <utility>

namespace GleanerSvc {

WizardPage::WizardPage(const Ref<Apartment>& oApartment, std::string sName, std::int32_t lWidth,
                       std::int32_t lHeight)
    : Trapped(oApartment), UserControl(std::move(sName), lWidth, lHeight) {}

Ref<IPage> WizardPage::Page() {
    return Raising("IPageAccess_Page (Get)", [&] { return Cast<IPage>(m_oPageBase); });
}

void WizardPage::CreatePageBase() { m_oPageBase = Context().Libraries().CreatePageBase(); }

bool WizardPage::IsIn(const IKeyedCollection& colAny, std::string_view sKey) const {
    return Deref(Context().Utility()).IsInCollection(colAny, sKey);
}

void WizardPage::RemoveIfPresent(IKeyedCollection& colParameters, std::string_view sKey) const {
    if (IsIn(colParameters, sKey)) colParameters.Remove(sKey);
}

void WizardPage::Replace(IKeyedCollection& colParameters, const Value& vItem, std::string_view sKey) const {
    RemoveIfPresent(colParameters, sKey);
    colParameters.Add(vItem, sKey);
}

} // namespace GleanerSvc
