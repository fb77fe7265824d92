// What the two selection pages share. One tab has the selection list; the other draws one 96-well plate, and
// lists beneath it what is selected there. The selection is one keyed collection, by the records' IDs; both
// tabs work on it. A record's mark, IsSelected, is a copy of that for the plate
// on show, made anew at every refresh.
//
// Below, a record is an IResult on one page and an ISample on the other. The plate's own members take the
// column first; the page's table is (row, column), and wells are numbered row by row from 1.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "pagebind/Well.h"
#include "pagebind/WizardPage.h"
#include "pagebind/controls/ControlArray.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/GridControl.h"
#include "pagebind/controls/Image.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/PictureBox.h"
#include "pagebind/controls/PopupMenu.h"
#include "pagebind/controls/TabControl.h"
#include "platepages/PlateItem.h"
#include "platepages/PlateKind.h"
#include "platepages/WellPictures.h"
#include "selectionlist/GleanerCtl.h"

namespace GleanerSvc {

class PlatePage : public WizardPage {
  private:
    const PlateKind& m_oKind;

  public:
    PlatePage(const PlatePage&) = delete;
    PlatePage& operator=(const PlatePage&) = delete;
    ~PlatePage() override { Disconnect(); }

    // The controls, in twips.
    TabControl tabPage; // bears the page's name
    GleanerCtl ctlGleaner{SharedContext(), tabPage, "ctlGleaner", {120, 480, 10695, 6090}};
    Label lblProject{tabPage, "lblProject", {240, 540, 615, 255}, "Project:"};
    DropDownList cmbProjects{tabPage, "cmbProjects", {900, 480, 3600, 315}};
    Label lblPlates{tabPage, "lblPlates", {4800, 540, 615, 255}, "Plates:"};
    DropDownList cmbPlates{tabPage, "cmbPlates", {5460, 480, 3600, 315}};
    Frame frmPlate{tabPage, "frmPlate", {120, 900, 10695, 6435}, "Current Plate"};
    Label lblPlate{frmPlate, "lblPlate", {120, 300, 1500, 255}, "Plate:"};
    Image Image3{frmPlate, "Image3", {120, 600, 4935, 3975}, PlateBackground()};
    PictureBox picEmpty{frmPlate, "picEmpty", {0, 0, 360, 360}, WellPictureOf(WellPicture::Empty)};
    PictureBox picRaw{frmPlate, "picRaw", {0, 0, 360, 360}, WellPictureOf(WellPicture::Raw)};
    PictureBox picRawChecked{
        frmPlate, "picRawChecked", {0, 0, 360, 360}, WellPictureOf(WellPicture::RawChecked)};
    PictureBox picWarning{frmPlate, "picWarning", {0, 0, 360, 360}, WellPictureOf(WellPicture::Warning)};
    PictureBox picWarningChecked{
        frmPlate, "picWarningChecked", {0, 0, 360, 360}, WellPictureOf(WellPicture::WarningChecked)};
    PictureBox picAllWells{frmPlate, "picAllWells", {240, 780, 240, 195}, AllWellsPicture()};
    ControlArray<Label> lblLetter;    // hot zones over the letters, by row
    ControlArray<Label> lblNumber;    // over the numbers, by column
    ControlArray<PictureBox> picWell; // 0 is the hidden template, 1 to 96 are the wells, from Initialize on
    Label lblSelectedWells{frmPlate, "lblSelectedWells", {120, 4680, 1815, 255}, "Selected Wells:"};
    GridControl grdWells{frmPlate, "grdWells", {120, 4920, 10455, 1395}, Context()};
    Frame frmLegend; // a static panel: five images with a label each
    ControlArray<Image> imgLegend;
    ControlArray<Label> lblLegend;
    PopupMenu mnuOptions{*this, "mnuOptions", "Options"};
    MenuEntry mnuSelectMostRecent{mnuOptions, "mnuSelectMostRecent", "Select Most Recent"};
    MenuEntry mnuSelectCustom{mnuOptions, "mnuSelectCustom", "Select Custom"};
    MenuEntry mnuSelectAll{mnuOptions, "mnuSelectAll", "Select All"};
    MenuEntry mnuSelect{mnuOptions, "mnuSelect", "Select"};
    MenuEntry mnuSeparator{mnuOptions, "mnuSeparator", "-"};
    MenuEntry mnuDeSelect{mnuOptions, "mnuDeSelect", "De-Select"};
    MenuEntry mnuRemove{mnuOptions, "mnuRemove", "Remove"};

  protected:
    // Fails when the grids cannot be made.
    PlatePage(const Ref<Apartment>& oApartment, const PlateKind& oKind);

    // "ResultSelectionPage tab=1 plate=P1 wells=[A1 A2* B1! C1!*] listed=[A2 C1] selected=3": wells that are
    // not drawn empty, a star for a selected one and "!" for state 2; the rows beneath the plate; and all
    // that is selected.
    std::string StateText() const override;
    std::string ClassName() const override { return std::string(m_oKind.sClass); }

