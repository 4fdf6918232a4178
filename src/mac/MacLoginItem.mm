#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

static_assert(static_cast<long>(ServiceStatus::notRegistered) == SMAppServiceStatusNotRegistered &&
              static_cast<long>(ServiceStatus::enabled) == SMAppServiceStatusEnabled &&
              static_cast<long>(ServiceStatus::requiresApproval) ==
                  SMAppServiceStatusRequiresApproval &&
              static_cast<long>(ServiceStatus::notFound) == SMAppServiceStatusNotFound);

std::string describe(BOOL succeeded, NSError* error) {
    return succeeded ? std::string() : errorText(error, "unknown error");
}

// The main app service of ServiceManagement: Quorvane itself as a login item.
class MacLoginItem final : public LoginItem {
public:
    LoginItem::Status status() const override {
        return serviceStatus(SMAppService.mainAppService.status);
    }

    std::string registerItem() override {
        NSError* error = nil;
        const BOOL registered = [SMAppService.mainAppService registerAndReturnError:&error];
        return describe(registered, error);
    }

    std::string unregisterItem() override {
        NSError* error = nil;
        const BOOL unregistered = [SMAppService.mainAppService unregisterAndReturnError:&error];
        return describe(unregistered, error);
    }

    void openLoginItemsSettings() override { [SMAppService openSystemSettingsLoginItems]; }
};

}  // namespace

std::unique_ptr<LoginItem> makeMacLoginItem() { return std::make_unique<MacLoginItem>(); }

}  // namespace quorvane
