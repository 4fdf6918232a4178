#include "app/ToolCatalog.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <string_view>

#include "support/FakePlatform.hpp"
#include "tools/PlannedTool.hpp"

namespace quorvane {
namespace {

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    return text;
}

// Words of `letters` joined by single `separator`s: the shape of ids and of symbol names.
bool isJoinedWords(const std::string& text, std::string_view letters, char separator) {
    const std::string doubled(2, separator);
    return !text.empty() && text.front() != separator && text.back() != separator &&
           text.find(doubled) == std::string::npos &&
           text.find_first_not_of(std::string(letters) + separator) == std::string::npos;
}

constexpr std::string_view kLowerCase = "abcdefghijklmnopqrstuvwxyz";

// The permissions a tool's mechanism needs: "AX" accessibility (taps that rewrite or post
// events, other apps' windows), "SR" screen recording (window images), "audio" system audio
// recording (process taps); a tool that only writes preferences or devices needs none.
std::string permissionCodes(const std::vector<Permission>& permissions) {
    std::string codes;
    for (const Permission permission : permissions) {
        codes += codes.empty() ? "" : "+";
        switch (permission) {
            case Permission::accessibility:
                codes += "AX";
                break;
            case Permission::screenRecording:
                codes += "SR";
                break;
            case Permission::systemAudioRecording:
                codes += "audio";
                break;
        }
    }
    return codes;
}

// The ids key the preferences and the order is the start order, so the whole table is pinned:
// a swapped pair, a typo or a permission that does not match the mechanism fails here. The
// names are the tools' own words; only that no two look the same is checked.
TEST(ToolCatalog, ListsEveryToolOnceInRegistryOrderWithThePermissionsItsMechanismNeeds) {
    struct Row {
        std::string_view id;
        std::string_view permissions;
    };
    static constexpr Row kExpected[] = {
        {"stop-focus-stealing", "AX"},
        {"restore-window-layout", "AX"},
        {"window-screen-memory", "AX"},
        {"window-layouts", "AX"},
        {"keep-spaces-in-order", ""},
        {"green-button-maximize", "AX"},
        {"quit-on-last-window", "AX"},
        {"window-snap", "AX"},
        {"window-drag", "AX"},
        {"pin-window", "AX+SR"},
        {"window-switcher", "AX+SR"},
        {"dock-minimize", "AX"},
        {"dock-previews", "AX+SR"},
        {"dock-instant-switch", "AX"},
        {"instant-dock", ""},
        {"dim-background", "AX"},
        {"key-remap", ""},
        {"home-end", "AX"},
        {"hold-to-quit", "AX"},
        {"input-source-per-app", ""},
        {"app-shortcuts", ""},
        {"paste-plain-text", "AX"},
        {"clipboard-history", "AX"},
        {"text-snippets", "AX"},
        {"scroll-direction", "AX"},
        {"smooth-scrolling", "AX"},
        {"mouse-buttons", "AX"},
        {"app-volume", "audio"},
        {"headphone-mic", ""},
        {"mic-mute", ""},
        {"output-lock", ""},
        {"volume-hud", "AX"},
        {"mute-startup-sound", ""},
        {"finder-cut", "AX"},
        {"finder-new-file", ""},
        {"folder-icons", ""},
        {"screen-recorder", "SR"},
        {"archives", ""},
        {"mic-lock", ""},
        {"stop-music", ""},
        {"clean-keyboard", "AX"},
        {"power-schedule", ""},
        {"startup-items", ""},
        {"equalizer", "audio"},
        {"default-apps", ""},
        {"app-uninstaller", ""},
        {"free-up-space", ""},
        {"battery-limit", ""},
        {"device-batteries", ""},
        {"keep-awake", ""},
        {"menu-bar-stats", ""},
        {"menu-bar-calendar", ""},
        {"display-brightness", "AX"},
        {"text-from-screen", "SR"},
        {"screenshot-settings", ""},
        {"screenshot-screen", "SR"},
        {"color-picker", ""},
        {"safe-drives", ""},
        {"lock-screen", ""},
        {"presentation-mode", ""},
        {"photos-auto-open", ""},
        {"hide-desktop-icons", ""},
        {"show-hidden-files", ""},
        {"better-finder", ""},
        {"no-ds-store", ""},
        {"fit-more-menu-bar-icons", ""},
        {"hide-menu-bar-icons", ""},
        {"hide-menu-icons", ""},
    };
    const auto catalog = ToolCatalog::descriptors();
    ASSERT_EQ(catalog.size(), std::size(kExpected));
    for (std::size_t i = 0; i < catalog.size(); ++i) {
        const ToolIdentity& tool = catalog[i].identity;
        SCOPED_TRACE(kExpected[i].id);
        EXPECT_EQ(tool.id, kExpected[i].id) << "at position " << i;
        EXPECT_EQ(permissionCodes(tool.requiredPermissions), kExpected[i].permissions);
    }

    std::set<std::string> ids, names;
    for (const ToolDescriptor& tool : catalog) {
        SCOPED_TRACE(tool.identity.id);
        EXPECT_TRUE(isJoinedWords(tool.identity.id, kLowerCase, '-'));
        EXPECT_TRUE(ids.insert(tool.identity.id).second) << "the id keys preferences twice";
        EXPECT_TRUE(names.insert(tool.identity.name).second) << "two tools look the same";
    }
}

// What the settings window shows and searches: a sentence or two, an icon, and keywords that
// find the tool by words its name and summary lack, or they would add nothing to the search.
TEST(ToolCatalog, EveryToolPresentsItselfAndAddsSearchWords) {
    for (const ToolDescriptor& tool : ToolCatalog::descriptors()) {
        const ToolIdentity& identity = tool.identity;
        SCOPED_TRACE(identity.id);
        ASSERT_FALSE(identity.summary.empty());
        EXPECT_EQ(identity.summary.back(), '.');
        const auto firstBreak = identity.summary.find(". ");
        EXPECT_TRUE(firstBreak == std::string::npos ||
                    identity.summary.find(". ", firstBreak + 1) == std::string::npos)
            << "a summary is one or two sentences";
        EXPECT_TRUE(
            isJoinedWords(identity.systemImage, std::string(kLowerCase) + "0123456789", '.'))
            << identity.systemImage;

        ASSERT_FALSE(identity.keywords.empty());
        const auto shown = lowered(identity.name + " " + identity.summary);
        std::set<std::string> seen;
        for (const std::string& keyword : identity.keywords) {
            EXPECT_EQ(keyword, lowered(keyword));
            EXPECT_TRUE(seen.insert(keyword).second) << keyword << " twice";
            EXPECT_EQ(shown.find(keyword), std::string::npos) << keyword << " adds nothing";
        }
        const std::set<Permission> needs(identity.requiredPermissions.begin(),
                                         identity.requiredPermissions.end());
        EXPECT_EQ(needs.size(), identity.requiredPermissions.size());
    }
}

TEST(ToolCatalog, TraitsBelongToTheirTools) {
    auto settingsOnly = 0, controls = 0, flippers = 0;
    for (const ToolDescriptor& tool : ToolCatalog::descriptors()) {
        SCOPED_TRACE(tool.identity.id);
        settingsOnly += tool.settingsOnly;
        controls += tool.hasControl;
        flippers += tool.flipsSystemSettings;
        // A pure settings page has nothing to stop, and a flipped setting stays flipped until
        // the tool is switched off; only the lock-screen shortcuts hold something live.
        if (tool.settingsOnly || tool.flipsSystemSettings) {
            EXPECT_EQ(tool.refreshDoesNothing, tool.identity.id != "lock-screen");
        }
    }
    EXPECT_EQ(settingsOnly, 5);
    EXPECT_EQ(controls, 16);
    EXPECT_EQ(flippers, 10);
}

// Until a tool's behaviour is built, its stand-in must say so rather than pretend to work.
TEST(ToolCatalog, MakesOneToolPerDescriptorInOrder) {
    FakePlatform fakes;
    const auto tools = ToolCatalog::makeTools(fakes.platform());
    const auto catalog = ToolCatalog::descriptors();
    ASSERT_EQ(tools.size(), catalog.size());
    for (std::size_t i = 0; i < tools.size(); ++i) {
        SCOPED_TRACE(catalog[i].identity.id);
        EXPECT_EQ(tools[i]->id(), catalog[i].identity.id);
        if (dynamic_cast<const PlannedTool*>(tools[i].get()) != nullptr) {
            EXPECT_FALSE(tools[i]->isAvailable());
            EXPECT_EQ(tools[i]->needsSetup(), catalog[i].settingsOnly);
            EXPECT_EQ(tools[i]->opensSettingsWhenTurnedOn(), catalog[i].settingsOnly);
        }
    }
}

}  // namespace
}  // namespace quorvane
