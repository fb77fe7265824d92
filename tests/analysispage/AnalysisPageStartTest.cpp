#include <gtest/gtest.h>

#include "tests/analysispage/AnalysisScene.h"

namespace GleanerSvc {
namespace {

TEST(AnalysisPageStart, MoreResultsThanItemsFail) {
    AnalysisScene oScene(2, "OptimizedReAnalyze");
    oScene.Store().Fill("Alpha results: R3 of S1");
    oScene.AddWork(false, 3);
    oScene.Analyze({});
    EXPECT_EQ(oScene.Utility().Chain(), "cmdAnalyze_Click!");
    EXPECT_TRUE(oScene.Utility().Reports().at(0).oFailure.Is(FailureNumber::Subscript));
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
}

// Of a full one the second question is not asked.
TEST(AnalysisPageStart, AFullDatabaseRefusesTheRunAndALargeOneAsks) {
    const Models::ShownMessage oFull{"The size of the current working database is estimated to grow to "
                                     "be larger than the 1.7 GB limit.\r\n"
                                     "Please use a new database to complete this operation.",
                                     16, ""};
    const Models::ShownMessage oLarge{
        "The size of the current working database is greater than 650 MB.\r\n"
        "To maintain system performance and facilitate data archiving on CD-ROM \r\n"
        "please use a new database to complete this operation. Do you want to continue?",
        36, ""};
    const std::tuple<double, std::int32_t, Models::ShownMessage, const char*> aCases[] = {
        {1740.7, MessageAnswer::Yes, oFull, "0 0 0, on off &Analyze, 2 Back"},
        {700, MessageAnswer::No, oLarge, "0 0 0, on off &Analyze, 2 Back"},
        {700, MessageAnswer::Yes, oLarge, "0 0 0, off on &Analyze, 2"}};
    for (const auto& [dSize, lAnswer, oMessage, sState] : aCases) {
        AnalysisScene oScene(2);
        oScene.Utility().Database({.dSize = dSize, .dPerResult = 0.1, .dLimit = 1740.8, .dWarning = 650});
        oScene.Platform().Answer(lAnswer);
        oScene.Analyze({});
        EXPECT_EQ(oScene.Platform().Messages(), std::vector{oMessage});
        EXPECT_EQ(oScene.State(), sState);
        EXPECT_TRUE(oScene.oPage->lbTotalResults.Visible()); // the labels are on show from here on
    }
}

// Found out only after the buttons were changed; nothing repairs them.
TEST(AnalysisPageStart, AnUnknownActionEndsInAnInternalError) {
    AnalysisScene oScene(1, "Later");
    oScene.Analyze({});
    EXPECT_EQ(oScene.Platform().Messages().at(0),
              (Models::ShownMessage{"Unknown Reanalysis Action code", 16, "Internal Error"}));
    EXPECT_EQ(oScene.State(), "0 0 0, off on &Analyze, 2 Next");
    EXPECT_EQ(oScene.oLibraries->LastAnalyzer(), nullptr);
}

// What the operator sees change, in order: the order of the handler is the contract.
TEST(AnalysisPageStart, ChangesComeInTheirOrder) {
    AnalysisScene oScene(1, "ReAnalyze");
    std::string sChanges;
    const auto oChanges = oScene.oPage->OnChanged.Subscribe([&](const Control& oControl, Property eProperty) {
        if (eProperty != Property::Text) sChanges += oControl.Name() + " ";
    });
    oScene.Journal().Clear();
    oScene.Analyze({});
    EXPECT_EQ(sChanges, "lbTotalResults lbTotalResults2 lbAnalyzed lbAnalyzed2 lbPass lbPass2 lbFail lbFail2 "
                        "cmdAnalyze cmdStop ProgressBar1 lblStartAnalysis ");
    EXPECT_EQ(oScene.oPage->ProgressBar1.Max(), 150.0F);
    EXPECT_EQ(oScene.oPage->lblStartAnalysis.Caption(), "Time started: 2026-11-22 14:05:09");
    EXPECT_EQ(oScene.Calls("EnableButton.*"),
              "EnableButton(1, False); EnableButton(4, False); EnableButton(2, False); ");
}

} // namespace
} // namespace GleanerSvc
