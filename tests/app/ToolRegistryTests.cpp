#include "app/ToolRegistry.hpp"

#include <gtest/gtest.h>

#include "app/PermissionCenter.hpp"
#include "support/FakePlatform.hpp"
#include "support/RecordingTool.hpp"

namespace quorvane {
namespace {

using Journal = std::vector<std::string>;

// The application's start-up, on fakes: permission centre, tools, registry, the callback that
// reconciles on a permission change.
struct Launch {
    FakePlatform fakes;
    Journal journal;
    std::vector<RecordingTool*> tools;
    std::unique_ptr<PermissionCenter> permissions;
    std::unique_ptr<ToolRegistry> registry;
    std::vector<std::string> setupOffered;

    void add(const std::string& id, std::vector<Permission> needs = {}) {
        toolsToMake.emplace_back(id, std::move(needs));
    }
    void start() {
        permissions = std::make_unique<PermissionCenter>(fakes.permissionProbe, fakes.scheduler,
                                                         fakes.workspace);
        std::vector<std::unique_ptr<Tool>> made;
        for (auto& [id, needs] : toolsToMake) {
            auto tool = std::make_unique<RecordingTool>(journal, id, needs);
            tools.push_back(tool.get());
            made.push_back(std::move(tool));
        }
        registry = std::make_unique<ToolRegistry>(std::move(made), *permissions, fakes.preferences,
                                                  fakes.notifications);
        registry->onNeedsSetup = [this](Tool& tool) { setupOffered.push_back(tool.id()); };
        permissions->onChange = [this] { registry->reconcile(); };
    }
    RecordingTool& tool(const std::string& id) {
        return *static_cast<RecordingTool*>(registry->tool(id));
    }
    std::optional<bool> stored(const std::string& id) {
        return fakes.preferences.boolean(ToolRegistry::enabledKey(id));
    }

