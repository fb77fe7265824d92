// Filling the two lists: the records of the chosen project, the date filter, and what is already selected.
#include "pagebind/Numbers.h"
#include "pagebind/Text.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

namespace {

std::int32_t RecordID(ISample& oSample) { return oSample.SampleID(); }
std::int32_t RecordID(IResult& oResult) { return oResult.ResultID(); }

// Results have a column more than raw data.
void WriteDescription(IGrid& /*oGrid*/, std::int32_t /*lRow*/, ISample& /*oSample*/) {}
void WriteDescription(IGrid& oGrid, std::int32_t lRow, IResult& oResult) {
    oGrid.SetCellText(lRow, 3, oResult.Description(), GridConst::WriteText);
}

} // namespace

// Leaves the rows in focus as they are. The load unlocks the list that is locked here.
void GleanerCtl::RefreshView() {
    Raising("RefreshView", [&] {
        grdAvailable->KeySelection(false);
        grdSelected->KeySelection(false);
        grdSelected->LockUpdate(true);
        grdSelected->NumRows(0);
        const std::int32_t lProjectID = cmbProjects.ItemData(cmbProjects.ListIndex());
        const bool bFilter = chkFragFilter.Value() != CheckState::Unchecked;
        LoadFragmentsByProject(lProjectID, bFilter, DTPicker1.Value(), DTPicker2.Value());
        WriteSelectedRows();
        grdSelected->LockUpdate(false);
        grdSelected->Redraw(GridConst::RedrawAll);
        grdSelected->NumRows(Deref(m_colSelectedItems).Count());
        MakeGridStatic(grdSelected);
        ShowProjectRows(grdSelected, grdAvailable);
        ShowSelectedCount();
    });
}

