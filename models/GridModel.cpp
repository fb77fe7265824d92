#include "models/GridModel.h"

#include <algorithm>

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

namespace {

// The filling's own object behind an interface.
template<class T, class S>
T& Own(const Ref<S>& oObject) {
    return Deref(Cast<T>(oObject));
}

std::size_t ToSize(std::int32_t lPlace) { return static_cast<std::size_t>(std::max(lPlace, 0)); }

} // namespace

GridModel::GridModel(Ref<Journal> oJournal, Ref<InputFocus> oFocus, const Control& oSite)
    : Journaled(std::move(oJournal), oSite.Name()), m_oFocus(std::move(oFocus)), m_oSite(oSite),
      m_oSelection(std::make_shared<RowSelection>()) {
    m_oSelection->OnChanged = [this] { Changed(); };
}

GridModel::~GridModel() {
    m_oSelection->OnChanged = nullptr; // a parameter object may keep the selection
    if (HasFocus()) m_oFocus->pHolder = nullptr;
}

double GridModel::NumRows() {
    Call("NumRows");
    return static_cast<double>(m_oTable.Rows());
}

void GridModel::NumRows(double dRows) {
    Call("NumRows", dRows);
    CountRows(dRows);
}

double GridModel::NumCols() {
    Call("NumCols");
    return static_cast<double>(m_oTable.Cols());
}

void GridModel::NumCols(double dCols) {
    Call("NumCols", dCols);
    const std::size_t nCols = Place(dCols, LargestCol - 1, "count of columns");
    const bool bShrinks = nCols < m_oTable.Cols();
    m_oTable.Cols(nCols);
    if (bShrinks && m_aoColumns.size() > nCols + 1) m_aoColumns.resize(nCols + 1);
    Changed();
}

void GridModel::KeySelection(bool bOn) {
    Call("KeySelection", bOn);
    m_bKeySelection = bOn;
}

std::string_view GridModel::GetCellText(double dRow, double dCol) {
    Call("GetCellText", dRow, dCol);
    return Read(dRow, dCol);
}

std::string_view GridModel::GetCellValue(double dRow, double dCol) {
    Call("GetCellValue", dRow, dCol);
    return Read(dRow, dCol);
}

void GridModel::SetCellText(double dRow, double dCol, std::string_view sText, std::int16_t iWriteText) {
    Call("SetCellText", dRow, dCol, sText, iWriteText);
    ExpectConstant("SetCellText", iWriteText, GridConst::WriteText);
    Write(dRow, dCol, sText);
}

void GridModel::SetCellValue(double dRow, double dCol, std::string_view sText) {
    Call("SetCellValue", dRow, dCol, sText);
    Write(dRow, dCol, sText);
}

void GridModel::SetRowCount(double dRows) {
    Call("SetRowCount", dRows);
    CountRows(dRows);
}

void GridModel::RemoveRows(double dFirst, double dLast) {
    Call("RemoveRows", dFirst, dLast);
    if (dLast < dFirst) return;
    const RowSpan oSpan{RowPlace(dFirst), std::min(RowPlace(dLast), m_oTable.Rows())};
    if (oSpan.nTop == 0) FailSubscript("cannot remove its heading row");
    m_oTable.Remove(oSpan);
    m_oSelection->RowsRemoved(oSpan);
    m_nCurrentRow = std::min(m_nCurrentRow, m_oTable.Rows());
    Changed();
}

void GridModel::SetColWidth(double dFirstCol, double dLastCol, std::int32_t lWidth) {
    Call("SetColWidth", dFirstCol, dLastCol, lWidth);
    ChangeColumns(dFirstCol, dLastCol, [lWidth](Column& oColumn) { oColumn.lWidth = lWidth; });
}

void GridModel::HideCols(double dFirstCol, double dLastCol, bool bHide) {
    Call("HideCols", dFirstCol, dLastCol, bHide);
    ChangeColumns(dFirstCol, dLastCol, [bHide](Column& oColumn) { oColumn.bHidden = bHide; });
}

void GridModel::LockUpdate(bool bLock) {
    Call("LockUpdate", bLock);
    m_bLocked = bLock;
    if (bLock) m_bStale = false;
    Changed();
}

void GridModel::Redraw(std::int16_t iRedrawAll) {
    Call("Redraw", iRedrawAll);
    ExpectConstant("Redraw", iRedrawAll, GridConst::RedrawAll);
    if (!m_bLocked) ++m_lRedraws;
    Changed();
}

void GridModel::SetCurrentCell(double dRow, double dCol) {
    Call("SetCurrentCell", dRow, dCol);
    Read(dRow, dCol); // fails where there is no cell
    m_nCurrentRow = RowPlace(dRow);
    m_nCurrentCol = ColPlace(dCol);
    Changed();
}

Ref<IGridRange> GridModel::CreateRangeObject() {
    Call("CreateRangeObject");
    return NewRange({});
}

Ref<IGridStyle> GridModel::CreateStyleObject() {
    Call("CreateStyleObject");
    return std::make_shared<GridStyle>(SharedJournal(), Name() + ".Style");
}

