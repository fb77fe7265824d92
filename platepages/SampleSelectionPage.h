// The plate page of raw samples. It hands the selected ones on under "Samples"; without any it leaves the
// mark that makes the wizard pass over the analysis.
#pragma once

#include "platepages/PlatePage.h"

namespace GleanerSvc {

class SampleSelectionPage final : public PlatePage {
  public:
    // Fails when the grids cannot be made. A page base that cannot be made is reported, and the page has
    // none.
    explicit SampleSelectionPage(const Ref<Apartment>& oApartment);

  private:
    void m_oPageBase_Initialize() override;
    void m_oPageBase_Activate() override;
    void m_oPageBase_Deactivate() override;
    void m_oPageBase_Validate(bool& bIsValid) override;
    void ctlGleaner_SelectionChanged() override;

    std::int32_t StateAt(IPlate& oPlate, const Well& oWell) const override;
    PlateItem ItemAt(IPlate& oPlate, const Well& oWell) const override;
    PlateItem ItemOf(const Ref<IObject>& oRecord) const override;
    Ref<IDataCollection> ItemsOf(IPlate& oPlate) const override;
    bool IsMarked(const PlateItem& oItem) const override;
    void ClearStaleMark(const PlateItem& oItem) const override;
};

} // namespace GleanerSvc
