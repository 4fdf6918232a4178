#pragma once

#include <memory>
#include <string>

#include "platform/ChildProcesses.hpp"
#include "platform/FileSystem.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/ProcessFacts.hpp"

namespace quorvane {

class Preferences;
class Scheduler;

// What the command line needs from the system it runs on: the application's own preference
// store, and a way to tell a running Quorvane that the store changed from here.
class CommandHost {
public:
    virtual ~CommandHost() = default;

    // The store used when no --prefs is given; nullptr with `error` set when it cannot be read.
    virtual std::unique_ptr<Preferences> openDefaultPreferences(std::string& error) = 0;
    // Where that store lives, for --help.
    virtual std::string defaultPreferencesDescription() const = 0;
    // Tells a running application, if any, to read its preferences again. Nothing more: what
    // changed is in the store, so no other process can switch a tool by sending a name.
    virtual void preferencesChanged() = 0;
    // Other programs' preference domains as the tools see them with the default store; nullptr
    // keeps them as JSON files beside that store.
    virtual std::unique_ptr<PreferenceDomains> openDefaultPreferenceDomains() { return nullptr; }
    // What runs programs for the tools with the default store, watching started ones from
    // this scheduler's run loop; nullptr runs nothing.
    virtual std::unique_ptr<ChildProcesses> makeChildProcesses(Scheduler& /*scheduler*/) {
        return nullptr;
    }
    // The file system and the facts about installed apps for the file commands; nullptr uses
    // the portable ones.
    virtual std::unique_ptr<FileSystem> makeFileSystem() { return nullptr; }
    virtual std::unique_ptr<ProcessFacts> makeProcessFacts() { return nullptr; }
};

}  // namespace quorvane
