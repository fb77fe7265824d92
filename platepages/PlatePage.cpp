// The two tabs, projects and plates, and the refresh.
#include "platepages/PlatePage.h"

#include "pagebind/Numbers.h"
#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int16_t ListTab = 0;
constexpr std::int16_t PlateTab = 1;

} // namespace

PlatePage::PlatePage(const Ref<Apartment>& oApartment, const PlateKind& oKind)
    : WizardPage(oApartment, std::string(oKind.sClass), 10935, 7455), m_oKind(oKind),
      tabPage(*this, std::string(oKind.sClass), {0, 0, 10935, 7455}, {"&List View", "&Plate View"}),
      frmLegend(frmPlate, "frmLegend", {5280, 600, 5295, 1815}, std::string(oKind.sLegend)) {
    tabPage.PutOnTab(ctlGleaner, ListTab);
    for (const Control* pControl : std::initializer_list<const Control*>{&lblProject, &cmbProjects,
                                                                         &lblPlates, &cmbPlates, &frmPlate}) {
        tabPage.PutOnTab(*pControl, PlateTab);
    }
    for (PictureBox* pTemplate : {&picEmpty, &picRaw, &picRawChecked, &picWarning, &picWarningChecked}) {
        pTemplate->Visible(false);
    }
    picAllWells.ToolTip("Select all wells in this plate");
    picWell.Add(frmPlate, "picWell", Bounds{0, 0, 360, 360}, picRaw.Picture()).Visible(false);
    MakeHotZones();
    MakeLegend();
    Connect();
}

void PlatePage::MakeHotZones() {
    for (std::int32_t iRow = 0; iRow < PlateRows; ++iRow) {
        Label& oLetter = lblLetter.Add(frmPlate, "lblLetter", Bounds{180, TopOf(iRow), 360, 360});
        oLetter.ToolTip("Select entire row by clicking on this letter.");
        On(oLetter.Click, [this, iIndex = oLetter.Index()] { lblLetter_Click(iIndex); });
    }
    for (std::int32_t iCol = 0; iCol < PlateCols; ++iCol) {
        Label& oNumber = lblNumber.Add(frmPlate, "lblNumber", Bounds{LeftOf(iCol), 690, 360, 360});
        oNumber.ToolTip("Select entire row by clicking on this number."); // though it picks a column
        On(oNumber.Click, [this, iIndex = oNumber.Index()] { lblNumber_Click(iIndex); });
    }
}

// Left the two selected pictures, right the other three.
void PlatePage::MakeLegend() {
    const std::array<const PictureBox*, 5> aoTemplates{&picRawChecked, &picWarningChecked, &picEmpty, &picRaw,
                                                       &picWarning};
    for (std::int32_t lEntry = 0; lEntry < 5; ++lEntry) {
        const bool bLeft = lEntry < 2;
        const std::int32_t lLeft = bLeft ? 120 : 2700;
        const std::int32_t lTop = 300 + 480 * (bLeft ? lEntry : lEntry - 2);
        const auto nEntry = static_cast<std::size_t>(lEntry);
        imgLegend.Add(frmLegend, "imgLegend", Bounds{lLeft, lTop, 360, 360},
                      aoTemplates.at(nEntry)->Picture());
        Label& oLabel = lblLegend.Add(frmLegend, "lblLegend", Bounds{lLeft + 450, lTop + 60, 2100, 255});
        oLabel.Caption(m_oKind.asLegends.at(nEntry));
    }
}

void PlatePage::Connect() {
    On(tabPage.Click, [this](std::int16_t) { tabPage_Click(); });
    On(ctlGleaner.SelectionChanged, [this] { ctlGleaner_SelectionChanged(); });
    On(cmbProjects.Click, [this] { cmbProjects_Click(); });
    On(cmbPlates.Click, [this] { cmbPlates_Click(); });
    On(picAllWells.Click, [this] { picAllWells_Click(); });
    On(mnuSelect.Click, [this] { mnuSelect_Click(); });
    On(mnuDeSelect.Click, [this] { mnuDeSelect_Click(); });
    On(mnuRemove.Click, [this] { mnuRemove_Click(); });
    GridEvents& oGrid = grdWells->Events();
    On(oGrid.OnLButtonClickedRowCol,
       [this](double dRow, double dCol, GestureResult&) { grdWells_OnLButtonClickedRowCol(dRow, dCol); });
    On(oGrid.OnRButtonClickedRowCol,
       [this](double dRow, double, GestureResult&) { grdWells_OnRButtonClickedRowCol(dRow); });
    On(oGrid.OnGridKeyDown, [this](std::int32_t, GestureResult&) { grdWells_OnGridKeyDown(); });
    On(oGrid.OnGridKeyUp, [this](std::int32_t, GestureResult&) { grdWells_OnGridKeyUp(); });
}

