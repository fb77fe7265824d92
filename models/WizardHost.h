// The headless wizard host: pages in a row, a parameter store for the run, a title, and the four navigation
// buttons. It raises the events of the pages; gestures stand for the operator.
//
// Entering a page sets the buttons first (Back unless it is the first page, Next unless it is the last,
// Finish on the last page only, Cancel always) and raises Validate, whose answer enables or disables the way
// on, so that a page with a choice to make begins with Next off. Then it raises Activate, so what the page
// sets stands.
//
//     Next    raises Validate and stays where the answer is False; Deactivate; Activate of the next page
//     Back    raises Deactivate; Activate of the page before: nothing is validated on the way back
//     Finish  raises Validate and Deactivate as Next does, then Save on every page in order; ends the run
//     Cancel  raises Deactivate; ends the run, nothing is saved
//
// Navigation that is asked for from inside an event waits until that event, and the navigation that raised
// it, are done; several requests are carried out in their order. Next on the last page and Back on the first
// do nothing, and so does every button while no run is under way.
//
// A failure of a page event is kept and ends the navigation where it stands: a page whose Activate fails is
// current, one whose Validate or Deactivate fails stays so, and a Save that fails leaves the later pages
// unsaved and the run open. What that event had asked the host for lapses. A page that was deactivated
// already is not told so a second time.
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "models/Journal.h"
#include "models/PageBaseModel.h"
#include "pagebind/Framework.h"

namespace GleanerSvc::Models {

// A failure that reached the host out of a page event. Pages count from 1.
struct PageFailure {
    std::string sEvent;
    std::int32_t lPage = 0;
    Failure oFailure;

    // "page 2 Activate: 5 Collection: The collection has no item under the key: "Study"."
    std::string ToString() const;
};

// Make it with std::make_shared: the pages refer to it.
class WizardHost final : public IPageFrame,
                         public std::enable_shared_from_this<WizardHost>,
                         private Journaled {
  public:
    explicit WizardHost(Ref<Journal> oJournal,
                        Ref<IKeyedCollection> colParameters = std::make_shared<KeyedCollection>())
        : Journaled(std::move(oJournal), "Host"), m_colParameters(std::move(colParameters)) {}

    // Reads the page's base object; fails with type mismatch unless that is a PageBaseModel. Before Start.
    void AddPage(const Ref<IPageAccess>& oPage);
    // Attaches every page and raises Initialize on each in order, then enters the first.
    void Start();

    // The pages' door. PressButton is carried out even when the button is disabled: the page decides. A code
    // that is no button's fails with invalid call.
    void Title(std::string_view sTitle) override;
    void EnableButton(std::int16_t iButton, bool bEnabled) override;
    void PressButton(std::int16_t iButton) override;
    void Show() override;
    void SetOwner(std::int16_t iSlot) override;
    // Raises the page's Validate now. When the page is the current one, its answer enables or disables Next
    // (Finish on the last page), and Back goes back to its default. After a failure the buttons stay.
    void ValidatePage(PageBaseModel& oPage) override;

    // The operator's door. A disabled button does nothing.
    void PressNext() { Press(HostButton::Next); }
    void PressBack() { Press(HostButton::Back); }
    void PressFinish() { Press(HostButton::Finish); }
    void PressCancel() { Press(HostButton::Cancel); }

    // A view's door: the title, a button, the page or the run has changed, or a failure was kept.
    Event<> OnChanged;

    const Ref<IKeyedCollection>& Parameters() const { return m_colParameters; }
    const std::string& Title() const { return m_sTitle; }
    bool IsEnabled(std::int16_t iButton) const { return m_abEnabled[PlaceOf(iButton)]; }
    std::int32_t CurrentPage() const { return m_lCurrent; } // from 1; 0 before Start
    std::int32_t PageCount() const { return static_cast<std::int32_t>(m_aoPages.size()); }
    bool IsRunning() const { return m_eRun == Run::Open; }
    const std::vector<PageFailure>& Failures() const { return m_aoFailures; }
    const std::vector<std::int16_t>& Owners() const { return m_aiOwners; } // each SetOwner, in order
    std::int32_t ShowCount() const { return m_lShowCount; }

    // "page=2/4 title="Analyze Data" finish=off cancel=on back=on next=off", then " finished" or " cancelled"
    // when the run has ended so, and " failures=1" when events have failed.
    std::string ToString() const;

  private:
    enum class Run { NotStarted, Open, Finished, Cancelled };
    struct Page {
        Ref<IPageAccess> oAccess; // keeps the page itself
        Ref<PageBaseModel> oBase;
    };
    class Busy; // while one lives, requests wait

    static std::size_t
    PlaceOf(std::int16_t iButton); // fails with invalid call for a code that is no button's
    void Enable(std::int16_t iButton, bool bEnabled);
    void EndRun(Run eRun);
    const Page& PageAt(std::int32_t lPage) const { return m_aoPages[static_cast<std::size_t>(lPage) - 1]; }
    bool IsLast() const { return m_lCurrent == PageCount(); }

    void Press(std::int16_t iButton);
    void CarryOutRequests();
    void Navigate(std::int16_t iButton);
    void GoForward();
    void GoBack();
    void Finish();
    void Cancel();

    void Enter(std::int32_t lPage);
    void SetDefaultButtons();
    void ShowValidity(bool bIsValid);
    bool Validate(std::int32_t lPage, bool& bIsValid);
    bool IsReadyToLeave();
    bool Deactivate();
    bool SaveAll();
    // Raises one event of a page; False when it failed, which is kept.
    template<class F>
    bool Tell(std::string_view sEvent, std::int32_t lPage, F&& fnRaise);

    Ref<IKeyedCollection> m_colParameters;
    std::vector<Page> m_aoPages;
    Run m_eRun = Run::NotStarted;
    std::int32_t m_lCurrent = 0;
    bool m_bActive = false; // the current page was activated and not deactivated since
    std::string m_sTitle;
    std::array<bool, HostButton::Next + 1> m_abEnabled{}; // by button code
    std::deque<std::int16_t> m_aiRequests;
    int m_nBusy = 0;
    std::vector<PageFailure> m_aoFailures;
    std::vector<std::int16_t> m_aiOwners;
    std::int32_t m_lShowCount = 0;
};

} // namespace GleanerSvc::Models
