// The selection list: two lists side by side, the records that can still be picked and those that have been.
// A record stands in one of them at a time. The picked records themselves stay in the host's keyed
// collection; the lists are a view of the data store and of that collection.
//
// Rows. Columns 1 and 2 are name and date, results have their description in column 3; then come two hidden
// columns, the project's ID ("ProjID") and the record's ID ("ResID", in both modes), the only link from a row
// to its record. Columns are 1-based, row 0 is the heading.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/DataStore.h"
#include "pagebind/Event.h"
#include "pagebind/KeyedCollection.h"
#include "pagebind/Subscriptions.h"
#include "pagebind/Trap.h"
#include "pagebind/controls/Button.h"
#include "pagebind/controls/CheckBox.h"
#include "pagebind/controls/DatePicker.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/GridControl.h"
#include "pagebind/controls/Image.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/PopupMenu.h"
#include "pagebind/controls/UserControl.h"

namespace GleanerSvc {

class GleanerCtl final : private Trapped, public UserControl, public virtual IObject {
  public:
    // Stands alone, at its design size in twips.
    explicit GleanerCtl(const Ref<Apartment>& oApartment);
    // Embedded in a page.
    GleanerCtl(const Ref<Apartment>& oApartment, Container& oContainer, std::string sName, Bounds oBounds);

    // True once the operator chose the single sample view, until the host clears it.
    bool m_bShowSingleSample = false;

    // Which date the lists show and filter by: last modified, or data collected.
    bool DateIsLastModified() const { return m_bDateIsLastModified; }

    // The place of the current project, 16-bit, counted without "[All Projects]": that entry and the first
    // project both read 0.
    Value GetProjectIndex() const;
    // Chooses a project by that place; -1 is "[All Projects]". A place above 32766 fails with overflow, one
    // that the list does not have with subscript.
    void SetProjectIndex(std::int32_t lProjectIndex);

    // The text of the chosen project. Writing a text that is no project fails.
    std::string Project() const;
    void Project(std::string_view sProject);

    // Comes before any other member; may come again, and then goes back to "[All Projects]". "Raw Data", in
    // any case of letters, lists ISample records, any other text IResult records. The collection holds such
    // records under their ID's decimal text; it stays the host's, and every move changes it at once.
    void Initialize(std::string_view sSource, const Ref<IKeyedCollection>& colSelectedItems);

    // Rebuilds both lists from the store, the filter and the collection. Raises no event.
    void RefreshView();

    // The operator's own gesture changed the collection: once for each, inside the click, while both lists
    // are still locked for a single move.
    Event<> SelectionChanged;

    // The controls, back to front. Positions are the design's, in twips.
    Label lblProject{*this, "lblProject", {120, 120, 615, 195}, "Project:"};
    DropDownList cmbProjects{*this, "cmbProjects", {820, 90, 3000, 315}};
    OptionButton DateLastModified{*this, "DateLastModified", {960, 540, 1695, 195}, "Date Last Modified"};
    OptionButton DateDataCollected{
        *this, "DateDataCollected", {2880, 540, 2415, 195}, "Date Sample Data Collected"};
    Frame fraFilterByDate{*this, "fraFilterByDate", {0, 840, 3915, 645}};
    CheckBox chkFragFilter{fraFilterByDate, "chkFragFilter", {120, 0, 1250, 195}, "Filter by date"};
    Label lblFragStart{fraFilterByDate, "lblFragStart", {120, 270, 375, 195}, "Start:"};
    DatePicker DTPicker1{fraFilterByDate, "DTPicker1", {600, 240, 1305, 300}};
    Label lblFragEnd{fraFilterByDate, "lblFragEnd", {2040, 270, 330, 195}, "End:"};
    DatePicker DTPicker2{fraFilterByDate, "DTPicker2", {2520, 240, 1305, 300}};
    Image imgRawData{*this, "imgRawData", {5640, 80, 4875, 1365}, {"RawDataBanner", 4875, 1365}};
    Image imgResultData{*this, "imgResultData", {5640, 75, 4890, 1365}, {"ResultDataBanner", 4890, 1365}};
    Frame fraAvailableItems{*this, "fraAvailableItems", {0, 1560, 10695, 4530}};
    Label lblAvailable{fraAvailableItems, "lblAvailable", {120, 240, 3135, 195}, "Available:"};
    GridControl grdAvailable{fraAvailableItems, "grdAvailable", {120, 480, 4935, 3975}, Context()};
    Label lblSelected{fraAvailableItems, "lblSelected", {5640, 240, 735, 195}, "Selected:"};
    Label lblSelectedCount{fraAvailableItems, "lblSelectedCount", {6480, 240, 2295, 195}};
    GridControl grdSelected{fraAvailableItems, "grdSelected", {5640, 480, 4935, 3975}, Context()};
    Button cmdAddSingle{fraAvailableItems, "cmdAddSingle", {5160, 1440, 375, 375}, ">", "Add"};
    Button cmdRemoveSingle{fraAvailableItems, "cmdRemoveSingle", {5160, 1920, 375, 375}, "<", "Remove"};
    Button cmdAddAll{fraAvailableItems, "cmdAddAll", {5160, 2400, 375, 375}, ">>", "Add All"};
    Button cmdRemoveAll{fraAvailableItems, "cmdRemoveAll", {5160, 2880, 375, 375}, "<<", "Remove All"};
    PopupMenu mnuOptions{*this, "mnuOptions", "Options"};
    MenuEntry mnuAdd{mnuOptions, "mnuAdd", "Add"};
    MenuEntry mnuRemove{mnuOptions, "mnuRemove", "Remove"};
    MenuEntry mnuShowSingleSample{mnuOptions, "mnuShowSingleSample", "Show Single Sample View..."};
    MenuEntry mnuAscending{mnuOptions, "mnuAscending", "Sort Ascending"};
    MenuEntry mnuDescending{mnuOptions, "mnuDescending", "Sort Descending"};

