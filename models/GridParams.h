// The parameter object of a grid: turns the selecting of rows off and on.
#pragma once

#include "models/Journal.h"
#include "models/RowSelection.h"
#include "pagebind/Grid.h"

namespace GleanerSvc::Models {

class GridParams final : public IGridParams, Journaled {
  public:
    GridParams(Ref<Journal> oJournal, std::string sObject, Ref<RowSelection> oSelection)
        : Journaled(std::move(oJournal), std::move(sObject)), m_oSelection(std::move(oSelection)) {}

    // SelectionOff also clears the selection; any other kind allows it.
    void EnableSelection(std::int16_t iKinds) override {
        Call("EnableSelection", iKinds);
        m_oSelection->Enable(iKinds != GridConst::SelectionOff);
    }

  private:
    Ref<RowSelection> m_oSelection; // the grid's
};

} // namespace GleanerSvc::Models
