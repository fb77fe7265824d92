// The plate page of stored results, which go into a study. The study's own results are selected at the start;
// those of a run join them when the wizard comes here; what is new goes into the study when the wizard
// commits.
#pragma once

#include <string>

#include "platepages/PlatePage.h"

namespace GleanerSvc {

class ResultSelectionPage final : public PlatePage {
  public:
    // Fails when the grids cannot be made. A page base that cannot be made is reported, and the page has
    // none.
    explicit ResultSelectionPage(const Ref<Apartment>& oApartment);

  private:
    void ConnectPageBase() override;
    void m_oPageBase_Initialize() override;
    void m_oPageBase_Activate() override;
    void m_oPageBase_Deactivate() override;
    void m_oPageBase_Validate(bool& bIsValid) override;
    void m_oPageBase_Save();
    void ctlGleaner_SelectionChanged() override;

    void SelectResultsOfStudy(const IKeyedCollection& colParameters);
    void TakeAnalyzedResults(IKeyedCollection& colParameters);
    void ValidateWithBackRule() const;
    bool IsResultSelected(const std::string& sKey) const;
    Ref<IObject> ResultOfPlate(const std::string& sKey) const;

    std::int32_t StateAt(IPlate& oPlate, const Well& oWell) const override;
    PlateItem ItemAt(IPlate& oPlate, const Well& oWell) const override;
    PlateItem ItemOf(const Ref<IObject>& oRecord) const override;
    Ref<IDataCollection> ItemsOf(IPlate& oPlate) const override;
    bool IsMarked(const PlateItem& oItem) const override;
    void ClearStaleMark(const PlateItem& oItem) const override;

    Ref<IKeyedCollection> m_colStudyResults; // what the study held at Initialize
    bool m_bSkip = false;                    // the analysis was passed over on the way here
};

} // namespace GleanerSvc
