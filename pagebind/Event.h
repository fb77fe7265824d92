// A signal: synchronous, in subscription order, on the one thread.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace GleanerSvc {

// Keeps a handler subscribed for as long as it lives. It may outlive its event.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::function<void()> fnRelease) : m_fnRelease(std::move(fnRelease)) {}
    Subscription(Subscription&& oOther) noexcept : m_fnRelease(std::exchange(oOther.m_fnRelease, nullptr)) {}
    Subscription& operator=(Subscription&& oOther) noexcept {
        if (this != &oOther) {
            Release();
            m_fnRelease = std::exchange(oOther.m_fnRelease, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { Release(); }

    // Ends the subscription now; a second call does nothing.
    void Release() noexcept {
        if (auto fnRelease = std::exchange(m_fnRelease, nullptr)) fnRelease();
    }

  private:
    std::function<void()> m_fnRelease;
};

// While it runs, a handler may subscribe, unsubscribe itself or others, raise the event again, or destroy the
// event. A handler subscribed during a notification is first told at the next one; one unsubscribed during it
// is not told any more.
//
// A handler that throws stops the notification: the exception goes to whoever raised the event, and later
// handlers are not told. That carries a failure of a page event to the host, and of an analyzer event to the
// analyzer.
template<class... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() = default;

    [[nodiscard]] Subscription Subscribe(Handler fnHandler) {
        auto oEntry = std::make_shared<Entry>(Entry{std::move(fnHandler), true});
        State().aoEntries.push_back(oEntry);
        return Subscription([oWeak = std::weak_ptr<Entries>(m_oState), oEntry] {
            oEntry->bLive = false;
            if (const auto oState = oWeak.lock()) Drop(*oState, oEntry);
        });
    }

    void Raise(Args... args) const {
        if (!m_oState) return;
        const auto oState = m_oState; // the event may end while a handler runs
        const Notification oNotification(*oState);
        const std::size_t nLast = oState->aoEntries.size();
        for (std::size_t nEntry = 0; nEntry < nLast; ++nEntry) {
            const auto oEntry = oState->aoEntries[nEntry]; // the handler may drop its own subscription
            if (oEntry->bLive) oEntry->fnHandler(args...);
        }
    }

    std::size_t SubscriberCount() const {
        if (!m_oState) return 0;
        return static_cast<std::size_t>(std::count_if(m_oState->aoEntries.begin(), m_oState->aoEntries.end(),
                                                      [](const auto& oEntry) { return oEntry->bLive; }));
    }

  private:
    struct Entry {
        Handler fnHandler;
        bool bLive;
    };
    struct Entries {
        std::vector<std::shared_ptr<Entry>> aoEntries;
        int nDepth = 0; // notifications under way; entries keep their places until the last one has ended
        bool bDropped = false;
    };
    struct Notification {
        explicit Notification(Entries& oEntries) : oState(oEntries) { ++oState.nDepth; }
        Notification(const Notification&) = delete;
        Notification& operator=(const Notification&) = delete;
        ~Notification() {
            // The depth is kept meanwhile: a handler that ends here may hold further subscriptions of this
            // event, and they must not touch the list.
            while (oState.nDepth == 1 && std::exchange(oState.bDropped, false)) {
                std::erase_if(oState.aoEntries, [](const auto& oEntry) { return !oEntry->bLive; });
            }
            --oState.nDepth;
        }
        Entries& oState;
    };

    static void Drop(Entries& oState, const std::shared_ptr<Entry>& oEntry) {
        if (oState.nDepth == 0) {
            std::erase(oState.aoEntries, oEntry);
        } else {
            oState.bDropped = true;
        }
    }

    Entries& State() {
        if (!m_oState) m_oState = std::make_shared<Entries>();
        return *m_oState;
    }

    std::shared_ptr<Entries> m_oState; // made by the first subscriber: most controls never have one
};

} // namespace GleanerSvc
