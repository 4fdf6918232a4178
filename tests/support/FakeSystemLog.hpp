#pragma once

#include <string>
#include <vector>

#include "platform/SystemLog.hpp"

namespace quorvane {

struct FakeSystemLog : SystemLog {
    std::vector<std::string> errors;
    void error(const std::string& text) override { errors.push_back(text); }
};

}  // namespace quorvane
