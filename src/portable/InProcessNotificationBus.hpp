#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/HandlerList.hpp"
#include "platform/NotificationBus.hpp"

namespace quorvane {

// Notifications within one process, delivered synchronously in the order observers registered.
class InProcessNotificationBus : public NotificationBus {
public:
    Subscription observe(const std::string& name, Handler handler) override {
        return observers_[name].add(std::move(handler));
    }
    void post(const std::string& name, const std::optional<std::string>& object) override {
        if (const auto found = observers_.find(name); found != observers_.end()) {
            found->second.call(object);
        }
    }

private:
    std::map<std::string, HandlerList<const std::optional<std::string>&>> observers_;
};

}  // namespace quorvane
