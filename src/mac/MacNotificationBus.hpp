#pragma once

#include <optional>
#include <string>

#include "platform/NotificationBus.hpp"

namespace quorvane {

// Quorvane's own notifications over the Foundation notification centres. The command-line
// tool runs in a separate process, so it reaches the running app through the distributed
// centre, which the app observes alongside its in-process centre.
class MacNotificationBus final : public NotificationBus {
public:
    enum class Mode {
        // Inside Quorvane.app: observes the in-process and the distributed centre, posts in
        // process.
        inApplication,
        // In the command-line tool: posts to other processes, observes in process only.
        fromCommandLine,
    };

    explicit MacNotificationBus(Mode mode) : mode_(mode) {}

    [[nodiscard]] Subscription observe(const std::string& name, Handler handler) override;
    void post(const std::string& name, const std::optional<std::string>& object) override;

private:
    Mode mode_;
};

}  // namespace quorvane
