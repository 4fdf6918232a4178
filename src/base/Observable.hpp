#pragma once

#include <functional>

#include "base/HandlerList.hpp"
#include "base/Subscription.hpp"

namespace quorvane {

// State that views render from. Subscribers are told that something changed and read what they
// need from the object itself.
class Observable {
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable() = default;

    [[nodiscard]] Subscription subscribe(std::function<void()> onChange) const {
        return subscribers_.add(std::move(onChange));
    }
    std::size_t subscriberCount() const { return subscribers_.size(); }

protected:
    void publish() const { subscribers_.call(); }

private:
    mutable HandlerList<> subscribers_;
};

}  // namespace quorvane
