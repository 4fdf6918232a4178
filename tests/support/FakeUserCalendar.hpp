#pragma once

#include "base/HandlerList.hpp"
#include "portable/PortableUserCalendar.hpp"

namespace quorvane {

// The portable calendar on UTC, with a first day of the week a test chooses; `change` plays the
// system's "a new day began".
struct FakeUserCalendar : PortableUserCalendar {
    FakeUserCalendar() : PortableUserCalendar(true) {}

    int first = 1;
    HandlerList<> changes;

    int firstWeekday() override { return first; }
    Subscription observeChanges(std::function<void()> handler) override {
        return changes.add(std::move(handler));
    }
    void change() { changes.call(); }
};

}  // namespace quorvane