  protected:
    // "ctlGleaner available=[B1 B2*] selected=[A1] add=on addAll=on remove=off removeAll=on": names in row
    // order, the row in focus with a star.
    std::string StateText() const override;

  private:
    friend class GleanerCtlProbe; // tests call single operations through it

    // One of the two lists with its row in focus. Twin handlers are told once, for a side.
    struct Side {
        GridControl& oGrid;
        double& dRow;
    };
    // The operator's date filter, as the moves and the load test it.
    struct DateFilter {
        bool bOn = false;
        Date dtStart;
        Date dtEnd;
        bool Admits(Date dtValue) const { return !bOn || (dtValue >= dtStart && dtValue <= dtEnd); }
    };

    std::string ClassName() const override { return "GleanerCtl"; }
    void SetUpControls();
    void Connect();

    // Columns by mode.
    std::int32_t ProjectColumn() const { return m_bRawData ? 3 : 4; }
    std::int32_t KeyColumn() const { return ProjectColumn() + 1; }

    // Calls fnVisit with the record as what it is in this mode, ISample or IResult.
    template<class F>
    auto Visit(const Ref<IObject>& oRecord, F&& fnVisit) const {
        return m_bRawData ? fnVisit(Deref(Cast<ISample>(oRecord))) : fnVisit(Deref(Cast<IResult>(oRecord)));
    }
    template<class T>
    Date DateInUse(T& oRecord) const {
        return m_bDateIsLastModified ? oRecord.DateLastModified() : oRecord.DateCollected();
    }

    // Start-up (GleanerCtl.cpp).
    void ShowMode(std::string_view sSource);
    void LoadProjectList();
    void ApplyLayouts();
    void ResetDates();

    // Loading and filters (GleanerCtlLoading.cpp).
    void LoadFragmentsByProject(std::int32_t lProjectID, bool bFilter, Date dtStart, Date dtEnd);
    void FetchFragments(std::int32_t lProjectID);
    void HideRecordColumns(IGrid& oGrid) const;
    std::int32_t WriteAvailableRows(std::int32_t lCount, const DateFilter& oFilter);
    void WriteSelectedRows();
    template<class T>
    void WriteRow(IGrid& oGrid, std::int32_t lRow, T& oRecord, Date dtInUse,
                  std::string_view sProjectID) const;
    void ShowProjectRows(GridControl& oSource, GridControl& oTarget);
    void UpdateSelectedDates();
    bool IsDateClashing() const;
    void AddBitmap(GridControl& oGrid);
    Date EndOfDay(Date dtDay) const;
    DateFilter FilterInForce() const;
    void cmbProjects_Click();
    void chkFragFilter_Click();
    void DTPicker1_Change();
    void DTPicker2_Change();
    void DateDataCollected_Click();
    void DateLastModified_Click();
    void UseDate(bool bLastModified);

    // Moving (GleanerCtlMoving.cpp).
    void MoveSingleRow(GridControl& oFromGrid, GridControl& oToGrid, std::int32_t lRow);
    void MoveAllRows(GridControl& oFromGrid, GridControl& oToGrid);
    std::int32_t CopyRow(GridControl& oFromGrid, GridControl& oToGrid, std::int32_t lRow,
                         const DateFilter& oFilter);
    bool BelongsInTarget(GridControl& oFromGrid, const GridControl& oToGrid, std::int32_t lRow,
                         const DateFilter& oFilter) const;
    void MoveRecord(const GridControl& oToGrid, const std::string& sKey);
    void HighlightAfterMove(GridControl& oFromGrid, std::int32_t lRemaining);
    void MoveHighlighted(const Side& oFrom, const Side& oTo);
    void MoveRanges(const Side& oFrom, const Side& oTo, IGridRangeList& oRangeList, std::int32_t lRanges);
    void AddSelectedItemsInCollection();
    void AddResultOnce(const Ref<IObject>& oRecord);
    void RemoveSelectedItemsInCollection();
    void ShowSelectedCount();
    void cmdAddSingle_Click();
    void cmdRemoveSingle_Click();
    void cmdAddAll_Click();
    void cmdRemoveAll_Click();

