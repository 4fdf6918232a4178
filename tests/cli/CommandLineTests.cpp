#include "cli/CommandLine.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "app/ToolCatalog.hpp"
#include "base/Json.hpp"
#include "cli/CommandHost.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/EventField.hpp"
#include "portable/FilePreferences.hpp"
#include "support/FileCommandHost.hpp"
#include "support/RecordingTool.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

struct Result {
    int status;
    std::string out;
    std::string err;
};

struct CommandLineTest : ::testing::Test {
    TemporaryDirectory dir;
    FileCommandHost host;
    std::vector<std::string> journal;
    // The real catalog plus two built tools, one of which has a control tile.
    CommandLine::ToolFactory factory = [this](const Platform& platform) {
        auto tools = ToolCatalog::makeTools(platform);
        auto clock = std::make_unique<RecordingTool>(journal, "clock", std::vector<Permission>{},
                                                     std::vector<std::string>{"chronometer"});
        clock->hasControl = true;
        clock->page.add({"Look", {{SettingsRow::Note{"Shows the time."}, {}}}, ""});
        tools.push_back(std::move(clock));
        tools.push_back(std::make_unique<RecordingTool>(
            journal, "pointer", std::vector<Permission>{Permission::accessibility}));
        return tools;
    };

    void SetUp() override { host.file = dir / "preferences.json"; }

    Result run(std::vector<std::string> args) {
        CommandLine commandLine(host, factory);
        std::ostringstream out;
        std::ostringstream err;
        const int status = commandLine.run(args, out, err);
        return {status, out.str(), err.str()};
    }
    static std::size_t lines(const std::string& text) {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }
};

