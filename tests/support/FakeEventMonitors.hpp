#pragma once

#include <memory>
#include <vector>

#include "platform/EventMonitors.hpp"
#include "support/FakeEvent.hpp"

namespace quorvane {

// Monitors that tests feed by hand.
struct FakeEventMonitors : EventMonitors {
    struct Monitor {
        bool isLocal;
        std::uint64_t mask;
        GlobalHandler global;
        LocalHandler local;
    };
    std::vector<std::shared_ptr<Monitor>> monitors;

    Subscription addGlobal(std::uint64_t mask, GlobalHandler handler) override {
        return add(std::make_shared<Monitor>(Monitor{false, mask, std::move(handler), {}}));
    }
    Subscription addLocal(std::uint64_t mask, LocalHandler handler) override {
        return add(std::make_shared<Monitor>(Monitor{true, mask, {}, std::move(handler)}));
    }
    // Every monitor whose mask has the event's type sees it; false when a local one stopped it.
    bool send(const FakeEvent& event) {
        const auto snapshot = monitors;
        bool dispatched = true;
        for (const auto& monitor : snapshot) {
            if ((monitor->mask & (std::uint64_t{1} << raw(event.type()))) == 0) {
                continue;
            }
            if (monitor->isLocal) {
                dispatched = monitor->local(event) && dispatched;
            } else {
                monitor->global(event);
            }
        }
        return dispatched;
    }

private:
    Subscription add(std::shared_ptr<Monitor> monitor) {
        monitors.push_back(monitor);
        return Subscription([this, monitor] { std::erase(monitors, monitor); });
    }
};

}  // namespace quorvane
