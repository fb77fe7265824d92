#pragma once

#include <QApplication>

#include <cstdlib>

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

} // namespace GleanerSvc::Workbench