Ref<IGridRangeList> GridModel::CreateRangeList() {
    Call("CreateRangeList");
    return std::make_shared<GridRangeList>(SharedJournal(), Name() + ".RangeList");
}

Ref<ISortInfo> GridModel::CreateSortInfo() {
    Call("CreateSortInfo");
    return std::make_shared<SortInfo>(SharedJournal(), Name() + ".SortInfo");
}

Ref<IGridParams> GridModel::Params() {
    Call("Params");
    return std::make_shared<GridParams>(SharedJournal(), Name() + ".Params", m_oSelection);
}

void GridModel::SetStyleRange(const Ref<IGridRange>& oRange, const Ref<IGridStyle>& oStyle,
                              std::int16_t iOverride) {
    Call("SetStyleRange", oRange, oStyle, iOverride);
    ExpectConstant("SetStyleRange", iOverride, GridConst::StyleOverride);
    const auto& oCells = Own<GridRange>(oRange);
    const RowSpan oRows = oCells.IsTable() ? RowsThatExist(oCells) : RowsOf(oCells);
    const std::size_t nFirstCol = ColPlace(oCells.Place().dLeft);
    const std::size_t nLastCol = oCells.IsTable() ? m_oTable.Cols() : ColPlace(oCells.Place().dRight);
    m_oTable.LayStyle(oRows, nFirstCol, nLastCol, Own<GridStyle>(oStyle).Style());
    Changed();
}

void GridModel::CopySelection(const Ref<IGridRangeList>& oRangeList, bool bRows) {
    Call("CopySelection", oRangeList, bRows);
    std::vector<Ref<IGridRange>> aoRanges;
    for (const RowSpan& oRows : m_oSelection->Spans()) aoRanges.push_back(NewRange(oRows));
    Own<GridRangeList>(oRangeList).Fill(std::move(aoRanges));
}

void GridModel::SelectRange(const Ref<IGridRange>& oRange, bool bSelect) {
    Call("SelectRange", oRange, bSelect);
    const auto& oCells = Own<GridRange>(oRange);
    if (bSelect) {
        m_oSelection->Add(RowsThatExist(oCells));
    } else if (oCells.IsTable()) {
        m_oSelection->Clear(); // the heading row as well
    } else {
        m_oSelection->TakeOut(RowsThatExist(oCells));
    }
}

bool GridModel::HasSelection() {
    Call("HasSelection");
    return !m_oSelection->IsEmpty();
}

void GridModel::SortRows(const Ref<IGridRange>& oRange, std::int16_t iMode,
                         const std::vector<Ref<ISortInfo>>& aSortInfo, std::int16_t iKeysInUse) {
    Call("SortRows", oRange, iMode, ObjectArray(aSortInfo.begin(), aSortInfo.end()), iKeysInUse);
    ExpectConstant("SortRows", iMode, GridConst::SortRowsMode);
    if (iKeysInUse < 0 || iKeysInUse > std::ssize(aSortInfo)) {
        FailSubscript("was given " + DecimalText(std::ssize(aSortInfo)) + " sort keys to use " +
                      DecimalText(iKeysInUse) + " of");
    }
    std::vector<SortKey> aoKeys;
    for (std::int16_t iKey = 0; iKey < iKeysInUse; ++iKey) {
        aoKeys.push_back(Own<SortInfo>(aSortInfo[static_cast<std::size_t>(iKey)]).Key());
        Place(aoKeys.back().dCol, m_oTable.Cols() + 1, "column to sort by");
    }
    RowSpan oRows = RowsThatExist(Own<GridRange>(oRange));
    oRows.nTop = std::max<std::size_t>(oRows.nTop, 1);
    m_oTable.Sort(oRows, aoKeys);
    m_oSortedBy.reset();
    if (!aoKeys.empty() && oRows.nTop == 1 && oRows.nBottom == m_oTable.Rows()) m_oSortedBy = aoKeys.front();
    Changed();
}

void GridModel::RegisterBitmap(std::int32_t lNumber, std::string_view sPath, std::string_view sMaskPath,
                               std::string_view sFlags) {
    Call("RegisterBitmap", lNumber, sPath, sMaskPath, sFlags);
    m_oBitmaps[lNumber] = sPath;
}

void GridModel::StaticOption29(std::int16_t iValue) { SetOption("StaticOption29", 29, iValue); }

void GridModel::StaticOption18(std::int16_t iValue) { SetOption("StaticOption18", 18, iValue); }

void GridModel::StaticOption6(std::int16_t iValue) { SetOption("StaticOption6", 6, iValue); }

void GridModel::StaticOption14(std::int16_t iValue) { SetOption("StaticOption14", 14, iValue); }

void GridModel::StaticOption27(std::int16_t iValue) { SetOption("StaticOption27", 27, iValue); }

void GridModel::ResetColumns() {
    m_aoColumns.clear();
    for (std::size_t nCol = 0; nCol <= m_oTable.Cols() + 1; ++nCol) m_oTable.Write(0, nCol, "");
    Changed();
}

