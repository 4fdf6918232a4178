#pragma once

#include <optional>
#include <string>

#include "platform/NotificationBus.hpp"

namespace quorvane {

// Quorvane's own notifications over the Foundation notification centres. The app observes
// only its in-process centre; the command-line tool runs in a separate process and posts to the
// distributed centre, where the app listens for one name without payload (through the
// workspace's distributed observer) and reads its preferences again.
class MacNotificationBus final : public NotificationBus {
public:
    enum class Mode {
        // Inside Quorvane.app: observes and posts in process.
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
