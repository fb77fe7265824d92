#include "models/PlatformModel.h"

#include <algorithm>

#include "models/DateText.h"
#include "pagebind/Text.h"
#include "pagebind/controls/PopupMenu.h"

namespace GleanerSvc::Models {

namespace {

constexpr double SecondsPerDay = 86400;

std::string Quoted(std::string_view sText) { return '"' + std::string(sText) + '"'; }

Failure ScriptFailure(std::string sDescription) {
    return Failure(FailureNumber::InvalidCall, "Platform", std::move(sDescription));
}

MenuEntry& EntryOf(const PopupMenu& oMenu, std::string_view sEntry) {
    for (Control* pChild : oMenu.Children()) {
        auto* pEntry = dynamic_cast<MenuEntry*>(pChild);
        const bool bMatches = pEntry != nullptr && (EqualsIgnoringCase(pEntry->Name(), sEntry) ||
                                                    EqualsIgnoringCase(pEntry->Caption(), sEntry));
        if (bMatches) return *pEntry;
    }
    throw ScriptFailure("The menu " + oMenu.Name() + " has no entry " + Quoted(sEntry) + ".");
}

} // namespace

PlatformModel::PlatformModel(Ref<Journal> oJournal)
    : Journaled(std::move(oJournal), "Platform"), m_dtNow(Date::Of({2026, 11, 22, 14, 5, 9})) {}

std::int32_t PlatformModel::ShowMessage(std::string_view sText, std::int32_t lStyle,
                                        std::string_view sTitle) {
    Call("ShowMessage", sText, lStyle, sTitle);
    m_aoMessages.push_back({std::string(sText), lStyle, std::string(sTitle)});
    const bool bNextIsOk = !m_aoAnswers.empty() && m_aoAnswers.front().lAnswer == MessageAnswer::Ok;
    if (lStyle != MessageStyle::QuestionYesNo) return bNextIsOk ? TakeAnswer() : MessageAnswer::Ok;
    if (m_aoAnswers.empty() || bNextIsOk) {
        throw ScriptFailure("No answer was scripted for the question " + Quoted(sText) + ".");
    }
    return TakeAnswer();
}

std::int32_t PlatformModel::TakeAnswer() {
    const AnswerStep oStep = std::move(m_aoAnswers.front());
    m_aoAnswers.pop_front();
    if (oStep.fnMeanwhile) oStep.fnMeanwhile();
    return oStep.lAnswer;
}

void PlatformModel::ShowPopup(PopupMenu& oMenu, std::int16_t iFlags) {
    Call("ShowPopup", oMenu.Name(), iFlags);
    m_aoPopups.push_back({oMenu.Name(), oMenu.Shown(), iFlags});
    if (m_aoChoices.empty()) return;
    const ChoiceStep oStep = std::move(m_aoChoices.front());
    m_aoChoices.pop_front();
    if (oStep.fnMeanwhile) oStep.fnMeanwhile();
    if (!oStep.sEntry.empty()) EntryOf(oMenu, oStep.sEntry).Choose();
}

std::int16_t PlatformModel::ScreenCursor() {
    Call("ScreenCursor");
    return m_iCursor;
}

void PlatformModel::ScreenCursor(std::int16_t iCursor) {
    Call("ScreenCursor", iCursor);
    m_iCursor = iCursor;
    m_aiCursors.push_back(iCursor);
}

std::string PlatformModel::DateToText(Date dtValue) {
    Call("DateToText", dtValue);
    return WriteDateText(dtValue);
}

Date PlatformModel::TextToDate(std::string_view sText) {
    Call("TextToDate", sText);
    const auto dtValue = ReadDateText(sText);
    if (!dtValue) {
        throw Failure(FailureNumber::TypeMismatch, "Platform", "No date: " + Quoted(sText) + ".");
    }
    return *dtValue;
}

Date PlatformModel::Now() {
    Call("Now");
    return m_dtNow;
}

Date PlatformModel::Today() {
    Call("Today");
    return m_dtNow.Day();
}

void PlatformModel::YieldOnce() {
    Call("YieldOnce");
    ++m_lYields;
    std::size_t nTurns = m_eYield == YieldMode::AllGestures ? m_afnGestures.size() : 1;
    for (; nTurns > 0 && !m_afnGestures.empty(); --nTurns) {
        const Gesture fnGesture = std::move(m_afnGestures.front());
        m_afnGestures.pop_front();
        fnGesture();
    }
}

std::string PlatformModel::JoinPath(std::string_view sFolder, std::string_view sName) {
    Call("JoinPath", sFolder, sName);
    if (sFolder.empty()) return std::string(sName);
    sFolder = sFolder.substr(0, sFolder.find_last_not_of('/') + 1);
    sName.remove_prefix(std::min(sName.find_first_not_of('/'), sName.size()));
    return std::string(sFolder) + '/' + std::string(sName);
}

std::string PlatformModel::ApplicationTitle() {
    Call("ApplicationTitle");
    return m_sTitle;
}

std::int32_t PlatformModel::ApplicationValue() {
    Call("ApplicationValue");
    return m_lValue;
}

void PlatformModel::DebugStop() {
    Call("DebugStop");
    ++m_lDebugStops;
}

void PlatformModel::Answer(std::int32_t lAnswer, Gesture fnMeanwhile) {
    m_aoAnswers.push_back({lAnswer, std::move(fnMeanwhile)});
}

void PlatformModel::Choose(std::string_view sEntry, Gesture fnMeanwhile) {
    m_aoChoices.push_back({std::string(sEntry), std::move(fnMeanwhile)});
}

void PlatformModel::Advance(std::int32_t lSeconds) {
    m_dtNow = Date(m_dtNow.Serial() + lSeconds / SecondsPerDay);
}

std::string PlatformModel::ToString() const {
    const std::size_t nScripted = m_aoAnswers.size() + m_aoChoices.size() + m_afnGestures.size();
    return "cursor=" + DecimalText(m_iCursor) + " messages=" + std::to_string(m_aoMessages.size()) +
           " popups=" + std::to_string(m_aoPopups.size()) + " yields=" + DecimalText(m_lYields) +
           " stops=" + DecimalText(m_lDebugStops) + " scripted=" + std::to_string(nScripted) +
           " now=" + WriteDateText(m_dtNow);
}

} // namespace GleanerSvc::Models
