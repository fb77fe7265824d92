// What the operator sees in step after every load, move and gesture: buttons, fixed lists, highlight.
#include "pagebind/GridSteps.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

// A button follows the row counts and the rows in focus, not the grid's own highlight.
void GleanerCtl::ShowButtons() {
    Raising("ShowButtons", [&] {
        const auto Show = [](const Side& oSide, Button& oAll, Button& oSingle) {
            const bool bRows = oSide.oGrid->NumRows() > 0;
            oAll.Enabled(bRows);
            oSingle.Enabled(bRows && oSide.dRow > 0);
        };
        Show(m_oAvailable, cmdAddAll, cmdAddSingle);
        Show(m_oSelected, cmdRemoveAll, cmdRemoveSingle);
    });
}

void GleanerCtl::MakeGridStatic(GridControl& oGrid) {
    Raising("MakeGridStatic", [&] { SetStaticOptions(*oGrid, 1); });
}

void GleanerCtl::UnHighlightRows(GridControl& oGrid) {
    Raising("UnHighlightRows", [&] { ClearSelection(*oGrid); });
}

// Row 0 is allowed and highlights the heading.
bool GleanerCtl::HighlightRow(GridControl* pGrid, std::int32_t lRow) {
    return Raising("HighlightRow", [&] {
        const char* sSource = "Check Parameters";
        if (!pGrid) {
            throw Failure(FailureNumber::CheckParameters, sSource, "Invalid parameter oGrid; its empty.");
        }
        GridControl& oGrid = *pGrid;
        if (lRow > oGrid->NumRows() || lRow < 0) {
            throw Failure(FailureNumber::CheckParameters, sSource,
                          "Invalid parameter lRow; too big or less than zero.  lRow=" + DecimalText(lRow));
        }
        const auto oRange = oGrid->CreateRangeObject();
        Deref(oRange).SetTable();
        oGrid->SelectRange(oRange, false);
        Deref(oRange).InitRange(0, lRow, oGrid->NumCols() + 1, lRow);
        oGrid->SelectRange(oRange, true);
        return true;
    });
}

} // namespace GleanerSvc