void PlatePage::UserControl_Initialize() {
    Terminal("UserControl_Initialize", [&] {
        CreatePageBase();
        ConnectPageBase();
    });
}

void PlatePage::ConnectPageBase() {
    On(Events().Initialize, [this](const Ref<IObject>&) { m_oPageBase_Initialize(); });
    On(Events().Activate, [this] { m_oPageBase_Activate(); });
    On(Events().Deactivate, [this] { m_oPageBase_Deactivate(); });
    On(Events().Validate, [this](bool& bIsValid) { m_oPageBase_Validate(bIsValid); });
}

void PlatePage::PreparePlateView() {
    const std::int32_t lProject = m_oKind.lProjectColumn;
    const std::int32_t lKey = m_oKind.KeyColumn();
    m_colSelected = std::make_shared<KeyedCollection>();
    m_dSortColumn = m_oKind.dSortColumn;
    Deref(Context().GridHelper()).SetGridDefaults(*grdWells, true, {});
    m_oGridType = Deref(Context().DataFactory())
                      .GetRecord(RecordName::GridType, KeyName::GridTypeID, m_oKind.sGridTypeID, 0, true);
    Deref(Context().GridHelper()).ApplyGridType(*grdWells, m_oGridType, false, false, false, {});
    grdWells->NumCols(lKey);
    if (m_oKind.bResetsGrid) {
        grdWells->NumRows(0);
        grdWells->StaticOption27(1);
    }
    grdWells->SetColWidth(lProject, lProject, GridConst::HiddenColWidth);
    grdWells->SetColWidth(lKey, lKey, GridConst::HiddenColWidth);
    grdWells->SetCellText(0, lProject, "Proj", GridConst::WriteText);
    grdWells->SetCellText(0, lKey, m_oKind.sKeyHeading, GridConst::WriteText);
    grdWells->HideCols(lProject, lProject, true);
    grdWells->HideCols(lKey, lKey, true);
    MakeGridStatic(*grdWells);
    LoadImage();
    LoadProjects();
}

// The list works on the page's own collection from here on.
void PlatePage::InitializeList() {
    ctlGleaner.Initialize(m_oKind.sSource, m_colSelected);
    HideTabFrames();
    ctlGleaner.Visible(true);
}

// "[All Projects]" stands in the list only.
void PlatePage::RestoreProject(IKeyedCollection& colParameters) {
    if (!IsIn(colParameters, ParameterKey::Project)) return;
    const std::string sProject = colParameters.Item(ParameterKey::Project).ToText();
    ctlGleaner.Project(sProject);
    if (!EqualsIgnoringCase(sProject, AllProjectsName)) cmbProjects.Text(sProject);
    colParameters.Remove(ParameterKey::Project);
}

// That of the tab on show.
void PlatePage::StoreProject(IKeyedCollection& colParameters) const {
    if (tabPage.Tab() == ListTab) colParameters.Add(ctlGleaner.Project(), ParameterKey::Project);
    if (tabPage.Tab() == PlateTab) colParameters.Add(cmbProjects.Text(), ParameterKey::Project);
}

void PlatePage::HideTabFrames() {
    Raising("HideTabFrames", [&] {
        ctlGleaner.Visible(false);
        cmbProjects.Visible(false);
        cmbPlates.Visible(false);
        frmPlate.Visible(false);
    });
}

// Both tabs stand on one project. One that the plate tab did not show before has its plates loaded by the
// click that choosing it raises; otherwise the plate stays.
void PlatePage::tabPage_Click() {
    Terminal(m_oKind.sTabClick, [&] {
        HideTabFrames();
        if (tabPage.Tab() == ListTab) {
            ctlGleaner.SetProjectIndex(cmbProjects.ListIndex());
            ctlGleaner.Visible(true);
            ctlGleaner.RefreshView();
        } else if (tabPage.Tab() == PlateTab) {
            cmbProjects.ListIndex(ctlGleaner.GetProjectIndex().ToInt16());
            cmbProjects.Visible(true);
            cmbPlates.Visible(true);
            frmPlate.Visible(true);
            cmbPlates_Click();
        }
    });
}

