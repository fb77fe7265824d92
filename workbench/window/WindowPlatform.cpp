#include "workbench/window/WindowPlatform.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>

#include "pagebind/controls/PopupMenu.h"
#include "workbench/window/MessageBox.h"
#include "workbench/window/ShownText.h"

namespace GleanerSvc::Workbench {

namespace {

QMessageBox::Icon IconOf(std::int32_t lStyle) {
    switch (lStyle) {
    case MessageStyle::Stop:
        return QMessageBox::Critical;
    case MessageStyle::QuestionYesNo:
        return QMessageBox::Question;
    case MessageStyle::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// Where a menu opens: beneath the mouse, or by the part that has the keyboard when it was a key that opened
// it.
QPoint PlaceOfMenu() {
    const QWidget* pFocus = QApplication::focusWidget();
    if (!pFocus) return QCursor::pos();
    const QRect oFocus(pFocus->mapToGlobal(QPoint()), pFocus->size());
    return oFocus.contains(QCursor::pos()) ? QCursor::pos() : oFocus.topLeft() + QPoint(12, 12);
}

void Fill(QMenu& oShown, PopupMenu& oMenu) {
    for (Control* pChild : oMenu.Children()) {
        const auto* pEntry = dynamic_cast<const MenuEntry*>(pChild);
        if (!pEntry || !pEntry->Visible()) continue;
        if (pEntry->Caption() == "-") {
            oShown.addSeparator();
            continue;
        }
        QAction* pAction = oShown.addAction(ShownText(pEntry->Caption()));
        pAction->setEnabled(pEntry->Enabled());
        pAction->setData(QVariant::fromValue(static_cast<const void*>(pEntry)));
    }
}

} // namespace

WindowPlatform::~WindowPlatform() { ScreenCursor(Cursor::Default); }

std::int32_t WindowPlatform::ShowMessage(std::string_view sText, std::int32_t lStyle,
                                         std::string_view sTitle) {
    const bool bQuestion = lStyle == MessageStyle::QuestionYesNo;
    const auto pBox = MakeMessageBox(IconOf(lStyle), sText, sTitle);
    if (bQuestion) pBox->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    const int nAnswer = pBox->exec();
    if (!bQuestion) return MessageAnswer::Ok;
    return nAnswer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

// The entry's click runs when the menu has closed, so that it may open a box or a window of its own.
void WindowPlatform::ShowPopup(PopupMenu& oMenu, std::int16_t /*iFlags*/) {
    QMenu oShown(ShownText(oMenu.Caption()), QApplication::activeWindow());
    Fill(oShown, oMenu);
    const QAction* pChosen = oShown.exec(PlaceOfMenu());
    if (!pChosen) return;
    const auto* pEntry = static_cast<const MenuEntry*>(pChosen->data().value<const void*>());
    m_oDoor([pEntry] { pEntry->Choose(); });
}

void WindowPlatform::ScreenCursor(std::int16_t iCursor) {
    const bool bWaiting = QApplication::overrideCursor() != nullptr;
    if (iCursor == Cursor::Wait && !bWaiting) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (iCursor == Cursor::Default && bWaiting) QApplication::restoreOverrideCursor();
    WorkbenchPlatform::ScreenCursor(iCursor);
}

void WindowPlatform::YieldOnce() { QCoreApplication::processEvents(); }

} // namespace GleanerSvc::Workbench
