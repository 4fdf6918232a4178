#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace quorvane {

// Shared by a block handed to the system (a timer, an observer, a monitor, a completion
// handler) and the Subscription that ends it. A block the system already queued for the main
// thread cannot be taken back; the flag turns it into a no-op instead.
template <typename... Args>
struct CancellableAction {
    explicit CancellableAction(std::function<void(Args...)> body) : action(std::move(body)) {}

    // The action may end its own subscription, which can free the block that called here; the
    // local copy keeps the action alive until it returns.
    static void run(const std::shared_ptr<CancellableAction>& callback, Args... args) {
        const std::shared_ptr<CancellableAction> running = callback;
        if (!running->cancelled) {
            running->action(args...);
        }
    }

    bool cancelled = false;
    std::function<void(Args...)> action;
};

}  // namespace quorvane
