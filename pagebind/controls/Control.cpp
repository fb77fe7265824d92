#include "pagebind/controls/Control.h"

#include <algorithm>
#include <utility>

namespace GleanerSvc {

Control::Control(Container* pContainer, std::string sName, Bounds oBounds)
    : m_pContainer(pContainer), m_sName(std::move(sName)), m_oBounds(oBounds) {
    if (m_pContainer) m_pContainer->Adopt(*this);
}

Control::~Control() {
    if (m_pContainer) m_pContainer->Release(*this);
}

void Control::Place(const Bounds& oBounds) { Change(m_oBounds, oBounds, Property::Bounds); }

void Control::Left(std::int32_t lLeft) { Change(m_oBounds.lLeft, lLeft, Property::Bounds); }

void Control::Top(std::int32_t lTop) { Change(m_oBounds.lTop, lTop, Property::Bounds); }

void Control::Height(std::int32_t lHeight) { Change(m_oBounds.lHeight, lHeight, Property::Bounds); }

void Control::Visible(bool bVisible) { Change(m_bVisible, bVisible, Property::Visible); }

void Control::Enabled(bool bEnabled) { Change(m_bEnabled, bEnabled, Property::Enabled); }

void Control::ToolTip(std::string_view sToolTip) { Change(m_sToolTip, sToolTip, Property::ToolTip); }

void Control::Font(const GleanerSvc::Font& oFont) { Change(m_oFont, oFont, Property::Font); }

void Control::BringToFront() {
    if (!m_pContainer || m_pContainer->Children().back() == this) return;
    m_pContainer->Raise(*this);
    Notify(Property::ZOrder);
}

bool Control::IsOnShow() const {
    if (!m_bVisible) return false;
    return m_pContainer == nullptr || (m_pContainer->Shows(*this) && m_pContainer->IsOnShow());
}

bool Control::CanOperate() const {
    if (!m_bEnabled || !m_bVisible) return false;
    return m_pContainer == nullptr || (m_pContainer->Shows(*this) && m_pContainer->CanOperate());
}

std::string Control::ToString() const {
    std::string sText = m_sName;
    if (m_iIndex >= 0) sText += "(" + std::to_string(m_iIndex) + ")";
    if (!m_bVisible) sText += " hidden";
    if (!m_bEnabled) sText += " disabled";
    return sText + StateText();
}

void Control::Notify(Property eProperty) const {
    OnChanged.Raise(*this, eProperty);
    for (const Container* pAround = m_pContainer; pAround; pAround = pAround->Parent()) {
        pAround->OnChanged.Raise(*this, eProperty);
    }
}

void Container::Adopt(Control& oChild) {
    m_aoChildren.push_back(&oChild);
    Notify(Property::Children);
}

void Container::Release(const Control& oChild) {
    std::erase(m_aoChildren, &oChild);
    Notify(Property::Children);
}

void Container::Raise(Control& oChild) {
    const auto itChild = std::find(m_aoChildren.begin(), m_aoChildren.end(), &oChild);
    std::rotate(itChild, itChild + 1, m_aoChildren.end());
}

} // namespace GleanerSvc