void GridModel::LayOutColumn(std::int32_t lCol, std::string_view sHeading, std::int32_t lWidth) {
    ChangeColumns(lCol, lCol, [lWidth](Column& oColumn) { oColumn.lWidth = lWidth; });
    m_oTable.Write(0, ToSize(lCol), sHeading);
}

void GridModel::HighlightOnly(std::int32_t lRow) {
    m_oSelection->Clear();
    if (lRow < 1 || ToSize(lRow) > m_oTable.Rows()) return;
    m_oSelection->Add({ToSize(lRow), ToSize(lRow)});
}

std::string_view GridModel::Text(std::int32_t lRow, std::int32_t lCol) const {
    Place(lRow, m_oTable.Rows(), "row");
    return m_oTable.Text(ToSize(lRow), ColPlace(lCol));
}

bool GridModel::IsHighlighted(std::int32_t lRow) const {
    return lRow > 0 && m_oSelection->Holds(ToSize(lRow));
}

std::vector<std::int32_t> GridModel::HighlightedRows() const {
    std::vector<std::int32_t> alRows;
    for (const std::size_t nRow : m_oSelection->DataRows()) alRows.push_back(static_cast<std::int32_t>(nRow));
    return alRows;
}

CellStyle GridModel::StyleAt(std::int32_t lRow, std::int32_t lCol) const {
    Place(lRow, m_oTable.Rows(), "row");
    return m_oTable.StyleAt(ToSize(lRow), ColPlace(lCol));
}

std::optional<std::int16_t> GridModel::StaticOption(std::int32_t lNumber) const {
    const auto itOption = m_oOptions.find(lNumber);
    return itOption == m_oOptions.end() ? std::nullopt : std::optional(itOption->second);
}

std::string GridModel::BitmapPath(std::int32_t lNumber) const {
    const auto itBitmap = m_oBitmaps.find(lNumber);
    return itBitmap == m_oBitmaps.end() ? "" : itBitmap->second;
}

std::string GridModel::ToString() const {
    std::string sText;
    for (std::size_t nRow = 1; nRow <= m_oTable.Rows(); ++nRow) {
        sText.append(nRow > 1 ? ", " : "").append(m_oTable.Text(nRow, 1));
        if (m_oSelection->Holds(nRow)) sText += '*';
    }
    return "[" + sText + "]" + (m_bLocked ? " locked" : "");
}

void GridModel::FailSubscript(const std::string& sWhat) const {
    throw Failure(FailureNumber::Subscript, Name(),
                  Name() + " " + sWhat + "; it has " + DecimalText(Rows()) + " rows and " +
                      DecimalText(Cols()) + " columns.");
}

void GridModel::FailPlace(double dNumber, std::string_view sKind) const {
    FailSubscript("has no " + std::string(sKind) + " " + Value(dNumber).ToText());
}

void GridModel::FailConstant(std::string_view sOperation, std::int16_t iGiven, std::int16_t iKnown) const {
    throw Failure(FailureNumber::InvalidCall, Name(),
                  Name() + "." + std::string(sOperation) + " knows the constant " + DecimalText(iKnown) +
                      " and not " + DecimalText(iGiven) + ".");
}

void GridModel::CountRows(double dRows) {
    const std::size_t nRows = Place(dRows, LargestRow, "count of rows");
    if (nRows < m_oTable.Rows()) m_oSelection->RowsRemoved({nRows + 1, m_oTable.Rows()});
    if (nRows > m_oTable.Rows()) m_oSortedBy.reset();
    m_oTable.Rows(nRows);
    m_nCurrentRow = std::min(m_nCurrentRow, nRows);
    Changed();
}

RowSpan GridModel::RowsOf(const GridRange& oRange) const {
    const auto& oPlace = oRange.Place();
    if (oPlace.dBottom < oPlace.dTop || oPlace.dRight < oPlace.dLeft) return {};
    return {RowPlace(oPlace.dTop), RowPlace(oPlace.dBottom)};
}

RowSpan GridModel::RowsThatExist(const GridRange& oRange) const {
    const RowSpan oRows = RowsOf(oRange);
    return {oRows.nTop, std::min(oRows.nBottom, m_oTable.Rows())};
}

GridModel::Column GridModel::ColumnAt(std::int32_t lCol) const {
    const std::size_t nCol = ColPlace(lCol);
    return nCol < m_aoColumns.size() ? m_aoColumns[nCol] : Column();
}

Ref<GridRange> GridModel::NewRange(RowSpan oRows) const {
    GridRange::Corners oCorners;
    if (!oRows.IsEmpty()) {
        oCorners = {0, static_cast<double>(oRows.nTop), static_cast<double>(m_oTable.Cols() + 1),
                    static_cast<double>(oRows.nBottom)};
    }
    return std::make_shared<GridRange>(SharedJournal(), Name() + ".Range", oCorners);
}

void GridModel::SetOption(std::string_view sOperation, std::int32_t lNumber, std::int16_t iValue) {
    Call(sOperation, iValue);
    m_oOptions[lNumber] = iValue;
}

} // namespace GleanerSvc::Models
