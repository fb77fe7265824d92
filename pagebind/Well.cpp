#include "pagebind/Well.h"

#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

std::int16_t WellIndex(const Well& oWell) {
    if (oWell.iCol < 0 || oWell.iCol >= PlateCols || oWell.iRow < 0 || oWell.iRow >= PlateRows) {
        throw Failure(FailureNumber::Subscript, "Plate",
                      "A plate has no well at column " + DecimalText(oWell.iCol) + ", row " +
                          DecimalText(oWell.iRow) + ".");
    }
    return static_cast<std::int16_t>(oWell.iRow * PlateCols + oWell.iCol + 1);
}

Well WellAt(std::int16_t iIndex) { return {(iIndex - 1) % PlateCols, (iIndex - 1) / PlateCols}; }

std::optional<Well> ReadWell(std::string_view sText) {
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
        if (WellText(WellAt(iIndex)) == sText) return WellAt(iIndex);
    }
    return std::nullopt;
}

std::string WellText(const Well& oWell) { return RowLetter(oWell.iRow) + DecimalText(oWell.iCol + 1); }

} // namespace GleanerSvc
