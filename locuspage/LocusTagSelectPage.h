// The wizard page on which the operator picks the allele identification type, and the locus tags of that type
// in one of two embedded selectors. Leaves "AnalysisParameter" and "AlleleIDType" in the parameter store.
#pragma once

#include <array>
#include <string>

#include "pagebind/WizardPage.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/SelectorControl.h"
#include "pagebind/controls/TabControl.h"

namespace GleanerSvc {

class LocusTagSelectPage final : public WizardPage {
  public:
    // Fails when a selector cannot be made. A page base that cannot be made is reported, and the page has
    // none.
    explicit LocusTagSelectPage(const Ref<Apartment>& oApartment);
    LocusTagSelectPage(const LocusTagSelectPage&) = delete;
    LocusTagSelectPage& operator=(const LocusTagSelectPage&) = delete;
    ~LocusTagSelectPage() override { Disconnect(); }

    // The controls, in twips. An option's index is also that of its tab and of its type.
    Label strAlleleIDType{
        *this, "strAlleleIDType", {360, 360, 3735, 255}, "You must select the Allele Identification Type:"};
    std::array<OptionButton, 2> optAlleleIDType{
        {{*this, "optAlleleIDType", 0, {4320, 360, 975, 255}, "S&TR"},
         {*this, "optAlleleIDType", 1, {5400, 360, 975, 255}, "SN&P"}}};
    TabControl SSTab1{*this, "SSTab1", {0, 1080, 10215, 5610}, {"STR Locus Tags", "SNP Locus Tags"}};
    SelectorControl ctlSTRLocusTagSelector{
        SSTab1, "ctlSTRLocusTagSelector", {840, 480, 7935, 4815}, [this](Container& oSite) {
            return Context().Libraries().CreateStrTagSelector(oSite);
        }};
    SelectorControl ctlSNPLocusTagSelector{
        SSTab1, "ctlSNPLocusTagSelector", {840, 480, 7935, 4935}, [this](Container& oSite) {
            return Context().Libraries().CreateSnpTagSelector(oSite);
        }};

  protected:
    // "LocusTagSelectPage type=none tab=0 chosen=off": the type text that the page hands on, the tab in
    // front, and whether an option is selected.
    std::string StateText() const override;

  private:
    std::string ClassName() const override { return "LocusTagSelectPage"; }
    void UserControl_Initialize();
    void m_oPageBase_Initialize();
    void m_oPageBase_Activate();
    void m_oPageBase_Deactivate();
    void m_oPageBase_Validate(bool& bIsValid);
    void m_oPageBase_Save();
    void optAlleleIDType_Click(std::int16_t iIndex);

    void LoadSelectors(Ref<IObject> oAnalysisParameter) const;
    void SaveTagsOf(ITagSelector& oSelector);
    void ShowFixedType(std::int16_t iTab);
    void ShowOpenChoice();
    void BringTabToFront(std::int16_t iTab);
    void ActivateSelector(std::int16_t iTab);
    bool IsTypeChosen() const { return optAlleleIDType[0].Value() || optAlleleIDType[1].Value(); }

    std::string m_sAlleleIDType;             // as found at Initialize: a later click does not change it
    Ref<IParameterDefinition> m_oDefinition; // the selectors fill it
};

} // namespace GleanerSvc
