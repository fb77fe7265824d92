// A text box of several lines.
#pragma once

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

class TextBox final : public Control {
  public:
    TextBox(Container& oContainer, std::string sName, Bounds oBounds)
        : Control(&oContainer, std::move(sName), oBounds) {}

    const std::string& Text() const { return m_sText; }
    void Text(std::string_view sText);

    // Costs as much as the appended text, however long the text is already.
    void AppendText(std::string_view sText);

    // The caret's place, in bytes of the text; never beyond its end.
    std::size_t SelStart() const { return m_nSelStart; }
    void SelStart(std::size_t nSelStart);
    std::size_t TextLength() const { return m_sText.size(); }

    void Refresh() const { Notify(Property::Refresh); } // asks for a repaint at once

    // The operator's door.
    void Type(std::string_view sText);

  protected:
    std::string StateText() const override { return " text=\"" + m_sText + '"'; }

  private:
    std::string m_sText;
    std::size_t m_nSelStart = 0;
};

} // namespace GleanerSvc
