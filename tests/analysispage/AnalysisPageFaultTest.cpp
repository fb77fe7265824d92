// Lets every closed call of every event and gesture fail in turn, and looks at who reports it, at who is
// told, at the counters, and at what entering the page again brings back.
#include <gtest/gtest.h>

#include "tests/FaultChain.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;

struct Scene : AnalysisScene {
    Scene() : AnalysisScene(4, "", false) {}
};
using Step = Gesture<Scene>::Step;

const std::vector<Procedure> AnalysisProcedures = {
    {"m_oPageBase_Initialize", "", R"(.SetGridDefaults( .NumCols("GridType","GridTypeID","17")"},
    {"ClearItems", "m_oPageBase_Initialize", ".Params( .EnableSelection("},
    {"MakeGridStatic", "m_oPageBase_Initialize InitializeGrid", ".StaticOption"},
    {"m_oPageBase_Activate", "", R"(Host.Title( Host.PressButton( Parameters.Add("SKIP")"},
    {"InitializeGrid", "m_oPageBase_Activate",
     ".LockUpdate( .RemoveRows( .SetRowCount( .ScreenCursor( Sample.Name("},
    {"m_oPageBase_Deactivate", "", "Parameters.Add(object"},
    {"cmdAnalyze_Click", "",
     "Overflow( DatabaseLarge( Analyzer.Analyze Analyzer.Reanalyze .CreateAnalyzer( .SampleID( .FirstPart("},
    {"m_oZemFragmentAnalyzer_OnStatusUpdate", "", R"("Stopping" .ShowMessage("Sample)"},
    {"m_oZemFragmentAnalyzer_OnComplete", "", R"(.StatusText( .ContrastColor( "Result" "PASS")"},
    {"_OnGridKeyDown", "", ".KeySelection(True)"},
};

