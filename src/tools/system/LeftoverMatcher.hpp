#pragma once

#include <string>
#include <vector>

#include "tools/system/AppIdentity.hpp"

namespace quorvane {

// Decides which names in a Library folder belong to one application. Names are matched
// exactly — the identifier alone or with a suffix the system adds (".plist", ".savedState"…) —
// never by prefix, so an app whose identifier begins another's keeps the other's files. The
// system's own files (com.apple.…) are never matched.
class LeftoverMatcher {
public:
    enum class Rule {
        identifier,         // "com.maker.app", "com.maker.app.plist"
        identifierOrName,   // the same, or the app's name ("Application Support/Maker App")
        preferencesByHost,  // "com.maker.app.<hardware UUID>.plist"
        groupContainer,     // "<team>.com.maker.app", "group.com.maker.app"
    };
    struct Folder {
        const char* path;  // inside a Library folder
        Rule rule;
    };

    // Where applications leave files, in the user's Library and the computer's.
    static const std::vector<Folder>& folders();

    // `others` are the other applications known to be installed or running; a name that one
    // of them claims just as well is never this app's.
    LeftoverMatcher(AppIdentity app, std::vector<AppIdentity> others);

    // Why this app's leftovers cannot be searched for; empty when they can.
    std::string refusal() const;
    bool belongs(Rule rule, const std::string& name) const;

private:
    static bool matches(const AppIdentity& app, Rule rule, const std::string& name);

    AppIdentity app_;
    std::vector<AppIdentity> others_;
};

}  // namespace quorvane
