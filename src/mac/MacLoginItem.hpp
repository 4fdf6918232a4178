#pragma once

#include "platform/LoginItem.hpp"

namespace quorvane {

// The main app service of ServiceManagement: Quorvane itself as a login item.
class MacLoginItem final : public LoginItem {
public:
    Status status() const override;
    std::string registerItem() override;
    std::string unregisterItem() override;
    void openLoginItemsSettings() override;
};

}  // namespace quorvane
