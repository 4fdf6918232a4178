#pragma once

#include <string>

namespace quorvane {

// One launchd job that starts by itself, read from its property list.
struct StartupItem {
    enum class Scope { userAgent, systemAgent, systemDaemon };
    std::string path;
    std::string label;
    // The program it runs, as the list names it; empty when it names none.
    std::string program;
    Scope scope = Scope::userAgent;
    // Moved aside by Quorvane, or marked Disabled in its own list.
    bool disabled = false;
    // Why its list could not be read; empty when it could.
    std::string problem;

    // The user's own items are switched without an administrator.
    bool isUsers() const { return scope == Scope::userAgent; }
};

}  // namespace quorvane
