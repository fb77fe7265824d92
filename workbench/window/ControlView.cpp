#include "workbench/window/ControlView.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "pagebind/controls/Label.h"
#include "workbench/window/ControlViews.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::array CommonProperties = {Property::Bounds, Property::Font, Property::Enabled,
                                         Property::ToolTip};

// A mnemonic's mark is not read out, and neither is a colon.
QString Spoken(const std::string& sCaption) {
    QString sText = QString::fromStdString(sCaption).remove('&').trimmed();
    if (sText.endsWith(':')) sText.chop(1);
    return sText;
}

// How far a label stands left of a control on its line, or above it, where it may reach into it by a little;
// nothing for another place.
std::optional<std::int32_t> Distance(const Bounds& oLabel, const Bounds& oControl) {
    const bool bOnLine =
        oLabel.lTop < oControl.lTop + oControl.lHeight && oControl.lTop < oLabel.lTop + oLabel.lHeight;
    const std::int32_t lLeft = oControl.lLeft - oLabel.lLeft;
    const std::int32_t lAbove = oControl.lTop - oLabel.lTop - oLabel.lHeight;
    if (bOnLine && lLeft > 0) return lLeft;
    if (lAbove >= -60 && lAbove < 300 && oLabel.lLeft >= oControl.lLeft &&
        oLabel.lLeft < oControl.lLeft + oControl.lWidth)
        return lAbove + oLabel.lLeft - oControl.lLeft;
    return std::nullopt;
}

// "grdAnalyzeItems" is "Analyze items", and "ProgressBar1" is "Progress bar".
QString FromModelName(const std::string& sName) {
    const auto IsUpper = [](unsigned char c) { return std::isupper(c) != 0; };
    const auto itUpper = std::ranges::find_if(sName, IsUpper);
    std::string sWords;
    for (const char c : std::string(itUpper == sName.end() ? sName.begin() : itUpper, sName.end())) {
        if (std::isdigit(static_cast<unsigned char>(c)) != 0) continue;
        if (IsUpper(static_cast<unsigned char>(c)) && !sWords.empty()) sWords += ' ';
        sWords += sWords.empty() ? c : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return QString::fromStdString(sWords);
}

// The name of a control whose caption does not tell it: from a label beside or above it, or else the words of
// its own name, whose prefix goes.
QString NameBeside(const Control& oControl) {
    QString sNearest;
    std::int32_t lNearest = 0;
    for (const Control* pOther :
         oControl.Parent() ? oControl.Parent()->Children() : std::vector<Control*>()) {
        const auto* pLabel = dynamic_cast<const Label*>(pOther);
        if (!pLabel || pLabel->Caption().empty()) continue;
        const auto oDistance = Distance(pLabel->Place(), oControl.Place());
        if (!oDistance || (!sNearest.isEmpty() && *oDistance >= lNearest)) continue;
        sNearest = Spoken(pLabel->Caption());
        lNearest = *oDistance;
    }
    return sNearest.isEmpty() ? FromModelName(oControl.Name()) : sNearest;
}

} // namespace

ControlView::ControlView(const Control& oControl, QWidget* pWidget, const ViewContext& oContext)
    : m_oControl(oControl), m_pWidget(pWidget), m_oContext(oContext) {
    m_pWidget->setObjectName(QString::fromStdString(oControl.Name()) +
                             (oControl.Index() >= 0 ? QString("(%1)").arg(oControl.Index()) : QString()));
}

ControlView::~ControlView() {
    if (!m_pWidget) return;
    m_pWidget->blockSignals(true); // but for its end, which others wait for
    m_pWidget->hide();
    m_pWidget->deleteLater();
}

void ControlView::ShowAll() {
    for (const auto eProperty : CommonProperties) Show(eProperty);
    for (const auto eProperty : OwnProperties()) Mirror(eProperty);
    ShowName();
    ShowVisible();
}

void ControlView::Show(Property eProperty) {
    switch (eProperty) {
    case Property::Bounds:
        m_pWidget->setGeometry(m_oContext.oAppearance.Pixels(m_oControl.Place()));
        break;
    case Property::Font:
        m_pWidget->setFont(m_oContext.oAppearance.ScreenFont(m_oControl.Font()));
        break;
    case Property::Enabled:
        m_pWidget->setEnabled(m_oControl.Enabled());
        break;
    case Property::Visible:
        ShowVisible();
        break;
    case Property::ToolTip:
        m_pWidget->setToolTip(QString::fromStdString(m_oControl.ToolTip()));
        break;
    case Property::ZOrder:
        m_pWidget->raise();
        break;
    default:
        break;
    }
    Mirror(eProperty);
    if (eProperty == Property::ToolTip || eProperty == Property::Caption || eProperty == Property::Picture)
        ShowName();
}

void ControlView::ShowVisible() {
    const Container* pAround = m_oControl.Parent();
    m_pWidget->setVisible(m_oControl.Visible() && (pAround == nullptr || pAround->Shows(m_oControl)));
}

void ControlView::ShowName() {
    QString sName = OwnName().remove('&');
    if (sName.isEmpty()) sName = QString::fromStdString(m_oControl.ToolTip());
    if (sName.isEmpty() && IsSpoken()) sName = NameBeside(m_oControl);
    if (m_pWidget->accessibleName() != sName) m_pWidget->setAccessibleName(sName);
}

void ControlView::Gesture(const std::function<void()>& fnGesture) const { m_oContext.Gesture(fnGesture); }

} // namespace GleanerSvc::Workbench
