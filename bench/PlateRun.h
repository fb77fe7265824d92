// One plate with 96 wells, all selected, and many more selected records on another plate.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "models/ModelLibraries.h"
#include "platepages/SampleSelectionPage.h"

namespace GleanerSvc::Bench {

// On the plate tab of the sample page. The journal records nothing.
class PlateRun {
  public:
    explicit PlateRun(std::int32_t lElsewhere);

    // A gesture that changes nothing: a row is clicked twice, each click ends in the refresh.
    void ClickRowTwice();

    // The floor: a bare walk over the same records that asks each for its plate.
    // Returns the records that lie on the plate.
    std::int32_t WalkBare() const;

    // "wells=96 listed=96 selected=1096 reports=0"
    std::string ToString() const;

  private:
    void AddPlate(std::int32_t lPlateID, std::int32_t lSamples);

    Ref<Models::ModelLibraries> m_oLibraries = Models::ModelLibraries::Create();
    Ref<KeyedCollection> m_colParameters = std::make_shared<KeyedCollection>();
    Ref<Models::WizardHost> m_oHost;
    Ref<SampleSelectionPage> m_oPage = std::make_shared<SampleSelectionPage>(m_oLibraries->MakeApartment());
    std::vector<Ref<ISample>> m_aoSamples;
};

} // namespace GleanerSvc::Bench
