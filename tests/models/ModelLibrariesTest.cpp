#include "models/ModelLibraries.h"

#include <gtest/gtest.h>

#include "pagebind/controls/GridControl.h"
#include "pagebind/controls/SelectorControl.h"
#include "pagebind/controls/UserControl.h"
#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

TEST(ModelLibrariesTest, AnApartmentReachesTheGlobalsThatATestHasSet) {
    const auto oLibraries = ModelLibraries::Create();
    oLibraries->Settings().MaximumResults(3);
    const auto oApartment = oLibraries->MakeApartment();
    EXPECT_EQ(oApartment, oLibraries->MakeApartment());
    EXPECT_EQ(&oLibraries->Platform(), &oApartment->Platform());
    EXPECT_EQ(&oLibraries->Utility(), oApartment->Utility().get());
    EXPECT_EQ(&oLibraries->GridHelper(), oApartment->GridHelper().get());
    EXPECT_EQ(&oLibraries->Launcher(), oApartment->Launcher().get());
    EXPECT_EQ(3, oApartment->Settings()->MaximumResults());
    EXPECT_NE(oApartment->DataFactory(), oLibraries->CreateDataFactory());
    EXPECT_EQ("Libraries.CreateTrellisGlobals()", oLibraries->Journal().Entries().front());
}

TEST(ModelLibrariesTest, EndsWithItsApartment) {
    auto oLibraries = ModelLibraries::Create();
    auto oApartment = oLibraries->MakeApartment();
    const std::weak_ptr<ModelLibraries> oWeak = std::exchange(oLibraries, nullptr);
    oApartment->Utility();
    EXPECT_FALSE(oWeak.expired());
    oApartment.reset();
    EXPECT_TRUE(oWeak.expired());
}

TEST(ModelLibrariesTest, FindsClosedControlsWhileTheyLive) {
    const auto oLibraries = ModelLibraries::Create();
    const auto oApartment = oLibraries->MakeApartment();
    const auto NoGrid = [&] { oLibraries->Grid("grdWells"); };
    EXPECT_EQ("91 Libraries: There is no grid \"grdWells\".", FailureOf(NoGrid).ToString());
    {
        UserControl oPage("Page", 100, 100);
        const GridControl oFirst(oPage, "grdWells", {}, *oApartment);
        const GridControl oSecond(oPage, "grdWells", {}, *oApartment);
        EXPECT_EQ(&oLibraries->Grid("GRDWELLS"), oSecond.Grid().get());
        SelectorControl oSelector(oPage, "ctlSTRLocusTagSelector", {}, [&](Control& oSite) {
            return oApartment->Libraries().CreateStrTagSelector(oSite);
        });
        oSelector->Active(true);
        EXPECT_TRUE(oLibraries->StrSelector().IsActive());
    }
    EXPECT_EQ(91, FailureOf(NoGrid).Number());
    EXPECT_EQ(91, FailureOf([&] { oLibraries->StrSelector(); }).Number());
    EXPECT_EQ(91, FailureOf([&] { oLibraries->SnpSelector(); }).Number());
}

TEST(ModelLibrariesTest, AnAnalyzerTakesTheScriptThatIsSetAndBelongsToThePage) {
    const auto oLibraries = ModelLibraries::Create();
    oLibraries->Script(AnalyzerScript().Complete(0, 501, 1));
    EXPECT_FALSE(oLibraries->LastAnalyzer());
    auto oAnalyzer = oLibraries->CreateAnalyzer();
    oAnalyzer->AnalyzeSamples(Int32Array{11}, 7);
    EXPECT_EQ("AnalyzeSamples([11], 7) played=1/1 stops=0 ended", oLibraries->LastAnalyzer()->ToString());
    oAnalyzer.reset();
    EXPECT_FALSE(oLibraries->LastAnalyzer());
}

} // namespace
} // namespace GleanerSvc::Models
