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

TEST(ToolCatalog, ListsEveryToolOnceInRegistryOrder) {
    const auto catalog = ToolCatalog::descriptors();
    ASSERT_EQ(catalog.size(), 68u);
    EXPECT_EQ(catalog[0].identity.id, "stop-focus-stealing");
    EXPECT_EQ(catalog[7].identity.id, "window-snap");
    EXPECT_EQ(catalog[43].identity.id, "equalizer");
    EXPECT_EQ(catalog[67].identity.id, "hide-menu-icons");

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
