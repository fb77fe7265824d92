#include "selectionlist/GleanerCtl.h"

#include <algorithm>

#include "pagebind/Numbers.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int32_t DesignWidth = 10695;
constexpr std::int32_t DesignHeight = 5805;
constexpr std::string_view RawDataSource = "Raw Data";

} // namespace

GleanerCtl::GleanerCtl(const Ref<Apartment>& oApartment)
    : Trapped(oApartment), UserControl("GleanerCtl", DesignWidth, DesignHeight) {
    SetUpControls();
    Connect();
}

GleanerCtl::GleanerCtl(const Ref<Apartment>& oApartment, Container& oContainer, std::string sName,
                       Bounds oBounds)
    : Trapped(oApartment), UserControl(oContainer, std::move(sName), oBounds) {
    SetUpControls();
    Connect();
}

// What the design fixes beyond captions and places.
void GleanerCtl::SetUpControls() {
    fraFilterByDate.ToolTip("This will filter the projects by start and end date.");
    lblFragStart.Enabled(false);
    lblFragEnd.Enabled(false);
    fraAvailableItems.Font({"MS Sans Serif", 8.25, true});
    for (Button* pButton : {&cmdAddSingle, &cmdRemoveSingle, &cmdAddAll, &cmdRemoveAll}) {
        pButton->Font({"MS Sans Serif", 9.75, false});
    }
}

void GleanerCtl::Connect() {
    const auto On = [this](auto& oEvent, auto&& fnHandler) { m_oSubscriptions.On(oEvent, fnHandler); };
    On(cmbProjects.Click, [this] { cmbProjects_Click(); });
    On(DateLastModified.Click, [this] { DateLastModified_Click(); });
    On(DateDataCollected.Click, [this] { DateDataCollected_Click(); });
    On(chkFragFilter.Click, [this] { chkFragFilter_Click(); });
    On(DTPicker1.Change, [this] { DTPicker1_Change(); });
    On(DTPicker2.Change, [this] { DTPicker2_Change(); });
    On(cmdAddSingle.Click, [this] { cmdAddSingle_Click(); });
    On(cmdRemoveSingle.Click, [this] { cmdRemoveSingle_Click(); });
    On(cmdAddAll.Click, [this] { cmdAddAll_Click(); });
    On(cmdRemoveAll.Click, [this] { cmdRemoveAll_Click(); });
    On(mnuAdd.Click, [this] { mnuAdd_Click(); });
    On(mnuRemove.Click, [this] { mnuRemove_Click(); });
    On(mnuShowSingleSample.Click, [this] { mnuShowSingleSample_Click(); });
    On(mnuAscending.Click, [this] { mnuAscending_Click(); });
    On(mnuDescending.Click, [this] { mnuDescending_Click(); });

    GridEvents& oAvailable = grdAvailable->Events();
    On(oAvailable.GotFocus, [this] { grdAvailable_GotFocus(); });
    On(oAvailable.OnGridNotifyA, [this](GestureResult&) { grdAvailable_OnGridNotifyA(); });
    On(oAvailable.OnGridNotifyB, [this](GestureResult&) { grdAvailable_OnGridNotifyB(); });
    On(oAvailable.OnStartSelection,
       [this](double nRow, double nCol, GestureResult&) { grdAvailable_OnStartSelection(nRow, nCol); });
    On(oAvailable.OnLButtonClickedRowCol,
       [this](double nRow, double nCol, GestureResult&) { grdAvailable_OnLButtonClickedRowCol(nRow, nCol); });
    On(oAvailable.OnLButtonDblClkRowCol, [this](double nRow, double, GestureResult& oResult) {
        grdAvailable_OnLButtonDblClkRowCol(nRow, oResult);
    });
    On(oAvailable.OnRButtonClickedRowCol,
       [this](double nRow, double nCol, GestureResult&) { grdAvailable_OnRButtonClickedRowCol(nRow, nCol); });
    On(oAvailable.OnTrackColWidthEnd,
       [this](double nCol, GestureResult& oResult) { grdAvailable_OnTrackColWidthEnd(nCol, oResult); });
    On(oAvailable.OnGridKeyDown, [this](std::int32_t, GestureResult&) { grdAvailable_OnGridKeyDown(); });
    On(oAvailable.OnGridKeyUp, [this](std::int32_t, GestureResult&) { grdAvailable_OnGridKeyUp(); });

    GridEvents& oSelected = grdSelected->Events();
    On(oSelected.GotFocus, [this] { grdSelected_GotFocus(); });
    On(oSelected.OnGridNotifyA, [this](GestureResult&) { grdSelected_OnGridNotifyA(); });
    On(oSelected.OnGridNotifyB, [this](GestureResult&) { grdSelected_OnGridNotifyB(); });
    On(oSelected.OnStartSelection,
       [this](double nRow, double nCol, GestureResult&) { grdSelected_OnStartSelection(nRow, nCol); });
    On(oSelected.OnLButtonClickedRowCol,
       [this](double nRow, double nCol, GestureResult&) { grdSelected_OnLButtonClickedRowCol(nRow, nCol); });
    On(oSelected.OnLButtonDblClkRowCol, [this](double nRow, double, GestureResult& oResult) {
        grdSelected_OnLButtonDblClkRowCol(nRow, oResult);
    });
    On(oSelected.OnRButtonClickedRowCol,
       [this](double nRow, double nCol, GestureResult&) { grdSelected_OnRButtonClickedRowCol(nRow, nCol); });
    On(oSelected.OnTrackColWidthEnd,
       [this](double nCol, GestureResult& oResult) { grdSelected_OnTrackColWidthEnd(nCol, oResult); });
    On(oSelected.OnGridKeyDown, [this](std::int32_t, GestureResult&) { grdSelected_OnGridKeyDown(); });
    On(oSelected.OnGridKeyUp, [this](std::int32_t, GestureResult&) { grdSelected_OnGridKeyUp(); });
}

