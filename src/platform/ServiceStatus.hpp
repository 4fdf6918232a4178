#pragma once

namespace quorvane {

// A registration with the system's service management (SMAppService's status), by the system's
// raw values.
enum class ServiceStatus {
    notRegistered = 0,     // SMAppServiceStatusNotRegistered
    enabled = 1,           // SMAppServiceStatusEnabled
    requiresApproval = 2,  // SMAppServiceStatusRequiresApproval: waiting in Login Items
    notFound = 3,          // SMAppServiceStatusNotFound: this build carries no such service
};

// A value a later system adds reads as not registered, which asks for a registration again.
constexpr ServiceStatus serviceStatus(long raw) {
    return raw >= 0 && raw <= 3 ? static_cast<ServiceStatus>(raw) : ServiceStatus::notRegistered;
}

}  // namespace quorvane
