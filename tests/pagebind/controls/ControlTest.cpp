#include "pagebind/controls/Control.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "pagebind/controls/Button.h"
#include "pagebind/controls/CheckBox.h"
#include "pagebind/controls/DatePicker.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/PictureBox.h"
#include "pagebind/controls/TabControl.h"
#include "pagebind/controls/TextBox.h"
#include "pagebind/controls/UserControl.h"
#include "tests/Failing.h"

namespace GleanerSvc {
namespace {

// A page with a frame, and in it one control of each kind that an operator can use.
struct Form {
    UserControl oPage{"Page", 9000, 6000};
    Frame fraAll{oPage, "fraAll", {100, 100, 8000, 5000}};
    Button cmdGo{fraAll, "cmdGo", {10, 20, 300, 40}, "&Go", "tip"};
    CheckBox chkOne{fraAll, "chkOne", {}, "One"};
    OptionButton optOne{fraAll, "optOne", {}, "One"};
    DropDownList cmbOne{fraAll, "cmbOne", {}};
    DatePicker dtOne{fraAll, "dtOne", {}};
    TextBox txtOne{fraAll, "txtOne", {}};
    Label lblOne{fraAll, "lblOne", 2, {}};
    PictureBox picOne{fraAll, "picOne", {}, {"well", 10, 10}};
    TabControl tabOne{fraAll, "tabOne", {}, {"List", "Plate"}};
    Button cmdOnTab{tabOne, "cmdOnTab", {}, "On tab"};
    std::string sTold;
    std::vector<Subscription> aoHeld;

