// The windows together: what one begins, another carries on.
#include "workbench/window/Desktop.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "pagebind/Text.h"
#include "tests/workbench/lab/LabScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/window/Screenshots.h"

namespace GleanerSvc::Workbench {
namespace {

TEST(Desktop, AWizardIsBegunOnceAndItsSingleViewOutlivesIt) {
    EnsureApplication();
    const TemporaryFolder oFolder;
    Appearance oAppearance(false);
    Desktop oDesktop(oAppearance);
    oDesktop.OnTrouble = [](const std::string& sText) { ADD_FAILURE() << sText; };
    ASSERT_TRUE(oDesktop.Start().OpenLab((oFolder.Path() / "lab.sqlite").string(), LabMode::CreateIfMissing));
    oDesktop.Start().show();
    ASSERT_TRUE(oDesktop.Start().Simulate({{"Trial", "P1"}}));
    oDesktop.Start().Analyze("First");
    WizardWindow* const pWizard = oDesktop.OpenWizard();
    ASSERT_TRUE(pWizard && pWizard->isVisible());
    oDesktop.Start().Analyze("Second");
    EXPECT_EQ(oDesktop.OpenWizard(), pWizard);
    pWizard->activateWindow();
    QCoreApplication::processEvents();
    QTest::keyClick(pWizard, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(oAppearance.Zoom(), 1.25);

    auto& oList = pWizard->OwnWizard().oSamples->ctlGleaner;
    pWizard->OwnWizard().oSamples->tabPage.ChooseTab(0);
    ChooseFromMenu("Show Single Sample View...");
    dynamic_cast<Models::GridModel&>(*oList.grdAvailable).ClickRight(2, 1);
    QCoreApplication::processEvents();
    ASSERT_EQ(oDesktop.Records().size(), 1U);
    EXPECT_TRUE(oDesktop.Records()[0]->isVisible());
    const auto& oShown = dynamic_cast<const Models::GridModel&>(*oList.grdAvailable);
    EXPECT_EQ(oDesktop.Records()[0]->Content().oSample.sName, RightTrim(oShown.Text(2, 1)));

    QTest::mouseClick(pWizard->findChild<QPushButton*>("Cancel"), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(oDesktop.OpenWizard(), nullptr);
    EXPECT_FALSE(oDesktop.Start().OwnLab()->FindStudy("First"));
    EXPECT_TRUE(oDesktop.Records()[0]->isVisible());
}

TEST(Desktop, ScreenshotsShowEachState) {
    EnsureApplication();
    const TemporaryFolder oFolder;
    const auto asFiles = TakeScreenshots((oFolder.Path() / "shots").string());
    EXPECT_EQ(asFiles.size(), 60U); // fifteen states, two themes, two sizes
    for (const auto& sFile : asFiles) EXPECT_FALSE(QImage(QString::fromStdString(sFile)).isNull()) << sFile;
}

} // namespace
} // namespace GleanerSvc::Workbench
