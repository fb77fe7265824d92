// The rules that each kind of control adds.
#include <gtest/gtest.h>

#include <limits>

#include "pagebind/controls/CheckBox.h"
#include "pagebind/controls/DatePicker.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/ProgressBar.h"
#include "pagebind/controls/TextBox.h"
#include "pagebind/controls/UserControl.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

// A page, and a control of one kind on it.
template<class T>
struct Alone {
    UserControl oPage{"Page", 100, 100};
    T oControl{oPage, "ctl", {}};
};

class DropDownListTest : public testing::Test, protected Alone<DropDownList> {
  protected:
    DropDownListTest() {
        for (const char* sText : {"Plate", "PLATE", "", "Zed", "Plate"}) oControl.AddItem(sText, m_lItem++);
    }
    std::int32_t m_lItem = 10;
    int m_nClicks = 0;
    Subscription m_oClick = oControl.Click.Subscribe([this] { ++m_nClicks; });
};

TEST_F(DropDownListTest, SettingTheTextChoosesAnItemAndClicksWhenTheChoiceChanges) {
    const struct {
        const char* sText;
        std::int16_t iChoice;
        int nClicks; // by now
    } aoSteps[] = {
        {"PLATE", 1, 1},                  // spelled exactly so comes before the first that differs in case
        {"PLATE", 1, 1}, {"Plate", 0, 2}, // the first of two alike
        {"pLate", 0, 2}, {"", 2, 3},      {"zED", 3, 4},
    };
    for (const auto& oStep : aoSteps) {
        oControl.Text(oStep.sText);
        EXPECT_EQ(oControl.ListIndex(), oStep.iChoice) << oStep.sText;
        EXPECT_EQ(m_nClicks, oStep.nClicks) << oStep.sText;
    }
    oControl.Choose(4); // the second of two alike
    oControl.Text("Plate");
    EXPECT_EQ(oControl.ItemData(oControl.ListIndex()), 14);
    EXPECT_EQ(m_nClicks, 5);
}

TEST_F(DropDownListTest, WhatIsNotInTheListFailsAndChangesNothing) {
    oControl.Choose(3);
    oControl.Choose(5);
    oControl.Choose(-1);
    EXPECT_EQ(FailureOf([&] { oControl.Text("Zed "); }).ToString(), "383 ctl: ctl has no item \"Zed \".");
    EXPECT_EQ(FailureOf([&] { oControl.List(5); }).ToString(), "9 ctl: ctl has no item at place 5.");
    EXPECT_EQ(FailureOf([&] { oControl.ItemData(-1); }).ToString(), "9 ctl: ctl has no item at place -1.");
    EXPECT_EQ(oControl.ToString(), "ctl items=[Plate, PLATE, , Zed*, Plate]");
    oControl.Clear();
    EXPECT_EQ(oControl.ListIndex(), DropDownList::NoChoice);
    EXPECT_TRUE(FailureOf([&] { oControl.Text(oControl.Text()); }).Is(FailureNumber::TextNotInList));
    EXPECT_EQ(m_nClicks, 1);
}

TEST(OptionButtonTest, SelectingOneClearsItsGroupAndClicksOnce) {
    UserControl oPage("Page", 100, 100);
    Frame fraOther(oPage, "fraOther", {});
    OptionButton optA(oPage, "opt", 0, {}, "A");
    OptionButton optB(oPage, "opt", 1, {}, "B");
    OptionButton optOther(fraOther, "optOther", {}, "Other");
    std::string sClicked;
    const auto oA = optA.Click.Subscribe([&] { sClicked += optB.Value() ? "!" : "A"; });
    const auto oB = optB.Click.Subscribe([&] { sClicked += optA.Value() ? "!" : "B"; });
    optOther.Value(true);
    optA.Value(true);
    optA.Press();
    optB.Press();
    optB.Value(false);
    optA.Value(false);
    optA.Press();
    EXPECT_EQ(sClicked, "ABA");
    EXPECT_TRUE(optOther.Value());
    EXPECT_EQ(optA.ToString() + " " + optB.ToString(), "opt(0) caption=\"A\" selected opt(1) caption=\"B\"");
}

