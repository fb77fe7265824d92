// The place of a grid on a page: its name, bounds and visibility around the closed grid itself.
#pragma once

#include "pagebind/Apartment.h"
#include "pagebind/Grid.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class GridControl final : public Control {
  public:
    GridControl(Container& oContainer, std::string sName, Bounds oBounds, Apartment& oApartment)
        : Control(&oContainer, std::move(sName), oBounds), m_oGrid(oApartment.Libraries().CreateGrid(*this)) {
        Deref(m_oGrid); // a filling without a grid fails here and not at the first use
    }

    IGrid& operator*() const { return *m_oGrid; }
    IGrid* operator->() const { return m_oGrid.get(); }
    const Ref<IGrid>& Grid() const { return m_oGrid; }

  private:
    Ref<IGrid> m_oGrid;
};

} // namespace GleanerSvc
