#include "workbench/window/HotZone.h"

#include <QAccessibleActionInterface>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

#include "pagebind/controls/PictureBox.h"

namespace GleanerSvc::Workbench {

namespace {

std::int16_t ButtonOf(Qt::MouseButton eButton) {
    if (eButton == Qt::RightButton) return MouseButton::Right;
    return eButton == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

// The step of an arrow key in units of one; nothing for another key.
QPoint StepOf(int nKey) {
    static const std::map<int, QPoint> Steps = {
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    const auto itStep = Steps.find(nKey);
    return itStep == Steps.end() ? QPoint() : itStep->second;
}

// How far a zone lies in the direction of a step; what lies aside of it counts more. Negative behind.
int Distance(const QPoint& oFrom, const QPoint& oTo, const QPoint& oStep) {
    const QPoint oWay = oTo - oFrom;
    const int nAlong = QPoint::dotProduct(oWay, oStep);
    const int nAside = std::abs(oWay.x() * oStep.y()) + std::abs(oWay.y() * oStep.x());
    return nAlong <= 0 || nAside > nAlong ? -1 : nAlong + 3 * nAside;
}

} // namespace

HotZone::HotZone(QWidget* pParent) : SpokenWidget(pParent, QAccessible::Button) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

std::vector<HotZone*> HotZone::Neighbours() const {
    std::vector<HotZone*> apZones;
    for (QWidget* pOther : parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        auto* const pZone = dynamic_cast<HotZone*>(pOther);
        if (pZone && pZone != this && pZone->isVisibleTo(parentWidget())) apZones.push_back(pZone);
    }
    return apZones;
}

// Of the zones in one place, one is in the order of the Tab key: the first, until another has had the focus.
void HotZone::showEvent(QShowEvent* pEvent) {
    const auto apZones = Neighbours();
    const auto IsStop = [](const HotZone* pZone) { return pZone->focusPolicy() == Qt::StrongFocus; };
    if (std::ranges::none_of(apZones, IsStop)) setFocusPolicy(Qt::StrongFocus);
    QWidget::showEvent(pEvent);
}

void HotZone::hideEvent(QHideEvent* pEvent) {
    const auto apZones = Neighbours();
    if (focusPolicy() == Qt::StrongFocus && !apZones.empty() && parentWidget()->isVisible()) {
        setFocusPolicy(Qt::ClickFocus);
        apZones.front()->setFocusPolicy(Qt::StrongFocus);
    }
    QWidget::hideEvent(pEvent);
}

void HotZone::paintEvent(QPaintEvent* /*pEvent*/) {
    if (!hasFocus()) return;
    QPainter oPainter(this);
    oPainter.setRenderHint(QPainter::Antialiasing);
    oPainter.setPen(QPen(QColor(0x1A, 0x5F, 0xB4), 2));
    oPainter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

void HotZone::mousePressEvent(QMouseEvent* pEvent) { Click(ButtonOf(pEvent->button())); }

void HotZone::keyPressEvent(QKeyEvent* pEvent) {
    if (MoveFocus(pEvent->key())) return;
    switch (pEvent->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Click(MouseButton::Left);
    case Qt::Key_F10: // a context menu event that comes of it as well goes to the menu that is open by then
        if (pEvent->modifiers() == Qt::ShiftModifier) return Click(MouseButton::Right);
        [[fallthrough]];
    default:
        QWidget::keyPressEvent(pEvent);
    }
}

// By mouse it came with the press already.
void HotZone::contextMenuEvent(QContextMenuEvent* pEvent) {
    if (pEvent->reason() == QContextMenuEvent::Keyboard) Click(MouseButton::Right);
}

// The one with the focus is the one to come back to.
void HotZone::focusInEvent(QFocusEvent* pEvent) {
    for (HotZone* pOther : Neighbours()) pOther->setFocusPolicy(Qt::ClickFocus);
    setFocusPolicy(Qt::StrongFocus);
    update();
    QWidget::focusInEvent(pEvent);
}

void HotZone::focusOutEvent(QFocusEvent* pEvent) {
    update();
    QWidget::focusOutEvent(pEvent);
}

QStringList HotZone::SpokenActions() const {
    return {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::showMenuAction()};
}

void HotZone::DoSpoken(const QString& sAction) {
    Click(sAction == QAccessibleActionInterface::pressAction() ? MouseButton::Left : MouseButton::Right);
}

void HotZone::Click(std::int16_t iButton) const {
    if (OnClick) OnClick(iButton);
}

bool HotZone::MoveFocus(int nKey) const {
    const QPoint oStep = StepOf(nKey);
    if (oStep.isNull()) return false;
    QWidget* pNearest = nullptr;
    int nNearest = 0;
    for (HotZone* pOther : Neighbours()) {
        const int nDistance = Distance(geometry().center(), pOther->geometry().center(), oStep);
        if (nDistance < 0 || !pOther->isEnabled() || (pNearest && nDistance >= nNearest)) continue;
        pNearest = pOther;
        nNearest = nDistance;
    }
    if (pNearest) pNearest->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace GleanerSvc::Workbench
