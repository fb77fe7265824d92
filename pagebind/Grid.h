// The grid behind every table, and its small objects. Abstract: a closed control that a filling brings.
//
// Rows run from 1 to NumRows and columns from 1 to NumCols; row 0 holds the headings, column 0 the row
// headers. Rows and columns travel as doubles. Cells hold text. The library checks neither rows nor columns
// before a call: a grid fails with subscript where it cannot serve one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/Event.h"
#include "pagebind/Object.h"
#include "pagebind/Value.h"

namespace GleanerSvc {

// The numbers by which a late-bound filling calls the grid's members.
namespace GridDispatch {
inline constexpr std::int32_t NumRows = 1;
inline constexpr std::int32_t NumCols = 2;
inline constexpr std::int32_t StaticOption6 = 6;
inline constexpr std::int32_t KeySelection = 9;
inline constexpr std::int32_t StaticOption14 = 14;
inline constexpr std::int32_t StaticOption18 = 18;
inline constexpr std::int32_t StaticOption27 = 27;
inline constexpr std::int32_t StaticOption29 = 29;
inline constexpr std::int32_t SetStyleRange = 32;
inline constexpr std::int32_t GetCellValue = 33;
inline constexpr std::int32_t SetCellValue = 34;
inline constexpr std::int32_t GetCellText = 44;
inline constexpr std::int32_t SetRowCount = 48;
inline constexpr std::int32_t RemoveRows = 54;
inline constexpr std::int32_t SetColWidth = 82;
inline constexpr std::int32_t HideCols = 84;
inline constexpr std::int32_t LockUpdate = 116;
inline constexpr std::int32_t Redraw = 117;
inline constexpr std::int32_t SetCurrentCell = 124;
inline constexpr std::int32_t SelectRange = 134;
inline constexpr std::int32_t CopySelection = 135;
inline constexpr std::int32_t HasSelection = 138;
inline constexpr std::int32_t RegisterBitmap = 166;
inline constexpr std::int32_t CreateStyleObject = 172;
inline constexpr std::int32_t Params = 175;
inline constexpr std::int32_t CreateRangeList = 20025;
inline constexpr std::int32_t CreateRangeObject = 20026;
inline constexpr std::int32_t SetCellText = 20045;
inline constexpr std::int32_t SortRows = 20047;
inline constexpr std::int32_t CreateSortInfo = 20049;
} // namespace GridDispatch

// The numbers of the grid's events.
namespace GridEventId {
inline constexpr std::int32_t GotFocus = 0;
inline constexpr std::int32_t OnLButtonClickedRowCol = 36;
inline constexpr std::int32_t OnLButtonDblClkRowCol = 37;
inline constexpr std::int32_t OnMouseEvent44 = 44;
inline constexpr std::int32_t OnRButtonClickedRowCol = 45;
inline constexpr std::int32_t OnStartSelection = 62;
inline constexpr std::int32_t OnSelectionMoved = 64;
inline constexpr std::int32_t OnTrackColWidthEnd = 72;
inline constexpr std::int32_t OnGridKeyDown = 76;
inline constexpr std::int32_t OnGridKeyUp = 77;
inline constexpr std::int32_t OnGridNotifyA = 87;
inline constexpr std::int32_t OnGridNotifyB = 94;
} // namespace GridEventId

// The constants that the members are called with.
namespace GridConst {
inline constexpr std::int16_t WriteText = 2;          // SetCellText
inline constexpr std::int16_t RedrawAll = 2;          // Redraw
inline constexpr std::int16_t StyleOverride = 0;      // SetStyleRange
inline constexpr std::int32_t CellControl = 52513;    // SetControl
inline constexpr std::int32_t HiddenColWidth = 20;    // SetColWidth
inline constexpr std::int32_t BitmapNumber = 2000;    // RegisterBitmap, SetBitmap
inline constexpr std::int16_t SelectionOff = 0;       // EnableSelection
inline constexpr std::int16_t SelectionFull = 255;    // EnableSelection
inline constexpr std::int16_t SortByText = 2;         // SortType
inline constexpr std::int16_t SortByNumberOrDate = 3; // SortType
inline constexpr std::int16_t SortDescending = 1;     // SortOrder; unset otherwise
inline constexpr std::int16_t SortRowsMode = 3;       // SortRows
inline constexpr std::int16_t SortKeysInUse = 2;      // SortRows
} // namespace GridConst

class IGridRange : public virtual IObject {
  public:
    virtual void SetTable() = 0; // the whole table
    virtual void InitRange(double nLeft, double nTop, double nRight, double nBottom) = 0;
    virtual double Top() = 0;
    virtual double Bottom() = 0;
};

class IGridRangeList : public virtual IObject {
  public:
    virtual std::int32_t GetCount() = 0;
    virtual Ref<IGridRange> Range(std::int32_t lPlace) = 0; // 1 to GetCount
};

class IGridStyle : public virtual IObject {
  public:
    virtual void SetControl(std::int32_t lControl) = 0;
    virtual void SetInterior(std::int32_t lColor) = 0; // red in the lowest byte, then green, then blue
    virtual void SetTextColor(std::int32_t lColor) = 0;
    virtual void SetBitmap(std::int32_t lBitmap) = 0;
};

class IGridParams : public virtual IObject {
  public:
    virtual void EnableSelection(std::int16_t iKinds) = 0;
};

// One sort key. What is not written keeps what the grid gave it.
class ISortInfo : public virtual IObject {
  public:
    virtual void nRC(double dCol) = 0; // "nRC"
    virtual void SortType(std::int16_t iType) = 0;
    virtual void bCase(bool bCase) = 0; // "bCase"
    virtual void SortOrder(std::int16_t iOrder) = 0;
};

// What a handler hands back to the grid through the event's by-reference argument: member "Value", -1 when
// the gesture was dealt with.
struct GestureResult {
    GleanerSvc::Value vValue;
};

// The grid's events, with the arguments that handlers read. A click on the heading row has row 0.
struct GridEvents {
    using MouseEvent = Event<double, double, GestureResult&>; // row, column, result
    using KeyEvent = Event<std::int32_t, GestureResult&>;     // key code, result

