// A picture that can be clicked.
#pragma once

#include "pagebind/controls/Control.h"
#include "pagebind/controls/Picture.h"

namespace GleanerSvc {

// Mouse buttons as MouseDown tells them.
namespace MouseButton {
inline constexpr std::int16_t Left = 1;
inline constexpr std::int16_t Right = 2;
inline constexpr std::int16_t Middle = 4;
} // namespace MouseButton

class PictureBox final : public Control {
  public:
    PictureBox(Container& oContainer, std::string sName, Bounds oBounds, GleanerSvc::Picture oPicture)
        : Control(&oContainer, std::move(sName), oBounds), m_oPicture(std::move(oPicture)) {}
    // A member of a control array.
    PictureBox(Container& oContainer, std::string sName, std::int16_t iIndex, Bounds oBounds,
               GleanerSvc::Picture oPicture)
        : PictureBox(oContainer, std::move(sName), oBounds, std::move(oPicture)) {
        Index(iIndex);
    }

    const GleanerSvc::Picture& Picture() const { return m_oPicture; }
    void Picture(const GleanerSvc::Picture& oPicture) { Change(m_oPicture, oPicture, Property::Picture); }

    Event<std::int16_t> MouseDown; // MouseButton
    Event<> Click;                 // on release of any button

    // The operator's door: press and release.
    void ClickIt(std::int16_t iButton = MouseButton::Left) const {
        if (!CanOperate()) return;
        MouseDown.Raise(iButton);
        Click.Raise();
    }

  protected:
    std::string StateText() const override { return " picture=" + m_oPicture.sName; }

  private:
    GleanerSvc::Picture m_oPicture;
};

} // namespace GleanerSvc
