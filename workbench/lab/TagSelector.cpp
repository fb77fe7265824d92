#include "workbench/lab/TagSelector.h"

#include <algorithm>

#include "pagebind/Failure.h"
#include "workbench/store/AnalysisParameterRecord.h"

namespace GleanerSvc::Workbench {

namespace {

// Places of the check boxes in the site, in twips.
constexpr std::int32_t BoxesAcross = 4;
constexpr std::int32_t BoxWidth = 1900;
constexpr std::int32_t BoxPitch = 330;
constexpr std::int32_t FirstBoxTop = 900;

Bounds BoxPlace(std::size_t nBox) {
    const auto lBox = static_cast<std::int32_t>(nBox);
    return {120 + BoxWidth * (lBox % BoxesAcross), FirstBoxTop + BoxPitch * (lBox / BoxesAcross),
            BoxWidth - 100, 255};
}

bool IsPicked(const CheckBox& oBox) { return oBox.Value() == CheckState::Checked; }
void Put(CheckBox& oBox, bool bPicked) { oBox.Value(bPicked ? CheckState::Checked : CheckState::Unchecked); }

} // namespace

TagSelector::TagSelector(Container& oSite, const std::vector<Panel>& aoPanels, AlleleType eType)
    : lblPanel(oSite, "lblPanel", {120, 120, 615, 255}, "Panel:"),
      cmbPanel(oSite, "cmbPanel", {820, 75, 3000, 315}),
      cmdAll(oSite, "cmdAll", {4020, 60, 1215, 375}, "A&ll", "Pick every locus"),
      cmdNone(oSite, "cmdNone", {5340, 60, 1215, 375}, "N&one", "Pick no locus"),
      lblLoci(oSite, "lblLoci", {120, 540, 7600, 255}), m_oSite(oSite), m_eType(eType) {
    std::copy_if(aoPanels.begin(), aoPanels.end(), std::back_inserter(m_aoPanels),
                 [eType](const Panel& oPanel) { return oPanel.eType == eType; });
    for (const auto& oPanel : m_aoPanels) cmbPanel.AddItem(oPanel.sName, 0);
    m_oSubscriptions.On(cmbPanel.Click, [this] {
        ShowLoci();
        TakeChoice();
    });
    m_oSubscriptions.On(cmdAll.Click, [this] { PickAll(true); });
    m_oSubscriptions.On(cmdNone.Click, [this] { PickAll(false); });
    if (!m_aoPanels.empty()) cmbPanel.ListIndex(0);
    PickEvery();
}

const Panel* TagSelector::ChosenPanel() const {
    return cmbPanel.ListIndex() < 0 ? nullptr : &m_aoPanels[static_cast<std::size_t>(cmbPanel.ListIndex())];
}

void TagSelector::ShowLoci() {
    m_oLocusSubscriptions.Clear();
    aoLocusBoxes.clear();
    for (const auto& oLocus : ChosenPanel()->aoLoci) {
        aoLocusBoxes.push_back(
            std::make_unique<CheckBox>(m_oSite, "chkLocus", BoxPlace(aoLocusBoxes.size()), oLocus.sName));
        Put(*aoLocusBoxes.back(), true);
        m_oLocusSubscriptions.On(aoLocusBoxes.back()->Click, [this] { TakeChoice(); });
    }
}

void TagSelector::PickAll(bool bPicked) const {
    for (const auto& oBox : aoLocusBoxes) Put(*oBox, bPicked);
}

void TagSelector::PickEvery() {
    PickAll(true);
    m_bEvery = true;
    ShowCount();
}

void TagSelector::TakeChoice() {
    m_bEvery = false;
    ShowCount();
}

const CheckBox* TagSelector::FindBox(const std::string& sLocus) const {
    const auto itBox = std::find_if(aoLocusBoxes.begin(), aoLocusBoxes.end(),
                                    [&](const auto& oBox) { return oBox->Caption() == sLocus; });
    return itBox == aoLocusBoxes.end() ? nullptr : itBox->get();
}

bool TagSelector::HasAll(const std::vector<std::string>& asLoci) const {
    return std::all_of(asLoci.begin(), asLoci.end(), [this](const auto& sLocus) { return FindBox(sLocus); });
}

void TagSelector::Pick(const std::vector<std::string>& asLoci) {
    for (const auto& sLocus : asLoci) {
        if (FindBox(sLocus)) continue;
        throw Failure(FailureNumber::InvalidCall, "TagSelector",
                      "The panel \"" + cmbPanel.Text() + "\" has no locus \"" + sLocus + "\".");
    }
    for (const auto& oBox : aoLocusBoxes)
        Put(*oBox, std::find(asLoci.begin(), asLoci.end(), oBox->Caption()) != asLoci.end());
    TakeChoice();
}

std::vector<std::string> TagSelector::PickedLoci() const {
    std::vector<std::string> asPicked;
    for (const auto& oBox : aoLocusBoxes) {
        if (IsPicked(*oBox)) asPicked.push_back(oBox->Caption());
    }
    return asPicked;
}

void TagSelector::ShowCount() {
    const std::size_t nPicked = PickedLoci().size();
    if (aoLocusBoxes.empty()) {
        lblLoci.Caption("No kit of this type is in the lab.");
    } else if (nPicked == 0) {
        lblLoci.Caption("No locus is picked: every locus of a sample's panel is called.");
    } else {
        lblLoci.Caption(std::to_string(nPicked) + " of " + std::to_string(aoLocusBoxes.size()) + " loci" +
                        (m_bEvery ? ": every locus of a sample's panel is called." : ""));
    }
}

void TagSelector::Load(const Ref<IObject>& oParameter) {
    const auto oRecord = std::dynamic_pointer_cast<AnalysisParameterRecord>(oParameter);
    const auto oDefinition = std::dynamic_pointer_cast<ParameterDefinition>(
        oRecord ? Ref<IObject>(oRecord->WrittenDefinition()) : oParameter);
    if (!oDefinition || oDefinition->Choice().eType != m_eType) return;
    const auto& asLoci = oDefinition->Choice().asLoci;
    if (asLoci.empty() || !ChoosePanelWith(asLoci)) return PickEvery();
    Pick(asLoci);
}

// The panel on show stays when it has them all.
bool TagSelector::ChoosePanelWith(const std::vector<std::string>& asLoci) {
    const auto HasEach = [&](const Panel& oPanel) {
        return std::ranges::all_of(asLoci, [&](const std::string& sLocus) {
            return std::ranges::find(oPanel.aoLoci, sLocus, &Locus::sName) != oPanel.aoLoci.end();
        });
    };
    if (ChosenPanel() && HasEach(*ChosenPanel())) return true;
    const auto oFound = std::ranges::find_if(m_aoPanels, HasEach);
    if (oFound == m_aoPanels.end()) return false;
    cmbPanel.ListIndex(static_cast<std::int32_t>(oFound - m_aoPanels.begin()));
    return true;
}

void TagSelector::Save(const Ref<IObject>& oDefinition) const {
    if (!m_bActive) return;
    auto asLoci = PickedLoci();
    if (m_bEvery) asLoci.clear();
    Deref(Cast<ParameterDefinition>(oDefinition)).Choose(m_eType, std::move(asLoci));
}

std::string TagSelector::ToString() const {
    std::string sLoci;
    for (const auto& oBox : aoLocusBoxes)
        sLoci += (sLoci.empty() ? "" : " ") + oBox->Caption() + (IsPicked(*oBox) ? "*" : "");
    return std::string(m_eType == AlleleType::Str ? "STR" : "SNP") + (m_bActive ? " active" : " inactive") +
           " panel=" + cmbPanel.Text() + " loci=[" + sLoci + "]";
}

} // namespace GleanerSvc::Workbench
