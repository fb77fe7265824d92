// The drawing of the plate: 96 wells, each with the picture and the tool tip of what it holds.
#include "pagebind/Text.h"
#include "platepages/PlatePage.h"

namespace GleanerSvc {

// The figures are those of the background drawing.
std::int32_t PlatePage::TopOf(std::int32_t iRow) const {
    return (picRaw.Place().lHeight + 45) * (iRow + 1) + 670;
}

std::int32_t PlatePage::LeftOf(std::int32_t iCol) const {
    return (picRaw.Place().lWidth + 2) * (iCol + 1) + 205;
}

void PlatePage::LoadImage() {
    Raising("LoadImage", [&] {
        picWell[0].Picture(picRaw.Picture());
        for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
            const Well oWell = WellAt(iIndex);
            PictureBox& oBox = WellBox(iIndex);
            oBox.Top(TopOf(oWell.iRow));
            oBox.Left(LeftOf(oWell.iCol));
            oBox.BringToFront();
            oBox.Visible(true);
        }
    });
}

// Created as a copy of the template when it is not there yet.
PictureBox& PlatePage::WellBox(std::int16_t iIndex) {
    if (iIndex < picWell.Size()) return picWell[iIndex];
    PictureBox& oBox = picWell.Add(frmPlate, "picWell", picWell[0].Place(), picWell[0].Picture());
    oBox.Visible(false);
    On(oBox.MouseDown, [this](std::int16_t iButton) { picWell_MouseDown(iButton); });
    On(oBox.Click, [this, iIndex] { picWell_Click(iIndex); });
    return oBox;
}

PlatePage::WellTable PlatePage::LoadPlate() const {
    return Raising("LoadPlate", [&] {
        WellTable aWells = BlankPlate();
        for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
            const Well oWell = WellAt(iIndex);
            StateIn(aWells, oWell) = StateAt(PlateOnShow(), oWell);
        }
        return aWells;
    });
}

PlatePage::WellTable PlatePage::BlankPlate() const {
    return Raising("BlankPlate", [] { return WellTable{}; });
}

void PlatePage::ShowPlate(const WellTable& aWells) {
    Raising("ShowPlate", [&] {
        for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
            const Well oWell = WellAt(iIndex);
            ShowWell(picWell[iIndex], oWell, StateIn(aWells, oWell));
        }
    });
}

// The plate is not asked for the record of an empty well: there may be no plate yet.
void PlatePage::ShowWell(PictureBox& oBox, const Well& oWell, std::int32_t lState) {
    if (lState == WellState::Empty) {
        oBox.Picture(picEmpty.Picture());
        oBox.ToolTip(std::string("(") + RowLetter(oWell.iRow) + "," + DecimalText(oWell.iCol + 1) +
                     ") is empty");
        return;
    }
    const PlateItem oItem = ItemAt(PlateOnShow(), oWell);
    const PictureBox& oTemplate = TemplateFor(lState, oItem);
    oBox.Picture(oTemplate.Picture());
    if (&oTemplate != &picEmpty && !IsInSelection(oItem.Key())) ClearStaleMark(oItem);
    const std::string sName = oItem.Name();
    oBox.ToolTip(RightTrim(sName));
}

const PictureBox& PlatePage::TemplateFor(std::int32_t lState, const PlateItem& oItem) const {
    if ((lState != WellState::Plain && lState != WellState::Special) || !oItem.IsThere()) return picEmpty;
    const bool bMarked = IsMarked(oItem);
    if (lState == WellState::Plain) return bMarked ? picRawChecked : picRaw;
    return bMarked ? picWarningChecked : picWarning;
}

} // namespace GleanerSvc
