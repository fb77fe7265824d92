#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

using Models::AnalyzerScript;

// A collection of those results under "ReAnalyzeResults".
Ref<KeyedCollection> ResultsOf(const AnalysisScene& oScene, std::int32_t lCount) {
    auto colResults = std::make_shared<KeyedCollection>();
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace)
        colResults->Add(oScene.colResults->Item(lPlace));
    return colResults;
}

TEST(AnalysisPageStart, EachActionCallsItsOperationWithItsBatch) {
    const struct {
        const char* sAction;
        std::int32_t lResults;
        const char* sCall;
    } aCases[] = {
        {"", 0, "AnalyzeSamples([101, 102, 103], 7)"},
        {"REANALYZE", 0, "AnalyzeSamples([101, 102, 103], 7)"},
        {"optimizedReAnalyze", 3, "ReanalyzeResults([1001, 1002, 1003], 7)"},
        {"OptimizedReAnalyze", 1, "ReanalyzeResults([1001, 0, 0], 7)"}, // fewer leave zeros
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sCall);
        AnalysisScene oScene(3, oCase.sAction);
        oScene.Parameters().Add(ResultsOf(oScene, oCase.lResults), ParameterKey::ReAnalyzeResults);
        oScene.Analyze({});
        EXPECT_EQ(oScene.Analyzer().LastCall()->ToString(), oCase.sCall);
        EXPECT_EQ(oScene.oPage->ProgressBar1.Max(), 450.0F);
        EXPECT_EQ(oScene.oPage->lblStartAnalysis.Caption(), "Time started: 2026-11-22 14:05:09");
        EXPECT_EQ(oScene.Buttons(), "off on &Analyze");
        EXPECT_TRUE(oScene.oPage->lbFail2.Visible());
        EXPECT_EQ(oScene.HostButtons(), *oCase.sAction ? "5" : "");
    }
}

TEST(AnalysisPageStart, AnAlleleReanalysisSendsTheDataAndBothParts) {
    AnalysisScene oScene(2, "ReAnalyzeAlleleID", false);
    oScene.AddAlleles(2);
    oScene.Enter();
    oScene.Analyze({});
    const auto oCall = oScene.Analyzer().LastCall();
    EXPECT_EQ(oCall->ToString(), "ReanalyzeAlleles(2 objects, object, object, 0)");
    EXPECT_EQ(oCall->oFirstPart, oScene.oParameter->OwnFirstPart());
    EXPECT_EQ(oCall->oSecondPart, oScene.oParameter->OwnSecondPart());
    EXPECT_EQ(
        oCall->vItems.ToObjectArray().at(1),
        ItemAs<IObject>(*ItemAs<IKeyedCollection>(oScene.Parameters(), ParameterKey::ReAnalyzeResults), 2));
}

TEST(AnalysisPageStart, MoreResultsThanItemsFail) {
    AnalysisScene oScene(2, "OptimizedReAnalyze");
    const auto colResults = ResultsOf(oScene, 2);
    colResults->Add(oScene.colResults->Item(1));
    oScene.Parameters().Add(colResults, ParameterKey::ReAnalyzeResults);
    oScene.Analyze({});
    EXPECT_EQ(oScene.Utility().Chain(), "cmdAnalyze_Click!");
    EXPECT_TRUE(oScene.Utility().Reports().at(0).oFailure.Is(FailureNumber::Subscript));
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
}

TEST(AnalysisPageStart, AFullDatabaseRefusesTheRun) {
    AnalysisScene oScene(2);
    oScene.Utility().Database({.dSize = 1740.7, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
    oScene.Analyze({});
    const Models::ShownMessage oExpected{"The size of the current working database is estimated to grow to "
                                         "be larger than the 1.7 GB limit.\r\n"
                                         "Please use a new database to complete this operation.",
                                         16, ""};
    ASSERT_EQ(oScene.Platform().Messages().size(), 1U); // the second question is not asked
    EXPECT_EQ(oScene.Platform().Messages()[0], oExpected);
    EXPECT_EQ(oScene.Buttons(), "on off &Analyze");
    EXPECT_EQ(oScene.HostButtons(), "24");
    EXPECT_TRUE(oScene.oPage->lbTotalResults.Visible()); // the labels are on show from here on
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
}

TEST(AnalysisPageStart, ALargeDatabaseAsks) {
    for (const bool bGoOn : {false, true}) {
        AnalysisScene oScene(1);
        oScene.Utility().Database({.dSize = 700, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
        oScene.Platform().Answer(bGoOn ? MessageAnswer::Yes : MessageAnswer::No);
        oScene.Analyze({});
        const Models::ShownMessage oExpected{
            "The size of the current working database is greater than 650 MB.\r\n"
            "To maintain system performance and facilitate data archiving on CD-ROM \r\n"
            "please use a new database to complete this operation. Do you want to continue?",
            36, ""};
        EXPECT_EQ(oScene.Platform().Messages().at(0), oExpected);
        EXPECT_EQ(oScene.oLibraries->LastAnalyzer() != nullptr, bGoOn);
        EXPECT_EQ(oScene.oPage->cmdAnalyze.Enabled(), !bGoOn);
    }
}

// Found out only after the buttons were changed; nothing repairs them.
TEST(AnalysisPageStart, AnUnknownActionEndsInAnInternalError) {
    AnalysisScene oScene(1, "Later");
    oScene.Analyze({});
    EXPECT_EQ(oScene.Platform().Messages().at(0),
              (Models::ShownMessage{"Unknown Reanalysis Action code", 16, "Internal Error"}));
    EXPECT_EQ(oScene.Buttons(), "off on &Analyze");
    EXPECT_EQ(oScene.HostButtons(), "5");
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
    oScene.oPage->cmdStop.Press();
    EXPECT_TRUE(oScene.Utility().Reports().empty());
}

// What the operator sees change, in order: the order of the handler is the contract.
TEST(AnalysisPageStart, ChangesComeInTheirOrder) {
    AnalysisScene oScene(1, "ReAnalyze");
    std::string sChanges;
    const auto oSubscription =
        oScene.oPage->OnChanged.Subscribe([&](const Control& oControl, Property eProperty) {
            if (eProperty == Property::Visible || eProperty == Property::Enabled)
                sChanges += oControl.Name() + " ";
            if (eProperty == Property::Limits) sChanges += "max ";
            if (eProperty == Property::Caption) sChanges += oControl.Name() + "= ";
        });
    oScene.oLibraries->Journal().Clear();
    oScene.Analyze({});
    EXPECT_EQ(
        sChanges,
        "lbTotalResults lbTotalResults2 lbAnalyzed lbAnalyzed2 lbPass lbPass2 lbFail lbFail2 cmdAnalyze "
        "cmdStop max lblStartAnalysis= ");
    const std::vector<std::string> asExpected = {"Host.EnableButton(1, False)", "Host.EnableButton(4, False)",
                                                 "Host.EnableButton(2, False)"};
    EXPECT_EQ(oScene.oLibraries->Journal().EntriesOf("Host.EnableButton"), asExpected);
}

} // namespace
} // namespace GleanerSvc