    Form() {
        cmbOne.AddItem("One", 1);
        tabOne.PutOnTab(cmdOnTab, 0);
        Note(cmdGo.Click, "go");
        Note(chkOne.Click, "check");
        Note(optOne.Click, "option");
        Note(cmbOne.Click, "choice");
        Note(dtOne.Change, "date");
        Note(lblOne.Click, "label");
        Note(picOne.MouseDown, "down");
        Note(picOne.Click, "picture");
        Note(tabOne.Click, "tab");
        Note(cmdOnTab.Click, "ontab");
    }
    template<class... Args>
    void Note(Event<Args...>& oEvent, const char* sName) {
        aoHeld.push_back(oEvent.Subscribe([this, sName](Args... args) {
            sTold += (std::string(sName) + ... + std::to_string(args)) + " ";
        }));
    }
    // Every gesture once; yields who was told.
    std::string UseAll() {
        sTold.clear();
        cmdGo.Press();
        chkOne.Press();
        optOne.Press();
        cmbOne.Choose(0);
        dtOne.Pick(Date(1000));
        txtOne.Type("x");
        lblOne.ClickIt();
        picOne.ClickIt(MouseButton::Right);
        cmdOnTab.Press();
        tabOne.ChooseTab(1);
        cmdOnTab.Press(); // behind the other tab by now
        return sTold;
    }
    std::string State() const {
        std::string sState;
        for (const Control* pChild : fraAll.Children()) sState += pChild->ToString() + "\n";
        return sState;
    }
};

TEST(ControlTest, GesturesReachOnlyWhatIsOnShowAndEnabledWithAllAroundIt) {
    Form oForm;
    const std::string sBefore = oForm.State();
    for (Control* pControl : std::initializer_list<Control*>{&oForm.oPage, &oForm.fraAll}) {
        pControl->Enabled(false);
        EXPECT_EQ(oForm.UseAll(), "");
        EXPECT_TRUE(oForm.cmdGo.IsOnShow());
        pControl->Enabled(true);
        pControl->Visible(false);
        EXPECT_EQ(oForm.UseAll(), "");
        EXPECT_FALSE(oForm.cmdGo.IsOnShow());
        EXPECT_TRUE(oForm.cmdGo.Visible()); // the property is its own
        pControl->Visible(true);
    }
    EXPECT_EQ(oForm.State(), sBefore);
    EXPECT_EQ(oForm.UseAll(), "go check option choice date label down2 picture ontab tab0 ");
    EXPECT_EQ(oForm.State(), "cmdGo caption=\"&Go\"\n"
                             "chkOne caption=\"One\" value=1\n"
                             "optOne caption=\"One\" selected\n"
                             "cmbOne items=[One*]\n"
                             "dtOne value=1902-09-26\n"
                             "txtOne text=\"x\"\n"
                             "lblOne(2) caption=\"\"\n"
                             "picOne picture=well\n"
                             "tabOne tabs=[List, Plate*]\n");
}

TEST(ControlTest, SettersWorkOnAControlThatCannotBeOperated) {
    Form oForm;
    oForm.fraAll.Visible(false);
    oForm.fraAll.Enabled(false);
    oForm.chkOne.Value(CheckState::Grayed);
    oForm.optOne.Value(true);
    oForm.cmbOne.Text("one");
    EXPECT_EQ(oForm.sTold, "check option choice ");
    EXPECT_EQ(oForm.fraAll.ToString(), "fraAll hidden disabled caption=\"\"");
}

TEST(ControlTest, TellsOfAChangeOnItselfThenOnEachContainerAroundIt) {
    Form oForm;
    std::string sPath;
    Property eTold{};
    std::vector<Subscription> aoHeld;
    for (Control* pAround : std::initializer_list<Control*>{&oForm.oPage, &oForm.fraAll, &oForm.cmdGo}) {
        aoHeld.push_back(
            pAround->OnChanged.Subscribe([&, pAround](const Control& oWhich, Property eProperty) {
                sPath += pAround->Name() + ":" + oWhich.Name() + " ";
                eTold = eProperty;
            }));
    }
    Button& cmdGo = oForm.cmdGo;
    const std::pair<std::function<void()>, Property> aoCases[] = {
        {[&] { cmdGo.Visible(false); }, Property::Visible},
        {[&] { cmdGo.Enabled(false); }, Property::Enabled},
        {[&] { cmdGo.ToolTip("other"); }, Property::ToolTip},
        {[&] { cmdGo.Caption("Stop"); }, Property::Caption},
        {[&] {
             cmdGo.Place({1, 2, 3, 4});
         },
         Property::Bounds},
        {[&] {
             cmdGo.Font({"Fixed", 10, true});
         },
         Property::Font},
        {[&] { cmdGo.BringToFront(); }, Property::ZOrder},
    };
    for (const auto& [fnChange, eProperty] : aoCases) {
        sPath.clear();
        fnChange();
        EXPECT_EQ(sPath, "cmdGo:cmdGo fraAll:cmdGo Page:cmdGo ");
        EXPECT_EQ(eTold, eProperty);
        sPath.clear();
        fnChange(); // the same again is no change
        EXPECT_EQ(sPath, "");
    }
    EXPECT_EQ(oForm.fraAll.Children().back(), &cmdGo);
    EXPECT_EQ(cmdGo.ToString(), "cmdGo hidden disabled caption=\"Stop\"");
}

TEST(ControlTest, LeavesItsContainerWhenItEnds) {
    UserControl oPage("Page", 1, 1);
    { const Label lblShort(oPage, "lblShort", {}); }
    Label lblLast(oPage, "lblLast", {});
    EXPECT_EQ(oPage.Children(), std::vector<Control*>{&lblLast});
}

TEST(TabControlTest, ShowsWhatStandsOnTheTabInFront) {
    Form oForm;
    TabControl& tabOne = oForm.tabOne;
    const Label lblBoth(tabOne, "lblBoth", {});
    EXPECT_TRUE(oForm.cmdOnTab.IsOnShow());
    tabOne.TabEnabled(1, false);
    tabOne.ChooseTab(1);
    EXPECT_EQ(tabOne.ToString(), "tabOne tabs=[List*, Plate-]");
    tabOne.Tab(1); // code may
    tabOne.Tab(1);
    EXPECT_EQ(oForm.sTold, "tab0 ");
    EXPECT_FALSE(oForm.cmdOnTab.IsOnShow());
    EXPECT_TRUE(lblBoth.IsOnShow());
    tabOne.ChooseTab(7);
    tabOne.ChooseTab(0);
    EXPECT_EQ(oForm.sTold, "tab0 tab1 ");
}

TEST(TabControlTest, TabThatDoesNotExistFails) {
    Form oForm;
    for (const std::int16_t iTab : {std::int16_t{-1}, std::int16_t{2}}) {
        const std::string sFailure = "380 tabOne: tabOne has no tab " + std::to_string(iTab) + ".";
        EXPECT_EQ(FailureOf([&] { oForm.tabOne.Tab(iTab); }).ToString(), sFailure);
        EXPECT_EQ(FailureOf([&] { oForm.tabOne.TabEnabled(iTab, true); }).ToString(), sFailure);
        EXPECT_EQ(FailureOf([&] { oForm.tabOne.PutOnTab(oForm.cmdOnTab, iTab); }).ToString(), sFailure);
    }
    EXPECT_TRUE(oForm.cmdOnTab.IsOnShow());
}

} // namespace
} // namespace GleanerSvc
