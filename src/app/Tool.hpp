#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/ToolIdentity.hpp"
#include "base/Observable.hpp"
#include "ui/SettingsPage.hpp"
#include "ui/ToolControl.hpp"

namespace quorvane {

// One feature of Quorvane. The registry owns every tool and is the only caller of start, stop
// and tidy. A tool creates its infrastructure (taps, hot keys, observers, timers) in start and
// drops it in stop; stopping a stopped tool is harmless. Tools publish through Observable when
// a setting or state changes, so settings pages and the menu refresh.
class Tool : public Observable {
public:
    ~Tool() override = default;

    // 1–7: identity, fixed at construction.
    virtual const ToolIdentity& identity() const = 0;
    const std::string& id() const { return identity().id; }
    const std::string& name() const { return identity().name; }
    const std::string& summary() const { return identity().summary; }
    const std::string& systemImage() const { return identity().systemImage; }
    const std::vector<std::string>& keywords() const { return identity().keywords; }
    ToolCategory category() const { return identity().category; }
    const std::vector<Permission>& requiredPermissions() const {
        return identity().requiredPermissions;
    }

    // 8. No tool is on by default: a fresh installation starts with everything off.
    virtual bool isEnabledByDefault() const { return false; }
    // 9. Whether the tool still needs the user to set it up before it can do anything.
    virtual bool needsSetup() const { return false; }
    // 10. Pure settings-page tools open their page when switched on.
    virtual bool opensSettingsWhenTurnedOn() const { return false; }
    // 11. False for a tool that cannot work on this system (or in this build).
    virtual bool isAvailable() const { return true; }

    // 12–15: lifecycle.
    virtual void start() = 0;
    virtual void stop() = 0;
    // Re-reads outside state. The registry never calls it; most tools treat it as a stop.
    virtual void refresh() { stop(); }
    // Cleans up lingering system state of a tool that is off, even one that never ran here.
    virtual void tidy() {}

    // 16. The settings page, as data.
    virtual SettingsPage settingsPage() = 0;
    // 17. The tile in the menu's control grid, for the tools that have one.
    virtual std::optional<ToolControl> control() { return std::nullopt; }
};

}  // namespace quorvane
