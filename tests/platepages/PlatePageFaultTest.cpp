// Lets every closed call of every event and gesture of both plate pages fail in turn, and looks at who
// reports it, at who is told, and at what a refresh brings back.
#include <gtest/gtest.h>

#include <functional>
#include <iostream>

#include "tests/FaultChain.h"
#include "tests/platepages/PlateReference.h"

namespace GleanerSvc {
namespace {

const std::vector<Procedure> Procedures = {
    {"m_oPageBase_Initialize", "", R"(grdWells.SetColWidth( ,"GridTypeID")"},
    {"LoadProjects", "m_oPageBase_Initialize", R"(Project.)"},
    {"LoadPlates", "cmbProjects_Click", "Plate.PlatesByProjectID"},
    {"ShowPlate", "LoadPlates cmbPlates_Click", ""},
    {"LoadPlate", "cmbPlates_Click", "State("},
    {"ShowPlateResults", "cmbPlates_Click", "Result.Description("},
    {"ShowPlateSamples", "cmbPlates_Click", "Sample.PlateID("},
    {"IsResultSelected", "ShowPlate", ""},
    {"MakeGridStatic", "m_oPageBase_Initialize LoadPlates cmbPlates_Click", "grdWells.StaticOption18("},
    {"GridSort", "_OnLButtonClickedRowCol", "grdWells.SortRows("},
    {"m_oPageBase_Activate", "", R"(Host.Title(Host.EnableButton(4)"},
    {"m_oPageBase_Save", "", "StudyResult."},
    {"mnuRemove_Click", "", "grdWells.CopySelection( RowIndex."},
    {"cmbPlates_Click", "", "GridHelper.ClearGrid("},
};

const char* const Reporters =
    "GridSort LoadPlate LoadPlates LoadProjects MakeGridStatic ShowPlate cmbPlates_Click cmbProjects_Click "
    "ctlGleaner_SelectionChanged grdWells_OnGridKeyDown grdWells_OnGridKeyUp grdWells_OnLButtonClickedRowCol "
    "grdWells_OnRButtonClickedRowCol lblLetter_Click lblNumber_Click mnuRemove_Click m_oPageBase_Activate "
    "m_oPageBase_Deactivate m_oPageBase_Initialize picAllWells_Click picWell_Click";

template<class Scene>
struct Gesture {
    const char* sName;
    const char* sEnds; // "#" stands for the page's class
    std::function<void(Scene&)> fnPrepare;
    std::function<void(Scene&)> fnMake;
};

template<class Scene>
struct GesturesOf {
    static void Nothing(Scene& /*o*/) {}
    static void Start(Scene& o) { o.oHost->Start(); }
    static void Next(Scene& o) { o.oHost->PressNext(); }
    static void Plate(Scene& o) { o.Enter(); }
    static void List(Scene& o) { o.Enter(0); }
    static void AllSelected(Scene& o) {
        o.Enter();
        o.oPage->picAllWells.ClickIt();
    }
    static void ToList(Scene& o) { o.oPage->tabPage.ChooseTab(0); }
    static void ToPlate(Scene& o) { o.oPage->tabPage.ChooseTab(1); }
    static auto Click(const char* sWell) {
        return [=](Scene& o) { o.Well(sWell).ClickIt(); };
    }
    static void Returning(Scene& o) {
        o.oHost->Start();
        o.colParameters->Add("Beta", ParameterKey::Project);
        const auto colResults = std::make_shared<KeyedCollection>();
        colResults->Add(o.oLibraries->Store().Results().Find(1001));
        o.colParameters->Add(colResults, ParameterKey::AnalyzedResults);
    }
    static constexpr const char* Activate =
        "m_oPageBase_Activate^ m_oPageBase_Validate^ cmbProjects_Click cmbPlates_Click";
    static constexpr const char* Refresh = "picWell_Click cmbPlates_Click";

