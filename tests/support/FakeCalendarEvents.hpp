#pragma once

#include <string>
#include <vector>

#include "base/HandlerList.hpp"
#include "platform/CalendarEvents.hpp"

namespace quorvane {

// A store of events a test fills, the access the user gave, and the user's answer to the
// prompt (given when a test calls `answer`).
struct FakeCalendarEvents : CalendarEvents {
    Access access = Access::notDetermined;
    std::vector<Event> stored;
    std::vector<std::function<void(bool, std::string)>> pendingRequests;
    int queries = 0;
    HandlerList<> changes;

    Access authorizationStatus() override { return access; }
    void requestFullAccess(std::function<void(bool, std::string)> done) override {
        pendingRequests.push_back(std::move(done));
    }
    std::vector<Event> events(double start, double end) override {
        ++queries;
        std::vector<Event> found;
        if (access != Access::fullAccess) {
            return found;
        }
        for (const auto& event : stored) {
            if (event.start < end && event.end > start) {
                found.push_back(event);
            }
        }
        return found;
    }
    Subscription observeChanges(std::function<void()> handler) override {
        return changes.add(std::move(handler));
    }
    // The user answers the prompt.
    void answer(bool grant) {
        access = grant ? Access::fullAccess : Access::denied;
        auto requests = std::move(pendingRequests);
        pendingRequests.clear();
        for (auto& done : requests) {
            done(grant, grant ? "" : "The user denied access.");
        }
    }
};

}  // namespace quorvane
