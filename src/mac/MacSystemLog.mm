#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"

// Notes, from Apple's documentation (check on a Mac first): os_log_create(subsystem, category)
// returns an os_log_t; os_log_error(log, format, ...) logs at error level to the in-memory and
// on-disk stores. Dynamic strings are private (redacted) unless the format says %{public}s.

namespace quorvane {

namespace {

// The unified log, under Quorvane's own subsystem.
class MacSystemLog final : public SystemLog {
public:
    void error(const std::string& text) override {
        static os_log_t log = os_log_create("com.quorvane.app", "tools");
        os_log_error(log, "%{public}s", text.c_str());
    }
};

}  // namespace

std::unique_ptr<SystemLog> makeMacSystemLog() { return std::make_unique<MacSystemLog>(); }

}  // namespace quorvane
