#include "bench/PlateRun.h"

#include "pagebind/Text.h"

namespace GleanerSvc::Bench {

namespace {

constexpr std::int32_t PlateOnShow = 11;
constexpr std::int32_t PlateElsewhere = 12;

} // namespace

PlateRun::PlateRun(std::int32_t lElsewhere)
    : m_oHost(std::make_shared<Models::WizardHost>(m_oLibraries->Store().SharedJournal(), m_colParameters)) {
    m_oLibraries->Journal().Recording(false);
    m_oLibraries->Store().AddProject(1, "Project");
    AddPlate(PlateElsewhere, lElsewhere);
    AddPlate(PlateOnShow, PlateWells);
    m_oHost->AddPage(m_oPage);
    m_oHost->Start();
    m_oPage->ctlGleaner.cmdAddAll.Press();
    m_oPage->tabPage.ChooseTab(1);
    m_oPage->cmbPlates.Choose(1);
}

// Wells as far as they go.
void PlateRun::AddPlate(std::int32_t lPlateID, std::int32_t lSamples) {
    m_oLibraries->Store().AddPlate(lPlateID, 1, "Plate " + DecimalText(lPlateID));
    for (std::int32_t lSample = 1; lSample <= lSamples; ++lSample) {
        Models::SampleFields oFields;
        oFields.lSampleID = static_cast<std::int32_t>(m_aoSamples.size()) + 1;
        oFields.lProjectID = 1;
        oFields.lPlateID = lPlateID;
        if (lSample <= PlateWells) oFields.oWell = WellAt(static_cast<std::int16_t>(lSample));
        oFields.sName = "Sample " + DecimalText(oFields.lSampleID);
        m_aoSamples.push_back(m_oLibraries->Store().AddSample(oFields));
    }
}

void PlateRun::ClickRowTwice() {
    m_oPage->lblLetter[0].ClickIt();
    m_oPage->lblLetter[0].ClickIt();
}

std::int32_t PlateRun::WalkBare() const {
    std::int32_t lOnPlate = 0;
    for (const auto& oSample : m_aoSamples) {
        if (oSample->PlateID() == PlateOnShow) ++lOnPlate;
    }
    return lOnPlate;
}

std::string PlateRun::ToString() const {
    std::int32_t lWells = 0;
    for (std::int16_t iIndex = 1; iIndex <= PlateWells; ++iIndex) {
        if (m_oPage->picWell[iIndex].Picture() == m_oPage->picRawChecked.Picture()) ++lWells;
    }
    const std::string sState = m_oPage->ToString();
    return "wells=" + DecimalText(lWells) + " listed=" + DecimalText(m_oLibraries->Grid("grdWells").Rows()) +
           sState.substr(sState.rfind(" selected=")) +
           " reports=" + DecimalText(std::ssize(m_oLibraries->Utility().Reports()));
}

} // namespace GleanerSvc::Bench
