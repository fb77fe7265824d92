#include "pagebind/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace GleanerSvc {
namespace {

// An event and a log of who was told. Handlers are named by one letter each.
struct Bell {
    std::optional<Event<>> oEvent{std::in_place};
    std::string sTold;
    char cEnded = ' ';                // the last to end
    std::vector<Subscription> aoHeld; // by the places that the tests count from 0

    Bell() { aoHeld.reserve(10); }
    Subscription On(char cName, std::function<void()> fnThen = {}) {
        return oEvent->Subscribe([this, cName, fnThen = std::move(fnThen)] {
            sTold += cName;
            if (fnThen) fnThen();
            cEnded = cName; // what it captured is still there
        });
    }
    void Hold(char cName, std::function<void()> fnThen = {}) { aoHeld.push_back(On(cName, fnThen)); }
    std::string Ring() {
        sTold.clear();
        oEvent->Raise();
        return sTold;
    }
};

TEST(EventTest, TellsHandlersInTheOrderOfTheirSubscription) {
    Event<int, std::string&> oEvent;
    std::string sTold;
    oEvent.Raise(0, sTold); // nobody listens
    const auto oFirst = oEvent.Subscribe([](int n, std::string& s) { s += "a" + std::to_string(n); });
    const auto oSecond = oEvent.Subscribe([](int n, std::string& s) { s += "b" + std::to_string(n); });
    oEvent.Raise(7, sTold);
    EXPECT_EQ(sTold, "a7b7");
}

TEST(EventTest, SubscriptionsKeepTheirHandlerWhenTheyMoveAndEndOnce) {
    Bell oBell;
    Subscription oFirst = oBell.On('a');
    Subscription oMoved = std::move(oFirst);
    { const auto oShort = oBell.On('s'); }
    EXPECT_EQ(oBell.Ring(), "a");
    oMoved = oBell.On('b'); // lets go of what it held
    EXPECT_EQ(oBell.Ring(), "b");
    Subscription& oSame = oMoved;
    oMoved = std::move(oSame);
    EXPECT_EQ(oBell.Ring(), "b");
    oMoved.Release();
    oMoved.Release();
    EXPECT_EQ(oBell.Ring(), "");
    EXPECT_EQ(oBell.oEvent->SubscriberCount(), 0U);
}

TEST(EventTest, HandlerMayUnsubscribeItselfAndOthers) {
    struct {
        std::size_t nDropped; // by "b", the handler in the middle
        const char* sFirst;
        const char* sThen;
    } const aoCases[] = {{0, "abc", "bc"}, {1, "abc", "ac"}, {2, "ab", "ab"}};
    for (const auto& oCase : aoCases) {
        SCOPED_TRACE(oCase.nDropped);
        Bell oBell;
        oBell.Hold('a');
        oBell.Hold('b', [&] { oBell.aoHeld[oCase.nDropped].Release(); });
        oBell.Hold('c');
        EXPECT_EQ(oBell.Ring(), oCase.sFirst);
        EXPECT_EQ(oBell.cEnded, oBell.sTold.back());
        EXPECT_EQ(oBell.oEvent->SubscriberCount(), 2U);
        EXPECT_EQ(oBell.Ring(), oCase.sThen);
    }
}

TEST(EventTest, NestedNotificationTellsEverybodyAndThenTheOuterOneGoesOn) {
    Bell oBell;
    int nDepth = 0;
    oBell.Hold('a');
    oBell.Hold('b', [&] {
        if (++nDepth > 2) return;
        if (nDepth == 2) oBell.Hold('n'); // already told by the third, which begins later
        oBell.oEvent->Raise();
        if (nDepth == 3) oBell.aoHeld[0].Release();
    });
    oBell.Hold('c');
    EXPECT_EQ(oBell.Ring(), "abababcncc");
    EXPECT_EQ(oBell.Ring(), "bcn");
}

TEST(EventTest, UnsubscribedInsideANestedNotificationIsNotToldByTheOuterOne) {
    Bell oBell;
    bool bNested = false;
    oBell.Hold('a', [&] {
        if (!std::exchange(bNested, true)) oBell.oEvent->Raise();
    });
    oBell.Hold('b', [&] {
        oBell.aoHeld[1].Release();
        oBell.aoHeld[2].Release();
    });
    oBell.Hold('c');
    oBell.Hold('d');
    EXPECT_EQ(oBell.Ring(), "aabdd");
}

TEST(EventTest, ThrowingHandlerStopsTheNotification) {
    Bell oBell;
    bool bThrow = true;
    oBell.Hold('a', [&] { oBell.aoHeld[0].Release(); });
    oBell.Hold('b', [&] {
        if (bThrow) throw std::runtime_error("stop");
    });
    oBell.Hold('c');
    EXPECT_THROW(oBell.Ring(), std::runtime_error);
    EXPECT_EQ(oBell.sTold, "ab");
    bThrow = false;
    EXPECT_EQ(oBell.Ring(), "bc");
    oBell.Hold('d', [&] { oBell.aoHeld[1].Release(); });
    EXPECT_EQ(oBell.Ring(), "bcd");
    EXPECT_EQ(oBell.Ring(), "cd");
}

TEST(EventTest, MayEndBeforeItsSubscriptionsAndWhileItRaises) {
    Bell oBell;
    oBell.Hold('a', [&] { oBell.oEvent.reset(); });
    oBell.Hold('b', [&] { oBell.aoHeld[2].Release(); });
    oBell.Hold('c');
    oBell.Hold('d');
    EXPECT_EQ(oBell.Ring(), "abd");
    oBell.aoHeld.clear();
}

// What a handler captured may itself hold subscriptions of the same event.
TEST(EventTest, HandlerThatHoldsOtherSubscriptionsTakesThemWithIt) {
    Bell oBell;
    for (const char cName : {'a', 'b', 'c'}) oBell.Hold(cName);
    auto oHeld = std::make_shared<std::vector<Subscription>>();
    for (const char cName : {'x', 'y', 'z'}) oHeld->push_back(oBell.On(cName));
    Subscription oOuter = oBell.On('o', [&, oKept = oHeld] {
        oBell.aoHeld[0].Release();
        oOuter.Release();
    });
    std::weak_ptr<std::vector<Subscription>> oWatch = oHeld;
    oBell.Hold('e');
    oHeld.reset();
    EXPECT_EQ(oBell.Ring(), "abcxyzoe");
    EXPECT_TRUE(oWatch.expired());
    EXPECT_EQ(oBell.Ring(), "bce");
    EXPECT_EQ(oBell.oEvent->SubscriberCount(), 3U);
}

} // namespace
} // namespace GleanerSvc
