#include "app/PowerAssertion.hpp"

#include <cstdint>
#include <cstdio>

namespace quorvane {

PowerAssertion::PowerAssertion(PowerManagement& power, PowerManagement::AssertionType type,
                               const std::string& name)
    : power_(power) {
    PowerManagement::AssertionID id = 0;
    if (const int status = power_.createAssertion(type, name, id); status != 0) {
        error_ = failure("Keeping the Mac awake", status);
        return;
    }
    id_ = id;
}

PowerAssertion::~PowerAssertion() {
    if (id_) {
        // Nothing to do about a failed release: the system drops the assertion when we quit.
        power_.releaseAssertion(*id_);
    }
}

std::string PowerAssertion::failure(const std::string& operation, int status) {
    // IOReturn codes read best in hexadecimal (0xE00002C2…), as the system's headers list them.
    char text[32];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<std::uint32_t>(status));
    return operation + " failed (IOReturn " + text + ")";
}

}  // namespace quorvane
