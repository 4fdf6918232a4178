#include "cli/KeysCommand.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "cli/CommandHost.hpp"
#include "cli/CommandLine.hpp"
#include "platform/Preferences.hpp"
#include "portable/FilePreferences.hpp"
#include "support/FileCommandHost.hpp"
#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

struct KeysCommandTest : ::testing::Test {
    TemporaryDirectory dir;
    FileCommandHost host;
    std::string out;
    std::string err;

    void SetUp() override { host.file = dir / "preferences.json"; }
    int run(std::vector<std::string> args) {
        args.insert(args.begin(), "keys");
        CommandLine commandLine(host);
        std::ostringstream o;
        std::ostringstream e;
        const int status = commandLine.run(args, o, e);
        out = o.str();
        err = e.str();
        return status;
    }
};

TEST_F(KeysCommandTest, AddShowAndRemoveKeepTheListAndShowTheExactCalls) {
    ASSERT_EQ(run({"show"}), 0) << err;
    EXPECT_EQ(out,
              "No keys remapped.\n\nNothing runs: no keys are remapped, and no table of "
              "Quorvane's is set.\n");

    ASSERT_EQ(run({"add", "capsLock", "escape"}), 0) << err;
    ASSERT_EQ(run({"add", "rightOption", "rightControl", "--keyboards", "external"}), 0) << err;
    ASSERT_EQ(run({"show"}), 0) << err;
    EXPECT_EQ(out,
              "capsLock → escape on Every keyboard (Caps Lock → Escape)\n"
              "rightOption → rightControl on Plugged-in keyboards (Right Option ⌥ → Right "
              "Control ⌃)\n"
              "\nMacBook keyboard:\n"
              "  /usr/bin/hidutil property --matching "
              "'{\"Built-In\":true,\"PrimaryUsagePage\":1,\"PrimaryUsage\":6}' --set "
              "'{\"UserKeyMapping\":[{\"HIDKeyboardModifierMappingSrc\":30064771129,"
              "\"HIDKeyboardModifierMappingDst\":30064771113}]}'\n"
              "\nPlugged-in keyboards:\n"
              "  /usr/bin/hidutil property --matching "
              "'{\"Built-In\":false,\"PrimaryUsagePage\":1,\"PrimaryUsage\":6}' --set "
              "'{\"UserKeyMapping\":[{\"HIDKeyboardModifierMappingSrc\":30064771129,"
              "\"HIDKeyboardModifierMappingDst\":30064771113},{\"HIDKeyboardModifierMappingSrc\":"
              "30064771302,\"HIDKeyboardModifierMappingDst\":30064771300}]}'\n");

    ASSERT_EQ(run({"remove", "capsLock"}), 0) << err;
    EXPECT_EQ(run({"remove", "capsLock"}), 2);
    ASSERT_EQ(run({"show"}), 0) << err;
    EXPECT_EQ(out.rfind("rightOption → rightControl", 0), 0u);

    EXPECT_EQ(run({"presets"}), 0);
    EXPECT_NE(out.find("Windows keyboard: swap ⌘ and ⌥ (Plugged-in keyboards)\n"
                       "  leftOption → leftCommand\n"),
              std::string::npos);
}

TEST_F(KeysCommandTest, ABadNameIsRefusedWithTheValidOnesAndNothingIsStored) {
    EXPECT_EQ(run({"add", "capslock", "escape"}), 2);
    EXPECT_EQ(err.rfind("quorvane: unknown key \"capslock\"; the keys are capsLock, escape, "
                        "tab, returnKey, delete,",
                        0),
              0u);
    EXPECT_NE(err.find(", f13, f14, f15\n"), std::string::npos);
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1);
    EXPECT_EQ(run({"add", "capsLock", "escape", "--keyboards", "usb"}), 2);
    EXPECT_EQ(run({"remove", "hyper"}), 2);
    EXPECT_EQ(run({"add", "capsLock"}), 2) << "a missing operand";
    EXPECT_EQ(run({"list"}), 2);
    EXPECT_FALSE(std::filesystem::exists(host.file)) << "no refusal wrote the store";
    EXPECT_EQ(run({"add", "capsLock", "escape", "--keyboards=builtIn"}), 0) << err;
    EXPECT_NE(out.find("on MacBook keyboard"), std::string::npos);
}

}  // namespace
}  // namespace quorvane
