#include "tools/sound/MuteStartupSoundTool.hpp"

#include <gtest/gtest.h>

#include "app/AdministratorCommand.hpp"
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
    tool.start();
    setVariable(StartupMute::kMuted);  // what the prompt's nvram did
    tool.stop();
    EXPECT_EQ(prompts(), (std::vector<std::string>{"'StartupMute=%01'", "'-d' 'StartupMute'"}))
        << "the variable was not set before, so it is removed again";
    EXPECT_FALSE(tool.hasBackup());

    fakes.childProcesses.runs.clear();
    setVariable(std::string("\x00", 1));
    tool.start();
    setVariable(StartupMute::kMuted);
    // A relaunch finds it muted and keeps the first record: no prompt.
    MuteStartupSoundTool again(catalogDescriptor("mute-startup-sound"), fakes.platform());
    again.start();
    again.stop();
    EXPECT_EQ(prompts(), (std::vector<std::string>{"'StartupMute=%01'", "'StartupMute=%00'"}));
}

TEST_F(MuteStartupSoundToolTest, ACancelledPromptChangesNothingAndCanBeRetried) {
    fakes.childProcesses.results[AdministratorCommand::kOsascript] = ChildProcessStatus::exited(1);
    tool.start();
    EXPECT_NE(tool.lastError().find("not muted"), std::string::npos);
    EXPECT_FALSE(tool.hasBackup()) << "nothing changed, so nothing to put back";

    fakes.childProcesses.results.clear();
    tool.start();
    setVariable(StartupMute::kMuted);
    fakes.childProcesses.results[AdministratorCommand::kOsascript] = ChildProcessStatus::exited(1);
    tool.stop();
    EXPECT_TRUE(tool.hasBackup()) << "still muted, so the record stays";
    const auto rows = tool.settingsPage().sections.front().rows;
    const auto& button = std::get<SettingsRow::Button>(rows.back().kind);
    EXPECT_TRUE(rows.back().isVisible());

    fakes.childProcesses.results.clear();
    button.action();
    EXPECT_FALSE(tool.hasBackup());
    EXPECT_TRUE(tool.lastError().empty());
}

}  // namespace
}  // namespace quorvane
