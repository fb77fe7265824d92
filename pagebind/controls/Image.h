// A picture that is only looked at.
#pragma once

#include "pagebind/controls/Control.h"
#include "pagebind/controls/Picture.h"

namespace GleanerSvc {

class Image final : public Control {
  public:
    Image(Container& oContainer, std::string sName, Bounds oBounds, GleanerSvc::Picture oPicture)
        : Control(&oContainer, std::move(sName), oBounds), m_oPicture(std::move(oPicture)) {}
    // A member of a control array.
    Image(Container& oContainer, std::string sName, std::int16_t iIndex, Bounds oBounds,
          GleanerSvc::Picture oPicture)
        : Image(oContainer, std::move(sName), oBounds, std::move(oPicture)) {
        Index(iIndex);
    }

    const GleanerSvc::Picture& Picture() const { return m_oPicture; }

  protected:
    std::string StateText() const override { return " picture=" + m_oPicture.sName; }

  private:
    GleanerSvc::Picture m_oPicture;
};

} // namespace GleanerSvc