TEST_F(CommandLineTest, ToolsListsEveryToolInRegistryOrderAsTextAndJson) {
    const auto text = run({"tools"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_EQ(lines(text.out), 70u);
    EXPECT_EQ(text.out.rfind("stop-focus-stealing ", 0), 0u);

    const auto json = run({"tools", "--json"});
    const auto parsed = Json::parse(json.out);
    ASSERT_TRUE(parsed && parsed->array());
    const auto& tools = *parsed->array();
    ASSERT_EQ(tools.size(), 70u);
    EXPECT_EQ(*tools[7].find("id")->string(), "window-snap");
    EXPECT_EQ(*tools[67].find("id")->string(), "hide-menu-icons");
    EXPECT_EQ(*tools[68].find("available")->boolean(), true);
    EXPECT_EQ(*tools[0].find("available")->boolean(), true);
    EXPECT_EQ(*tools[69].find("permissions")->array(), Json::Array{Json("accessibility")});
    EXPECT_FALSE(std::filesystem::exists(host.file)) << "reading writes nothing";
}

TEST_F(CommandLineTest, EnableAndDisablePersistThroughTheRegistryAndTellTheApp) {
    auto on = run({"enable", "pointer"});
    ASSERT_EQ(on.status, 0) << on.err;
    EXPECT_NE(on.out.find("Accessibility"), std::string::npos) << "says what it still needs";
    EXPECT_EQ(host.preferencesChanges, 1) << "the running app reads the store again";
    std::string error;
    EXPECT_EQ(FilePreferences::open(host.file, error)->boolean("tool.pointer.enabled"), true);
    EXPECT_NE(run({"tools"}).out.find("on\n"), std::string::npos);

    ASSERT_EQ(run({"disable", "pointer"}).status, 0);
    EXPECT_EQ(FilePreferences::open(host.file, error)->boolean("tool.pointer.enabled"), false);
    EXPECT_TRUE(journal.empty()) << "the command never starts, stops or tidies a tool";
}

TEST_F(CommandLineTest, RefusalsAreOneLineWithStatusTwoAndWriteNothing) {
    const std::vector<std::vector<std::string>> refused = {
        {"enable", "no-such-tool"},
        {"settings", "no-such-tool"},
        {"controls", "add", "pointer"},
        {"frobnicate"},
        {},
        {"enable"},
        {"--prefs"},
        {"tools", "--yaml"},
    };
    for (const auto& args : refused) {
        const auto result = run(args);
        EXPECT_EQ(result.status, 2) << (args.empty() ? "" : args[0]);
        EXPECT_EQ(lines(result.err), 1u) << result.err;
        EXPECT_EQ(result.out, "");
    }
    EXPECT_FALSE(std::filesystem::exists(host.file));

    TemporaryDirectory::write(host.file, "{\"tool.clock.enabled\": tru");
    const auto corrupt = run({"enable", "clock"});
    EXPECT_EQ(corrupt.status, 2);
    EXPECT_NE(corrupt.err.find("byte"), std::string::npos) << corrupt.err;
    EXPECT_EQ(TemporaryDirectory::read(host.file), "{\"tool.clock.enabled\": tru");
}

TEST_F(CommandLineTest, SearchControlsAndSettingsWorkOnAnotherStore) {
    const auto other = dir / "other.json";
    const auto found = run({"--prefs", other.string(), "search", "Snapping", "WINDOWS"});
    EXPECT_NE(found.out.find("window-snap\n"), std::string::npos);
    EXPECT_EQ(run({"search", "Chronometers"}).out, "clock\n");

    EXPECT_EQ(run({"--prefs=" + other.string(), "controls", "add", "clock"}).status, 0);
    EXPECT_EQ(run({"--prefs", other.string(), "controls", "add", "clock"}).status, 0);
    EXPECT_EQ(host.preferencesChanges, 2) << "a running app hears of its tiles too";
    EXPECT_EQ(run({"--prefs", other.string(), "controls"}).out, "clock\n");
    EXPECT_FALSE(std::filesystem::exists(host.file)) << "--prefs leaves the default store alone";

    const auto page = run({"settings", "clock"});
    EXPECT_EQ(page.status, 0);
    EXPECT_NE(page.out.find("Look\n  Shows the time.\n"), std::string::npos) << page.out;
    EXPECT_EQ(run({"--version"}).status, 0);
    EXPECT_NE(run({"--help"}).out.find(host.file.string()), std::string::npos);
}

TEST_F(CommandLineTest, SettingsSetChangesAnyToolsSettingByItsLabel) {
    EXPECT_EQ(run({"settings", "keep-awake", "set", "keep the display on too", "maybe"}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(host.file)) << "a refused value writes nothing";
    const auto set = run({"settings", "keep-awake", "set", "Keep the display on too", "on"});
    ASSERT_EQ(set.status, 0) << set.err;
    std::string error;
    EXPECT_EQ(FilePreferences::open(host.file, error)->boolean("keepAwake.display"), true);
    EXPECT_NE(run({"settings", "keep-awake"}).out.find("[x] Keep the display on too"),
              std::string::npos);
    const auto unknown = run({"settings", "keep-awake", "set", "Colour", "red"});
    EXPECT_EQ(unknown.err, "quorvane: keep-awake: no setting is labelled \"Colour\"\n");
    EXPECT_EQ(run({"settings", "keep-awake", "put", "Colour", "red"}).status, 2);
}

// A tool with a global shortcut, built on the command line's own platform.
struct LauncherTool : RecordingTool {
    LauncherTool(std::vector<std::string>& journal, const Platform& platform)
        : RecordingTool(journal, "launcher"),
          shortcut(
              platform, "launcher.shortcut", KeyCombo{49, modifierFlag::option, "Space"}, [] {},
              [] {}) {}
    SettingsPage settingsPage() override {
        SettingsPage shown;
        shown.add({"Shortcut", {shortcut.row("Open the launcher")}, ""});
        return shown;
    }
    ShortcutSetting shortcut;
};

TEST_F(CommandLineTest, SettingsShowAToolsShortcutAsItsDisplayText) {
    factory = [this](const Platform& platform) {
        std::vector<std::unique_ptr<Tool>> tools;
        tools.push_back(std::make_unique<LauncherTool>(journal, platform));
        return tools;
    };
    const auto page = run({"settings", "launcher"});
    EXPECT_EQ(page.status, 0) << page.err;
    EXPECT_NE(page.out.find("Shortcut\n  Open the launcher: ⌥Space\n"), std::string::npos)
        << page.out;
}

}  // namespace
}  // namespace quorvane
