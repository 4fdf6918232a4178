#pragma once

#include <functional>
#include <utility>

namespace quorvane {

// An RAII registration: destroying or cancelling it runs the undo step exactly once. Every
// observer, listener and timer in Quorvane is owned through one of these, so a callback that
// captures its owner can only run while the owner is alive.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> undo) : undo_(std::move(undo)) {}
    Subscription(Subscription&& other) noexcept : undo_(std::exchange(other.undo_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            cancel();
            undo_ = std::exchange(other.undo_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { cancel(); }

    void cancel() {
        if (auto undo = std::exchange(undo_, nullptr)) {
            undo();
        }
    }
    bool isActive() const { return static_cast<bool>(undo_); }
    explicit operator bool() const { return isActive(); }

private:
    std::function<void()> undo_;
};

}  // namespace quorvane
