#include "tools/sound/MuteStartupSoundTool.hpp"

#include <gtest/gtest.h>

#include "app/AdministratorCommand.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/sound/StartupMute.hpp"

namespace quorvane {
namespace {

TEST(AdministratorCommand, QuotesEveryArgumentForTheShellAndTheScript) {
    const auto arguments = AdministratorCommand::osascriptArguments(
        "/usr/sbin/nvram", {"it's", "a \"b\" \\c"}, "Quorvane wants \"this\".");
    ASSERT_EQ(arguments.size(), 2u);
    EXPECT_EQ(arguments[0], "-e");
    EXPECT_EQ(arguments[1],
              R"(do shell script "'/usr/sbin/nvram' 'it'\\''s' 'a \"b\" \\c'" with prompt )"
              R"("Quorvane wants \"this\"." with administrator privileges)");
}

TEST(StartupMute, NvramArgumentsEscapeBytesAndRemoveWhenNothingWasSet) {
    EXPECT_EQ(StartupMute::nvramArguments(std::string(StartupMute::kMuted)),
              std::vector<std::string>{"StartupMute=%01"});
    EXPECT_EQ(StartupMute::nvramArguments(std::string("a% \xff", 4)),
              std::vector<std::string>{"StartupMute=a%25%20%ff"});
    EXPECT_EQ(StartupMute::nvramArguments(std::nullopt),
              (std::vector<std::string>{"-d", "StartupMute"}));
}

struct MuteStartupSoundToolTest : ::testing::Test {
    FakePlatform fakes;
    MuteStartupSoundTool tool{catalogDescriptor("mute-startup-sound"), fakes.platform()};

    // The nvram command line each administrator prompt ran, as the script names it.
    std::vector<std::string> prompts() const {
        std::vector<std::string> scripts;
        for (const auto& run : fakes.childProcesses.runs) {
            EXPECT_EQ(run.executablePath, AdministratorCommand::kOsascript);
            const std::string& script = run.arguments.at(1);
            const auto start = script.find("'/usr/sbin/nvram' ");
            scripts.push_back(script.substr(start + 18, script.find("\" with") - start - 18));
        }
        return scripts;
    }
    void setVariable(const std::optional<std::string>& value) {
        if (value) {
            fakes.firmwareVariables.variables[StartupMute::kVariable] = *value;
        } else {
            fakes.firmwareVariables.variables.erase(StartupMute::kVariable);
        }
    }
};

TEST_F(MuteStartupSoundToolTest, OffPutsBackExactlyWhatWasThereAndAsksOnlyWhenNeeded) {
    auto& processes = fakes.childProcesses;
    tool.start();
    ASSERT_TRUE(processes.finish());
    setVariable(StartupMute::kMuted);  // what the prompt's nvram did
    tool.stop();
    ASSERT_TRUE(processes.finish());
    EXPECT_EQ(prompts(), (std::vector<std::string>{"'StartupMute=%01'", "'-d' 'StartupMute'"}))
        << "the variable was not set before, so it is removed again";
    EXPECT_FALSE(tool.hasBackup());

    processes.runs.clear();
    setVariable(std::string("\x00", 1));
    tool.start();
    ASSERT_TRUE(processes.finish());
    setVariable(StartupMute::kMuted);
    // A relaunch finds it muted and keeps the first record: no prompt.
    MuteStartupSoundTool again(catalogDescriptor("mute-startup-sound"), fakes.platform());
    again.start();
    EXPECT_FALSE(again.isWaiting());
    again.stop();
    ASSERT_TRUE(processes.finish());
    EXPECT_EQ(prompts(), (std::vector<std::string>{"'StartupMute=%01'", "'StartupMute=%00'"}));
}

TEST_F(MuteStartupSoundToolTest, ACancelledPromptChangesNothingAndCanBeRetried) {
    auto& processes = fakes.childProcesses;
    tool.start();
    ASSERT_TRUE(processes.finish(ChildProcessStatus::exited(1)));
    EXPECT_NE(tool.lastError().find("not muted"), std::string::npos);
    EXPECT_FALSE(tool.hasBackup()) << "nothing changed, so nothing to put back";

    tool.start();
    ASSERT_TRUE(processes.finish());
    setVariable(StartupMute::kMuted);
    tool.stop();
    ASSERT_TRUE(processes.finish(ChildProcessStatus::exited(1)));
    EXPECT_NE(tool.lastError().find("not turned back on"), std::string::npos);
    EXPECT_TRUE(tool.hasBackup()) << "still muted, so the record stays";
    const auto rows = tool.settingsPage().sections.front().rows;
    const auto& button = std::get<SettingsRow::Button>(rows.back().kind);
    EXPECT_TRUE(rows.back().isVisible());

    button.action();
    EXPECT_FALSE(rows.back().isVisible()) << "no second window while one is up";
    button.action();
    EXPECT_EQ(processes.going(), 1u);
    ASSERT_TRUE(processes.finish());
    EXPECT_FALSE(tool.hasBackup());
    EXPECT_TRUE(tool.lastError().empty());
}

TEST_F(MuteStartupSoundToolTest, WhileTheWindowIsUpThePageWaitsAndSwitchingTheToolClosesIt) {
    auto& processes = fakes.childProcesses;
    const auto page = [this] { return SettingsTextRenderer::render(tool.settingsPage()); };
    tool.start();
    EXPECT_TRUE(tool.isWaiting());
    EXPECT_NE(page().find(AdministratorCommand::kWaitingNote), std::string::npos);
    // Off before the answer: the window closes, and as nvram did not run nothing is put back.
    tool.stop();
    EXPECT_TRUE(processes.started.at(0)->cancelled);
    EXPECT_EQ(processes.going(), 0u);
    EXPECT_FALSE(tool.hasBackup());
    EXPECT_EQ(page().find("Waiting"), std::string::npos);

    // The answer came just before the tool was turned off: the change is put back.
    tool.start();
    setVariable(StartupMute::kMuted);
    tool.stop();
    EXPECT_TRUE(processes.started.at(1)->cancelled);
    ASSERT_EQ(processes.going(), 1u);
    EXPECT_EQ(prompts().back(), "'-d' 'StartupMute'");

    // On again while that window is up: it closes, and the sound, still muted, stays so.
    tool.start();
    EXPECT_TRUE(processes.started.at(2)->cancelled);
    EXPECT_EQ(processes.going(), 0u);
    EXPECT_TRUE(tool.hasBackup());
    EXPECT_TRUE(tool.lastError().empty());
}

}  // namespace
}  // namespace quorvane