    // The last step of a page's constructor.
    void UserControl_Initialize();
    virtual void ConnectPageBase();
    virtual void m_oPageBase_Initialize() = 0;
    virtual void m_oPageBase_Activate() = 0;
    virtual void m_oPageBase_Deactivate() = 0;
    virtual void m_oPageBase_Validate(bool& bIsValid) = 0;
    virtual void ctlGleaner_SelectionChanged() = 0;

    // Steps of the page events that both pages take.
    void PreparePlateView(); // with an empty selection
    void ShowTitle() const { Deref(Host()).Title(m_oKind.sTitle); }
    void InitializeList();
    void RestoreProject(IKeyedCollection& colParameters);
    void StoreProject(IKeyedCollection& colParameters) const;

    // How a page reads a plate.
    virtual std::int32_t StateAt(IPlate& oPlate, const Well& oWell) const = 0;
    virtual PlateItem ItemAt(IPlate& oPlate, const Well& oWell) const = 0;
    virtual PlateItem ItemOf(const Ref<IObject>& oRecord) const = 0;
    virtual Ref<IDataCollection> ItemsOf(IPlate& oPlate) const = 0;
    // While the plate is drawn: is the item marked, which may set the item's own mark; and a mark that the
    // selection does not bear out goes.
    virtual bool IsMarked(const PlateItem& oItem) const = 0;
    virtual void ClearStaleMark(const PlateItem& oItem) const = 0;
    IPlate& PlateOnShow() const { return Deref(m_oPlate); }

    Ref<IKeyedCollection> m_colSelected; // all that is selected, on all plates and in all projects

  private:
    friend class PlatePageProbe; // tests look at the selection through it

    using WellTable = std::array<std::array<std::int32_t, PlateCols>, PlateRows>; // states, by row and column
    template<class Table>
    static auto& StateIn(Table& aWells, const Well& oWell) {
        return aWells.at(static_cast<std::size_t>(oWell.iRow)).at(static_cast<std::size_t>(oWell.iCol));
    }

    // Tabs, projects and plates (PlatePage.cpp).
    void Connect();
    void MakeHotZones();
    void MakeLegend();
    void HideTabFrames();
    void tabPage_Click();
    void LoadProjects();
    void cmbProjects_Click();
    void LoadPlates(std::int32_t lProjectID);
    void cmbPlates_Click();
    void ShowChosenPlate();

    // The drawing (PlatePageDrawing.cpp).
    std::int32_t TopOf(std::int32_t iRow) const; // of a well, in twips
    std::int32_t LeftOf(std::int32_t iCol) const;
    void LoadImage();
    PictureBox& WellBox(std::int16_t iIndex);
    WellTable LoadPlate() const;
    WellTable BlankPlate() const;
    void ShowPlate(const WellTable& aWells);
    void ShowWell(PictureBox& oBox, const Well& oWell, std::int32_t lState);
    const PictureBox& TemplateFor(std::int32_t lState, const PlateItem& oItem) const;

    // Gestures on the plate (PlatePageGestures.cpp).
    bool IsInSelection(const std::string& sKey) const { return IsIn(Deref(m_colSelected), sKey); }
    void picWell_MouseDown(std::int16_t iButton);
    void picWell_Click(std::int16_t iIndex);
    void OpenWellMenu(const Well& oWell);
    void Toggle(const PlateItem& oItem) const;
    void picAllWells_Click();
    void lblNumber_Click(std::int16_t iIndex);
    void lblLetter_Click(std::int16_t iIndex);
    template<class F>
    void ToggleWells(F&& fnBelongs);
    template<class F, class G>
    void ForEachItem(F&& fnBelongs, G&& fnVisit) const;
    void SelectItem(const PlateItem& oItem, bool bSelect) const;
    void ShowMenu(std::string_view sType, bool bSelected);
    void mnuSelect_Click();
    void mnuDeSelect_Click();
    void ToggleWellOfMenu();

    // The list beneath the plate (PlatePageList.cpp).
    void ShowPlateRecords();
    std::int32_t WriteListedRows(IDataCollection& colItems);
    void WriteRow(std::int32_t lRow, const PlateItem& oItem);
    void MakeGridStatic(IGrid& oGrid);
    void GridSort(IGrid& oGrid, bool bDescending, bool bCase);
    void grdWells_OnLButtonClickedRowCol(double dRow, double dCol);
    void grdWells_OnRButtonClickedRowCol(double dRow);
    void grdWells_OnGridKeyDown();
    void grdWells_OnGridKeyUp();
    void mnuRemove_Click();
    void RemoveRanges(IGridRangeList& oRanges, std::int32_t lRanges);

    Ref<IObject> m_oGridType;
    Ref<IDataCollection> m_colPlates; // of the chosen project
    Ref<IPlate> m_oPlate;             // on show; stays when a project without plates is chosen
    WellTable m_aWells{};
    std::string m_sButton;         // "left" or "right", of the last press on a well
    std::int16_t m_iWellIndex = 0; // of the last right click
    std::int32_t m_lGridRow = 0;   // of the last click in the list; 0 for the heading
    double m_dSortColumn = 0;      // of the last sort
    bool m_bSortFlag = false;      // turned round by every left click in the list
};

} // namespace GleanerSvc
