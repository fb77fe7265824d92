#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QTimer>
#include <QtTest/QTest>

#include <cstdlib>
#include <string>

namespace GleanerSvc::Workbench {

// The application that widgets need, without a screen; one for all tests of a run. It is never destroyed:
// what it would need for that may be gone by then.
inline void EnsureApplication() {
    if (QApplication::instance()) return;
    if (!std::getenv("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int nArguments = 1;
    static char szName[] = "tests";
    static char* aszArguments[] = {szName, nullptr};
    static auto* const pApplication = new QApplication(nArguments, aszArguments);
    static_cast<void>(pApplication);
}

// GLEANER_PICTURES names a folder in which the pictures are kept.
inline void KeepPicture(const QImage& oPicture, const std::string& sName) {
    const char* const szFolder = std::getenv("GLEANER_PICTURES");
    if (!szFolder) return;
    EXPECT_TRUE(QDir().mkpath(szFolder));
    EXPECT_TRUE(oPicture.save(QString::fromStdString(std::string(szFolder) + "/" + sName + ".png")));
}

enum class By { Mouse, Key };

// Chooses from the next menu that opens.
inline void ChooseFromMenu(const QString& sCaption, By eWay = By::Mouse) {
    QTimer::singleShot(50, [sCaption, eWay] {
        auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(pMenu);
        for (QAction* pAction : pMenu->actions()) {
            if (eWay == By::Key) QTest::keyClick(pMenu, Qt::Key_Down);
            if ((eWay == By::Key ? pMenu->activeAction() : pAction)->text() != sCaption) continue;
            if (eWay == By::Key) return QTest::keyClick(pMenu, Qt::Key_Return);
            return QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier,
                                     pMenu->actionGeometry(pAction).center());
        }
        ADD_FAILURE() << "the menu has no " << sCaption.toStdString();
        pMenu->close();
    });
}

} // namespace GleanerSvc::Workbench
