// The locus tag selectors of the workbench: the loci of a panel as check boxes.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "pagebind/Subscriptions.h"
#include "pagebind/TagSelectors.h"
#include "pagebind/controls/Button.h"
#include "pagebind/controls/CheckBox.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Label.h"
#include "workbench/store/ParameterDefinition.h"

namespace GleanerSvc::Workbench {

// Stands in its site, which outlives it. Every locus is picked at first. What is saved are the names of the
// picked loci; with all or none of them picked it is no name, which means every locus of a sample's panel.
class TagSelector {
  public:
    TagSelector(Container& oSite, const std::vector<Panel>& aoPanels, AlleleType eType);
    TagSelector(const TagSelector&) = delete;
    TagSelector& operator=(const TagSelector&) = delete;

    Label lblPanel;
    DropDownList cmbPanel; // the panels of the selector's type
    Button cmdAll;
    Button cmdNone;
    Label lblLoci;                                       // "3 of 16 loci", and what is called by them
    std::vector<std::unique_ptr<CheckBox>> aoLocusBoxes; // of the chosen panel, in its order

    bool HasAll(const std::vector<std::string>& asLoci) const; // the chosen panel has them
    // The operator's door beside the controls: picks just these loci of the chosen panel. One that it does
    // not have fails with invalid call, naming it.
    void Pick(const std::vector<std::string>& asLoci);

    std::vector<std::string> PickedLoci() const;
    bool IsActive() const { return m_bActive; }

    // "SNP inactive panel=Kit loci=[TH01* TPOX FGA*]": the picked ones are starred.
    std::string ToString() const;

  protected:
    ~TagSelector() = default;

    // Shows the loci of a record of the selector's type; every one when it names none, or when no panel has
    // all that it names. Another record leaves what is picked.
    void Load(const Ref<IObject>& oParameter);
    // Names the picked loci; none as long as nothing was chosen, or when none is picked, for every locus of a
    // sample's own panel. An inactive selector writes nothing.
    void Save(const Ref<IObject>& oDefinition) const;
    void Activate(bool bActive) { m_bActive = bActive; }

  private:
    const Panel* ChosenPanel() const;
    const CheckBox* FindBox(const std::string& sLocus) const;
    bool ChoosePanelWith(const std::vector<std::string>& asLoci);
    void ShowLoci();
    void PickAll(bool bPicked) const;
    void PickEvery();
    void TakeChoice();
    void ShowCount();

    Container& m_oSite;
    std::vector<Panel> m_aoPanels;
    AlleleType m_eType;
    bool m_bActive = false;
    bool m_bEvery = true; // nobody has chosen a panel or a locus
    Subscriptions m_oSubscriptions;
    Subscriptions m_oLocusSubscriptions;
};

// One selector: the interface that it is reached by, around the common part.
template<class Interface, AlleleType eType>
class TagSelectorOf final : public Interface, public TagSelector {
  public:
    TagSelectorOf(Container& oSite, const std::vector<Panel>& aoPanels)
        : TagSelector(oSite, aoPanels, eType) {}

    void LoadParameters(Ref<IObject>& oParameter) override { Load(oParameter); }
    void SaveParameters(Ref<IObject>& oDefinition) override { Save(oDefinition); }
    void Active(bool bActive) override { Activate(bActive); }
};

using StrTagSelector = TagSelectorOf<IStrLocusTagSelector, AlleleType::Str>;
using SnpTagSelector = TagSelectorOf<ISnpLocusTagSelector, AlleleType::Snp>;

} // namespace GleanerSvc::Workbench
