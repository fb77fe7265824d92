// The rules of all controls, and those of single kinds that no page reaches.
#include "pagebind/controls/Control.h"

#include <gtest/gtest.h>

#include <limits>

#include "pagebind/controls/Button.h"
#include "pagebind/controls/DatePicker.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/ProgressBar.h"
#include "pagebind/controls/UserControl.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

struct Form {
    UserControl oPage{"Page", 9000, 6000};
    Frame fraAll{oPage, "fraAll", {100, 100, 8000, 5000}};
    Button cmdGo{fraAll, "cmdGo", {10, 20, 300, 40}, "&Go", "tip"};
    Control* apPath[3] = {&oPage, &fraAll, &cmdGo};
};

TEST(ControlTest, AGestureReachesOnlyWhatIsOnShowAndEnabledWithAllAroundIt) {
    Form oForm;
    int nClicks = 0;
    const auto oClick = oForm.cmdGo.Click.Subscribe([&] { ++nClicks; });
    for (Control* pControl : oForm.apPath) {
        for (const bool bVisible : {true, false}) {
            pControl->Visible(bVisible);
            pControl->Enabled(!bVisible);
            oForm.cmdGo.Press();
        }
        pControl->Visible(true);
    }
    oForm.cmdGo.Press();
    EXPECT_EQ(nClicks, 1);
}

TEST(ControlTest, TellsOfAChangeOnItselfThenOnEachContainerAroundIt) {
    Form oForm;
    Button& cmdGo = oForm.cmdGo;
    std::string sPath;
    Property eTold{};
    std::vector<Subscription> aoHeld;
    for (Control* pAround : oForm.apPath) {
        aoHeld.push_back(pAround->OnChanged.Subscribe([&, pAround](const Control& oWhich, Property e) {
            sPath += pAround->Name() + ":" + oWhich.Name() + " ";
            eTold = e;
        }));
    }
    const std::pair<std::function<void()>, Property> aoCases[] = {
        {[&] { cmdGo.Visible(false); }, Property::Visible},
        {[&] { cmdGo.ToolTip("other"); }, Property::ToolTip},
        {[&] { cmdGo.Caption("Stop"); }, Property::Caption},
        {[&] { cmdGo.Enabled(false); }, Property::Enabled},
    };
    for (const auto& [fnChange, eProperty] : aoCases) {
        sPath.clear();
        fnChange();
        fnChange(); // the same again is no change
        EXPECT_EQ(sPath, "cmdGo:cmdGo fraAll:cmdGo Page:cmdGo ");
        EXPECT_EQ(eTold, eProperty);
    }
}

TEST(ControlTest, SelectingAnOptionClearsItsGroupAndClicksOnce) {
    Form oForm;
    OptionButton optA(oForm.oPage, "opt", 0, {}, "A");
    OptionButton optB(oForm.oPage, "opt", 1, {}, "B");
    OptionButton optOther(oForm.fraAll, "optOther", {}, "Other");
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
    EXPECT_TRUE(optOther.Value() && optA.Value() && !optB.Value());
}

TEST(ControlTest, ADatePickerKeepsToItsLimits) {
    Form oForm;
    DatePicker dtOne(oForm.oPage, "dtOne", {});
    int nPicked = 0;
    const auto oChange = dtOne.Change.Subscribe([&] { ++nPicked; });
    const Date dtLast = Date::Of({9999, 12, 31, 23, 59, 59});
    for (const Date dtGood : {Date::Of({1601, 1, 1}), dtLast}) dtOne.Value(dtGood);
    for (const Date dtBad : {Date::Of({1600, 12, 31, 23, 59, 59}), Date(dtOne.MaxDate().Serial() + 1)}) {
        EXPECT_TRUE(FailureOf([&] { dtOne.Value(dtBad); }).Is(FailureNumber::InvalidPropertyValue));
        dtOne.Pick(dtBad);
        EXPECT_EQ(dtOne.Value(), dtLast);
    }
    EXPECT_EQ(nPicked, 0); // code raises nothing
    for (const int nHour : {13, 14}) dtOne.Pick(Date::Of({2024, 2, 9, nHour}));
    EXPECT_EQ(dtOne.Value(), Date::Of({2024, 2, 9}));
    EXPECT_EQ(nPicked, 1);
}

TEST(ControlTest, AProgressBarStaysWithinItsLimits) {
    Form oForm;
    ProgressBar barOne(oForm.oPage, "barOne", {});
    barOne.Max(7);
    barOne.Value(7);
    for (const float fBad : {-0.5F, 7.5F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_TRUE(FailureOf([&] { barOne.Value(fBad); }).Is(FailureNumber::InvalidPropertyValue));
    EXPECT_TRUE(FailureOf([&] { barOne.Max(-1); }).Is(FailureNumber::InvalidPropertyValue));
    EXPECT_EQ(barOne.ToString(), "barOne 7/7");
    barOne.Max(3); // takes the value with it
    EXPECT_EQ(barOne.ToString(), "barOne 3/3");
}

} // namespace
} // namespace GleanerSvc
