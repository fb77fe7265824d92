// One run of the analysis page: a batch on show, and the events of its analyzer.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "analysispage/AnalysisPage.h"
#include "models/ModelLibraries.h"

namespace GleanerSvc::Bench {

inline constexpr std::int32_t UpdatesOfAnItem = 10;

// The batch that was just started: every item has ten status updates; each tenth fails and has no stored
// result. Nothing is written to the journal.
class AnalysisRun {
  public:
    explicit AnalysisRun(std::int32_t lItems);

    // Straight from here: a script of a million steps would be read from memory, and that is not the page's
    // cost.
    void PlayAll();

    // "analyzed=1000 failed=100 results=900 reports=0", the results as the page hands them on.
    std::string ToString() const;

  private:
    std::int32_t m_lItems;
    Ref<Models::ModelLibraries> m_oLibraries = Models::ModelLibraries::Create();
    Ref<Models::WizardHost> m_oHost = m_oLibraries->MakeHost();
    Ref<AnalysisPage> m_oPage = std::make_shared<AnalysisPage>(m_oLibraries->MakeApartment());
};

// The floor: the same updates and completions without a page, a grid or a store. Texts are appended to one
// text that each completion empties, and each status goes into a row of a bare vector. Returns the rows
// that failed.
std::int32_t PlayBare(std::int32_t lItems);

} // namespace GleanerSvc::Bench
