// Lets every closed call of every event and gesture of both plate pages fail in turn, and looks at who
// reports it, at who is told, and at what a refresh brings back.
#include <gtest/gtest.h>

#include "tests/FaultChain.h"
#include "tests/platepages/PlateReference.h"

namespace GleanerSvc {
namespace {

const std::vector<Procedure> PlateProcedures = {
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

template<class Scene>
struct GesturesOf {
    static void Start(Scene& o) { o.oHost->Start(); }
    static void Next(Scene& o) { o.oHost->PressNext(); }
    static void Plate(Scene& o) { o.Enter(); }
    static void List(Scene& o) { o.Enter(0); }
    static void Corner(Scene& o) { o.oPage->picAllWells.ClickIt(); }
    static void ToList(Scene& o) { o.oPage->tabPage.ChooseTab(0); }
    static void ToPlate(Scene& o) { o.oPage->tabPage.ChooseTab(1); }
    static void Letter(Scene& o) { o.oPage->lblLetter[0].ClickIt(); }
    static void Number(Scene& o) { o.oPage->lblNumber[0].ClickIt(); }
    static void OtherPlate(Scene& o) { o.oPage->cmbPlates.Choose(1); }
    static void AddAll(Scene& o) { o.oPage->ctlGleaner.cmdAddAll.Press(); }
    static void ProjectInList(Scene& o) { o.oPage->ctlGleaner.cmbProjects.Choose(2); }
    static void Heading(Scene& o) { o.List().ClickLeft(0, 2); }
    static void Key(Scene& o) { o.List().PressKey(Models::GridKey::Down); }
    static void TwoRows(Scene& o) { o.List().DragRows(1, 2); }
    static void Remove(Scene& o) {
        o.Platform().Choose("Remove");
        o.List().ClickRight(1, 1);
    }
    static auto Project(int nPlace) {
        return [=](Scene& o) { o.oPage->cmbProjects.Choose(nPlace); };
    }
    static auto Well(const char* sWell) {
        return [=](Scene& o) { o.Well(sWell).ClickIt(); };
    }
    static void Returning(Scene& o) {
        o.Parameters().Add("Beta", ParameterKey::Project);
        const auto colResults = std::make_shared<KeyedCollection>();
        colResults->Add(o.Store().Results().Find(1001));
        o.Parameters().Add(colResults, ParameterKey::AnalyzedResults);
    }
    // The tab reports under the page's own name.
    static std::vector<Gesture<Scene>> All(const std::string& sTab) {
        const std::string sEnter =
            "m_oPageBase_Activate^ m_oPageBase_Validate^ cmbProjects_Click cmbPlates_Click";
        const std::string sStart =
            "m_oPageBase_Initialize^ m_oPageBase_Validate^ cmbProjects_Click cmbPlates_Click";
        const std::string sProject = "cmbProjects_Click cmbPlates_Click";
        const std::string sWell = "picWell_Click cmbPlates_Click";
        return {
            {"Initialize", sStart, {}, Start},
            {"enter", sEnter, {Start}, Next},
            {"enter with a project and results", sEnter, {Start, Returning}, Next},
            {"leave", "m_oPageBase_Deactivate^ m_oPageBase_Validate^", {Plate, Corner}, Next},
            {"save", "m_oPageBase_Save^", {Plate, Corner}, [](Scene& o) { o.Events().Save.Raise(); }},
            {"to the list", sTab, {Plate, Corner}, ToList},
            {"to the plate", sTab + " cmbPlates_Click", {List}, ToPlate},
            {"to another project's plate", sTab + " " + sProject, {List, ProjectInList}, ToPlate},
            {"project", sProject, {Plate, Corner}, Project(1)},
            {"project without plates", "cmbProjects_Click", {Plate}, Project(2)},
            {"plate", "cmbPlates_Click", {Plate, Corner}, OtherPlate},
            {"well", sWell, {Plate}, Well("A2")},
            {"selected well", sWell, {Plate, Corner}, Well("A2")},
            {"menu of a well", sWell, {Plate}, [](Scene& o) { o.ChooseInMenu("B1", "mnuSelect"); }},
            {"corner", "picAllWells_Click cmbPlates_Click", {Plate}, Corner},
            {"letter", "lblLetter_Click cmbPlates_Click", {Plate, Corner}, Letter},
            {"number", "lblNumber_Click cmbPlates_Click", {Plate}, Number},
            {"list", "ctlGleaner_SelectionChanged m_oPageBase_Validate^ ^", {List}, AddAll},
            {"heading", "grdWells_OnLButtonClickedRowCol", {Plate, Corner}, Heading},
            {"key", "grdWells_OnGridKeyDown grdWells_OnGridKeyUp", {Plate, Corner}, Key},
            {"remove",
             "grdWells_OnRButtonClickedRowCol mnuRemove_Click cmbPlates_Click",
             {Plate, Corner, TwoRows},
             Remove},
        };
    }

    // Another plate and back again: wells and list agree with the selection then, whatever has become of it.
    static void ExpectRecovery(Scene& oScene, const Gesture<Scene>& oGesture, const Injection& /*o*/) {
        if (oGesture.sName == "Initialize") oScene.Events().Initialize.Raise(nullptr);
        PlatePage& oPage = *oScene.oPage;
        oPage.tabPage.Tab(0);
        oPage.tabPage.Tab(1);
        for (const int nProject : {1, 0}) oPage.cmbProjects.ListIndex(nProject);
        oScene.Utility().ClearReports(); // a plate that was not loaded cannot be shown before that
        for (const int nPlate : {1, 0}) oPage.cmbPlates.ListIndex(nPlate);
        const PlateContent oPlate = PlateContentOf(oScene, 11);
        EXPECT_EQ(oScene.State(), ExpectedState(&oPlate, SelectionOf(oPage)));
        EXPECT_TRUE(oPage.frmPlate.Visible());
        EXPECT_FALSE(oScene.List().IsLocked());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
        EXPECT_EQ(oScene.Utility().Chain(), "");
    }
};

// sSilent: the other page's.
template<class Scene>
void WalkPage(const std::string& sClass, const std::string& sSilent) {
    FaultChain oChain(sClass, PlateProcedures, "GleanerCtl");
    for (const auto& oGesture : GesturesOf<Scene>::All(sClass + "_Click"))
        Walk(oChain, oGesture, GesturesOf<Scene>::ExpectRecovery);
    EXPECT_EQ(oChain.Silent(), WordsOf(sSilent));
}

TEST(PlatePageFault, EveryCallOfEveryEventAndGestureMayFail) {
    WalkPage<ResultScene>("ResultSelectionPage", "ShowPlateSamples");
    WalkPage<SampleScene>("SampleSelectionPage",
                          "IsResultSelected ShowPlateResults m_oPageBase_Save m_oPageBase_Validate");
}

} // namespace
} // namespace GleanerSvc
