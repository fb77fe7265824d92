#include "pagebind/controls/TextBox.h"

#include <algorithm>

namespace GleanerSvc {

void TextBox::Text(std::string_view sText) {
    m_nSelStart = 0;
    Change(m_sText, sText, Property::Text);
}

void TextBox::AppendText(std::string_view sText) {
    if (sText.empty()) return;
    m_sText += sText;
    Notify(Property::TextAppended);
}

void TextBox::SelStart(std::size_t nSelStart) {
    Change(m_nSelStart, std::min(nSelStart, m_sText.size()), Property::Caret);
}

void TextBox::Type(std::string_view sText) {
    if (!CanOperate() || sText.empty()) return;
    m_sText.insert(m_nSelStart, sText);
    m_nSelStart += sText.size();
    Notify(Property::Text);
}

} // namespace GleanerSvc
