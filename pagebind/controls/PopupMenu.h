// A pop-up menu and its entries. The menu is never on show as a menu bar.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class PopupMenu final : public Container {
  public:
    PopupMenu(Container& oContainer, std::string sName, std::string sCaption)
        : Container(&oContainer, std::move(sName), {}), m_sCaption(std::move(sCaption)) {}

    const std::string& Caption() const { return m_sCaption; }

    // The visible entries in order, a disabled one in round brackets: "Add, (Show Single Sample View...)".
    std::string Shown() const;

  private:
    std::string m_sCaption;
};

class MenuEntry final : public Control {
  public:
    MenuEntry(PopupMenu& oMenu, std::string sName, std::string sCaption)
        : Control(&oMenu, std::move(sName), {}), m_sCaption(std::move(sCaption)) {}

    const std::string& Caption() const { return m_sCaption; } // "-" draws a separator
    void Caption(std::string_view sCaption) { Change(m_sCaption, sCaption, Property::Caption); }

    Event<> Click;

    // The operator's door.
    void Choose() const {
        if (Visible() && Enabled()) Click.Raise();
    }

  protected:
    std::string StateText() const override { return " caption=\"" + m_sCaption + '"'; }

  private:
    std::string m_sCaption;
};

} // namespace GleanerSvc
