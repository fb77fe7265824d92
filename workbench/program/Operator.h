// Does at a wizard's pages what an operator does: every step is a gesture on a control, and what cannot be
// done there is told as an operator would see it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "workbench/lab/Wizard.h"

namespace GleanerSvc::Workbench {

// Which samples: those of the named wells of a plate, or of the whole plate; without a plate those of the
// list that bear one of the names, or all of the project. Project and plate are named as the lab has them.
struct Choice {
    std::string sProject;
    std::string sPlate;
    std::vector<std::string> asWells;
    std::vector<std::string> asNames;
};

// How a run stands, as the analysis page shows it.
struct RunCounts {
    std::int32_t lTotal = 0;
    std::int32_t lAnalyzed = 0;
    std::int32_t lPassed = 0;
    std::int32_t lFailed = 0;
};

// Fails with InputError where an operator could not go on, naming what was asked for.
class Operator {
  public:
    explicit Operator(Wizard& oWizard) : m_oWizard(oWizard) {}

    void PickSamples(const Choice& oChoice) const;
    // No locus: all of them. Their names count without regard to case.
    void ChooseLoci(AlleleType eType, const std::vector<std::string>& asLoci) const;
    void PressNext() const;
    void Analyze() const; // returns when the run has ended
    void Stop() const;    // from inside the run
    void Finish() const;  // over the result page, into the study

    RunCounts Counts() const;
    std::string LastDetails() const; // the last line that the analyzer told

  private:
    void PickOnList(const Choice& oChoice) const;
    void PickOnPlate(const Choice& oChoice) const;
    void ClickWell(const std::string& sWell, const Choice& oChoice) const;
    void ExpectNoFailure() const;

    Wizard& m_oWizard;
};

} // namespace GleanerSvc::Workbench
