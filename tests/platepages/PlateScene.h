// A plate page in a wizard of its own, over in-memory models: what tests of the two pages begin with.
#pragma once

#include "platepages/ResultSelectionPage.h"
#include "platepages/SampleSelectionPage.h"
#include "tests/PageScene.h"

namespace GleanerSvc {

// The same wells for both pages: P1.A1 has one result, P1.A2 two, of which R3 is the latest, P1.B1 one, P1.A3
// none yet. Project Alpha has a second plate, Beta one, Gamma none. Samples from 101, results from 1001.
inline constexpr std::string_view TwoPlates =
    "Alpha: A1#P1.A1 A2#P1.A2 A3#P1.A3 A4#P1.B1 A5#P2.A1\n"
    "Alpha results: R1 of A1 R2@2026-02-01 of A2 R3@2026-03-01 of A2 R4 of A4 R5 of A5\n"
    "Beta: B1#P3.H12\n"
    "Beta results: S1 of B1\n"
    "Gamma: C1";

template<class Page>
struct PlateScene : PageScene<Page> {
    using PageScene<Page>::oLibraries, PageScene<Page>::oPage;

    explicit PlateScene(std::string_view sStore = TwoPlates, const std::vector<std::int32_t>& alOfStudy = {})
        : oStudy(Filled(sStore).AddStudy(1, alOfStudy)) {
        this->Parameters().Add(oStudy, ParameterKey::Study);
    }
    Models::DataStore& Filled(std::string_view sStore) const {
        oLibraries->Store().Fill(sStore);
        return oLibraries->Store();
    }
    // To the page, with that tab in front.
    void Enter(std::int16_t iTab = 1) const {
        PageScene<Page>::Enter();
        oPage->tabPage.ChooseTab(iTab);
    }

    Models::GridModel& List() const { return oLibraries->Grid("grdWells"); }
    PictureBox& Well(std::string_view sWell) const { return oPage->picWell[WellIndex(*ReadWell(sWell))]; }
    // Of the page's line, what stands behind the plate: "wells=[...] listed=[...] selected=...".
    std::string State() const {
        const std::string sText = oPage->ToString();
        return sText.substr(sText.find("wells="));
    }
    void ChooseInMenu(std::string_view sWell, std::string_view sEntry) const {
        this->Platform().Choose(sEntry);
        Well(sWell).ClickIt(MouseButton::Right);
    }

    Ref<Models::StudyRecord> oStudy;
};

using ResultScene = PlateScene<ResultSelectionPage>;
using SampleScene = PlateScene<SampleSelectionPage>;

} // namespace GleanerSvc
