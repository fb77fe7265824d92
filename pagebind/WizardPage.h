// What every wizard page has: its base object, by which the framework drives it, and the way to the host and
// to the parameter store of the run.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "pagebind/Framework.h"
#include "pagebind/Subscriptions.h"
#include "pagebind/Trap.h"
#include "pagebind/controls/UserControl.h"

namespace GleanerSvc {

class WizardPage : protected Trapped, public UserControl, public IPageAccess {
  public:
    // The base object seen through the framework's page interface; nothing if its creation failed.
    Ref<IPage> Page() override;

  protected:
    // The name is the class name; the size is the design's, in twips.
    WizardPage(const Ref<Apartment>& oApartment, std::string sName, std::int32_t lWidth,
               std::int32_t lHeight);

    // The chief step of a page's UserControl_Initialize. The host does not exist for the page yet. A page
    // then connects the events that it handles.
    void CreatePageBase();
    // What a page's destructor does first: its controls end before this base, and none may tell it anything
    // then.
    void Disconnect() { m_oSubscriptions.Clear(); }
    PageEvents& Events() const { return Deref(m_oPageBase).Events(); }
    template<class E, class F>
    void On(E& oEvent, F&& fnHandler) {
        m_oSubscriptions.On(oEvent, std::forward<F>(fnHandler));
    }

    // Not before the page's Initialize.
    Ref<IPageHost> Host() const { return Deref(m_oPageBase).Host(); }
    Ref<IKeyedCollection> Parameters() const { return Deref(m_oPageBase).Parameters(); }
    void ValidatePage() const { Deref(m_oPageBase).ValidatePage(); }

    // Asked of the utility object, before a key that may be absent is read or removed.
    bool IsIn(const IKeyedCollection& colAny, std::string_view sKey) const;
    void RemoveIfPresent(IKeyedCollection& colParameters, std::string_view sKey) const;
    void Replace(IKeyedCollection& colParameters, const Value& vItem, std::string_view sKey) const;

  private:
    Ref<IPageBase> m_oPageBase;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc
