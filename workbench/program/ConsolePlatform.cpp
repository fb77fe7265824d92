#include "workbench/program/ConsolePlatform.h"

#include <iostream>

namespace GleanerSvc::Workbench {

std::int32_t ConsolePlatform::ShowMessage(std::string_view sText, std::int32_t lStyle,
                                          std::string_view sTitle) {
    std::cerr << '\n';
    if (!sTitle.empty()) std::cerr << sTitle << ": ";
    for (const char cChar : sText) {
        if (cChar != '\r') std::cerr << cChar;
    }
    std::cerr << '\n';
    m_bStopShown = m_bStopShown || lStyle == MessageStyle::Stop;
    if (lStyle != MessageStyle::QuestionYesNo) return MessageAnswer::Ok;
    std::cerr << (m_bYes ? "Answered: yes.\n" : "Answered: no. Say --yes to go on.\n");
    m_bAnsweredNo = m_bAnsweredNo || !m_bYes;
    return m_bYes ? MessageAnswer::Yes : MessageAnswer::No;
}

} // namespace GleanerSvc::Workbench
