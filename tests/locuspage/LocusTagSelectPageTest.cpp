#include "locuspage/LocusTagSelectPage.h"

#include <gtest/gtest.h>

#include "tests/locuspage/LocusScene.h"

namespace GleanerSvc {
namespace {

TEST(LocusTagSelectPage, TheStoredTypeDecidesWhetherTheChoiceIsOpen) {
    const char* const sOpen = "You must select the Allele Identification Type:";
    const char* const sFixed = "Allele Identification Type:";
    const struct {
        const char* sStored;
        const char* sState;
        const char* sLabel;
        bool bNext;
    } aCases[] = {
        {"", "none tab=0 open", sOpen, false}, // no such key
        {"none", "none tab=0 open", sOpen, false},
        {"other", "none tab=0 open", sOpen, false},
        {"str", "STR tab=0 0 strActive fixed", sFixed, true},
        {"SNP", "SNP tab=1 1 snpActive fixed", sFixed, true},
    };
    for (const auto& [sStored, sState, sLabel, bNext] : aCases) {
        SCOPED_TRACE(sStored);
        LocusScene oScene;
        if (*sStored != '\0') oScene.Parameters().Add(sStored, ParameterKey::AlleleIDType);
        oScene.Enter();
        EXPECT_EQ(oScene.State(), sState);
        EXPECT_EQ(oScene.oPage->strAlleleIDType.Caption(), sLabel);
        EXPECT_EQ(oScene.oPage->strAlleleIDType.Enabled(), !bNext);
        EXPECT_EQ(oScene.Stored(), *sStored != '\0' ? sStored : "none");
        bool bIsValid = !bNext;
        oScene.Events().Validate.Raise(bIsValid);
        EXPECT_EQ(bIsValid, bNext);
    }
}

TEST(LocusTagSelectPage, AClickSwapsTheTabsAndAsksForValidation) {
    LocusScene oScene;
    oScene.Enter();
    EXPECT_EQ(oScene.Where(), "2 Back");
    oScene.Choose(1);
    EXPECT_EQ(oScene.State() + " " + oScene.Where(), "SNP tab=1 1 snpActive open 2 Back Next");
    oScene.Choose(0);
    oScene.oPage->SSTab1.ChooseTab(1); // the other type's tab cannot be had
    EXPECT_EQ(oScene.State(), "STR tab=0 0 strActive open");
}

// A selector may hand another record back when it saves; what comes back is what goes on.
TEST(LocusTagSelectPage, EachDeactivateSavesAndLeavesTheDefinitionAndTheTypeFoundAtFirst) {
    LocusScene oScene;
    oScene.Enter();
    oScene.Choose(1);
    const auto oOther = oScene.Store().NewParameterDefinition(9, "Other");
    for (const bool bReplaced : {false, true}) {
        if (bReplaced) oScene.oLibraries->StrSelector().ReplaceOnSave(oOther);
        oScene.Events().Deactivate.Raise();
        EXPECT_EQ(oScene.Stored(), "none"); // not the type clicked since
        EXPECT_EQ(oScene.Parameters().Count(), 2);
        const auto oLeft = oScene.Parameters().Item(ParameterKey::AnalysisParameter).ToObject();
        EXPECT_EQ(oLeft == Ref<IObject>(oOther), bReplaced);
        EXPECT_EQ(oScene.oLibraries->SnpSelector().Saved().back().oRecord, oLeft);
        EXPECT_TRUE(Cast<IParameterDefinition>(oLeft) && Cast<IAnalysisParameter>(oLeft)); // one object
    }
    EXPECT_EQ(oScene.Calls("...TagSelector.(Load|Save)"), // each in its own order
              "SnpTagSelector.Load; StrTagSelector.Load; StrTagSelector.Save; SnpTagSelector.Save; "
              "StrTagSelector.Save; SnpTagSelector.Save; ");
}

} // namespace
} // namespace GleanerSvc
