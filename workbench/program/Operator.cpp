#include "workbench/program/Operator.h"

#include <algorithm>
#include <set>

#include "models/GridModel.h"
#include "pagebind/Text.h"
#include "platepages/WellPictures.h"
#include "workbench/traces/TraceFile.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::int16_t PlateTab = 1;
constexpr double NameColumn = 1;

void Choose(DropDownList& oList, const std::string& sText, const std::string& sWhat) {
    for (std::int32_t lPlace = 0; lPlace < oList.ListCount(); ++lPlace) {
        if (RightTrim(oList.List(lPlace)) == sText) return oList.Choose(lPlace);
    }
    throw InputError(sWhat + " \"" + sText + "\"", "", "the lab has none of this name");
}

// As the chosen panel spells them; one that it does not have stays as it is.
std::vector<std::string> Spelled(const TagSelector& oSelector, std::vector<std::string> asLoci) {
    for (auto& sLocus : asLoci) {
        for (const auto& oBox : oSelector.aoLocusBoxes) {
            if (EqualsIgnoringCase(oBox->Caption(), sLocus)) sLocus = oBox->Caption();
        }
    }
    return asLoci;
}

[[noreturn]] void RefuseLoci(TagSelector& oSelector, const std::vector<std::string>& asLoci) {
    std::set<std::string> oUnknown(asLoci.begin(), asLoci.end());
    for (std::int32_t lPanel = 0; lPanel < oSelector.cmbPanel.ListCount(); ++lPanel) {
        oSelector.cmbPanel.Choose(lPanel);
        std::erase_if(oUnknown,
                      [&](const auto& sLocus) { return oSelector.HasAll(Spelled(oSelector, {sLocus})); });
    }
    if (oUnknown.empty())
        throw InputError("loci", "", "no panel of the lab has all of those that were named");
    throw InputError("locus \"" + *oUnknown.begin() + "\"", "", "no panel of the lab has it");
}

bool IsChecked(const PictureBox& oWell) {
    const std::string& sPicture = oWell.Picture().sName;
    return sPicture == WellPicture::RawChecked || sPicture == WellPicture::WarningChecked;
}

std::int32_t ReadCount(const Label& oLabel) {
    return oLabel.Caption().empty() ? 0 : static_cast<std::int32_t>(std::stol(oLabel.Caption()));
}

} // namespace

void Operator::PickSamples(const Choice& oChoice) const {
    if (oChoice.sPlate.empty()) {
        PickOnList(oChoice);
    } else {
        PickOnPlate(oChoice);
    }
    ExpectNoFailure();
}

void Operator::PickOnList(const Choice& oChoice) const {
    auto& oList = m_oWizard.oSamples->ctlGleaner;
    Choose(oList.cmbProjects, oChoice.sProject, "project");
    auto& oGrid = dynamic_cast<Models::GridModel&>(*oList.grdAvailable);
    if (oGrid.Rows() == 0) throw InputError("project \"" + oChoice.sProject + "\"", "", "it has no samples");
    if (oChoice.asNames.empty()) return oList.cmdAddAll.Press();
    std::vector<std::string> asMissing = oChoice.asNames;
    auto eKeys = Models::Keys::None;
    for (std::int32_t lRow = 1; lRow <= oGrid.Rows(); ++lRow) {
        const auto sName = RightTrim(oGrid.Text(lRow, static_cast<std::int32_t>(NameColumn)));
        const auto IsName = [&](const std::string& sAsked) { return EqualsIgnoringCase(sAsked, sName); };
        if (std::ranges::none_of(oChoice.asNames, IsName)) continue;
        std::erase_if(asMissing, IsName);
        oGrid.ClickLeft(lRow, NameColumn, eKeys);
        eKeys = Models::Keys::Ctrl;
    }
    if (!asMissing.empty()) {
        throw InputError("sample \"" + asMissing.front() + "\"", "",
                         "project \"" + oChoice.sProject + "\" has none of this name");
    }
    oList.cmdAddSingle.Press();
}

