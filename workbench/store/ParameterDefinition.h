// The definition that the tag selectors fill and the analyzer reads.
#pragma once

#include "pagebind/Records.h"
#include "workbench/store/Lab.h"

namespace GleanerSvc::Workbench {

// One object under two interfaces, since later steps reach the definition as a parameter record. The analyzer
// reaches its choice through FirstPart(0), which is this object itself; SecondPart(0) is nothing it needs and
// is the same object. Any other index fails with subscript.
class ParameterDefinition final : public IParameterDefinition,
                                  public IAnalysisParameter,
                                  public std::enable_shared_from_this<ParameterDefinition> {
  public:
    explicit ParameterDefinition(Ref<Lab> oLab);

    Ref<IObject> FirstPart(std::int32_t lIndex) override;
    Ref<IObject> SecondPart(std::int32_t lIndex) override;

    std::string Name() override; // "STR, 16 loci", "SNP, all loci"; "none" before a choice
    // Of the lab's row with just this choice, stored when it is first asked for; 0 before a choice.
    std::int32_t ParameterID() override;
    void Definition(const Ref<IParameterDefinition>& oDefinition) override; // takes none of its own

    // What a selector writes. Another choice afterwards is another row.
    void Choose(AlleleType eType, std::vector<std::string> asLoci);
    const ParameterRow& Choice() const { return m_oChoice; }

    std::string ToString() const; // "STR D3S1358 vWA", "none"

  private:
    Ref<Lab> m_oLab;
    ParameterRow m_oChoice; // its ID is 0 until it is stored
    bool m_bChosen = false;
};

} // namespace GleanerSvc::Workbench
