// A grid without a screen: the cells, the highlight, the looks, the paint lock, and an operator's gestures.
#pragma once

#include <limits>
#include <map>
#include <optional>

#include "models/GridParams.h"
#include "models/GridRange.h"
#include "models/GridTable.h"
#include "models/InputFocus.h"
#include "pagebind/controls/Control.h"

namespace GleanerSvc::Models {

// Keys held while a mouse button is pressed.
enum class Keys { None, Ctrl, Shift };

// Codes of the keys that can be pressed in a grid; the first two move the current row.
enum class GridKey : std::int32_t {
    Up = 38,
    Down = 40,
    Space = 32,
    Enter = 13,
    Tab = 9,
    Shift = 16,
    Ctrl = 17
};

// Five doors, kept apart below: the interface, which a page calls and which makes a journal entry at each
// call under the name of its site; the operator's gestures; the grid helper's; a view's; and what a test or a
// view reads. Only the first makes journal entries.
//
// A row or column that is no whole number from 0 up, a row to be read that lies above NumRows, and a column
// to be read above NumCols + 1 fail with subscript. So do columns above the 16-bit and rows above the 32-bit
// range. A constant that the grid does not know fails with invalid call, an object of another filling with
// type mismatch.
class GridModel final : public IGrid, Journaled {
  public:
    static constexpr std::int32_t DefaultColWidth = 1440; // twips

    // The site gives the name and says whether the operator can reach the grid; it outlives the grid.
    GridModel(Ref<Journal> oJournal, Ref<InputFocus> oFocus, const Control& oSite);
    GridModel(const GridModel&) = delete;
    GridModel& operator=(const GridModel&) = delete;
    ~GridModel() override;

    // The page's door.
    double NumRows() override;
    void NumRows(double dRows) override;
    double NumCols() override;
    void NumCols(double dCols) override;
    void KeySelection(bool bOn) override;
    std::string_view GetCellText(double dRow, double dCol) override;
    std::string_view GetCellValue(double dRow, double dCol) override; // a cell's value is its text
    void SetCellText(double dRow, double dCol, std::string_view sText, std::int16_t iWriteText) override;
    void SetCellValue(double dRow, double dCol, std::string_view sText) override;
    void SetRowCount(double dRows) override;               // the same as writing NumRows
    void RemoveRows(double dFirst, double dLast) override; // dLast above NumRows means NumRows
    void SetColWidth(double dFirstCol, double dLastCol, std::int32_t lWidth) override;
    void HideCols(double dFirstCol, double dLastCol, bool bHide) override;
    void LockUpdate(bool bLock) override;
    void Redraw(std::int16_t iRedrawAll) override;
    void SetCurrentCell(double dRow, double dCol) override;
    Ref<IGridRange> CreateRangeObject() override;
    Ref<IGridStyle> CreateStyleObject() override;
    Ref<IGridRangeList> CreateRangeList() override;
    Ref<ISortInfo> CreateSortInfo() override;
    Ref<IGridParams> Params() override;
    void SetStyleRange(const Ref<IGridRange>& oRange, const Ref<IGridStyle>& oStyle,
                       std::int16_t iOverride) override;
    void CopySelection(const Ref<IGridRangeList>& oRangeList, bool bRows) override;
    void SelectRange(const Ref<IGridRange>& oRange, bool bSelect) override; // whole rows; those that exist
    bool HasSelection() override;
    void SortRows(const Ref<IGridRange>& oRange, std::int16_t iMode,
                  const std::vector<Ref<ISortInfo>>& aSortInfo, std::int16_t iKeysInUse) override;
    void RegisterBitmap(std::int32_t lNumber, std::string_view sPath, std::string_view sMaskPath,
                        std::string_view sFlags) override;
    void StaticOption29(std::int16_t iValue) override;
    void StaticOption18(std::int16_t iValue) override;
    void StaticOption6(std::int16_t iValue) override;
    void StaticOption14(std::int16_t iValue) override;
    void StaticOption27(std::int16_t iValue) override;
    GridEvents& Events() override { return m_oEvents; }