void Start(Scene& o) { o.oHost->Start(); }
void Next(Scene& o) { o.oHost->PressNext(); }
void Back(Scene& o) { o.oHost->PressBack(); }
void KeyDown(Scene& o) { o.Grid().PressKey(Models::GridKey::Down); }
void AllowBack(Scene& o) { o.oHost->EnableButton(HostButton::Back, true); }
Step Stored(std::string_view sKey, std::string_view sValue) {
    return [=](Scene& o) { o.Parameters().Add(sValue, sKey); };
}
Step For(std::string_view sAction) { return Stored(ParameterKey::Action, sAction); }
void Samples(Scene& o) { o.AddSamples(); }
void Alleles(Scene& o) { o.AddWork(true, 4); }
void Results(Scene& o) { o.AddWork(false, 4); }
void Entered(Scene& o) { o.EnterWithSamples(); }
Step Database(double dSize) {
    return [=](Scene& o) {
        o.Utility().Database({.dSize = dSize, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
        o.Platform().Answer(MessageAnswer::Yes);
    };
}

// The second of the four fails; two have a stored result.
AnalyzerScript Run() {
    AnalyzerScript oScript;
    for (const std::int32_t lItem : {0, 1, 2, 3}) {
        oScript.Update(lItem, "a")
            .Complete(lItem, lItem % 2 == 0 ? 1001 + lItem : 0, lItem == 1 ? Bad : Passed);
    }
    return oScript;
}
void Analyze(Scene& o) { o.Analyze(Run()); }
void Refusing(Scene& o) { o.Analyze(AnalyzerScript().Update(-2, "no trace")); }
Step Play(int nSteps) {
    return [=](Scene& o) { o.Play(nSteps); };
}
void Finished(Scene& o) {
    Entered(o);
    o.Analyze(Run(), 8);
}
Step Click(double dRow) {
    return [=](Scene& o) { o.Grid().ClickLeft(dRow, 1); };
}
Step Press(Button AnalysisPage::*oButton) {
    return [=](Scene& o) { (*o.oPage.*oButton).Press(); };
}
const Step Stop = Press(&AnalysisPage::cmdStop);
// With clicks in the yields.
void AnalyzeInsideCall(Scene& o) {
    o.oLibraries->Script(Run());
    for (const double dRow : {1, 2, 1, 4}) o.Platform().OnYield([&o, dRow] { o.Grid().ClickLeft(dRow, 1); });
    o.oPage->cmdAnalyze.Press();
}

const std::string Activate = "m_oPageBase_Activate^";
const std::string Deactivate = "m_oPageBase_Deactivate^";
const std::string Analysis = "cmdAnalyze_Click";
const std::string Update = "m_oZemFragmentAnalyzer_OnStatusUpdate^";
const std::string Complete = "m_oZemFragmentAnalyzer_OnComplete^";
const std::string Row = "grdAnalyzeItems_OnLButtonClickedRowCol ^";

const std::vector<Gesture<Scene>> AnalysisGestures = {
    {"Initialize", "m_oPageBase_Initialize^", {}, Start},
    {"enter", Activate, {Samples, Start}, Next},
    {"enter, reanalysis", Activate, {For("ReAnalyze"), Samples, Start}, Next},
    {"enter, alleles", Activate, {For("ReAnalyzeAlleleID"), Alleles, Start}, Next},
    {"enter, passed forward", Activate, {Stored(ParameterKey::SkipForward, SkipValue), Start}, Next},
    {"enter, passed backward", Activate, {Stored(ParameterKey::SkipBackward, SkipValue), Start}, Next},
    {"enter without work", Activate, {Start}, Next},
    {"enter again", Activate, {Finished, Next}, Back},
    {"leave", Deactivate, {Finished}, Next},
    {"leave in a run", Deactivate, {Entered, Analyze, Play(3), AllowBack}, Back},
    {"analyze", Analysis, {Entered}, Analyze},
    {"analyze, large database", Analysis, {Entered, Database(700)}, Analyze},
    {"analyze, full database", Analysis, {Entered, Database(1800)}, Analyze},
    {"analyze, reanalysis", Analysis, {For("ReAnalyze"), Entered}, Analyze},
    {"analyze, optimized", Analysis, {For("OptimizedReAnalyze"), Results, Entered}, Analyze},
    {"analyze, alleles", Analysis, {For("ReAnalyzeAlleleID"), Alleles, Start, Next}, Analyze},
    {"analyze, unknown action", Analysis, {For("Later"), Entered}, Analyze},
    {"a run inside the call",
     Analysis + " " + Row + " " + Update + " " + Complete,
     {Entered},
     AnalyzeInsideCall},
    {"update", Update, {Entered, Analyze, Play(2)}, Play(1)},
    {"update, stop asked for", Update, {Entered, Analyze, Play(2), Stop}, Play(1)},
    {"update, item refused", Update, {Entered, Refusing}, Play(1)},
    {"completion", Complete, {Entered, Analyze, Play(1)}, Play(1)},
    {"completion, failed item", Complete, {Entered, Analyze, Play(3)}, Play(1)},
    {"completion, stop asked for", Complete, {For("ReAnalyze"), Entered, Analyze, Play(3), Stop}, Play(1)},
    {"completion, last item", Complete, {Entered, Analyze, Play(7)}, Play(1)},
    {"stop", "", {Entered, Analyze, Play(1)}, Stop},
    {"click on a row", Row, {Entered, Analyze, Play(2)}, Click(1)},
    {"click after the run", Row, {Finished}, Click(3)},
    {"drag after the run", "^", {Finished}, [](Scene& o) { o.Grid().DragRows(1, 1); }},
    {"key", "grdAnalyzeItems_OnGridKeyDown grdAnalyzeItems_OnGridKeyUp ^", {Finished}, KeyDown},
    {"double click", Row, {Finished}, [](Scene& o) { o.Grid().DoubleClick(2, 1); }},
    {"mouse event 44", "", {Finished}, [](Scene& o) { o.Grid().MoveMouse44(2, 1); }},
    {"previous failure", "^", {Finished}, Press(&AnalysisPage::cmdFailPrevious)},
    {"next failure", "^", {Finished, Click(1)}, Press(&AnalysisPage::cmdFailNext)},
};

// An item counts as analyzed before it counts as passed or failed, and the store stays as it is. The page is
// entered once more, which must leave it as at the start of a run.
void ExpectRecovery(Scene& oScene, const Gesture<Scene>& oGesture, const Injection& oInjection) {
    const std::string sState = oScene.oPage->ToString();
    const auto Figure = [&](const std::string& s) {
        return std::stoi(sState.substr(sState.find(s) + s.size()));
    };
    const int nUndecided = Figure(" analyzed=") - Figure(" passed=") - Figure(" failed=");
    EXPECT_TRUE(nUndecided == 0 || (nUndecided == 1 && oInjection.bEscaped)) << sState;
    EXPECT_EQ(StoreText(oScene.Store()), StoreText(Scene().Store()));
    if (oGesture.sName == "Initialize") oScene.Events().Initialize.Raise(nullptr);
    oScene.Events().Activate.Raise();
    const bool bAlleles = oGesture.sName.ends_with("alleles");
    const bool bLoads = bAlleles || oScene.Parameters().Holds(ParameterKey::Samples);
    EXPECT_EQ(oScene.Column(1), bLoads ? "S1|S2|S3|S4" : "");
    EXPECT_EQ(oScene.Column(3), !bLoads    ? ""
                                : bAlleles ? "Pending|Pending|Pending|Pending"
                                           : "Unanalyzed|Unanalyzed|Unanalyzed|Unanalyzed");
    EXPECT_FALSE(oScene.Grid().IsLocked());
    EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
    EXPECT_FALSE(oScene.Parameters().Holds(ParameterKey::AnalyzedResults));
}

TEST(AnalysisPageFault, EveryCallOfEveryEventAndGestureMayFail) {
    FaultChain oChain("AnalysisPage", AnalysisProcedures);
    for (const auto& oGesture : AnalysisGestures) Walk(oChain, oGesture, ExpectRecovery);
    EXPECT_EQ(oChain.Silent(), Words());
}

// Where no closed call fails: a view may, and a page base may be no page.
TEST(AnalysisPageFault, WhatElseMayFailIsReportedToo) {
    AnalysisScene oScene(2);
    oScene.Analyze({});
    const auto oView =
        oScene.oPage->cmdStop.OnChanged.Subscribe([](const Control&, Property) { throw Injected; });
    oScene.oPage->cmdStop.Press();
    EXPECT_EQ(oScene.Utility().Chain(), "cmdStop_Click!");
    struct PlainBase final : IPageBase {
        Ref<IPageHost> Host() override { return nullptr; }
        Ref<IKeyedCollection> Parameters() override { return nullptr; }
        void ValidatePage() override {}
        PageEvents& Events() override { return oEvents; }
        PageEvents oEvents;
    };
    struct OtherLibraries final : Models::ModelLibraries {
        Ref<IPageBase> CreatePageBase() override { return std::make_shared<PlainBase>(); }
    };
    const auto oLibraries = std::make_shared<OtherLibraries>();
    AnalysisPage oPage(oLibraries->MakeApartment());
    EXPECT_THROW(oPage.Page(), Failure);
    EXPECT_EQ(oLibraries->Utility().Chain(), "IPageAccess_Page (Get)");
    const auto oFailing = Models::ModelLibraries::Create();
    oFailing->Journal().FailCall(2, Injected); // behind the grid: the page base
    EXPECT_EQ(AnalysisPage(oFailing->MakeApartment()).Page(), nullptr);
    EXPECT_EQ(oFailing->Utility().Chain(), "UserControl_Initialize!");
}

} // namespace
} // namespace GleanerSvc
