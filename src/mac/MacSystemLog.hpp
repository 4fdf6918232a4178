#pragma once

#include "platform/SystemLog.hpp"

namespace quorvane {

// The unified log, under Quorvane's own subsystem.
class MacSystemLog final : public SystemLog {
public:
    void error(const std::string& text) override;
};

}  // namespace quorvane