    static std::vector<Gesture<Scene>> All() {
        return {
            {"Initialize", "m_oPageBase_Initialize^ cmbProjects_Click cmbPlates_Click m_oPageBase_Validate^",
             Nothing, Start},
            {"enter", Activate, Start, Next},
            {"enter with a project and results", Activate, Returning, Next},
            {"leave", "m_oPageBase_Deactivate^ m_oPageBase_Validate^", AllSelected, Next},
            {"save", "m_oPageBase_Save^", AllSelected, [](Scene& o) { o.Events().Save.Raise(); }},
            {"to the list", "#_Click", AllSelected, ToList},
            {"to the plate", "#_Click cmbPlates_Click", List, ToPlate},
            {"to another project's plate", "#_Click cmbProjects_Click cmbPlates_Click",
             [](Scene& o) {
                 o.Enter(0);
                 o.oPage->ctlGleaner.cmbProjects.Choose(2);
             },
             ToPlate},
            {"project", "cmbProjects_Click cmbPlates_Click", AllSelected,
             [](Scene& o) { o.oPage->cmbProjects.Choose(1); }},
            {"project without plates", "cmbProjects_Click", Plate,
             [](Scene& o) { o.oPage->cmbProjects.Choose(2); }},
            {"plate", "cmbPlates_Click", AllSelected, [](Scene& o) { o.oPage->cmbPlates.Choose(1); }},
            {"well", Refresh, Plate, Click("A2")},
            {"selected well", Refresh, AllSelected, Click("A2")},
            {"menu of a well", "picWell_Click mnuSelect_Click cmbPlates_Click", Plate,
             [](Scene& o) { o.ChooseInMenu("B1", "mnuSelect"); }},
            {"corner", "picAllWells_Click cmbPlates_Click", Plate,
             [](Scene& o) { o.oPage->picAllWells.ClickIt(); }},
            {"letter", "lblLetter_Click cmbPlates_Click", AllSelected,
             [](Scene& o) { o.oPage->lblLetter[0].ClickIt(); }},
            {"number", "lblNumber_Click cmbPlates_Click", Plate,
             [](Scene& o) { o.oPage->lblNumber[0].ClickIt(); }},
            {"list", "ctlGleaner_SelectionChanged m_oPageBase_Validate^ ^", List,
             [](Scene& o) { o.oPage->ctlGleaner.cmdAddAll.Press(); }},
            {"heading", "grdWells_OnLButtonClickedRowCol", AllSelected,
             [](Scene& o) { o.List().ClickLeft(0, 2); }},
            {"key", "grdWells_OnGridKeyDown grdWells_OnGridKeyUp", AllSelected,
             [](Scene& o) { o.List().PressKey(Models::GridKey::Down); }},
            {"remove", "grdWells_OnRButtonClickedRowCol mnuRemove_Click cmbPlates_Click",
             [](Scene& o) {
                 o.Enter();
                 o.oPage->picAllWells.ClickIt();
                 o.List().DragRows(1, 2);
                 o.Platform().Choose("Remove");
             },
             [](Scene& o) { o.List().ClickRight(1, 1); }},
        };
    }
};

template<class Scene>
struct Walk {
    std::string sClass;
    FaultChain oChain{sClass, Procedures, "GleanerCtl"};
    int nFailures = 0;

    // Lets that call fail. False when the gesture has no such call.
    bool Fail(const Gesture<Scene>& oGesture, std::int64_t nCall) {
        Scene oScene;
        oScene.SharedJournal()->Recording(false);
        oGesture.fnPrepare(oScene);
        const Injection oInjection = Inject(
            *oScene.SharedJournal(), nCall, [&] { oGesture.fnMake(oScene); },
            [&] { return !oScene.oHost->Failures().empty(); });
        SCOPED_TRACE(sClass + ", " + oGesture.sName + ": " + oInjection.sCall);
        std::string sEnds = oGesture.sEnds;
        if (sEnds.starts_with("#")) sEnds.replace(0, 1, sClass);
        EXPECT_EQ(oChain.Trouble(oScene.Utility().Reports(), oInjection, sEnds), "");
        ExpectRecovery(oScene, oGesture);
        return !oInjection.sCall.empty();
    }

    // Another plate and back again: wells and list agree with the selection then, whatever has become of it.
    static void ExpectRecovery(Scene& oScene, const Gesture<Scene>& oGesture) {
        if (std::string(oGesture.sName) == "Initialize") oScene.Events().Initialize.Raise(nullptr);
        const PlatePage& oPage = *oScene.oPage;
        oScene.oPage->tabPage.Tab(0);
        oScene.oPage->tabPage.Tab(1);
        oScene.oPage->cmbProjects.ListIndex(1);
        oScene.oPage->cmbProjects.ListIndex(0);
        oScene.Utility().ClearReports(); // a plate that was not loaded cannot be shown before that
        oScene.oPage->cmbPlates.ListIndex(1);
        oScene.oPage->cmbPlates.ListIndex(0);
        const PlateContent oPlate = ContentOf(oScene, *oScene.oLibraries->Store().Plates().Find(11));
        EXPECT_EQ(oScene.State(), ExpectedState(&oPlate, SelectionOf(oPage)));
        EXPECT_TRUE(oPage.frmPlate.Visible());
        EXPECT_FALSE(oScene.List().IsLocked());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
        EXPECT_EQ(oScene.Utility().Chain(), "");
    }
};

template<class Scene>
void WalkPage(const std::string& sClass, const std::string& sMore) {
    Walk<Scene> oWalk{sClass};
    const auto aoGestures = GesturesOf<Scene>::All();
    for (const auto& oGesture : aoGestures) {
        for (std::int64_t nCall = 1; oWalk.Fail(oGesture, nCall); ++nCall) ++oWalk.nFailures;
    }
    std::cout << sClass << ": " << aoGestures.size() << " gestures, " << oWalk.nFailures
              << " injected failures\n";
    EXPECT_EQ(oWalk.oChain.Reporters(), WordsOf(Reporters + (" " + sClass) + "_Click " + sMore));
}

TEST(PlatePageFault, EveryCallOfEveryEventAndGestureMayFail) {
    WalkPage<ResultScene>("ResultSelectionPage",
                          "IsResultSelected ShowPlateResults m_oPageBase_Save m_oPageBase_Validate");
    WalkPage<SampleScene>("SampleSelectionPage", "ShowPlateSamples");
}

} // namespace
} // namespace GleanerSvc
