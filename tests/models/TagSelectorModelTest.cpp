#include "models/TagSelectorModel.h"

#include <gtest/gtest.h>

#include "tests/Failing.h"

namespace GleanerSvc::Models {
namespace {

class Record final : public IObject {};

TEST(TagSelectorModelTest, KeepsTheChoiceOfTagsBesideTheRecord) {
    StrTagSelectorModel oSelector(std::make_shared<Journal>(), "StrTagSelector");
    const Ref<IObject> oRecord = std::make_shared<Record>();
    const Ref<IObject> oOther = std::make_shared<Record>();
    Ref<IObject> oArgument = oRecord;
    oSelector.Loci({"TH01", "TPOX", "FGA"});
    oSelector.Choose({"FGA", "TH01"});
    EXPECT_EQ("5 StrTagSelector: The selector has no locus \"D21\".", FailureOf([&] {
                                                                          oSelector.Choose({"TH01", "D21"});
                                                                      }).ToString());
    oSelector.SaveParameters(oArgument);
    EXPECT_EQ(oRecord, oArgument);
    oSelector.Active(true);
    EXPECT_EQ("active=on loads=0 saves=1 loci=[TH01* TPOX FGA*]", oSelector.ToString());

    oSelector.ReplaceOnLoad(oOther);
    oSelector.LoadParameters(oArgument);
    EXPECT_EQ(oOther, oArgument);
    EXPECT_EQ("active=on loads=1 saves=1 loci=[TH01 TPOX FGA]", oSelector.ToString());
    oSelector.ReplaceOnLoad(oRecord);
    oSelector.LoadParameters(oArgument);
    EXPECT_EQ((std::vector<std::string>{"FGA", "TH01"}), oSelector.Chosen());
}

} // namespace
} // namespace GleanerSvc::Models