    std::vector<std::pair<std::string, std::vector<Permission>>> toolsToMake;
};

TEST(ToolRegistry, FirstLaunchTidiesEveryOffToolOnceAndStartsTheEnabledInOrder) {
    Launch app;
    app.add("alpha");
    app.add("beta");
    app.add("gamma");
    app.fakes.preferences.set("tool.gamma.enabled", true);
    app.fakes.preferences.set("tool.alpha.enabled", 1);  // not a Boolean: the default (off) wins
    app.fakes.preferences.set("tool.beta.enabled", "true");
    app.start();
    EXPECT_EQ(app.registry->enabledIDs(), (std::set<std::string>{"gamma"}));
    EXPECT_TRUE(app.journal.empty()) << "construction starts nothing";

    app.registry->reconcile();
    app.registry->reconcile();
    EXPECT_EQ(app.journal, (Journal{"tidy:alpha", "tidy:beta", "start:gamma"}));
    EXPECT_TRUE(app.registry->controlIDs().empty());

    app.journal.clear();
    app.registry->stopAll();
    EXPECT_EQ(app.journal, (Journal{"stop:gamma"})) << "quitting stops without tidying";
    EXPECT_TRUE(app.registry->runningIDs().empty());
}

TEST(ToolRegistry, TurningARunningToolOffStopsItOnceAndLaterReconcilesLeaveItAlone) {
    Launch app;
    app.add("alpha");
    app.start();
    app.registry->reconcile();
    app.registry->setEnabled(true, app.tool("alpha"), true);
    EXPECT_EQ(app.stored("alpha"), true);
    app.journal.clear();

    app.registry->setEnabled(false, app.tool("alpha"), true);
    EXPECT_TRUE(app.registry->tidiedIDs().contains("alpha")) << "stopping is its tidying";
    app.registry->reconcile();
    app.registry->reconcile();
    EXPECT_EQ(app.journal, (Journal{"stop:alpha"})) << "no tidy after the stop";
    EXPECT_EQ(app.stored("alpha"), false);
    EXPECT_TRUE(app.setupOffered.empty()) << "turning off never opens anything";
}

TEST(ToolRegistry, PermissionGatedToolWaitsForTheGrantAndStopsWhenItIsRevoked) {
    Launch app;
    app.add("needs-ax", {Permission::accessibility});
    app.add("needs-audio", {Permission::systemAudioRecording});
    app.start();
    app.registry->reconcile();
    app.journal.clear();

    app.registry->setEnabled(true, app.tool("needs-ax"), true);
    app.registry->setEnabled(true, app.tool("needs-audio"), true);
    EXPECT_EQ(app.stored("needs-ax"), true);
    EXPECT_EQ(app.journal, (Journal{"start:needs-audio"}))
        << "system audio recording is never counted as missing";
    EXPECT_FALSE(app.registry->runningIDs().contains("needs-ax"));
    EXPECT_TRUE(app.setupOffered.empty()) << "the tool needs no setup of its own";

    app.fakes.permissionProbe.accessibility = true;
    app.fakes.scheduler.advance(PermissionCenter::kPollInterval);
    EXPECT_EQ(app.journal.back(), "start:needs-ax") << "started without user action";

    app.fakes.permissionProbe.accessibility = false;
    app.fakes.scheduler.advance(PermissionCenter::kPollInterval);
    EXPECT_EQ(app.journal.back(), "stop:needs-ax");
    EXPECT_EQ(app.stored("needs-ax"), true) << "a revoked permission keeps the user's choice";
    EXPECT_TRUE(app.registry->tidiedIDs().contains("needs-ax"));
}

TEST(ToolRegistry, SetupIsOfferedOnlyWhenSwitchedOnByTheUser) {
    Launch app;
    app.add("remap", {Permission::accessibility});
    app.add("mixer");
    app.start();
    app.tool("remap").setupNeeded = true;

    app.registry->setEnabled(true, app.tool("remap"), false);
    EXPECT_TRUE(app.setupOffered.empty());
    app.registry->setEnabled(true, app.tool("remap"), true);
    EXPECT_EQ(app.setupOffered, (std::vector<std::string>{"remap"}));
    app.registry->setEnabled(false, app.tool("remap"), true);
    EXPECT_EQ(app.setupOffered.size(), 1u) << "switching off offers nothing";

    app.tool("mixer").opensSettings = true;
    app.registry->setEnabled(true, app.tool("mixer"), true);
    EXPECT_EQ(app.setupOffered.back(), "mixer") << "opening its settings needs no setup";
}

TEST(ToolRegistry, SelfSwitchNotificationsPersistAndNeverOfferSetup) {
    Launch app;
    app.add("alpha");
    app.start();
    app.tool("alpha").setupNeeded = true;
    app.registry->reconcile();
    app.journal.clear();

    app.fakes.notifications.post(ToolRegistry::kTurnedItselfOn, std::string("alpha"));
    EXPECT_EQ(app.journal, (Journal{"start:alpha"}));
    EXPECT_EQ(app.stored("alpha"), true);
    EXPECT_TRUE(app.setupOffered.empty());

    app.fakes.notifications.post(ToolRegistry::kTurnedItselfOff, std::string("alpha"));
    EXPECT_EQ(app.journal, (Journal{"start:alpha", "stop:alpha"}));
    EXPECT_EQ(app.stored("alpha"), false);

    app.fakes.notifications.post(ToolRegistry::kTurnedItselfOn, std::string("nobody"));
    app.fakes.notifications.post(ToolRegistry::kTurnedItselfOn, std::nullopt);
    EXPECT_EQ(app.journal.size(), 2u) << "unknown or missing ids are ignored";

    app.registry.reset();
    app.fakes.notifications.post(ToolRegistry::kTurnedItselfOn, std::string("alpha"));
    EXPECT_EQ(app.journal.size(), 2u) << "a destroyed registry observes nothing";
}

TEST(ToolRegistry, ControlsKeepOneEntryPerToolInTheOrderAdded) {
    Launch app;
    app.add("alpha");
    app.add("beta");
    app.fakes.preferences.set(ToolRegistry::kControlsKey,
                              PreferenceValue::stringArray({"gone", "beta", "beta", "alpha"}));
    app.start();
    EXPECT_EQ(app.registry->controlIDs(), (std::vector<std::string>{"beta", "alpha"}));
    EXPECT_EQ(app.fakes.preferences.stringArray(ToolRegistry::kControlsKey)->size(), 4u)
        << "the pruned list is written only with the next change";

    app.registry->setInControls(true, app.tool("beta"));
    app.registry->setInControls(true, app.tool("beta"));
    EXPECT_EQ(app.registry->controlIDs(), (std::vector<std::string>{"alpha", "beta"}));
    app.registry->setInControls(false, app.tool("alpha"));
    EXPECT_EQ(app.fakes.preferences.stringArray(ToolRegistry::kControlsKey),
              (std::vector<std::string>{"beta"}));
}

TEST(ToolRegistry, ObserversHearOfChangesToTheSets) {
    Launch app;
    app.add("alpha");
    app.start();
    int changes = 0;
    const auto subscription = app.registry->subscribe([&] { ++changes; });
    app.registry->reconcile();
    EXPECT_EQ(changes, 0) << "tidying changes nothing a view shows";
    app.registry->setEnabled(true, app.tool("alpha"), false);
    EXPECT_GE(changes, 1);
    EXPECT_TRUE(app.registry->runningIDs().contains("alpha"));
}

TEST(ToolRegistrySearch, WordsMatchWholeOrThroughTheirStem) {
    Journal journal;
    RecordingTool snap(journal, "snap", {}, {"snap", "tile"});
    snap.mutableIdentity().name = "Window Snapping";
    snap.mutableIdentity().summary = "Move a window to half of the screen.";
    RecordingTool maps(journal, "maps", {}, {"map"});
    maps.mutableIdentity().name = "Atlas";
    maps.mutableIdentity().summary = "Shows where you are as you type.";
    maps.mutableIdentity().category = ToolCategory::system;

    const auto words = [](const char* query) { return ToolRegistry::searchWords(query); };
    EXPECT_TRUE(ToolRegistry::matches(snap, words("")));
    EXPECT_TRUE(ToolRegistry::matches(snap, words("  SNAPPING\twindows ")));
    EXPECT_TRUE(ToolRegistry::matches(snap, words("tiles")));           // "s" stripped
    EXPECT_TRUE(ToolRegistry::matches(snap, words("screens")));         // "s" stripped
    EXPECT_TRUE(ToolRegistry::matches(snap, words("windows")));         // whole word: "window" + s
    EXPECT_FALSE(ToolRegistry::matches(snap, words("snapping zoom")));  // every word must match
    EXPECT_FALSE(ToolRegistry::matches(maps, words("maps"))) << "four letters are tested whole";
    EXPECT_TRUE(ToolRegistry::matches(maps, words("finder"))) << "the category title counts";
    EXPECT_TRUE(ToolRegistry::matches(maps, words("mapping"))) << "mapp, then map";
    EXPECT_FALSE(ToolRegistry::matches(maps, words("maped"))) << "five letters keep their ed";
    EXPECT_FALSE(ToolRegistry::matches(maps, words("typing"))) << "six letters with ing: whole";
    EXPECT_FALSE(ToolRegistry::matches(maps, words("maples"))) << "neither maple nor mapl";
}

}  // namespace
}  // namespace quorvane