Value GleanerCtl::GetProjectIndex() const {
    return Raising("GetProjectIndex (Get)", [&]() -> Value {
        const auto iPlace = ToInt16(cmbProjects.ListIndex() - 1);
        return std::max<std::int16_t>(iPlace, 0);
    });
}

void GleanerCtl::SetProjectIndex(std::int32_t lProjectIndex) {
    Raising("SetProjectIndex (Let)", [&] { cmbProjects.ListIndex(ToInt16(lProjectIndex + 1.0)); });
}

// The read and the write of Project report under the names of the two members above; that is meant.
std::string GleanerCtl::Project() const {
    return Raising("GetProjectIndex (Get)", [&] { return cmbProjects.Text(); });
}

void GleanerCtl::Project(std::string_view sProject) {
    Raising("SetProjectIndex (Let)", [&] { cmbProjects.Text(sProject); });
}

void GleanerCtl::Initialize(std::string_view sSource, const Ref<IKeyedCollection>& colSelectedItems) {
    Raising("Initialize", [&] {
        m_bShowSingleSample = false;
        ShowMode(sSource);
        m_colSelectedItems = colSelectedItems;
        m_oActiveGrid = &grdAvailable;
        fraAvailableItems.Caption(sSource);
        Deref(Context().GridHelper()).SetGridDefaults(*grdAvailable, true, {});
        Deref(Context().GridHelper()).SetGridDefaults(*grdSelected, true, {});
        LoadProjectList();
        ApplyLayouts();
        ResetDates();
        m_dAvailableRow = 0;
        m_dSelectedRow = 0;
        m_lProjectID = 0; // nothing loaded: the load below asks the store
        m_bSortFlag = false;
        cmbProjects.Text(cmbProjects.List(0)); // raises the click that fills both lists
        DateLastModified.Value(m_bDateIsLastModified);
        DateDataCollected.Value(!m_bDateIsLastModified);
        m_bInitialized = true;
    });
}

void GleanerCtl::ShowMode(std::string_view sSource) {
    m_bRawData = EqualsIgnoringCase(sSource, RawDataSource);
    imgRawData.Visible(m_bRawData);
    imgResultData.Visible(!m_bRawData);
}

// A project named "Default" gets no preference here.
void GleanerCtl::LoadProjectList() {
    m_colProjects =
        Deref(Context().DataFactory()).GetCollection(QueryName::Projects, KeyName::None, "", "", 0, true);
    cmbProjects.Clear();
    cmbProjects.AddItem(AllProjectsName, AllProjectsID);
    ForEach<IProject>(Deref(m_colProjects), [&](IProject& oProject) {
        cmbProjects.AddItem(RightTrim(oProject.Name()), oProject.ProjectID());
    });
}

void GleanerCtl::ApplyLayouts() {
    const auto Apply = [&](GridControl& oGrid, std::string_view sGridTypeID) {
        auto oGridType = Deref(Context().DataFactory())
                             .GetRecord(RecordName::GridType, KeyName::GridTypeID, sGridTypeID, 0, true);
        Deref(Context().GridHelper()).ApplyGridType(*oGrid, oGridType, false, false, false, {});
        return oGridType;
    };
    m_oAvailableGridType = Apply(grdAvailable, m_bRawData ? GridTypeID::RawList : GridTypeID::ResultList);
    m_oSelectedGridType =
        Apply(grdSelected, m_bRawData ? GridTypeID::RawSelected : GridTypeID::ResultSelected);
    grdAvailable->NumCols(KeyColumn());
    grdSelected->NumCols(KeyColumn());
    grdAvailable->NumRows(0);
    grdSelected->NumRows(0);
}

void GleanerCtl::ResetDates() {
    const std::string sToday = Platform().DateToText(Platform().Today());
    DTPicker1.Value(Platform().TextToDate(sToday));
    DTPicker2.Value(Platform().TextToDate(sToday));
    DTPicker1.Enabled(false); // the check box stays as it is, and may so stand checked beside them
    DTPicker2.Enabled(false);
}

std::string GleanerCtl::StateText() const {
    const auto Names = [](const Side& oSide) {
        std::string sNames;
        const std::int32_t lRows = ToInt32(oSide.oGrid->NumRows());
        for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
            sNames += lRow > 1 ? " " : "";
            sNames += RightTrim(oSide.oGrid->GetCellText(lRow, 1));
            if (lRow == oSide.dRow) sNames += '*';
        }
        return "[" + sNames + "]";
    };
    const auto State = [](const Button& oButton) { return oButton.Enabled() ? "on" : "off"; };
    return " available=" + Names(m_oAvailable) + " selected=" + Names(m_oSelected) +
           " add=" + State(cmdAddSingle) + " addAll=" + State(cmdAddAll) +
           " remove=" + State(cmdRemoveSingle) + " removeAll=" + State(cmdRemoveAll);
}

} // namespace GleanerSvc
