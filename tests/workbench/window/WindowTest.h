// What a test of a window begins with.
#pragma once

#include <QApplication>

namespace GleanerSvc::Workbench {

// The one application of the test program, without a screen. Made by the first test that needs it.
inline void EnsureApplication() {
    if (QCoreApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int s_nArguments = 1;
    static char s_acName[] = "tests";
    static char* s_aszArguments[] = {s_acName, nullptr};
    static const QApplication s_oApplication(s_nArguments, s_aszArguments);
}

} // namespace GleanerSvc::Workbench
