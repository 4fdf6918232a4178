#pragma once

#include <optional>
#include <string>

#include "platform/PowerManagement.hpp"

namespace quorvane {

// One power-management assertion, held from construction until destruction. When the system
// refuses it, nothing is held and `error` says why.
class PowerAssertion {
public:
    PowerAssertion(PowerManagement& power, PowerManagement::AssertionType type,
                   const std::string& name);
    ~PowerAssertion();
    PowerAssertion(const PowerAssertion&) = delete;
    PowerAssertion& operator=(const PowerAssertion&) = delete;

    bool isHeld() const { return id_.has_value(); }
    const std::optional<std::string>& error() const { return error_; }

    // "<operation> failed (IOReturn 0x…)", the way every power failure is shown.
    static std::string failure(const std::string& operation, int status);

private:
    PowerManagement& power_;
    std::optional<PowerManagement::AssertionID> id_;
    std::optional<std::string> error_;
};

}  // namespace quorvane
