// Lets every closed call of every event and gesture fail in turn, and looks at who reports it, at who is
// told, at the counters, and at what entering the page again brings back.
#include <gtest/gtest.h>

#include <functional>
#include <iostream>

#include "tests/FaultChain.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;
using Models::PlayMode;
using Scene = AnalysisScene;
using Step = std::function<void(Scene&)>;

const std::vector<Procedure> Procedures = {
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

// All that a failed call can reach; a stop and the read of the page make none.
const char* const Reporters =
    "ClearItems InitializeGrid MakeGridStatic cmdAnalyze_Click grdAnalyzeItems_OnGridKeyDown "
    "grdAnalyzeItems_OnGridKeyUp grdAnalyzeItems_OnLButtonClickedRowCol m_oPageBase_Activate "
    "m_oPageBase_Deactivate m_oPageBase_Initialize m_oZemFragmentAnalyzer_OnComplete "
    "m_oZemFragmentAnalyzer_OnStatusUpdate";

// Made on a page of four samples. sEnds as FaultChain has it.
struct Gesture {
    const char* sName;
    const char* sAction;
    const char* sEnds;
    Step fnPrepare;
    Step fnMake;
};

// The second of the four fails; two have a stored result.
AnalyzerScript Run() {
    return AnalyzerScript()
        .Update(0, "a")
        .Complete(0, 1001, Passed)
        .Update(1, "b")
        .Complete(1, 0, Bad)
        .Update(2, "c")
        .Complete(2, 1003, Passed)
        .Update(3, "d")
        .Complete(3, 0, Passed);
}

void Open(Scene& o) { o.Open(); }
void OpenFirst(Scene& o) {
    Open(o);
    o.oHost->Start();
}
void WithSamples(Scene& o) {
    o.AddSamples();
    OpenFirst(o);
}
void Entered(Scene& o) {
    WithSamples(o);
    o.oHost->PressNext();
}
void WithAlleles(Scene& o) {
    o.AddAlleles(4);
    OpenFirst(o);
}
void EnteredWithAlleles(Scene& o) {
    WithAlleles(o);
    o.oHost->PressNext();
}
Step Played(int nSteps) {
    return [=](Scene& o) {
        Entered(o);
        o.Analyze(Run());
        for (int nStep = 0; nStep < nSteps; ++nStep) o.Analyzer().PlayNext();
    };
}
Step Stopping(int nSteps) {
    return [=](Scene& o) {
        Played(nSteps)(o);
        o.oPage->cmdStop.Press();
    };
}
void MayGoBack(Scene& o) {
    Played(3)(o);
    o.oHost->EnableButton(HostButton::Back, true);
}
void Finished(Scene& o) { Played(8)(o); }
void LeftOnce(Scene& o) {
    Finished(o);
    o.oHost->PressNext();
}
Step Marked(std::string_view sMark) {
    return [=](Scene& o) {
        o.Parameters().Add(SkipValue, sMark);
        OpenFirst(o);
    };
}
void Large(Scene& o) {
    Entered(o);
    o.Utility().Database({.dSize = 700, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
    o.Platform().Answer(MessageAnswer::Yes);
}
void Full(Scene& o) {
    Entered(o);
    o.Utility().Database({.dSize = 1800, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
}
void WithResults(Scene& o) {
    o.Parameters().Add(o.colResults, ParameterKey::ReAnalyzeResults);
    Entered(o);
}
void RefusedNext(Scene& o) {
    Entered(o);
    o.Analyze(AnalyzerScript().Update(-2, "no trace"));
}
// With gestures in the yields of the run.
void InsideCall(Scene& o) {
    Entered(o);
    o.oLibraries->Script(Run());
    for (const double dRow : {1, 2, 1, 4}) o.Platform().OnYield([&o, dRow] { o.Grid().ClickLeft(dRow, 1); });
}

void Next(Scene& o) { o.oHost->PressNext(); }
void Back(Scene& o) { o.oHost->PressBack(); }
void Analyze(Scene& o) { o.Analyze(Run()); }
void Play(Scene& o) { o.Analyzer().PlayNext(); }

const char* const Activate = "m_oPageBase_Activate^";
const char* const Deactivate = "m_oPageBase_Deactivate^";
const char* const Click = "cmdAnalyze_Click";
const char* const Update = "m_oZemFragmentAnalyzer_OnStatusUpdate^";
const char* const Complete = "m_oZemFragmentAnalyzer_OnComplete^";
const char* const RowClick = "grdAnalyzeItems_OnLButtonClickedRowCol ^";

const std::vector<Gesture> Gestures = {
    {"Initialize", "", "m_oPageBase_Initialize^", Open, [](Scene& o) { o.oHost->Start(); }},
    {"enter", "", Activate, WithSamples, Next},
    {"enter, reanalysis", "ReAnalyze", Activate, WithSamples, Next},
    {"enter, alleles", "ReAnalyzeAlleleID", Activate, WithAlleles, Next},
    {"enter, passed forward", "", Activate, Marked(ParameterKey::SkipForward), Next},
    {"enter, passed backward", "", Activate, Marked(ParameterKey::SkipBackward), Next},
    {"enter without work", "", Activate, OpenFirst, Next},
    {"enter again", "", Activate, LeftOnce, Back},
    {"leave", "", Deactivate, Finished, Next},
    {"leave in a run", "", Deactivate, MayGoBack, Back},
    {"analyze", "", Click, Entered, Analyze},
    {"analyze, large database", "", Click, Large, Analyze},
    {"analyze, full database", "", Click, Full, Analyze},
    {"analyze, reanalysis", "ReAnalyze", Click, Entered, Analyze},
    {"analyze, optimized", "OptimizedReAnalyze", Click, WithResults, Analyze},
    {"analyze, alleles", "ReAnalyzeAlleleID", Click, EnteredWithAlleles, Analyze},
    {"analyze, unknown action", "Later", Click, Entered, Analyze},
    {"a run inside the call", "",
     "cmdAnalyze_Click grdAnalyzeItems_OnLButtonClickedRowCol ^ "
     "m_oZemFragmentAnalyzer_OnStatusUpdate^ m_oZemFragmentAnalyzer_OnComplete^",
     InsideCall, [](Scene& o) { o.oPage->cmdAnalyze.Press(); }},
    {"update", "", Update, Played(2), Play},
    {"update, stop asked for", "", Update, Stopping(2), Play},
    {"update, item refused", "", Update, RefusedNext, Play},
    {"completion", "", Complete, Played(1), Play},
    {"completion, failed item", "", Complete, Played(3), Play},
    {"completion, stop asked for", "ReAnalyze", Complete, Stopping(3), Play},
    {"completion, last item", "", Complete, Played(7), Play},
    {"stop", "", "", Played(1), [](Scene& o) { o.oPage->cmdStop.Press(); }},
    {"click on a row", "", RowClick, Played(2), [](Scene& o) { o.Grid().ClickLeft(1, 1); }},
    {"click after the run", "", RowClick, Finished, [](Scene& o) { o.Grid().ClickLeft(3, 1); }},
    {"drag after the run", "", "^", Finished, [](Scene& o) { o.Grid().DragRows(1, 1); }},
    {"key", "", "grdAnalyzeItems_OnGridKeyDown grdAnalyzeItems_OnGridKeyUp ^", Finished,
     [](Scene& o) { o.Grid().PressKey(Models::GridKey::Down); }},
    {"double click", "", RowClick, Finished, [](Scene& o) { o.Grid().DoubleClick(2, 1); }},
    {"mouse event 44", "", "", Finished, [](Scene& o) { o.Grid().MoveMouse44(2, 1); }},
    {"previous failure", "", "^", Finished, [](Scene& o) { o.oPage->cmdFailPrevious.Press(); }},
    {"next failure", "", "^",
     [](Scene& o) {
         Finished(o);
         o.Grid().ClickLeft(1, 1);
     },
     [](Scene& o) { o.oPage->cmdFailNext.Press(); }},
};

struct Walk {
    FaultChain oChain{"AnalysisPage", Procedures};
    int nFailures = 0;

    // Lets that call fail. False when the gesture has no such call.
    bool Fail(const Gesture& oGesture, std::int64_t nCall) {
        Scene oScene(4, oGesture.sAction, false);
        oScene.SharedJournal()->Recording(false);
        oGesture.fnPrepare(oScene);
        const std::string sStore = StoreText(oScene.oLibraries->Store());
        const Injection oInjection = Inject(
            *oScene.SharedJournal(), nCall, [&] { oGesture.fnMake(oScene); },
            [&] {
                const auto oAnalyzer = oScene.oLibraries->LastAnalyzer();
                return !oScene.oHost->Failures().empty() || (oAnalyzer && oAnalyzer->LastFailure());
            });
        SCOPED_TRACE(std::string(oGesture.sName) + ": " + oInjection.sCall);
        EXPECT_EQ(oChain.Trouble(oScene.Utility().Reports(), oInjection, oGesture.sEnds), "");
        // An item counts as analyzed before it counts as passed or failed.
        const int nUndecided = Undecided(oScene.oPage->ToString());
        EXPECT_TRUE(nUndecided == 0 || (nUndecided == 1 && oInjection.bEscaped)) << oScene.oPage->ToString();
        EXPECT_EQ(StoreText(oScene.oLibraries->Store()), sStore);
        ExpectRecovery(oScene, oGesture);
        return !oInjection.sCall.empty();
    }

    // Analyzed less passed and failed.
    static int Undecided(const std::string& sState) {
        const auto Figure = [&](const std::string& sKey) {
            return std::stoi(sState.substr(sState.find(sKey) + sKey.size()));
        };
        return Figure(" analyzed=") - Figure(" passed=") - Figure(" failed=");
    }

    // The page is entered once more, which must leave it as at the start of a run.
    static void ExpectRecovery(Scene& oScene, const Gesture& oGesture) {
        auto& oEvents = Deref(Cast<IPageBase>(oScene.oPage->Page())).Events();
        if (std::string(oGesture.sName) == "Initialize") oEvents.Initialize.Raise(nullptr);
        oEvents.Activate.Raise();
        const bool bAlleles = oScene.Parameters().Holds(ParameterKey::ReAnalyzeResults) &&
                              std::string(oGesture.sAction) == ActionCode::ReAnalyzeAlleleID;
        const bool bLoads = bAlleles || oScene.Parameters().Holds(ParameterKey::Samples);
        EXPECT_EQ(oScene.Column(1), bLoads ? "S1|S2|S3|S4" : "");
        const std::string sStatus = bAlleles ? "Pending" : "Unanalyzed";
        EXPECT_EQ(oScene.Column(3), bLoads ? sStatus + "|" + sStatus + "|" + sStatus + "|" + sStatus : "");
        EXPECT_FALSE(oScene.Grid().IsLocked());
        EXPECT_EQ(oScene.Platform().ScreenCursor(), Cursor::Default);
        EXPECT_FALSE(oScene.Parameters().Holds(ParameterKey::AnalyzedResults));
    }
};

TEST(AnalysisPageFault, EveryCallOfEveryEventAndGestureMayFail) {
    Walk oWalk;
    for (const auto& oGesture : Gestures) {
        for (std::int64_t nCall = 1; oWalk.Fail(oGesture, nCall); ++nCall) ++oWalk.nFailures;
    }
    std::cout << Gestures.size() << " gestures, " << oWalk.nFailures << " injected failures\n";
    EXPECT_EQ(oWalk.oChain.Reporters(), WordsOf(Reporters));
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
