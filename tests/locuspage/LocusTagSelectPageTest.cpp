#include "locuspage/LocusTagSelectPage.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"
#include "tests/locuspage/LocusScene.h"

namespace GleanerSvc {
namespace {

TEST(LocusTagSelectPage, TheStoredTypeDecidesWhetherTheChoiceIsOpen) {
    const struct {
        const char* sStored;
        const char* sState;
        const char* sLabel;
        bool bNext;
    } aCases[] = {
        {nullptr, "none tab=0 open", "You must select the Allele Identification Type:", false},
        {"none", "none tab=0 open", "You must select the Allele Identification Type:", false},
        {"other", "none tab=0 open", "You must select the Allele Identification Type:", false},
        {"str", "STR tab=0 0 strActive fixed", "Allele Identification Type:", true},
        {"SNP", "SNP tab=1 1 snpActive fixed", "Allele Identification Type:", true},
    };
    for (const auto& oCase : aCases) {
        SCOPED_TRACE(oCase.sStored ? oCase.sStored : "absent");
        LocusScene oScene(oCase.sStored);
        oScene.oHost->Start();
        EXPECT_EQ(oScene.State(), oCase.sState);
        EXPECT_EQ(oScene.oPage->strAlleleIDType.Caption(), oCase.sLabel);
        EXPECT_EQ(oScene.oPage->strAlleleIDType.Enabled(), !oCase.bNext);
        EXPECT_EQ(oScene.Stored(), oCase.sStored ? oCase.sStored : "none");
        bool bIsValid = !oCase.bNext;
        oScene.Events().Validate.Raise(bIsValid);
        EXPECT_EQ(bIsValid, oCase.bNext);
    }
}

TEST(LocusTagSelectPage, AClickSwapsTheTabsAndAsksForValidation) {
    LocusScene oScene;
    oScene.oHost->Start();
    oScene.oPage->optAlleleIDType[1].Press();
    EXPECT_EQ(oScene.State(), "SNP tab=1 1 snpActive open");
    EXPECT_EQ(oScene.oLibraries->Journal().EntriesOf("PageBase.ValidatePage").size(), 1U);
    oScene.oPage->optAlleleIDType[0].Press();
    EXPECT_EQ(oScene.State(), "STR tab=0 0 strActive open");
    oScene.oPage->SSTab1.ChooseTab(1); // the other type's tab cannot be had
    EXPECT_EQ(oScene.oPage->SSTab1.Tab(), 0);
}

TEST(LocusTagSelectPage, TheSelectorsAreAskedInTheirOrders) {
    LocusScene oScene;
    oScene.oHost->Start();
    const auto Order = [&](std::string_view sOperation) {
        std::string sOrder;
        for (const auto& sEntry : oScene.oLibraries->Journal().Entries()) {
            if (sEntry.find(sOperation) != std::string::npos) sOrder += sEntry.substr(0, 3);
        }
        return sOrder;
    };
    EXPECT_EQ(Order("TagSelector.LoadParameters"), "SnpStr");
    oScene.oLibraries->Journal().Clear();
    oScene.Events().Save.Raise();
    EXPECT_EQ(Order("TagSelector.SaveParameters"), "StrSnp");
}

TEST(LocusTagSelectPage, EachDeactivateLeavesTheDefinitionAndTheTypeFoundAtFirst) {
    LocusScene oScene;
    oScene.oHost->Start();
    const auto& colParameters = *oScene.colParameters;
    auto& oEvents = oScene.Events();
    oScene.oPage->optAlleleIDType[1].Press();
    for (int nRound = 0; nRound < 2; ++nRound) {
        oEvents.Deactivate.Raise();
        oEvents.Activate.Raise();
        EXPECT_EQ(oScene.Stored(), "none"); // not the type clicked since
        EXPECT_EQ(colParameters.Count(), 2);
    }
    const auto oDefinition = ItemAs<IParameterDefinition>(colParameters, ParameterKey::AnalysisParameter);
    EXPECT_EQ(Cast<IParameterDefinition>(oScene.oLibraries->StrSelector().Saved().back().oRecord),
              oDefinition);
    EXPECT_TRUE(Cast<IAnalysisParameter>(oDefinition));             // one object, two interfaces
    EXPECT_EQ(oScene.oLibraries->StrSelector().Saved().size(), 2U); // Deactivate saves by itself
}

// A selector may hand another record back; what comes back is what goes on.
TEST(LocusTagSelectPage, ARecordThatComesBackReplacedIsUsed) {
    LocusScene oScene;
    oScene.oHost->Start();
    const auto oOther = oScene.oLibraries->Store().NewParameterDefinition(9, "Other");
    oScene.oLibraries->StrSelector().ReplaceOnSave(oOther);
    oScene.Events().Deactivate.Raise();
    EXPECT_EQ(oScene.oLibraries->SnpSelector().Saved().back().oRecord, Ref<IObject>(oOther));
    EXPECT_EQ(oScene.colParameters->Item(ParameterKey::AnalysisParameter).ToObject(), Ref<IObject>(oOther));
}

} // namespace
} // namespace GleanerSvc
