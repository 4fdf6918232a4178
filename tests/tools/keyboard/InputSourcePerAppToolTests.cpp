#include "tools/keyboard/InputSourcePerAppTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

const std::string kUS = "com.apple.keylayout.US";
const std::string kRussian = "com.apple.keylayout.Russian";
const std::string kGerman = "com.apple.keylayout.German";

struct InputSourcePerAppToolTest : ::testing::Test {
    FakePlatform fakes;
    std::unique_ptr<InputSourcePerAppTool> tool;

    void SetUp() override {
        fakes.keyboardLayout.sources = {{kUS, "U.S."}, {kRussian, "Russian"}};
        fakes.keyboardLayout.current = kUS;
        fakes.workspace.add(1, "com.example.mail", "Mail");
        fakes.workspace.add(2, "com.example.editor", "Editor");
        fakes.workspace.add(3, "com.example.new", "New");
    }
    void startTool() {
        tool = std::make_unique<InputSourcePerAppTool>(catalogDescriptor("input-source-per-app"),
                                                       fakes.platform());
        tool->start();
    }
    void activate(int pid) {
        fakes.workspace.frontmostPID = pid;
        fakes.workspace.post(WorkspaceNotification::didActivateApplication,
                             &fakes.workspace.applications.at(pid));
    }
};

TEST_F(InputSourcePerAppToolTest, SwitchingAppsRestoresEachAppsSourceAcrossLaunches) {
    startTool();
    activate(1);
    fakes.keyboardLayout.switchTo(kRussian);  // typed Russian in Mail
    activate(2);
    EXPECT_TRUE(fakes.keyboardLayout.selected.empty()) << "an unknown app keeps the source";
    fakes.keyboardLayout.switchTo(kUS);  // English in the editor

    activate(1);
    EXPECT_EQ(fakes.keyboardLayout.current, kRussian);
    activate(2);
    EXPECT_EQ(fakes.keyboardLayout.current, kUS);
    activate(2);
    EXPECT_EQ(fakes.keyboardLayout.selected, (std::vector<std::string>{kRussian, kUS}))
        << "nothing is selected when the app already has its source";

    // What was learnt is kept: a new run of Quorvane knows it.
    tool.reset();
    startTool();
    activate(1);
    EXPECT_EQ(fakes.keyboardLayout.current, kRussian);
}

TEST_F(InputSourcePerAppToolTest, ASourceThatWasRemovedFallsBackToTheCurrentOne) {
    fakes.preferences.set(InputSourcePerAppTool::kSourcesKey,
                          PreferenceValue::Dictionary{{"com.example.mail", kGerman}});
    fakes.keyboardLayout.current = kRussian;
    startTool();
    activate(1);
    EXPECT_TRUE(fakes.keyboardLayout.selected.empty());
    EXPECT_EQ(fakes.keyboardLayout.current, kRussian);
    EXPECT_EQ(tool->memory().sources().at("com.example.mail"), kRussian)
        << "from now on the app has the source it got";
    EXPECT_TRUE(tool->lastError().empty());
}

TEST_F(InputSourcePerAppToolTest, NewAppsGetTheChosenSourceAndNothingHappensAfterStop) {
    startTool();
    tool->setNewAppSource(kRussian);
    activate(3);
    EXPECT_EQ(fakes.keyboardLayout.current, kRussian);

    tool->stop();
    fakes.keyboardLayout.switchTo(kUS);
    activate(3);
    EXPECT_EQ(fakes.keyboardLayout.current, kUS);
    EXPECT_EQ(fakes.keyboardLayout.selected.size(), 1u);
}

TEST_F(InputSourcePerAppToolTest, AnUnreadableStoreIsNeverReplaced) {
    fakes.preferences.set(InputSourcePerAppTool::kSourcesKey, "not a dictionary");
    startTool();
    activate(1);
    fakes.keyboardLayout.switchTo(kRussian);
    EXPECT_EQ(fakes.preferences.string(InputSourcePerAppTool::kSourcesKey), "not a dictionary");
    bool warned = false;
    const SettingsPage page = tool->settingsPage();
    for (const auto& row : page.sections.front().rows) {
        warned |= std::holds_alternative<SettingsRow::Warning>(row.kind) && row.isVisible &&
                  row.isVisible();
    }
    EXPECT_TRUE(warned);
}

}  // namespace
}  // namespace quorvane