    Event<> GotFocus;
    MouseEvent OnLButtonClickedRowCol;
    MouseEvent OnLButtonDblClkRowCol;
    MouseEvent OnMouseEvent44;
    MouseEvent OnRButtonClickedRowCol;
    MouseEvent OnStartSelection;
    Event<Ref<IGridRange>> OnSelectionMoved;
    Event<double, GestureResult&> OnTrackColWidthEnd; // column, result
    KeyEvent OnGridKeyDown;
    KeyEvent OnGridKeyUp;
    Event<GestureResult&> OnGridNotifyA;
    Event<GestureResult&> OnGridNotifyB;
};

class IGrid : public virtual IObject {
  public:
    virtual double NumRows() = 0;
    virtual void NumRows(double dRows) = 0;
    virtual double NumCols() = 0;
    virtual void NumCols(double dCols) = 0;

    // True while a key is down; False before any bulk change.
    virtual void KeySelection(bool bOn) = 0;

    // The returned text stands until this grid is next called.
    virtual std::string_view GetCellText(double dRow, double dCol) = 0;
    virtual std::string_view GetCellValue(double dRow, double dCol) = 0;

    // A cell below the last row can be written; it comes to light when the row count grows over it.
    virtual void SetCellText(double dRow, double dCol, std::string_view sText, std::int16_t iWriteText) = 0;
    virtual void SetCellValue(double dRow, double dCol, std::string_view sText) = 0;

    virtual void SetRowCount(double dRows) = 0;
    virtual void RemoveRows(double dFirst, double dLast) = 0; // dLast below dFirst removes nothing

    virtual void SetColWidth(double dFirstCol, double dLastCol, std::int32_t lWidth) = 0;
    virtual void HideCols(double dFirstCol, double dLastCol, bool bHide) = 0;

    // A flag, not a depth: one False resumes painting however many True came before.
    virtual void LockUpdate(bool bLock) = 0;
    virtual void Redraw(std::int16_t iRedrawAll) = 0;
    virtual void SetCurrentCell(double dRow, double dCol) = 0;

    virtual Ref<IGridRange> CreateRangeObject() = 0;
    virtual Ref<IGridStyle> CreateStyleObject() = 0;
    virtual Ref<IGridRangeList> CreateRangeList() = 0;
    virtual Ref<ISortInfo> CreateSortInfo() = 0;
    virtual Ref<IGridParams> Params() = 0;

    virtual void SetStyleRange(const Ref<IGridRange>& oRange, const Ref<IGridStyle>& oStyle,
                               std::int16_t iOverride) = 0;
    virtual void CopySelection(const Ref<IGridRangeList>& oRangeList, bool bRows) = 0; // fills the list
    virtual void SelectRange(const Ref<IGridRange>& oRange, bool bSelect) = 0;
    virtual bool HasSelection() = 0;

    // aSortInfo may hold more places than keys in use.
    virtual void SortRows(const Ref<IGridRange>& oRange, std::int16_t iMode,
                          const std::vector<Ref<ISortInfo>>& aSortInfo, std::int16_t iKeysInUse) = 0;

    virtual void RegisterBitmap(std::int32_t lNumber, std::string_view sPath, std::string_view sMaskPath,
                                std::string_view sFlags) = 0;

    // Behaviour switches; together they fix the grid for the operator.
    virtual void StaticOption29(std::int16_t iValue) = 0;
    virtual void StaticOption18(std::int16_t iValue) = 0;
    virtual void StaticOption6(std::int16_t iValue) = 0;
    virtual void StaticOption14(std::int16_t iValue) = 0;
    virtual void StaticOption27(std::int16_t iValue) = 0;

    virtual GridEvents& Events() = 0;
};

} // namespace GleanerSvc
