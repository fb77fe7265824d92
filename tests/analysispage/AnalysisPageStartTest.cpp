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
    EXPECT_EQ(oScene.oPage->ProgressBar1.Max(), 150.0F);
    EXPECT_EQ(oScene.oPage->lblStartAnalysis.Caption(), "Time started: 2026-11-22 14:05:09");
    EXPECT_EQ(oScene.Buttons(), "off on &Analyze");
    const std::vector<std::string> asExpected = {"Host.EnableButton(1, False)", "Host.EnableButton(4, False)",
                                                 "Host.EnableButton(2, False)"};
    EXPECT_EQ(oScene.oLibraries->Journal().EntriesOf("Host.EnableButton"), asExpected);
}

} // namespace
} // namespace GleanerSvc
