#pragma once

#include <string>

#include "platform/ServiceStatus.hpp"

namespace quorvane {

// The application's own login item (on macOS, the main app service).
class LoginItem {
public:
    using Status = ServiceStatus;

    virtual ~LoginItem() = default;

    virtual Status status() const = 0;
    // Empty on success, otherwise the system's description of the failure.
    virtual std::string registerItem() = 0;
    virtual std::string unregisterItem() = 0;
    // Where the user approves login items.
    virtual void openLoginItemsSettings() = 0;
};

}  // namespace quorvane
