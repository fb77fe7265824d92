#include "models/GridHelperModel.h"

#include "models/GridTypeRecord.h"
#include "pagebind/Numbers.h"

namespace GleanerSvc::Models {

namespace {

constexpr std::int32_t Black = 0;
constexpr std::int32_t White = 0xFFFFFF;

// The name of a grid in the journal, and the grid behind it once the entry is made.
struct Target {
    explicit Target(IGrid& oGrid) : pGrid(dynamic_cast<GridModel*>(&oGrid)) {}
    std::string_view Name() const { return pGrid ? std::string_view(pGrid->Name()) : "foreign grid"; }
    GridModel& Grid() const {
        if (!pGrid) throw Failure::Of(FailureNumber::TypeMismatch);
        return *pGrid;
    }

    GridModel* pGrid;
};

// The perceived brightness, 0 to 255 times 1000.
std::int32_t Luminance(std::int32_t lColor) {
    return 299 * (lColor & 0xFF) + 587 * (lColor >> 8 & 0xFF) + 114 * (lColor >> 16 & 0xFF);
}

} // namespace

void GridHelperModel::SetGridDefaults(IGrid& oGrid, bool bFlag, const Value& vFurther) {
    const Target oTarget(oGrid);
    Call("SetGridDefaults", oTarget.Name(), bFlag, vFurther);
    oTarget.Grid().ResetColumns();
}

void GridHelperModel::ApplyGridType(IGrid& oGrid, const Ref<IObject>& oGridType, bool bFirst, bool bSecond,
                                    bool bThird, const Value& vFurther) {
    const Target oTarget(oGrid);
    Call("ApplyGridType", oTarget.Name(), oGridType, bFirst, bSecond, bThird, vFurther);
    std::int32_t lCol = 0;
    for (const auto& oColumn : Deref(Cast<GridTypeRecord>(oGridType)).Columns()) {
        oTarget.Grid().LayOutColumn(++lCol, oColumn.sHeading, oColumn.lWidth);
    }
}

void GridHelperModel::HighlightRow(IGrid& oGrid, std::int32_t lRow, const Value& vFurther) {
    const Target oTarget(oGrid);
    Call("HighlightRow", oTarget.Name(), lRow, vFurther);
    oTarget.Grid().HighlightOnly(lRow);
}

bool GridHelperModel::IsRowHighlighted(IGrid& oGrid, double dRow) {
    const Target oTarget(oGrid);
    Call("IsRowHighlighted", oTarget.Name(), dRow);
    return oTarget.Grid().IsHighlighted(ToInt32(dRow));
}

std::int32_t GridHelperModel::GetHighlightedRowCount(IGrid& oGrid) {
    const Target oTarget(oGrid);
    Call("GetHighlightedRowCount", oTarget.Name());
    return oTarget.Grid().HighlightedRowCount();
}

void GridHelperModel::ClearGrid(IGrid& oGrid) {
    const Target oTarget(oGrid);
    Call("ClearGrid", oTarget.Name());
    oTarget.Grid().ClearHighlight();
}

std::string GridHelperModel::StatusText(Value& vStatus) {
    Call("StatusText", vStatus);
    const std::int32_t lCode = vStatus.ToInt32();
    const auto itText = m_oTexts.find(lCode);
    if (itText != m_oTexts.end()) return itText->second;
    return lCode == 0 ? "PASS" : "FAIL " + DecimalText(lCode);
}

std::int32_t GridHelperModel::ContrastColor(std::int32_t& lColor) {
    Call("ContrastColor", lColor);
    return Luminance(lColor) >= 128 * 1000 ? Black : White;
}

} // namespace GleanerSvc::Models
