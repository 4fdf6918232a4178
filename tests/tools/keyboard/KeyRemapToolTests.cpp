#include "tools/keyboard/KeyRemapTool.hpp"

#include <gtest/gtest.h>

#include "platform/Preferences.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/keyboard/HidutilCommand.hpp"

namespace quorvane {
namespace {

constexpr std::int64_t kCapsLock = 30064771129;
constexpr std::int64_t kEscape = 30064771113;
constexpr std::int64_t kLeftControl = 30064771296;

using Runs = std::vector<FakeChildProcesses::Run>;

struct KeyRemapToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<KeyRemapTool> tool;

    void SetUp() override {
        // In System Settings the user swapped Caps Lock and Control on the Mac's
        // own keyboard.
        fakes.hidEventServices.attachKeyboard(1452, 641, true);
        fakes.preferenceDomains.store(
            "com.apple.keyboard.modifiermapping.1452-641-0",
            PreferenceValue::Array{pair(kCapsLock, kLeftControl), pair(kLeftControl, kCapsLock)},
            PreferenceDomains::kAnyApplication, PreferenceHost::current);
        rebuild();
    }
    void rebuild() {
        tool = std::make_unique<KeyRemapTool>(catalogDescriptor("key-remap"), fakes.platform());
    }
    static PreferenceValue pair(std::int64_t source, std::int64_t destination) {
        return PreferenceValue::Dictionary{{"HIDKeyboardModifierMappingSrc", source},
                                           {"HIDKeyboardModifierMappingDst", destination}};
    }
    static FakeChildProcesses::Run hidutil(bool builtIn, const std::vector<KeyMappingPair>& table) {
        return {"/usr/bin/hidutil", HidutilCommand::arguments(builtIn, table)};
    }
    std::vector<KeyMappingPair> systemBuiltIn() const {
        return {{kCapsLock, kLeftControl}, {kLeftControl, kCapsLock}};
    }
    Runs takeRuns() { return std::exchange(fakes.childProcesses.runs, {}); }
    std::optional<bool> appliedFlag() {
        return fakes.preferences.boolean(KeyRemapTool::kAppliedKey);
    }
    void wake() { fakes.workspace.post(WorkspaceNotification::didWake); }
};

TEST_F(KeyRemapToolTest, ThePresetsReachOnlyTheirKeyboardsBesideTheSystemSettingsPairs) {
    tool->start();
    EXPECT_TRUE(takeRuns().empty()) << "nothing to set and nothing set before";
    wake();
    EXPECT_TRUE(takeRuns().empty());
    EXPECT_FALSE(tool->hasApplied());

    tool->addPreset(Preset::all()[2]);  // Windows keyboard: swap ⌘ and ⌥
    const std::vector<KeyMappingPair> windows = {{30064771298, 30064771299},
                                                 {30064771299, 30064771298},
                                                 {30064771302, 30064771303},
                                                 {30064771303, 30064771302}};
    EXPECT_EQ(takeRuns(), (Runs{hidutil(true, systemBuiltIn()), hidutil(false, windows)}))
        << "the built-in table holds none of the Windows pairs";
    EXPECT_TRUE(tool->hasApplied());
    EXPECT_EQ(appliedFlag(), true);

    tool->addPreset(Preset::all()[0]);  // Caps Lock → Escape, every keyboard
    auto builtIn = std::vector<KeyMappingPair>{{kCapsLock, kEscape}};
    const auto system = systemBuiltIn();
    builtIn.insert(builtIn.end(), system.begin(), system.end());
    auto external = windows;
    external.push_back({kCapsLock, kEscape});
    EXPECT_EQ(takeRuns(), (Runs{hidutil(true, builtIn), hidutil(false, external)}));

    wake();
    EXPECT_EQ(takeRuns().size(), 2u) << "the system forgets the table in some sleeps";

    tool->stop();
    EXPECT_EQ(takeRuns(), (Runs{hidutil(true, systemBuiltIn()), hidutil(false, {})}))
        << "switched off: exactly the System Settings pairs stay";
    EXPECT_EQ(appliedFlag(), false);
    wake();
    tool->stop();
    EXPECT_TRUE(takeRuns().empty()) << "no wake observer, nothing left to clear";

    tool->remove(tool->mappings()[0].id);
    EXPECT_TRUE(takeRuns().empty()) << "changes while off are only stored";
    rebuild();
    EXPECT_EQ(tool->mappings().size(), 4u);
    EXPECT_EQ(tool->mappings()[0].from, Key::leftCommand);
    EXPECT_EQ(tool->mappings()[0].keyboards, Keyboards::external);
}

TEST_F(KeyRemapToolTest, ATableLeftByAnEarlierRunIsClearedOnce) {
    tool->setMappings({{Uuid::random(), Key::capsLock, Key::escape, Keyboards::builtIn}});
    tool->start();
    EXPECT_EQ(takeRuns().size(), 2u);
    // Quorvane crashed here; the next launch finds the tool off and the flag
    // still set.
    rebuild();
    EXPECT_TRUE(tool->hasApplied());
    tool->tidy();
    EXPECT_EQ(takeRuns(), (Runs{hidutil(true, systemBuiltIn()), hidutil(false, {})}));
    EXPECT_EQ(appliedFlag(), false);
    tool->tidy();
    rebuild();
    tool->tidy();
    EXPECT_TRUE(takeRuns().empty());

    // With the flag set and the list emptied meanwhile, switching on clears the
    // table too.
    fakes.preferences.set(KeyRemapTool::kAppliedKey, true);
    fakes.preferences.remove(KeyRemapTool::kMappingsKey);
    rebuild();
    tool->start();
    EXPECT_EQ(takeRuns(), (Runs{hidutil(true, systemBuiltIn()), hidutil(false, {})}));
    EXPECT_FALSE(tool->hasApplied());
}

TEST_F(KeyRemapToolTest, ARejectedTableKeepsTheToolOnAndIsRetriedOnTheNextChangeOrWake) {
    tool->add(Key::capsLock, Key::escape, Keyboards::all);
    fakes.childProcesses.results["/usr/bin/hidutil"] = ChildProcessStatus::exited(1);
    tool->start();
    EXPECT_TRUE(tool->isActive());
    EXPECT_EQ(tool->lastError(), "macOS rejected the key mapping.");
    EXPECT_EQ(takeRuns().size(), 2u) << "the other keyboards are still tried";
    EXPECT_EQ(appliedFlag(), true) << "part of it may be set: cleared when switched off";

    fakes.childProcesses.results["/usr/bin/hidutil"] =
        ChildProcessStatus::couldNotLaunch("No such file or directory");
    tool->add(Key::f13, Key::printScreen, Keyboards::builtIn);
    EXPECT_EQ(tool->lastError(), "macOS rejected the key mapping.");

    fakes.childProcesses.results.clear();
    wake();
    EXPECT_EQ(tool->lastError(), "");
    const auto page = tool->settingsPage();
    const auto& warning = page.sections[1].rows.back();
    EXPECT_FALSE(warning.isVisible());
    fakes.childProcesses.results["/usr/bin/hidutil"] = ChildProcessStatus::exited(2);
    wake();
    EXPECT_TRUE(warning.isVisible()) << "the page shows the message without being rebuilt";
}

TEST_F(KeyRemapToolTest, SystemSettingsPairsFollowTheirKeyboard) {
    // A number, not a Boolean.
    fakes.hidEventServices.setProperty(1133, 49948, "Built-In", 0);
    fakes.preferenceDomains.store("com.apple.keyboard.modifiermapping.1133-49948-0",
                                  PreferenceValue::Array{pair(kCapsLock, kEscape)},
                                  PreferenceDomains::kAnyApplication, PreferenceHost::current);
    // Only the current host's values count; this one is for every Mac of the
    // user.
    fakes.preferenceDomains.store("com.apple.keyboard.modifiermapping.1133-1-0",
                                  PreferenceValue::Array{pair(1, 2)},
                                  PreferenceDomains::kAnyApplication, PreferenceHost::any);
    const auto system = tool->systemMappings();
    EXPECT_EQ(system.builtIn, systemBuiltIn());
    EXPECT_EQ(system.external, (std::vector<KeyMappingPair>{{kCapsLock, kEscape}}));
    EXPECT_EQ(fakes.hidEventServices.lookups.back(),
              (FakeHIDEventServices::Lookup{1452, 641, "Built-In"}));
}

TEST_F(KeyRemapToolTest, TheStoredListIsJsonAndADamagedOneIsLeftAlone) {
    tool->add(Key::capsLock, Key::escape, Keyboards::external);
    const auto data = *fakes.preferences.data(KeyRemapTool::kMappingsKey);
    const auto json = Json::parse(std::string(data.begin(), data.end()));
    ASSERT_TRUE(json && json->array() && json->array()->size() == 1);
    const Json& entry = json->array()->front();
    EXPECT_EQ(*entry.find("from")->string(), "capsLock");
    EXPECT_EQ(*entry.find("to")->string(), "escape");
    EXPECT_EQ(*entry.find("keyboards")->string(), "external");
    EXPECT_EQ(*entry.find("id")->string(), tool->mappings()[0].id.text());

    const std::string damaged =
        R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","from":"hyper","to":"escape","keyboards":"all"}])";
    fakes.preferences.set(KeyRemapTool::kMappingsKey,
                          PreferenceValue::Data(damaged.begin(), damaged.end()));
    rebuild();
    EXPECT_TRUE(tool->mappings().empty());
    tool->start();
    tool->stop();
    tool->tidy();
    const auto kept = *fakes.preferences.data(KeyRemapTool::kMappingsKey);
    EXPECT_EQ(std::string(kept.begin(), kept.end()), damaged);
}

TEST_F(KeyRemapToolTest, ThePageEditsTheListInPlace) {
    auto page = tool->settingsPage();
    ASSERT_EQ(page.sections.size(), 2u);
    auto& presets = page.sections[0].rows;
    ASSERT_EQ(presets.size(), 4u);
    auto& keys = page.sections[1].rows;
    EXPECT_TRUE(keys[1].isVisible()) << "the empty-list note";
    const auto& firstKey = std::get<SettingsRow::Choice>(keys[2].kind);
    EXPECT_FALSE(keys[2].isVisible());
    EXPECT_EQ(firstKey.options.size(), 26u);

    std::get<SettingsRow::Button>(presets[3].kind).action();  // Swap § and `
    EXPECT_FALSE(keys[1].isVisible());
    EXPECT_TRUE(keys[2].isVisible()) << "a slot shows once there is a mapping for it";
    EXPECT_EQ(firstKey.get(), "section");
    std::get<SettingsRow::Choice>(keys[3].kind).set("escape");
    std::get<SettingsRow::Choice>(keys[4].kind).set("builtIn");
    EXPECT_EQ(tool->mappings()[0].to, Key::escape);
    EXPECT_EQ(tool->mappings()[0].keyboards, Keyboards::builtIn);
    std::get<SettingsRow::Button>(keys[5].kind).action();  // remove the first
    ASSERT_EQ(tool->mappings().size(), 1u);
    EXPECT_EQ(tool->mappings()[0].from, Key::grave);
    EXPECT_FALSE(keys[6].isVisible());
}

}  // namespace
}  // namespace quorvane