void Operator::PickOnPlate(const Choice& oChoice) const {
    auto& oPage = *m_oWizard.oSamples;
    oPage.tabPage.ChooseTab(PlateTab);
    Choose(oPage.cmbProjects, oChoice.sProject, "project");
    Choose(oPage.cmbPlates, oChoice.sPlate, "plate");
    if (oChoice.asWells.empty()) return oPage.picAllWells.ClickIt();
    std::set<std::string> oWells;
    for (const auto& sWell : oChoice.asWells) oWells.insert(CanonicalWell(sWell));
    for (const auto& sWell : oWells) ClickWell(sWell, oChoice);
}

void Operator::ClickWell(const std::string& sWell, const Choice& oChoice) const {
    const auto oWell = ReadWell(sWell);
    if (!oWell) throw InputError("well \"" + sWell + "\"", "", "a plate has the wells A1 to H12");
    auto& oBox = m_oWizard.oSamples->picWell[WellIndex(*oWell)];
    if (!IsChecked(oBox)) oBox.ClickIt();
    if (!IsChecked(oBox)) {
        throw InputError("well \"" + sWell + "\"", "", "it is empty on the plate \"" + oChoice.sPlate + "\"");
    }
}

void Operator::ChooseLoci(AlleleType eType, const std::vector<std::string>& asLoci) const {
    const bool bStr = eType == AlleleType::Str;
    m_oWizard.oLoci->optAlleleIDType[bStr ? 0 : 1].Press();
    if (asLoci.empty()) return;
    TagSelector& oSelector =
        bStr ? static_cast<TagSelector&>(m_oWizard.StrSelector()) : m_oWizard.SnpSelector();
    for (std::int32_t lPanel = 0; lPanel < oSelector.cmbPanel.ListCount(); ++lPanel) {
        oSelector.cmbPanel.Choose(lPanel);
        const auto asSpelled = Spelled(oSelector, asLoci);
        if (oSelector.HasAll(asSpelled)) return oSelector.Pick(asSpelled);
    }
    RefuseLoci(oSelector, asLoci);
}

void Operator::PressNext() const {
    const std::int32_t lPage = m_oWizard.Host().CurrentPage();
    m_oWizard.Host().PressNext();
    ExpectNoFailure();
    if (m_oWizard.Host().CurrentPage() == lPage) {
        throw InputError("wizard", m_oWizard.Host().Title(), "the page does not let one go on");
    }
}

void Operator::Analyze() const {
    if (!m_oWizard.oAnalysis->cmdAnalyze.CanOperate())
        throw InputError("analysis", "", "there is nothing to analyze");
    m_oWizard.oAnalysis->cmdAnalyze.Press();
    ExpectNoFailure();
}

void Operator::Stop() const { m_oWizard.oAnalysis->cmdStop.Press(); }

void Operator::Finish() const {
    if (m_oWizard.oResults) PressNext();
    if (!m_oWizard.Host().IsEnabled(HostButton::Finish)) {
        throw InputError("study", "",
                         "the results that are selected are more than the lab's settings let in");
    }
    if (!m_oWizard.PressFinish()) {
        ExpectNoFailure();
        throw InputError("wizard", m_oWizard.Host().Title(), "it could not be finished");
    }
}

RunCounts Operator::Counts() const {
    const auto& oPage = *m_oWizard.oAnalysis;
    return {ReadCount(oPage.lbTotalResults2), ReadCount(oPage.lbAnalyzed2), ReadCount(oPage.lbPass2),
            ReadCount(oPage.lbFail2)};
}

std::string Operator::LastDetails() const {
    std::string sText = m_oWizard.oAnalysis->txtDetails.Text();
    while (!sText.empty() && (sText.back() == '\r' || sText.back() == '\n')) sText.pop_back();
    const auto nBreak = sText.find_last_of('\n');
    return nBreak == std::string::npos ? sText : sText.substr(nBreak + 1);
}

// What reached the host is a failure of the program or of the lab, and not of what was asked for.
void Operator::ExpectNoFailure() const {
    if (!m_oWizard.Host().Failures().empty())
        throw LabError("The wizard failed: " + m_oWizard.Host().Failures().back().ToString());
}

} // namespace GleanerSvc::Workbench