void GleanerCtl::LoadFragmentsByProject(std::int32_t lProjectID, bool bFilter, Date dtStart, Date dtEnd) {
    Raising("LoadFragmentsByProject", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        grdAvailable->KeySelection(false);
        grdSelected->KeySelection(false);
        grdAvailable->LockUpdate(true);
        grdSelected->LockUpdate(true);
        const auto oRange = grdAvailable->CreateRangeObject();
        const auto oStyle = grdAvailable->CreateStyleObject();
        if (m_lProjectID != lProjectID) FetchFragments(lProjectID);
        const std::int32_t lCount = Deref(m_colFragments).Count();
        const Date dtEndOfDay = EndOfDay(dtEnd);
        grdAvailable->RemoveRows(1, grdAvailable->NumRows());
        HideRecordColumns(*grdAvailable);
        Deref(oRange).InitRange(1, 1, ProjectColumn() - 1, lCount);
        HideRecordColumns(*grdSelected);
        const std::int32_t lRows = WriteAvailableRows(lCount, {bFilter, dtStart, dtEndOfDay});
        grdAvailable->SetStyleRange(oRange, oStyle, GridConst::StyleOverride);
        grdAvailable->SetRowCount(lRows);
        grdAvailable->LockUpdate(false);
        grdSelected->LockUpdate(false);
        grdAvailable->Redraw(GridConst::RedrawAll);
        grdSelected->Redraw(GridConst::RedrawAll);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// One project's records are kept between refreshes; what the store gains meanwhile shows after a project
// change.
void GleanerCtl::FetchFragments(std::int32_t lProjectID) {
    const auto Fetch = [&](std::string_view sQuery, std::string_view sKeyName, const std::string& sKeyValue) {
        return Deref(Context().DataFactory()).GetCollection(sQuery, sKeyName, sKeyValue, "", 0, true);
    };
    if (lProjectID == AllProjectsID) {
        m_colFragments = Fetch(m_bRawData ? QueryName::Samples : QueryName::Results, KeyName::None, "");
    } else {
        m_colFragments = Fetch(m_bRawData ? QueryName::SamplesByProjectID : QueryName::ResultsByProjectID,
                               KeyName::ProjectID, DecimalText(lProjectID));
    }
    m_lProjectID = lProjectID;
}

void GleanerCtl::HideRecordColumns(IGrid& oGrid) const {
    oGrid.SetColWidth(ProjectColumn(), ProjectColumn(), GridConst::HiddenColWidth);
    oGrid.SetColWidth(KeyColumn(), KeyColumn(), GridConst::HiddenColWidth);
    oGrid.SetCellText(0, ProjectColumn(), "ProjID", GridConst::WriteText);
    oGrid.SetCellText(0, KeyColumn(), "ResID", GridConst::WriteText); // the record's ID, of samples too
    oGrid.HideCols(ProjectColumn(), ProjectColumn(), true);
    oGrid.HideCols(KeyColumn(), KeyColumn(), true);
}

// Rows are written below the last one and counted afterwards. Here the project column holds the project on
// show, not the record's own. Returns the number of rows.
std::int32_t GleanerCtl::WriteAvailableRows(std::int32_t lCount, const DateFilter& oFilter) {
    IGrid& oGrid = *grdAvailable;
    const std::string sProjectID = DecimalText(m_lProjectID);
    std::int32_t lRow = 1;
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace) {
        Visit(m_colFragments->Item(lPlace), [&](auto& oRecord) {
            const Date dtInUse = DateInUse(oRecord);
            if (oFilter.Admits(dtInUse)) WriteRow(oGrid, lRow++, oRecord, dtInUse, sProjectID);
        });
    }
    return lRow - 1;
}

// Here the project column holds the record's own project.
void GleanerCtl::WriteSelectedRows() {
    const std::int32_t lCount = Deref(m_colSelectedItems).Count();
    for (std::int32_t lRow = 1; lRow <= lCount; ++lRow) {
        Visit(m_colSelectedItems->Item(lRow).ToObject(), [&](auto& oRecord) {
            WriteRow(*grdSelected, lRow, oRecord, DateInUse(oRecord), DecimalText(oRecord.ProjectID()));
        });
    }
}

// The name goes in untrimmed.
template<class T>
void GleanerCtl::WriteRow(IGrid& oGrid, std::int32_t lRow, T& oRecord, Date dtInUse,
                          std::string_view sProjectID) const {
    oGrid.SetCellText(lRow, 1, oRecord.Name(), GridConst::WriteText);
    oGrid.SetCellText(lRow, 2, Platform().DateToText(dtInUse), GridConst::WriteText);
    WriteDescription(oGrid, lRow, oRecord);
    oGrid.SetCellText(lRow, ProjectColumn(), sProjectID, GridConst::WriteText);
    oGrid.SetCellText(lRow, KeyColumn(), DecimalText(RecordID(oRecord)), GridConst::WriteText);
}

// A record is never in both lists: takes each row out of the target whose key is also in the source. From the
// bottom up, so that a removal moves no row not yet visited.
void GleanerCtl::ShowProjectRows(GridControl& oSource, GridControl& oTarget) {
    Raising("ShowProjectRows", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        const auto oRowIndex = Context().Libraries().CreateRowIndex();
        Deref(oRowIndex).Reset(false);
        const std::int32_t lSourceRows = ToInt32(oSource->NumRows());
        for (std::int32_t lRow = 1; lRow <= lSourceRows; ++lRow) {
            oRowIndex->Add(oSource->GetCellText(lRow, KeyColumn()), {}, true);
        }
        oTarget->LockUpdate(true);
        for (std::int32_t lRow = ToInt32(oTarget->NumRows()); lRow >= 1; --lRow) {
            std::int16_t iFound = 0;
            oRowIndex->Find(oTarget->GetCellText(lRow, KeyColumn()), iFound);
            if (iFound == 0) continue;
            const double dRemaining = oTarget->NumRows() - 1;
            oTarget->RemoveRows(lRow, lRow);
            oTarget->SetRowCount(dRemaining);
        }
        ShowButtons();
        MakeGridStatic(oTarget);
        oTarget->LockUpdate(false);
        oTarget->Redraw(GridConst::RedrawAll);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// No trap: a failure travels to the platform. Asks the records on show only, for a record of another project
// too; its row holds the right date from the refresh just before.
void GleanerCtl::UpdateSelectedDates() {
    const std::int32_t lRows = ToInt32(grdSelected->NumRows());
    for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
        const std::string sKey(grdSelected->GetCellText(lRow, KeyColumn()));
        Visit(Deref(m_colFragments).Item(sKey), [&](auto& oRecord) {
            grdSelected->SetCellText(lRow, 2, Platform().DateToText(DateInUse(oRecord)),
                                     GridConst::WriteText);
        });
    }
}

// The reverse of its name, and so its callers take it: True means that the two dates are in order.
bool GleanerCtl::IsDateClashing() const {
    return Raising("IsDateClashing", [&] { return !(DTPicker1.Value() > DTPicker2.Value()); });
}

// Puts a bitmap in column 1. No path of the library calls it; it stays available.
void GleanerCtl::AddBitmap(GridControl& oGrid) {
    Raising("AddBitmap", [&] {
        const auto oRange = oGrid->CreateRangeObject();
        const auto oStyle = oGrid->CreateStyleObject();
        const std::string sFolder = Deref(Context().Utility()).GetFolderPath("images");
        const std::string sPath = Platform().JoinPath(sFolder, "new.bmp");
        oGrid->RegisterBitmap(GridConst::BitmapNumber, sPath, sPath, "0");
        Deref(oStyle).SetBitmap(GridConst::BitmapNumber);
        Deref(oRange).InitRange(1, 1, 1, oGrid->NumRows());
        oGrid->SetStyleRange(oRange, oStyle, GridConst::StyleOverride);
    });
}

// The picker's day as text, with the day's last second joined on, read back.
Date GleanerCtl::EndOfDay(Date dtDay) const {
    return Platform().TextToDate(Platform().DateToText(dtDay) + " 23:59:59");
}

GleanerCtl::DateFilter GleanerCtl::FilterInForce() const {
    return {chkFragFilter.Value() != CheckState::Unchecked, DTPicker1.Value(), EndOfDay(DTPicker2.Value())};
}

void GleanerCtl::cmbProjects_Click() {
    Terminal("cmbProjects_Click", [&] {
        m_dAvailableRow = 0;
        m_dSelectedRow = 0;
        RefreshView();
    });
}

void GleanerCtl::chkFragFilter_Click() {
    Terminal("chkFragFilter_Click", [&] {
        const bool bOn = chkFragFilter.Value() == CheckState::Checked;
        lblFragStart.Enabled(bOn);
        lblFragEnd.Enabled(bOn);
        DTPicker1.Enabled(bOn);
        DTPicker2.Enabled(bOn);
        RefreshView();
    });
}

// The picker that was changed last wins, and the two never stand crossed.
void GleanerCtl::DTPicker1_Change() {
    Terminal("DTPicker1_Change", [&] {
        if (!IsDateClashing()) DTPicker2.Value(DTPicker1.Value());
        RefreshView();
    });
}

void GleanerCtl::DTPicker2_Change() {
    Terminal("DTPicker2_Change", [&] {
        if (!IsDateClashing()) DTPicker1.Value(DTPicker2.Value());
        RefreshView();
    });
}

void GleanerCtl::DateDataCollected_Click() { UseDate(false); }

void GleanerCtl::DateLastModified_Click() { UseDate(true); }

// No trap in the two clicks above, nor here.
void GleanerCtl::UseDate(bool bLastModified) {
    m_bDateIsLastModified = bLastModified;
    if (!m_bInitialized) return;
    RefreshView();
    UpdateSelectedDates();
}

} // namespace GleanerSvc
