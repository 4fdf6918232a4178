#pragma once

#include <functional>
#include <string>

#include "base/Subscription.hpp"

namespace quorvane {

// The messages Quorvane's Finder extension sends the app. The extension runs sandboxed, so a
// message is one string (a distributed notification's object); its meaning is decoded above
// the port (FinderRequest).
class FinderExtensionChannel {
public:
    using Handler = std::function<void(const std::string& message)>;

    static constexpr const char* kNotificationName = "com.quorvane.app.finder-request";

    virtual ~FinderExtensionChannel() = default;

    // Delivered on the main thread while the subscription lives.
    [[nodiscard]] virtual Subscription observe(Handler handler) = 0;
};

}  // namespace quorvane
