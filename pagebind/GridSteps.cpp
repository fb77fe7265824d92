#include "pagebind/GridSteps.h"

namespace GleanerSvc {

void ClearSelection(IGrid& oGrid) {
    const auto oRange = oGrid.CreateRangeObject();
    Deref(oRange).SetTable();
    oGrid.SelectRange(oRange, false);
    const auto oParams = oGrid.Params();
    Deref(oParams).EnableSelection(GridConst::SelectionOff);
    oParams->EnableSelection(GridConst::SelectionFull);
}

void SetStaticOptions(IGrid& oGrid, std::int16_t iLast) {
    oGrid.StaticOption29(1);
    oGrid.StaticOption18(1);
    oGrid.StaticOption6(2);
    oGrid.StaticOption14(0);
    oGrid.StaticOption27(iLast);
}

} // namespace GleanerSvc