    // Gestures (GleanerCtlGestures.cpp).
    void ShowMenu(std::string_view sMenu);
    void GridSort(GridControl& oGrid, bool bDescending, bool bCase);
    void ClearSide(const Side& oSide);
    void LeaveSide(const Side& oSide);
    void StartSelection(const Side& oSide, double nRow, double nCol);
    void LeftClick(const Side& oSide, const Side& oOther, double nRow, double nCol);
    void RightClick(const Side& oSide, const Side& oOther, std::string_view sMenu, double nRow, double nCol);
    void PrepareMenu(const Side& oSide, std::string_view sMenu, double nRow, double nCol);
    void grdAvailable_GotFocus();
    void grdAvailable_OnGridNotifyA();
    void grdAvailable_OnGridNotifyB();
    void grdAvailable_OnStartSelection(double nRow, double nCol);
    void grdAvailable_OnLButtonClickedRowCol(double nRow, double nCol);
    void grdAvailable_OnLButtonDblClkRowCol(double nRow, GestureResult& oResult);
    void grdAvailable_OnRButtonClickedRowCol(double nRow, double nCol);
    void grdAvailable_OnTrackColWidthEnd(double nCol, GestureResult& oResult);
    void grdAvailable_OnGridKeyDown();
    void grdAvailable_OnGridKeyUp();
    void grdSelected_GotFocus();
    void grdSelected_OnGridNotifyA();
    void grdSelected_OnGridNotifyB();
    void grdSelected_OnStartSelection(double nRow, double nCol);
    void grdSelected_OnLButtonClickedRowCol(double nRow, double nCol);
    void grdSelected_OnLButtonDblClkRowCol(double nRow, GestureResult& oResult);
    void grdSelected_OnRButtonClickedRowCol(double nRow, double nCol);
    void grdSelected_OnTrackColWidthEnd(double nCol, GestureResult& oResult);
    void grdSelected_OnGridKeyDown();
    void grdSelected_OnGridKeyUp();
    void mnuAdd_Click();
    void mnuRemove_Click();
    void mnuAscending_Click();
    void mnuDescending_Click();
    void mnuShowSingleSample_Click();
    GridControl& ActiveGrid() const;

    // The single sample view (GleanerCtlSingleSample.cpp).
    void ShowSingleSample();
    Ref<IObject> RecordInFocus();
    void ShowSingleRawSample(std::int16_t iSlot, ISample& oSample);
    void ShowSingleResult(std::int16_t iSlot, IResult& oResult);
    Ref<IStudyResult> CreateViewResult(IResult& oResult);
    template<class T>
    void OpenView(std::string_view sWizard, const Ref<IKeyedCollection>& colParameters, std::int16_t iOwner,
                  T& oRecord);

    // Display state (GleanerCtlDisplay.cpp).
    void ShowButtons();
    void MakeGridStatic(GridControl& oGrid);
    void UnHighlightRows(GridControl& oGrid);
    bool HighlightRow(GridControl* pGrid, std::int32_t lRow);

    GridControl* m_oActiveGrid = nullptr; // the list last touched with the mouse
    double m_dAvailableRow = 0;           // row in focus of each list, from 1; 0 is none
    double m_dSelectedRow = 0;
    double m_dSortColumn = 0;      // shared by both lists
    std::int32_t m_lProjectID = 0; // of m_colFragments; -1 all projects, 0 nothing loaded yet
    Ref<IDataCollection> m_colProjects;
    Ref<IDataCollection> m_colFragments;
    Ref<IObject> m_oAvailableGridType;
    Ref<IObject> m_oSelectedGridType;
    Ref<IKeyedCollection> m_colSelectedItems; // the host's
    bool m_bRawData = true;
    bool m_bSortFlag = false; // toggled by every left click in either list
    bool m_bDateIsLastModified = true;
    bool m_bInitialized = false;
    std::int32_t m_lMenuChoice = -1; // 1 once the single sample entry was taken

    const Side m_oAvailable{grdAvailable, m_dAvailableRow};
    const Side m_oSelected{grdSelected, m_dSelectedRow};
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc
