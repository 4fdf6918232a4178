#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Subscription.hpp"

namespace quorvane {

// The application's own notifications. On macOS the running app also hears the ones that the
// `quorvane` command posts from its own process, so a switch made there takes effect at once.
// The object of a notification reaches observers as a string, or as nothing when it was absent
// or not a string.
class NotificationBus {
public:
    using Handler = std::function<void(const std::optional<std::string>& object)>;

    virtual ~NotificationBus() = default;

    [[nodiscard]] virtual Subscription observe(const std::string& name, Handler handler) = 0;
    virtual void post(const std::string& name, const std::optional<std::string>& object) = 0;
};

}  // namespace quorvane
