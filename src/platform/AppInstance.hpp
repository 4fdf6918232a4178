#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Subscription.hpp"

namespace quorvane {

// This running copy of the application.
class AppInstance {
public:
    virtual ~AppInstance() = default;

    // Asks the application to quit: the will-terminate handler runs, then the process ends.
    virtual void terminate() = 0;
    // Starts another instance of this application's bundle, passing it this process's id as
    // the one it replaces (restartArguments). `done` runs later on the main thread with an
    // empty text once it has launched, or with the reason it could not. Ending the
    // subscription drops a `done` that has not run yet.
    [[nodiscard]] virtual Subscription launchNewInstance(
        std::function<void(const std::string& error)> done) = 0;
    // The process this instance replaces when a restart launched it; nothing otherwise.
    virtual std::optional<int> predecessor() const = 0;
    virtual bool isRunning(int processID) const = 0;
};

}  // namespace quorvane
