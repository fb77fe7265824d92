// What the pages ask of the desktop: message boxes, pop-up menus and the cursor.
#include "workbench/window/WindowPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMessageBox>

#include "pagebind/Failure.h"
#include "pagebind/controls/PopupMenu.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/window/MessageBox.h"

namespace GleanerSvc::Workbench {
namespace {

using testing::ElementsAre;

struct PlatformScene {
    PlatformScene() { EnsureApplication(); }
    GestureDoor oDoor;
    WindowPlatform oPlatform{oDoor};
};

// Looks at the next message box and ends it with that key.
void WhenAsked(Qt::Key eKey, std::function<void(QMessageBox&)> fnLook = {}) {
    QTimer::singleShot(50, [eKey, fnLook = std::move(fnLook)] {
        auto* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pBox);
        if (fnLook) fnLook(*pBox);
        QTest::keyClick(pBox, eKey, eKey == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
        QTest::qWait(150); // a button that its letter presses is seen to go down
        if (eKey == Qt::Key_Escape) return;
        EXPECT_FALSE(pBox->isVisible());
    });
}

TEST(WindowPlatform, AMessageIsShownToTheLetterWithItsIconAndButtons) {
    PlatformScene oScene;
    WhenAsked(Qt::Key_Escape, [](QMessageBox& oBox) {
        EXPECT_EQ(oBox.text(), "Wells <b>A1</b> & B2\nare empty");
        EXPECT_EQ(oBox.textFormat(), Qt::PlainText);
        EXPECT_EQ(oBox.windowTitle(), "Plate");
        EXPECT_EQ(oBox.icon(), QMessageBox::Information);
        EXPECT_EQ(oBox.standardButtons(), QMessageBox::Ok);
    });
    EXPECT_EQ(
        oScene.oPlatform.ShowMessage("Wells <b>A1</b> & B2\r\nare empty", MessageStyle::Information, "Plate"),
        MessageAnswer::Ok);
    WhenAsked(Qt::Key_Escape, [](QMessageBox& oBox) { EXPECT_EQ(oBox.icon(), QMessageBox::Critical); });
    EXPECT_EQ(oScene.oPlatform.ShowMessage("Stopped", MessageStyle::Stop, "Plate"), MessageAnswer::Ok);
    for (const auto& [eKey, lAnswer] :
         {std::pair(Qt::Key_Y, MessageAnswer::Yes), {Qt::Key_N, MessageAnswer::No}}) {
        WhenAsked(eKey, [](QMessageBox& oBox) {
            EXPECT_EQ(oBox.icon(), QMessageBox::Question);
            EXPECT_EQ(oBox.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        });
        EXPECT_EQ(oScene.oPlatform.ShowMessage("Again?", MessageStyle::QuestionYesNo, "Plate"), lAnswer);
    }
}

TEST(WindowPlatform, EnterAloneAgreesToNothing) {
    EnsureApplication();
    QTimer::singleShot(50, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    EXPECT_FALSE(AskYesOrNo("Stop it and close?"));
    WhenAsked(Qt::Key_Y);
    EXPECT_TRUE(AskYesOrNo("Stop it and close?"));
}

TEST(WindowPlatform, AMenuOffersWhatIsVisibleAndEnabled) {
    PlatformScene oScene;
    Container oPage(nullptr, "Page", {});
    PopupMenu oMenu(oPage, "mnuWell", "Well");
    MenuEntry oSelect(oMenu, "mnuSelect", "Select");
    MenuEntry oHidden(oMenu, "mnuHidden", "Hidden");
    MenuEntry oLine(oMenu, "mnuLine", "-");
    MenuEntry oSingle(oMenu, "mnuSingle", "Show && Tell");
    oHidden.Visible(false);
    oSelect.Enabled(false);
    int nChosen = 0;
    const auto oChosen = oSingle.Click.Subscribe([&] {
        ++nChosen;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "may open a window of its own";
    });
    std::vector<std::string> asEntries;
    QTimer::singleShot(20, [&] {
        for (const QAction* pEntry : QApplication::activePopupWidget()->actions())
            asEntries.push_back(pEntry->isSeparator()
                                    ? "-"
                                    : pEntry->text().toStdString() + (pEntry->isEnabled() ? "" : ", off"));
    });
    ChooseFromMenu("Show && Tell");
    oScene.oPlatform.ShowPopup(oMenu, 0);
    EXPECT_THAT(asEntries, ElementsAre("Select, off", "-", "Show && Tell"));
    EXPECT_EQ(nChosen, 1);
    QTimer::singleShot(20, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
    oScene.oPlatform.ShowPopup(oMenu, 0);
    EXPECT_EQ(nChosen, 1);
}

TEST(WindowPlatform, AFailureOfAGestureIsToldAndGoesNoFurther) {
    PlatformScene oScene;
    WhenAsked(Qt::Key_Escape, [](QMessageBox& oBox) { EXPECT_EQ(oBox.text(), "No plate"); });
    oScene.oDoor([] { throw Failure(5, "Source", "No plate"); });
    std::string sTold;
    oScene.oDoor.OnFailure = [&](const std::string& sText) { sTold = sText; };
    oScene.oDoor([] { throw std::runtime_error("disk full"); });
    EXPECT_EQ(sTold, "disk full");
}

TEST(WindowPlatform, TheCursorWaitsOnceHoweverOftenItIsAsked) {
    EnsureApplication();
    {
        PlatformScene oScene;
        for (int nTime = 0; nTime < 2; ++nTime) {
            oScene.oPlatform.ScreenCursor(Cursor::Wait);
            ASSERT_TRUE(QApplication::overrideCursor());
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
            EXPECT_EQ(oScene.oPlatform.ScreenCursor(), Cursor::Wait);
        }
        oScene.oPlatform.ScreenCursor(Cursor::Default);
        EXPECT_FALSE(QApplication::overrideCursor());
        EXPECT_EQ(oScene.oPlatform.ScreenCursor(), Cursor::Default);
        oScene.oPlatform.ScreenCursor(Cursor::Wait);
    }
    EXPECT_FALSE(QApplication::overrideCursor()) << "a wizard that ends in the middle leaves no hourglass";
}

} // namespace
} // namespace GleanerSvc::Workbench
