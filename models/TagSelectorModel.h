// The two locus tag selector controls.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "models/Journal.h"
#include "pagebind/TagSelectors.h"

namespace GleanerSvc::Models {

// A choice of tags, and the record that it was saved into.
struct SavedTags {
    Ref<IObject> oRecord;
    std::vector<std::string> asLoci;
};

// What both selectors do. A record of the store has no place for tags, so the selector keeps them beside each
// record that it saved into: loading that record chooses them again, and loading any other chooses none.
class TagSelectorModel : protected Journaled {
  public:
    TagSelectorModel(const TagSelectorModel&) = delete;
    TagSelectorModel& operator=(const TagSelectorModel&) = delete;

    // What the operator sees and chooses. A new list of loci leaves none chosen; choosing one that is not in
    // the list fails with invalid call, naming it, and changes nothing.
    void Loci(std::vector<std::string> asLoci);
    void Choose(std::vector<std::string> asLoci);

    const std::vector<std::string>& Loci() const { return m_asLoci; }
    const std::vector<std::string>& Chosen() const { return m_asChosen; }
    bool IsActive() const { return m_bActive; }                            // not at first
    const std::vector<Ref<IObject>>& Loaded() const { return m_aoLoaded; } // as they came in, in order
    const std::vector<SavedTags>& Saved() const { return m_aoSaved; }      // as they went out, in order

    // From then on each load or save puts that record in the place of the one that came in; nothing for none.
    // A save writes into the replacement.
    void ReplaceOnLoad(Ref<IObject> oRecord) { m_oLoadReplacement = std::move(oRecord); }
    void ReplaceOnSave(Ref<IObject> oRecord) { m_oSaveReplacement = std::move(oRecord); }

    // "active=on loads=1 saves=2 loci=[TH01* TPOX FGA*]": the chosen ones are starred.
    std::string ToString() const;

  protected:
    using Journaled::Journaled;
    ~TagSelectorModel() = default;

    void Load(Ref<IObject>& oParameter);
    void Save(Ref<IObject>& oDefinition);
    void Activate(bool bActive);

  private:
    std::vector<std::string> m_asLoci;
    std::vector<std::string> m_asChosen;
    bool m_bActive = false;
    std::vector<Ref<IObject>> m_aoLoaded;
    std::vector<SavedTags> m_aoSaved;
    Ref<IObject> m_oLoadReplacement;
    Ref<IObject> m_oSaveReplacement;
};

// One selector: the interface that it is reached by, around the common part.
template<class Interface>
class TagSelectorOf final : public Interface, public TagSelectorModel {
  public:
    TagSelectorOf(Ref<Journal> oJournal, std::string sObject)
        : TagSelectorModel(std::move(oJournal), std::move(sObject)) {}

    void LoadParameters(Ref<IObject>& oParameter) override { Load(oParameter); }
    void SaveParameters(Ref<IObject>& oDefinition) override { Save(oDefinition); }
    void Active(bool bActive) override { Activate(bActive); }
};

using StrTagSelectorModel = TagSelectorOf<IStrLocusTagSelector>;
using SnpTagSelectorModel = TagSelectorOf<ISnpLocusTagSelector>;

} // namespace GleanerSvc::Models
