#include "pagebind/Event.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace GleanerSvc {
namespace {

// An event and a log of who was told. Handlers are named by one letter each.
struct Bell {
    Subscription On(char cName, std::function<void()> fnThen = {}) {
        return oEvent->Subscribe([this, cName, fnThen = std::move(fnThen)] {
            sTold += cName;
            if (fnThen) fnThen();
        });
    }
    // What the handler does, step by step: "-a" unsubscribes a, "+n" subscribes n, "!" raises the event
    // again, but no more than twice, "#" throws the first time, and "0" ends the event.
    void Hold(char cName, const std::string& sSteps = "") {
        oHeld[cName] = On(cName, [this, sSteps] {
            for (std::size_t nStep = 0; nStep < sSteps.size(); ++nStep) Do(sSteps[nStep], sSteps[nStep + 1]);
        });
    }
    void Do(char cStep, char cOther) {
        if (cStep == '-') oHeld.at(cOther).Release();
        if (cStep == '+' && !oHeld.contains(cOther)) Hold(cOther);
        if (cStep == '!' && ++nNested <= 2) oEvent->Raise();
        if (cStep == '#' && !std::exchange(bThrown, true)) throw std::runtime_error("stop");
        if (cStep == '0') oEvent.reset();
    }
    std::string Ring() {
        sTold.clear();
        try {
            if (oEvent) oEvent->Raise();
        } catch (const std::runtime_error&) {
            sTold += "#";
        }
        return sTold;
    }

    std::optional<Event<>> oEvent{std::in_place};
    std::string sTold;
    std::map<char, Subscription> oHeld;
    int nNested = 0;
    bool bThrown = false;
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
    Subscription& oSame = oMoved;
    oMoved = std::move(oSame);
    EXPECT_EQ(oBell.Ring(), "b");
    oMoved.Release();
    oMoved.Release();
    EXPECT_EQ(oBell.Ring(), "");
    EXPECT_EQ(oBell.oEvent->SubscriberCount(), 0U);
}

// Handlers with their steps, and who is told by one ring after the other.
TEST(EventTest, AHandlerMayDoAnythingToItsEvent) {
    const std::pair<const char*, const char*> aCases[] = {
        {"a b:-a c", "abc bc"},
        {"a b:-b c", "abc ac"},
        {"a b:-c c", "ab ab"},
        {"a b:! c", "abababccc abc"},          // the outer notifications go on behind the nested ones
        {"a b:!+n-a c", "abababccc bcn"},      // n is first told by a notification that begins later
        {"a b:+n!-a c", "abababcncnc bcn"},    // and nested ones are such
        {"a:! b:-b-c c d", "aaabddd ad"},      // outer notifications pass over what a nested one dropped
        {"a:-a b:# c d:-b e", "ab# bcde cde"}, // a throw stops the notification, and that one alone
        {"a:0 b:-c c d", "abd"},               // one under way goes on behind the event's end
    };
    for (const auto& [sHandlers, sRings] : aCases) {
        SCOPED_TRACE(sHandlers);
        Bell oBell;
        std::istringstream oHandlers(sHandlers);
        for (std::string sOne; oHandlers >> sOne;) oBell.Hold(sOne[0], sOne.substr(1));
        std::istringstream oRings(sRings);
        for (std::string sRing; oRings >> sRing;) EXPECT_EQ(oBell.Ring(), sRing);
        if (oBell.oEvent) {
            EXPECT_EQ(oBell.oEvent->SubscriberCount(), oBell.sTold.size());
        }
    }
}

// What a handler captured may itself hold subscriptions of the same event.
TEST(EventTest, HandlerThatHoldsOtherSubscriptionsTakesThemWithIt) {
    Bell oBell;
    for (const char cName : {'a', 'b', 'c'}) oBell.Hold(cName);
    auto oHeld = std::make_shared<std::vector<Subscription>>();
    for (const char cName : {'x', 'y', 'z'}) oHeld->push_back(oBell.On(cName));
    Subscription oOuter = oBell.On('o', [&, oKept = oHeld] {
        oBell.oHeld['a'].Release();
        oOuter.Release();
    });
    const std::weak_ptr<std::vector<Subscription>> oWatch = std::exchange(oHeld, nullptr);
    oBell.Hold('e');
    EXPECT_EQ(oBell.Ring(), "abcxyzoe");
    EXPECT_TRUE(oWatch.expired());
    EXPECT_EQ(oBell.Ring(), "bce");
    EXPECT_EQ(oBell.oEvent->SubscriberCount(), 3U);
}

} // namespace
} // namespace GleanerSvc
