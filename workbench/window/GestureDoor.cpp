#include "workbench/window/GestureDoor.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "pagebind/Failure.h"
#include "workbench/window/MessageBox.h"

namespace GleanerSvc::Workbench {

namespace {

// A page may hide a part while it draws it anew, and the toolkit then moves the focus on. It comes back to
// where the operator left it.
class KeptFocus {
  public:
    KeptFocus() : m_pFocus(QApplication::focusWidget()) {}
    KeptFocus(const KeptFocus&) = delete;
    KeptFocus& operator=(const KeptFocus&) = delete;
    ~KeptFocus() {
        if (!m_pFocus || m_pFocus->hasFocus() || !m_pFocus->isVisible() || !m_pFocus->isEnabled()) return;
        if (m_pFocus->isActiveWindow()) m_pFocus->setFocus(Qt::OtherFocusReason);
    }

  private:
    QPointer<QWidget> m_pFocus;
};

} // namespace

void GestureDoor::operator()(const std::function<void()>& fnGesture) const {
    const KeptFocus oFocus;
    try {
        fnGesture();
    } catch (...) {
        const std::string sText = Failure::Pending().Description();
        if (OnFailure) return OnFailure(sText);
        TellTrouble(sText);
    }
}

} // namespace GleanerSvc::Workbench