TEST(CheckBoxTest, NewValueClicksFromCodeAndOperator) {
    UserControl oPage("Page", 100, 100);
    CheckBox chkOne(oPage, "chkOne", {}, "One");
    std::string sValues;
    const auto oClick = chkOne.Click.Subscribe([&] { sValues += std::to_string(chkOne.Value()); });
    chkOne.Press();
    chkOne.Value(CheckState::Checked);
    chkOne.Value(CheckState::Grayed);
    chkOne.Press();
    for (const std::int16_t iBad : {std::int16_t{-1}, std::int16_t{3}}) {
        EXPECT_EQ(FailureOf([&] { chkOne.Value(iBad); }).ToString(),
                  "380 chkOne: chkOne cannot take the value " + std::to_string(iBad) + ".");
    }
    EXPECT_EQ(sValues, "120");
}

TEST(DatePickerTest, KeepsToItsLimits) {
    Alone<DatePicker> oAlone;
    DatePicker& oPicker = oAlone.oControl;
    int nPicked = 0;
    const auto oChange = oPicker.Change.Subscribe([&] { ++nPicked; });
    const Date dtLast = Date::Of({9999, 12, 31, 23, 59, 59});
    oPicker.Value(Date::Of({1601, 1, 1}));
    oPicker.Value(dtLast);
    for (const Date dtBad : {Date::Of({1600, 12, 31, 23, 59, 59}), Date(oPicker.MaxDate().Serial() + 1)}) {
        EXPECT_TRUE(FailureOf([&] { oPicker.Value(dtBad); }).Is(FailureNumber::InvalidPropertyValue));
        oPicker.Pick(dtBad);
        EXPECT_EQ(oPicker.Value(), dtLast);
    }
    EXPECT_EQ(nPicked, 0); // code raises nothing
    oPicker.Pick(Date::Of({2024, 2, 9, 13}));
    oPicker.Pick(Date::Of({2024, 2, 9, 14}));
    EXPECT_EQ(oPicker.Value(), Date::Of({2024, 2, 9}));
    EXPECT_EQ(nPicked, 1);
}

TEST(ProgressBarTest, StaysWithinItsLimits) {
    Alone<ProgressBar> oAlone;
    ProgressBar& oBar = oAlone.oControl;
    oBar.Max(7);
    oBar.Value(7);
    for (const float fBad : {-0.5F, 7.5F, std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_TRUE(FailureOf([&] { oBar.Value(fBad); }).Is(FailureNumber::InvalidPropertyValue));
    }
    EXPECT_TRUE(FailureOf([&] { oBar.Max(-1); }).Is(FailureNumber::InvalidPropertyValue));
    EXPECT_EQ(oBar.ToString(), "ctl 7/7");
    oBar.Max(3); // takes the value with it
    EXPECT_EQ(oBar.ToString(), "ctl 3/3");
}

TEST(TextBoxTest, TellsAnAppendFromANewText) {
    Alone<TextBox> oAlone;
    TextBox& txtOne = oAlone.oControl;
    std::vector<Property> aeTold;
    const auto oChanged = oAlone.oPage.OnChanged.Subscribe(
        [&](const Control&, Property eProperty) { aeTold.push_back(eProperty); });
    txtOne.Text("one");
    txtOne.AppendText(" two");
    txtOne.AppendText("");
    txtOne.SelStart(99);
    EXPECT_EQ(txtOne.SelStart(), 7U);
    txtOne.Type("!");
    EXPECT_EQ(txtOne.SelStart(), 8U);
    txtOne.SelStart(3);
    txtOne.Type(",");
    EXPECT_EQ(txtOne.ToString(), "ctl text=\"one, two!\"");
    txtOne.Text("new");
    EXPECT_EQ(txtOne.SelStart(), 0U);
    txtOne.Refresh();
    EXPECT_EQ(aeTold, (std::vector{Property::Text, Property::TextAppended, Property::Caret, Property::Text,
                                   Property::Caret, Property::Text, Property::Text, Property::Refresh}));
}

} // namespace
} // namespace GleanerSvc
