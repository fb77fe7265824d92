// The place of a locus tag selector on a page, around the closed selector itself and what controls it shows.
#pragma once

#include "pagebind/TagSelectors.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class SelectorControl final : public Container {
  public:
    // fnCreate(site) makes the closed control.
    template<class F>
    SelectorControl(Container& oContainer, std::string sName, Bounds oBounds, F&& fnCreate)
        : Container(&oContainer, std::move(sName), oBounds),
          m_oSelector(fnCreate(static_cast<Container&>(*this))) {
        Deref(m_oSelector); // a filling without a selector fails here and not at the first use
    }

    ITagSelector& operator*() const { return *m_oSelector; }
    ITagSelector* operator->() const { return m_oSelector.get(); }

  private:
    Ref<ITagSelector> m_oSelector;
};

} // namespace GleanerSvc
