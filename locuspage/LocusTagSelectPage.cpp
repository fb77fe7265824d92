#include "locuspage/LocusTagSelectPage.h"

#include "pagebind/ParameterKeys.h"
#include "pagebind/Text.h"

namespace GleanerSvc {

namespace {

constexpr std::int16_t StrTab = 0;
constexpr std::int16_t SnpTab = 1;
constexpr std::int16_t NoTab = -1; // the type is still open

std::int16_t TabOf(std::string_view sAlleleIDType) {
    if (EqualsIgnoringCase(sAlleleIDType, AlleleType::Str)) return StrTab;
    if (EqualsIgnoringCase(sAlleleIDType, AlleleType::Snp)) return SnpTab;
    return NoTab;
}

} // namespace

LocusTagSelectPage::LocusTagSelectPage(const Ref<Apartment>& oApartment)
    : WizardPage(oApartment, "LocusTagSelectPage", 10215, 7005) {
    SSTab1.PutOnTab(ctlSTRLocusTagSelector, StrTab);
    SSTab1.PutOnTab(ctlSNPLocusTagSelector, SnpTab);
    for (OptionButton& oOption : optAlleleIDType) {
        On(oOption.Click, [this, iIndex = oOption.Index()] { optAlleleIDType_Click(iIndex); });
    }
    UserControl_Initialize();
}

void LocusTagSelectPage::UserControl_Initialize() {
    Terminal("UserControl_Initialize", [&] {
        CreatePageBase();
        On(Events().Initialize, [this](const Ref<IObject>&) { m_oPageBase_Initialize(); });
        On(Events().Activate, [this] { m_oPageBase_Activate(); });
        On(Events().Deactivate, [this] { m_oPageBase_Deactivate(); });
        On(Events().Validate, [this](bool& bIsValid) { m_oPageBase_Validate(bIsValid); });
        On(Events().Save, [this] { m_oPageBase_Save(); });
    });
}

void LocusTagSelectPage::m_oPageBase_Initialize() {
    Raising("m_oPageBase_Initialize", [&] {
        const auto oAnalysisParameter = Cast<IAnalysisParameter>(
            Deref(Context().DataFactory()).CreateRecord(RecordName::AnalysisParameter));
        m_oDefinition = Context().Libraries().CreateParameterDefinition();
        Deref(oAnalysisParameter).Definition(m_oDefinition);
        const auto colParameters = Parameters();
        m_sAlleleIDType = AlleleType::None;
        if (IsIn(Deref(colParameters), ParameterKey::AlleleIDType)) {
            m_sAlleleIDType = colParameters->Item(ParameterKey::AlleleIDType).ToText();
        } else {
            colParameters->Add(m_sAlleleIDType, ParameterKey::AlleleIDType);
        }
        const std::int16_t iTab = TabOf(m_sAlleleIDType);
        LoadSelectors(oAnalysisParameter);
        if (iTab == NoTab) {
            ShowOpenChoice();
        } else {
            ShowFixedType(iTab);
        }
    });
}

// SNP comes first here. The record lives for this call only; the definition outlasts it.
void LocusTagSelectPage::LoadSelectors(Ref<IObject> oAnalysisParameter) const {
    ctlSNPLocusTagSelector->LoadParameters(oAnalysisParameter);
    ctlSTRLocusTagSelector->LoadParameters(oAnalysisParameter);
}

// The type was fixed by an earlier step and cannot be changed. Selecting the option raises its click too, to
// the same end.
void LocusTagSelectPage::ShowFixedType(std::int16_t iTab) {
    strAlleleIDType.Caption("Allele Identification Type:");
    strAlleleIDType.Enabled(false);
    optAlleleIDType.at(static_cast<std::size_t>(iTab)).Value(true);
    optAlleleIDType.at(static_cast<std::size_t>(1 - iTab)).Value(false);
    for (OptionButton& oOption : optAlleleIDType) oOption.Enabled(false);
    BringTabToFront(iTab);
    ActivateSelector(iTab);
}

void LocusTagSelectPage::ShowOpenChoice() {
    for (OptionButton& oOption : optAlleleIDType) oOption.Value(false);
    SSTab1.TabEnabled(StrTab, false);
    SSTab1.TabEnabled(SnpTab, false);
    SSTab1.Tab(StrTab);
    ActivateSelector(NoTab);
}

void LocusTagSelectPage::BringTabToFront(std::int16_t iTab) {
    SSTab1.TabEnabled(iTab, true);
    SSTab1.TabEnabled(static_cast<std::int16_t>(1 - iTab), false);
    SSTab1.Tab(iTab);
}

void LocusTagSelectPage::ActivateSelector(std::int16_t iTab) {
    SelectorControl& oChosen = iTab == SnpTab ? ctlSNPLocusTagSelector : ctlSTRLocusTagSelector;
    SelectorControl& oOther = iTab == SnpTab ? ctlSTRLocusTagSelector : ctlSNPLocusTagSelector;
    oChosen->Active(iTab != NoTab);
    oOther->Active(false);
}

// No trap. The type text that the page hands on stays the one found at Initialize.
void LocusTagSelectPage::optAlleleIDType_Click(std::int16_t iIndex) {
    BringTabToFront(iIndex);
    ActivateSelector(iIndex);
    ValidatePage();
}

void LocusTagSelectPage::m_oPageBase_Activate() {
    Raising("m_oPageBase_Activate", [] {});
}

// Any choice of type is enough; the selectors are not asked.
void LocusTagSelectPage::m_oPageBase_Validate(bool& bIsValid) {
    Raising("m_oPageBase_Validate", [&] {
        bIsValid = true;
        if (!IsTypeChosen()) bIsValid = false;
    });
}

// STR comes first here. Both are asked, whichever type is in play.
void LocusTagSelectPage::m_oPageBase_Save() {
    Raising("m_oPageBase_Save", [&] {
        SaveTagsOf(*ctlSTRLocusTagSelector);
        SaveTagsOf(*ctlSNPLocusTagSelector);
    });
}

// The definition may come back replaced.
void LocusTagSelectPage::SaveTagsOf(ITagSelector& oSelector) {
    Ref<IObject> oDefinition = m_oDefinition;
    oSelector.SaveParameters(oDefinition);
    m_oDefinition = Cast<IParameterDefinition>(oDefinition);
}

void LocusTagSelectPage::m_oPageBase_Deactivate() {
    Raising("m_oPageBase_Deactivate", [&] {
        m_oPageBase_Save();
        const auto colParameters = Parameters();
        Replace(Deref(colParameters), m_oDefinition, ParameterKey::AnalysisParameter);
        Replace(*colParameters, m_sAlleleIDType, ParameterKey::AlleleIDType);
    });
}

std::string LocusTagSelectPage::StateText() const {
    return " type=" + m_sAlleleIDType + " tab=" + DecimalText(SSTab1.Tab()) +
           " chosen=" + (IsTypeChosen() ? "on" : "off");
}

} // namespace GleanerSvc
