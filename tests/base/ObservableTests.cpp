#include "base/Observable.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace quorvane {
namespace {

struct Counter : Observable {
    void change() const { publish(); }
};

TEST(Observable, SubscribersMayLeaveOrJoinWhileBeingNotified) {
    Counter counter;
    std::vector<std::string> heard;
    std::optional<Subscription> second;
    std::optional<Subscription> late;
    auto first = counter.subscribe([&] {
        heard.push_back("first");
        second.reset();  // removed before its turn: it must not run
        if (!late) {
            late = counter.subscribe([&] { heard.push_back("late"); });
        }
    });
    second = counter.subscribe([&] { heard.push_back("second"); });

    counter.change();
    EXPECT_EQ(heard, (std::vector<std::string>{"first"})) << "a newcomer waits for the next round";
    counter.change();
    EXPECT_EQ(heard, (std::vector<std::string>{"first", "first", "late"}));
    EXPECT_EQ(counter.subscriberCount(), 2u);
}

TEST(Observable, ASubscriptionMayOutliveWhatItObserves) {
    auto counter = std::make_unique<Counter>();
    int calls = 0;
    Subscription subscription = counter->subscribe([&] { ++calls; });
    Subscription moved = std::move(subscription);
    EXPECT_FALSE(subscription.isActive());
    counter->change();
    counter.reset();
    moved.cancel();  // nothing left to remove, and no crash
    EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace quorvane
