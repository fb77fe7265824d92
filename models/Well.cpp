#include "models/Well.h"

#include "models/IdText.h"
#include "pagebind/Failure.h"
#include "pagebind/Text.h"

namespace GleanerSvc::Models {

std::size_t WellPlace(const Well& oWell) {
    if (oWell.iCol < 0 || oWell.iCol >= PlateCols || oWell.iRow < 0 || oWell.iRow >= PlateRows) {
        throw Failure(FailureNumber::Subscript, "Plate",
                      "A plate has no well at column " + DecimalText(oWell.iCol) + ", row " +
                          DecimalText(oWell.iRow) + ".");
    }
    return static_cast<std::size_t>(oWell.iRow) * PlateCols + static_cast<std::size_t>(oWell.iCol);
}

std::string WriteWell(const Well& oWell) {
    return static_cast<char>('A' + oWell.iRow) + DecimalText(oWell.iCol + 1);
}

std::optional<Well> ReadWell(std::string_view sText) {
    if (sText.empty()) return std::nullopt;
    const std::int32_t iRow = sText.front() - 'A';
    const auto iNumber = ReadId(sText.substr(1));
    if (iRow < 0 || iRow >= PlateRows || !iNumber || *iNumber < 1 || *iNumber > PlateCols)
        return std::nullopt;
    return Well{*iNumber - 1, iRow};
}

} // namespace GleanerSvc::Models
