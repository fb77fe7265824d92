#include "platepages/SampleSelectionPage.h"

#include "pagebind/ParameterKeys.h"

namespace GleanerSvc {

SampleSelectionPage::SampleSelectionPage(const Ref<Apartment>& oApartment)
    : PlatePage(oApartment, SampleKind) {
    UserControl_Initialize();
}

void SampleSelectionPage::m_oPageBase_Initialize() {
    Raising("m_oPageBase_Initialize", [&] {
        PreparePlateView();
        InitializeList();
    });
}

// Ends a backward pass. The selection itself stays.
void SampleSelectionPage::m_oPageBase_Activate() {
    Raising("m_oPageBase_Activate", [&] {
        ShowTitle();
        const auto colParameters = Parameters();
        RemoveIfPresent(Deref(colParameters), ParameterKey::SkipBackward);
        RemoveIfPresent(*colParameters, ParameterKey::Samples);
        RestoreProject(*colParameters);
    });
}

// Leaving for the view of one sample is no leaving: the store stays as it is. The mark for an empty selection
// may still be there from a pass that turned back before the analysis; samples take its place.
void SampleSelectionPage::m_oPageBase_Deactivate() {
    Raising("m_oPageBase_Deactivate", [&] {
        if (ctlGleaner.m_bShowSingleSample) {
            ctlGleaner.m_bShowSingleSample = false;
            return;
        }
        const auto colParameters = Parameters();
        StoreProject(Deref(colParameters));
        RemoveIfPresent(*colParameters, ParameterKey::SkipForward);
        if (Deref(m_colSelected).Count() < 1) {
            colParameters->Add(SkipValue, ParameterKey::SkipForward);
        } else {
            colParameters->Add(m_colSelected, ParameterKey::Samples);
        }
    });
}

void SampleSelectionPage::m_oPageBase_Validate(bool& bIsValid) {
    Raising("m_oPageBase_Validate", [&] { bIsValid = true; });
}

void SampleSelectionPage::ctlGleaner_SelectionChanged() {
    Terminal("ctlGleaner_SelectionChanged", [&] { ValidatePage(); });
}

std::int32_t SampleSelectionPage::StateAt(IPlate& oPlate, const Well& oWell) const {
    return oPlate.SampleState(oWell.iCol, oWell.iRow);
}

PlateItem SampleSelectionPage::ItemAt(IPlate& oPlate, const Well& oWell) const {
    return PlateItem(oPlate.SampleAt(oWell.iCol, oWell.iRow));
}

PlateItem SampleSelectionPage::ItemOf(const Ref<IObject>& oRecord) const {
    return PlateItem(Cast<ISample>(oRecord));
}

Ref<IDataCollection> SampleSelectionPage::ItemsOf(IPlate& oPlate) const { return oPlate.Samples(); }

bool SampleSelectionPage::IsMarked(const PlateItem& oItem) const { return oItem.IsSelected(); }

void SampleSelectionPage::ClearStaleMark(const PlateItem& oItem) const { oItem.IsSelected(false); }

} // namespace GleanerSvc
