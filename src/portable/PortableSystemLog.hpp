#pragma once

#include <iostream>

#include "platform/SystemLog.hpp"

namespace quorvane {

// Standard error stands in for the unified log where there is none.
class PortableSystemLog : public SystemLog {
public:
    void error(const std::string& text) override { std::cerr << text << "\n"; }
};

}  // namespace quorvane
