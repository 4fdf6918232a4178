#pragma once

#include <string>

namespace quorvane {

// The system's unified log: for the rare event worth a trace that no settings page shows.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    // Logged at error level, the text public (not redacted).
    virtual void error(const std::string& text) = 0;
};

}  // namespace quorvane