// Choosing the item at the end runs the whole chain of click handlers.
void PlatePage::LoadProjects() {
    Raising("LoadProjects", [&] {
        const auto colProjects =
            Deref(Context().DataFactory()).GetCollection(QueryName::Projects, KeyName::None, "", "", 0, true);
        cmbProjects.Clear();
        std::int32_t lCounter = 1;
        std::int32_t lDefault = 0;
        ForEach<IProject>(Deref(colProjects), [&](IProject& oProject) {
            const std::string sName = oProject.Name();
            cmbProjects.AddItem(RightTrim(sName), oProject.ProjectID());
            if (EqualsIgnoringCase(RightTrim(sName), "Default")) lDefault = lCounter;
            ++lCounter;
        });
        cmbProjects.ListIndex(lDefault > 0 ? lDefault - 1 : 0);
    });
}

void PlatePage::cmbProjects_Click() {
    Terminal("cmbProjects_Click", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        cmbProjects.ToolTip(cmbProjects.Text());
        LoadPlates(cmbProjects.ItemData(cmbProjects.ListIndex()));
        Platform().ScreenCursor(Cursor::Default);
    });
}

// A project without plates leaves the plate of the project before it in m_oPlate.
void PlatePage::LoadPlates(std::int32_t lProjectID) {
    Raising("LoadPlates", [&] {
        m_colPlates = Deref(Context().DataFactory())
                          .GetCollection(QueryName::PlatesByProjectID, KeyName::ProjectID,
                                         DecimalText(lProjectID), "", 0, true);
        cmbPlates.Clear();
        ForEach<IPlate>(Deref(m_colPlates), [&](IPlate& oPlate) {
            const std::string sName = oPlate.Name();
            cmbPlates.AddItem(RightTrim(sName), oPlate.PlateID());
        });
        if (cmbPlates.ListCount() >= 1) {
            cmbPlates.ListIndex(0);
            return;
        }
        m_aWells = BlankPlate();
        ShowPlate(m_aWells);
        grdWells->NumRows(0);
        grdWells->Redraw(GridConst::RedrawAll);
        MakeGridStatic(*grdWells);
    });
}

// The refresh. ClearGrid leaves the rows that were just written.
void PlatePage::cmbPlates_Click() {
    Terminal("cmbPlates_Click", [&] {
        Platform().ScreenCursor(Cursor::Wait);
        frmPlate.Visible(false);
        if (Deref(m_colPlates).Count() > 0) ShowChosenPlate();
        if (Deref(m_colSelected).Count() < 1) grdWells->NumRows(0);
        Deref(Context().GridHelper()).ClearGrid(*grdWells);
        grdWells->Redraw(GridConst::RedrawAll);
        MakeGridStatic(*grdWells);
        frmPlate.Visible(true);
        Platform().ScreenCursor(Cursor::Default);
    });
}

// The rows come first: writing them sets the marks that the wells show.
void PlatePage::ShowChosenPlate() {
    const std::int32_t lPlateID = cmbPlates.ItemData(cmbPlates.ListIndex());
    m_oPlate = Cast<IPlate>(m_colPlates->Item(DecimalText(lPlateID)));
    const std::string sName = PlateOnShow().Name();
    cmbPlates.ToolTip(RightTrim(sName));
    if (Deref(ItemsOf(PlateOnShow())).Count() > 0) {
        m_aWells = LoadPlate();
        ShowPlateRecords();
    } else {
        m_aWells = BlankPlate();
    }
    ShowPlate(m_aWells);
}

std::string PlatePage::StateText() const {
    std::string sText = " tab=" + DecimalText(tabPage.Tab()) + " plate=" + cmbPlates.Text() + " wells=[";
    std::string sBlank;
    for (std::int16_t iIndex = 1; iIndex < picWell.Size(); ++iIndex) {
        const GleanerSvc::Picture& oPicture = picWell[iIndex].Picture();
        if (oPicture == picEmpty.Picture()) continue;
        const bool bWarning = oPicture == picWarning.Picture() || oPicture == picWarningChecked.Picture();
        const bool bChecked = oPicture == picRawChecked.Picture() || oPicture == picWarningChecked.Picture();
        sText += sBlank + WellText(WellAt(iIndex)) + (bWarning ? "!" : "") + (bChecked ? "*" : "");
        sBlank = " ";
    }
    sText += "] listed=[";
    const std::int32_t lRows = ToInt32(grdWells->NumRows());
    for (std::int32_t lRow = 1; lRow <= lRows; ++lRow) {
        sText += (lRow > 1 ? " " : "") + std::string(grdWells->GetCellText(lRow, 1));
    }
    return sText + "] selected=" + DecimalText(m_colSelected ? m_colSelected->Count() : 0);
}

} // namespace GleanerSvc
