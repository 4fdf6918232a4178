#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/Tool.hpp"
#include "base/Observable.hpp"
#include "base/Subscription.hpp"

namespace quorvane {

class NotificationBus;
class PermissionCenter;
class Preferences;

// Owns every tool and decides, for each, whether the user switched it on (enabled), whether it
// works now (running), whether it has a tile in the menu's control grid, and whether its
// one-time clean-up ran in this process (tidied). Main thread only.
class ToolRegistry : public Observable {
public:
    static constexpr const char* kControlsKey = "controls.toolIDs";
    static constexpr const char* kTurnedItselfOff = "QuorvaneToolTurnedItselfOff";
    static constexpr const char* kTurnedItselfOn = "QuorvaneToolTurnedItselfOn";
    // Posted by the command line to a running app, with no payload: the app's preferences
    // changed from outside, so it reads them again. Another process can say no more than that.
    static constexpr const char* kPreferencesChanged = "com.quorvane.app.preferencesChanged";
    static std::string enabledKey(std::string_view id);

    ToolRegistry(std::vector<std::unique_ptr<Tool>> tools, PermissionCenter& permissions,
                 Preferences& preferences, NotificationBus& notifications);
    ~ToolRegistry() override;

    const std::vector<std::unique_ptr<Tool>>& tools() const { return tools_; }
    PermissionCenter& permissions() const { return permissions_; }
    const std::set<std::string>& enabledIDs() const { return enabledIDs_; }
    const std::set<std::string>& runningIDs() const { return runningIDs_; }
    const std::vector<std::string>& controlIDs() const { return controlIDs_; }
    const std::set<std::string>& tidiedIDs() const { return tidiedIDs_; }

    // Opens a tool's settings page; set by the application delegate.
    std::function<void(Tool&)> onNeedsSetup;

    // The stored choice when it is a Boolean, otherwise the tool's default.
    static bool isEnabled(const Tool& tool, const Preferences& defaults);
    void setEnabled(bool on, Tool& tool, bool offerSetup);
    // Adding moves the tool's tile to the end of the grid.
    void setInControls(bool on, Tool& tool);
    std::optional<std::size_t> indexOfTool(std::string_view id) const;
    Tool* tool(std::string_view id) const;
    // What the available tools that `counts` accepts need, each permission once and in the
    // permission centre's order: Quorvane asks only for what a usable tool would use.
    std::vector<Permission> permissionsNeeded(const std::function<bool(const Tool&)>& counts) const;

    // True when every word matches the tool's search text (name, summary, category title and
    // keywords), case folded. A word also matches through its stem: "snapping" finds "snap".
    static bool matches(const Tool& tool, const std::vector<std::string>& words);
    // The words of a search field's text: split on white space, case folded.
    static std::vector<std::string> searchWords(std::string_view query);

    // Starts every enabled tool whose permissions are granted, stops the others, and tidies
    // each tool that is off once per process.
    void reconcile();
    // Reads the enabled states and the control order again from the preferences (changed by
    // the command line), publishes what differs and reconciles.
    void reloadPreferences();
    // At quit: stops every running tool, in registry order, without tidying.
    void stopAll();

private:
    std::set<std::string> storedEnabledIDs() const;
    std::vector<std::string> storedControlIDs() const;
    void handleSelfSwitch(const std::optional<std::string>& id, bool on);

    std::vector<std::unique_ptr<Tool>> tools_;
    PermissionCenter& permissions_;
    Preferences& preferences_;
    std::set<std::string> enabledIDs_;
    std::set<std::string> runningIDs_;
    std::vector<std::string> controlIDs_;
    std::set<std::string> tidiedIDs_;
    Subscription turnOffToken_;
    Subscription turnOnToken_;
};

}  // namespace quorvane