    // The operator's door. A gesture does nothing while the site cannot be operated, and none can reach a
    // row that does not exist or a column that does not exist or is hidden. What the handlers of the
    // gesture's own event set is handed back.
    //
    // A click takes the focus, starts a selection, highlights (alone, with Ctrl to and fro, with Shift from
    // the row clicked last without Shift) and clicks. On the heading row the highlight stays.
    GestureResult ClickLeft(double dRow, double dCol, Keys eKeys = Keys::None);
    // The same, and a double click after it; a highlighted row keeps the others that are highlighted with it.
    GestureResult DoubleClick(double dRow, double dCol);
    GestureResult ClickRight(double dRow, double dCol); // the highlight is left to the handlers
    void DragRows(double dFirst, double dLast);         // highlights them alone, in either direction
    // Up and Down move the current row between the key's two events, and highlight it alone if KeySelection
    // is on at that moment. The grid has the focus or takes it.
    void PressKey(GridKey eKey);
    GestureResult DragColumnWidth(double dCol, std::int32_t lWidth); // a result of 0 refuses it
    GestureResult MoveMouse44(double dRow, double dCol);
    void Focus();
    void NotifyA();
    void NotifyB();

    // The grid helper's door.
    void ResetColumns(); // headings empty, columns of default width and on show
    void LayOutColumn(std::int32_t lCol, std::string_view sHeading, std::int32_t lWidth);
    void HighlightOnly(std::int32_t lRow); // a row that does not exist, or 0: none is highlighted
    void ClearHighlight() { m_oSelection->Clear(); }

    // A view's door. The first change since MarkShown is told, the further ones are not: a view reads anew
    // then, once for many changes. Only a lock is told in any case: a view stops painting at once.
    Event<> OnChanged;
    void MarkShown() { m_bStale = false; }

    // What a test or a view reads. Rows and columns must exist.
    const std::string& Name() const { return ObjectName(); }
    std::int32_t Rows() const { return static_cast<std::int32_t>(m_oTable.Rows()); }
    std::int32_t Cols() const { return static_cast<std::int32_t>(m_oTable.Cols()); }
    std::string_view Text(std::int32_t lRow, std::int32_t lCol) const;
    bool IsHighlighted(std::int32_t lRow) const;
    std::vector<std::int32_t> HighlightedRows() const; // data rows, ascending
    std::int32_t HighlightedRowCount() const {
        return static_cast<std::int32_t>(m_oSelection->DataRowCount());
    }
    const RowSelection& Selection() const { return *m_oSelection; }
    CellStyle StyleAt(std::int32_t lRow, std::int32_t lCol) const;
    bool IsColumnHidden(std::int32_t lCol) const { return ColumnAt(lCol).bHidden; }
    std::int32_t ColumnWidth(std::int32_t lCol) const { return ColumnAt(lCol).lWidth; } // twips
    bool IsLocked() const { return m_bLocked; }
    std::int32_t RedrawCount() const { return m_lRedraws; } // of the calls that came while unlocked
    bool IsKeySelectionOn() const { return m_bKeySelection; }
    bool HasFocus() const { return m_oFocus->pHolder == this; }
    std::int32_t CurrentRow() const { return static_cast<std::int32_t>(m_nCurrentRow); } // 0 for none
    std::int32_t CurrentCol() const { return static_cast<std::int32_t>(m_nCurrentCol); }
    // The first key that all rows were sorted by; nothing once a row came or changed in that column.
    const std::optional<SortKey>& SortedBy() const { return m_oSortedBy; }
    std::optional<std::int16_t> StaticOption(std::int32_t lNumber) const; // none while never written
    std::string BitmapPath(std::int32_t lNumber) const;                   // "" for a number not registered

    // The text of column 1 of each row, "*" after a highlighted one, and whether painting is off:
    // "[A1, A2*, A3] locked".
    std::string ToString() const;

  private:
    struct Column {
        bool bHidden = false;
        std::int32_t lWidth = DefaultColWidth;
    };

    static constexpr std::int32_t LargestPlace = std::numeric_limits<std::int32_t>::max();
    static constexpr std::size_t LargestRow = LargestPlace;
    static constexpr std::size_t LargestCol = std::numeric_limits<std::int16_t>::max();

