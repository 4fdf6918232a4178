#pragma once

#include <array>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/PermissionCard.hpp"
#include "app/PermissionCardSource.hpp"
#include "base/Observable.hpp"
#include "base/Subscription.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

class PermissionCardActions;
class Preferences;
class ToolRegistry;

// The welcome shown on the first launch: what Quorvane is, the permissions its tools ask for,
// and a few tools to switch on right away. Once finished or closed it is not shown again.
class FirstRunModel : public Observable, public PermissionCardSource {
public:
    static constexpr const char* kDoneKey = "app.firstRunDone";
    static constexpr const char* kTitle = "Welcome to Quorvane";
    static constexpr const char* kIntro =
        "Quorvane lives in your menu bar and fixes small everyday annoyances with tools you "
        "switch on one by one. A tool that is off leaves no trace, and you can change your "
        "mind any time in Settings.";
    static constexpr const char* kPermissionsTitle = "Permissions";
    static constexpr const char* kPermissionsIntro =
        "Some of the tools you picked need macOS to allow them first. You can do this now or "
        "when you switch such a tool on.";
    static constexpr const char* kPermissionsOnPicking =
        "A tool that needs macOS to allow it first shows what to do here once you pick it.";
    static constexpr const char* kNoPermissionsNeeded = "The tools you picked need no permission.";
    static constexpr const char* kPickTitle = "Start with a few tools";
    static constexpr const char* kNothingToPick =
        "You'll find every tool in Settings, ready to switch on.";
    static constexpr const char* kFinishTitle = "Get Started";
    static constexpr std::size_t kMaxSuggestions = 6;
    // The tools most people want first, offered when available, in this order.
    static constexpr std::array<const char*, 8> kFavourites = {
        "window-snap", "window-drag",   "clipboard-history",   "app-volume",
        "keep-awake",  "battery-limit", "stop-focus-stealing", "hide-desktop-icons"};

    struct Suggestion {
        std::string toolID;
        std::string name;
        std::string summary;
        std::string systemImage;
        bool isPicked = false;
    };

    FirstRunModel(ToolRegistry& registry, PermissionCardActions& cardActions,
                  Preferences& preferences);

    // Only a stored true counts as done, so a damaged value shows the welcome again.
    static bool isNeeded(const Preferences& preferences);

    // Only what the picked tools need, so nobody grants a permission for a tool left off.
    std::vector<PermissionCard> cards() const override;
    std::string_view permissionsIntro() const;
    const std::string& cardNotice() const override;
    void performCardAction(Permission permission, PermissionCard::Action action) override;

    // The favourites that are available, then other available tools in registry order.
    std::vector<Suggestion> suggestions() const;
    void setPicked(std::string_view toolID, bool picked);

    // The whole welcome, `width` wide; its controls act on this model.
    ViewNode view(double width);

    // Switches the picked tools on and closes the welcome for good.
    void finish();
    // The window was closed without finishing: nothing is switched on.
    void dismiss();
    // Closes the window; set by the app.
    std::function<void()> onFinish;

private:
    void markDone();

    ToolRegistry& registry_;
    PermissionCardActions& cardActions_;
    Preferences& preferences_;
    std::set<std::string> picked_;
    bool done_ = false;
    std::vector<Subscription> sources_;
};

}  // namespace quorvane
