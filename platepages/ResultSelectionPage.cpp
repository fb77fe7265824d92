#include "platepages/ResultSelectionPage.h"

#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

Ref<IStudy> StudyIn(const IKeyedCollection& colParameters) {
    return ItemAs<IStudy>(colParameters, ParameterKey::Study);
}

} // namespace

ResultSelectionPage::ResultSelectionPage(const Ref<Apartment>& oApartment)
    : PlatePage(oApartment, ResultKind) {
    UserControl_Initialize();
}

void ResultSelectionPage::ConnectPageBase() {
    PlatePage::ConnectPageBase();
    On(Events().Save, [this] { m_oPageBase_Save(); });
}

void ResultSelectionPage::m_oPageBase_Initialize() {
    Raising("m_oPageBase_Initialize", [&] {
        const auto colParameters = Parameters();
        m_colStudyResults = std::make_shared<KeyedCollection>();
        PreparePlateView();
        SelectResultsOfStudy(Deref(colParameters));
        InitializeList();
    });
}

void ResultSelectionPage::SelectResultsOfStudy(const IKeyedCollection& colParameters) {
    const auto colStudyResults = Deref(StudyIn(colParameters)).StudyResults();
    const std::int32_t lCount = Deref(colStudyResults).Count();
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace) {
        const auto oStudyResult = colStudyResults->Item(lPlace);
        const auto oResult = Deref(oStudyResult).GetMember(RecordMember::Result).To<IResult>();
        const std::string sKey = DecimalText(Deref(oResult).ResultID());
        m_colSelected->Add(oResult, sKey);
        m_colStudyResults->Add(oResult, sKey);
    }
}

// Where the analysis was passed over there are no results to take, and the way back stays open.
void ResultSelectionPage::m_oPageBase_Activate() {
    Raising("m_oPageBase_Activate", [&] {
        ShowTitle();
        const auto colParameters = Parameters();
        StudyIn(Deref(colParameters)); // a store without a study fails here
        RestoreProject(*colParameters);
        m_bSkip = IsIn(*colParameters, ParameterKey::SkipBackward);
        if (!m_bSkip) {
            TakeAnalyzedResults(*colParameters);
            ctlGleaner.RefreshView();
        }
        ValidateWithBackRule();
    });
}

// A result that is selected already fails, and what was taken before it stays.
void ResultSelectionPage::TakeAnalyzedResults(IKeyedCollection& colParameters) {
    if (!IsIn(colParameters, ParameterKey::AnalyzedResults)) return;
    const auto colResults = ItemAs<IKeyedCollection>(colParameters, ParameterKey::AnalyzedResults);
    const std::int32_t lCount = Deref(colResults).Count();
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace) {
        const auto oResult = ItemAs<IResult>(*colResults, lPlace);
        Deref(m_colSelected).Add(oResult, DecimalText(Deref(oResult).ResultID()));
    }
    colParameters.Remove(ParameterKey::AnalyzedResults);
}

// In this order: validating resets the Back button.
void ResultSelectionPage::ValidateWithBackRule() const {
    ValidatePage();
    Deref(Host()).EnableButton(HostButton::Back, m_bSkip);
}

void ResultSelectionPage::m_oPageBase_Deactivate() {
    Raising("m_oPageBase_Deactivate", [&] { StoreProject(Deref(Parameters())); });
}

// No more results than the installation allows, all plates and projects and the study's own counted in.
void ResultSelectionPage::m_oPageBase_Validate(bool& bIsValid) {
    Raising("m_oPageBase_Validate", [&] {
        bIsValid = true;
        const std::int32_t lMaximum = Deref(Context().Settings()).MaximumResults();
        const std::int32_t lCount = Deref(m_colSelected).Count();
        if (lCount <= lMaximum) return;
        bIsValid = false;
        const std::string sBreak = std::string(LineBreak) + "\t";
        Platform().ShowMessage("You have selected results beyond the maximum allowed." + sBreak +
                                   "Maximum results allowed: " + DecimalText(lMaximum) + sBreak +
                                   "Current selection count: " + DecimalText(lCount),
                               MessageStyle::Plain, "");
    });
}

// Takes nothing out of the study.
void ResultSelectionPage::m_oPageBase_Save() {
    Raising("m_oPageBase_Save", [&] {
        const auto oStudy = StudyIn(Deref(Parameters()));
        const std::int32_t lCount = Deref(m_colSelected).Count();
        for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace) {
            const std::int32_t lResultID = Deref(ItemAs<IResult>(*m_colSelected, lPlace)).ResultID();
            if (IsIn(*m_colStudyResults, DecimalText(lResultID))) continue;
            const auto oStudyResult =
                Cast<IStudyResult>(Deref(Context().DataFactory()).CreateRecord(RecordName::StudyResult));
            Deref(oStudyResult).Study(oStudy);
            oStudyResult->ResultID(lResultID);
            oStudyResult->ResultFlag(false);
            Deref(Deref(oStudy).StudyResults()).Add(oStudyResult);
        }
    });
}

void ResultSelectionPage::ctlGleaner_SelectionChanged() {
    Terminal("ctlGleaner_SelectionChanged", [&] { ValidateWithBackRule(); });
}

std::int32_t ResultSelectionPage::StateAt(IPlate& oPlate, const Well& oWell) const {
    return oPlate.ResultState(oWell.iCol, oWell.iRow);
}

PlateItem ResultSelectionPage::ItemAt(IPlate& oPlate, const Well& oWell) const {
    return PlateItem(oPlate.ResultAt(oWell.iCol, oWell.iRow));
}

PlateItem ResultSelectionPage::ItemOf(const Ref<IObject>& oRecord) const {
    return PlateItem(Cast<IResult>(oRecord));
}

Ref<IDataCollection> ResultSelectionPage::ItemsOf(IPlate& oPlate) const { return oPlate.Results(); }

// Need not be the object that the well gives; its mark is the one that counts.
Ref<IObject> ResultSelectionPage::ResultOfPlate(const std::string& sKey) const {
    return Deref(PlateOnShow().Results()).Item(sKey);
}

bool ResultSelectionPage::IsResultSelected(const std::string& sKey) const {
    return Raising("IsResultSelected",
                   [&] { return Deref(ResultOfPlate(sKey)).GetMember(RecordMember::IsSelected).ToBool(); });
}

bool ResultSelectionPage::IsMarked(const PlateItem& oItem) const {
    const bool bMarked = IsResultSelected(oItem.Key());
    if (bMarked) oItem.IsSelected(true);
    return bMarked;
}

void ResultSelectionPage::ClearStaleMark(const PlateItem& oItem) const {
    oItem.IsSelected(false);
    Deref(ResultOfPlate(oItem.Key())).PutMember(RecordMember::IsSelected, false);
}

} // namespace GleanerSvc