    [[noreturn]] void FailSubscript(const std::string& sWhat) const;
    [[noreturn]] void FailPlace(double dNumber, std::string_view sKind) const;
    [[noreturn]] void FailConstant(std::string_view sOperation, std::int16_t iGiven,
                                   std::int16_t iKnown) const;

    void ExpectConstant(std::string_view sOperation, std::int16_t iGiven, std::int16_t iKnown) const {
        if (iGiven != iKnown) FailConstant(sOperation, iGiven, iKnown);
    }
    // A whole number from 0 to nLast.
    static bool IsPlace(double dNumber, std::size_t nLast) {
        if (!(dNumber >= 0 && dNumber <= LargestPlace)) return false;
        const auto lNumber = static_cast<std::int32_t>(dNumber);
        return lNumber == dNumber && static_cast<std::size_t>(lNumber) <= nLast;
    }
    std::size_t Place(double dNumber, std::size_t nLast, std::string_view sKind) const {
        if (!IsPlace(dNumber, nLast)) FailPlace(dNumber, sKind);
        return static_cast<std::size_t>(static_cast<std::int32_t>(dNumber));
    }
    std::size_t RowPlace(double dRow) const { return Place(dRow, LargestRow, "row"); }
    std::size_t ColPlace(double dCol) const { return Place(dCol, LargestCol, "column"); }
    std::string_view Read(double dRow, double dCol) {
        const std::size_t nRow = Place(dRow, m_oTable.Rows(), "row");
        return m_oTable.Text(nRow, Place(dCol, m_oTable.Cols() + 1, "column"));
    }
    void Write(double dRow, double dCol, std::string_view sText) {
        m_oTable.Write(RowPlace(dRow), ColPlace(dCol), sText);
        if (m_oSortedBy && dRow > 0 && m_oSortedBy->dCol == dCol) m_oSortedBy.reset();
        Changed();
    }
    void Changed() {
        if (m_bStale) return;
        m_bStale = true;
        OnChanged.Raise();
    }
    void CountRows(double dRows);
    RowSpan RowsOf(const GridRange& oRange) const;
    RowSpan RowsThatExist(const GridRange& oRange) const;
    template<class F>
    void ChangeColumns(double dFirstCol, double dLastCol, F&& fnChange) {
        const std::size_t nFirst = ColPlace(dFirstCol);
        const std::size_t nLast = ColPlace(dLastCol);
        if (m_aoColumns.size() <= nLast) m_aoColumns.resize(nLast + 1);
        for (std::size_t nCol = nFirst; nCol <= nLast; ++nCol) fnChange(m_aoColumns[nCol]);
        Changed();
    }
    Column ColumnAt(std::int32_t lCol) const;
    Ref<GridRange> NewRange(RowSpan oRows) const;
    void SetOption(std::string_view sOperation, std::int32_t lNumber, std::int16_t iValue);

    bool CanReach(double dRow, double dCol) const;
    void TakeFocus();
    void StartSelection(double dRow, double dCol);
    void Highlight(std::size_t nRow, Keys eKeys);
    void MoveSelection(RowSpan oRows);
    void MoveCurrentRow(std::size_t nRow);
    void Notify(const Event<GestureResult&>& oEvent);

    Ref<InputFocus> m_oFocus;
    const Control& m_oSite;
    GridEvents m_oEvents;
    GridTable m_oTable;
    Ref<RowSelection> m_oSelection;
    std::vector<Column> m_aoColumns; // from column 0, as far as any was changed
    std::size_t m_nCurrentRow = 0;
    std::size_t m_nCurrentCol = 0;
    std::size_t m_nAnchorRow = 0; // where a click with Shift begins
    std::optional<SortKey> m_oSortedBy;
    bool m_bStale = false; // changed since a view read it
    bool m_bLocked = false;
    bool m_bKeySelection = false;
    std::int32_t m_lRedraws = 0;
    std::map<std::int32_t, std::int16_t> m_oOptions;
    std::map<std::int32_t, std::string> m_oBitmaps;
};

} // namespace GleanerSvc::Models
