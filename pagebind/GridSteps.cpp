#include "pagebind/GridSteps.h"

#include <vector>

#include "pagebind/Numbers.h"

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

void SortRows(IGrid& oGrid, double dColumn, bool bDescending, bool bCase) {
    const auto oRange = oGrid.CreateRangeObject();
    Deref(oRange).SetTable();
    std::vector<Ref<ISortInfo>> aSortInfo(4); // the last stays empty
    for (std::size_t nKey = 0; nKey < 3; ++nKey) aSortInfo[nKey] = oGrid.CreateSortInfo();
    const auto Fill = [&](ISortInfo& oKey, double dCol, std::int16_t iType) {
        oKey.nRC(dCol);
        oKey.SortType(iType);
        oKey.bCase(bCase);
        if (bDescending) oKey.SortOrder(GridConst::SortDescending);
    };
    Fill(Deref(aSortInfo[0]), 1, GridConst::SortByText);
    Fill(Deref(aSortInfo[1]), dColumn, GridConst::SortByNumberOrDate);
    oGrid.SortRows(oRange, GridConst::SortRowsMode, aSortInfo, GridConst::SortKeysInUse);
}

void FillRowIndex(IRowIndex& oRowIndex, IGridRangeList& oRanges, std::int32_t lRanges) {
    oRowIndex.Reset(false);
    for (std::int32_t lRange = 1; lRange <= lRanges; ++lRange) {
        const auto oRange = oRanges.Range(lRange);
        const std::int32_t lTop = ToInt32(Deref(oRange).Top());
        const std::int32_t lBottom = ToInt32(oRange->Bottom());
        for (std::int32_t lRow = lTop; lRow <= lBottom; ++lRow) oRowIndex.Add(lRow, lRow, false);
    }
}

Value RowAt(IRowIndex& oRowIndex, const std::vector<Value>& avKeys, std::int32_t lPlace) {
    if (lPlace < 1 || lPlace >= std::ssize(avKeys)) throw Failure::Of(FailureNumber::Subscript);
    return oRowIndex.Item(avKeys[static_cast<std::size_t>(lPlace)]);
}

} // namespace GleanerSvc
