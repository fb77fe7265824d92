#include "models/WizardHost.h"

#include <algorithm>

#include "pagebind/Text.h"

namespace GleanerSvc::Models {

class WizardHost::Busy {
  public:
    explicit Busy(WizardHost& oHost) : m_oHost(oHost) { ++m_oHost.m_nBusy; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { --m_oHost.m_nBusy; }

  private:
    WizardHost& m_oHost;
};

std::string PageFailure::ToString() const {
    return "page " + DecimalText(lPage) + " " + sEvent + ": " + oFailure.ToString();
}

void WizardHost::AddPage(const Ref<IPageAccess>& oPage) {
    if (m_eRun != Run::NotStarted) {
        throw Failure(FailureNumber::InvalidCall, "Host", "A page cannot join a run that was started.");
    }
    const auto oBase = Cast<PageBaseModel>(Deref(oPage).Page());
    Deref(oBase);
    m_aoPages.push_back({oPage, oBase});
}

void WizardHost::Start() {
    if (m_eRun != Run::NotStarted || m_aoPages.empty()) {
        throw Failure(FailureNumber::InvalidCall, "Host", "A run needs pages, and is started once.");
    }
    {
        const Busy oBusy(*this);
        m_eRun = Run::Open;
        for (const auto& oPage : m_aoPages) oPage.oBase->Attach(shared_from_this(), m_colParameters);
        for (std::int32_t lPage = 1; lPage <= PageCount(); ++lPage) {
            Tell("Initialize", lPage, [](PageEvents& oEvents) { oEvents.Initialize.Raise(nullptr); });
        }
        Enter(1);
    }
    CarryOutRequests();
}

void WizardHost::Title(std::string_view sTitle) {
    Call("Title", sTitle);
    m_sTitle = sTitle;
    OnChanged.Raise();
}

void WizardHost::EnableButton(std::int16_t iButton, bool bEnabled) {
    Call("EnableButton", iButton, bEnabled);
    Enable(iButton, bEnabled);
}

void WizardHost::PressButton(std::int16_t iButton) {
    Call("PressButton", iButton);
    PlaceOf(iButton);
    m_aiRequests.push_back(iButton);
    CarryOutRequests();
}

void WizardHost::Show() {
    Call("Show");
    ++m_lShowCount;
}

void WizardHost::SetOwner(std::int16_t iSlot) {
    Call("SetOwner", iSlot);
    m_aiOwners.push_back(iSlot);
}

void WizardHost::ValidatePage(PageBaseModel& oPage) {
    const auto itPage = std::find_if(m_aoPages.begin(), m_aoPages.end(),
                                     [&](const Page& oEntry) { return oEntry.oBase.get() == &oPage; });
    if (itPage == m_aoPages.end()) return;
    const auto lPage = static_cast<std::int32_t>(itPage - m_aoPages.begin()) + 1;
    bool bIsValid = true;
    if (Validate(lPage, bIsValid) && lPage == m_lCurrent) {
        ShowValidity(bIsValid);
        Enable(HostButton::Back, lPage > 1);
    }
    CarryOutRequests();
}

std::size_t WizardHost::PlaceOf(std::int16_t iButton) {
    switch (iButton) {
    case HostButton::Finish:
    case HostButton::Cancel:
    case HostButton::Back:
    case HostButton::Next:
        return static_cast<std::size_t>(iButton);
    default:
        throw Failure(FailureNumber::InvalidCall, "Host",
                      "The host has no button " + DecimalText(iButton) + ".");
    }
}

void WizardHost::Enable(std::int16_t iButton, bool bEnabled) {
    m_abEnabled[PlaceOf(iButton)] = bEnabled;
    OnChanged.Raise();
}

void WizardHost::EndRun(Run eRun) {
    m_eRun = eRun;
    OnChanged.Raise();
}

void WizardHost::Press(std::int16_t iButton) {
    if (!IsRunning() || !IsEnabled(iButton)) return;
    m_aiRequests.push_back(iButton);
    CarryOutRequests();
}

void WizardHost::CarryOutRequests() {
    while (m_nBusy == 0 && !m_aiRequests.empty()) {
        const std::int16_t iButton = m_aiRequests.front();
        m_aiRequests.pop_front();
        const Busy oBusy(*this);
        Navigate(iButton);
    }
}

void WizardHost::Navigate(std::int16_t iButton) {
    if (!IsRunning()) return;
    switch (iButton) {
    case HostButton::Finish:
        return Finish();
    case HostButton::Cancel:
        return Cancel();
    case HostButton::Back:
        return GoBack();
    default:
        return GoForward();
    }
}

void WizardHost::GoForward() {
    if (!IsLast() && IsReadyToLeave() && Deactivate()) Enter(m_lCurrent + 1);
}

void WizardHost::GoBack() {
    if (m_lCurrent > 1 && Deactivate()) Enter(m_lCurrent - 1);
}

void WizardHost::Finish() {
    if (IsReadyToLeave() && Deactivate() && SaveAll()) EndRun(Run::Finished);
}

void WizardHost::Cancel() {
    if (Deactivate()) EndRun(Run::Cancelled);
}

void WizardHost::Enter(std::int32_t lPage) {
    m_lCurrent = lPage;
    m_bActive = true;
    SetDefaultButtons();
    bool bIsValid = true;
    if (Validate(lPage, bIsValid)) ShowValidity(bIsValid);
    Tell("Activate", lPage, [](PageEvents& oEvents) { oEvents.Activate.Raise(); });
}

void WizardHost::SetDefaultButtons() {
    Enable(HostButton::Finish, IsLast());
    Enable(HostButton::Cancel, true);
    Enable(HostButton::Back, m_lCurrent > 1);
    Enable(HostButton::Next, !IsLast());
}

void WizardHost::ShowValidity(bool bIsValid) {
    Enable(IsLast() ? HostButton::Finish : HostButton::Next, bIsValid);
}

bool WizardHost::Validate(std::int32_t lPage, bool& bIsValid) {
    return Tell("Validate", lPage, [&](PageEvents& oEvents) { oEvents.Validate.Raise(bIsValid); });
}

bool WizardHost::IsReadyToLeave() {
    bool bIsValid = true;
    return Validate(m_lCurrent, bIsValid) && bIsValid;
}

bool WizardHost::Deactivate() {
    if (!m_bActive) return true;
    if (!Tell("Deactivate", m_lCurrent, [](PageEvents& oEvents) { oEvents.Deactivate.Raise(); }))
        return false;
    m_bActive = false;
    return true;
}

bool WizardHost::SaveAll() {
    for (std::int32_t lPage = 1; lPage <= PageCount(); ++lPage) {
        if (!Tell("Save", lPage, [](PageEvents& oEvents) { oEvents.Save.Raise(); })) return false;
    }
    return true;
}

template<class F>
bool WizardHost::Tell(std::string_view sEvent, std::int32_t lPage, F&& fnRaise) {
    const Busy oBusy(*this);
    const std::size_t nRequests = m_aiRequests.size();
    try {
        fnRaise(PageAt(lPage).oBase->Events());
        return true;
    } catch (...) {
        m_aoFailures.push_back({std::string(sEvent), lPage, Failure::Pending()});
        m_aiRequests.resize(nRequests);
        OnChanged.Raise();
        return false;
    }
}

std::string WizardHost::ToString() const {
    const auto State = [&](const char* sName, std::int16_t iButton) {
        return std::string(sName) + (IsEnabled(iButton) ? "on" : "off");
    };
    std::string sText = "page=" + DecimalText(m_lCurrent) + "/" + DecimalText(PageCount());
    sText += " title=\"" + m_sTitle + "\"";
    sText += State(" finish=", HostButton::Finish) + State(" cancel=", HostButton::Cancel);
    sText += State(" back=", HostButton::Back) + State(" next=", HostButton::Next);
    if (m_eRun == Run::Finished) sText += " finished";
    if (m_eRun == Run::Cancelled) sText += " cancelled";
    if (!m_aoFailures.empty()) sText += " failures=" + std::to_string(m_aoFailures.size());
    return sText;
}

} // namespace GleanerSvc::Models
