#include "app/SystemPreference.hpp"

#include <gtest/gtest.h>

#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

using Operation = FakePreferenceDomains::Operation;
using Domain = SystemPreference::Domain;

struct SystemPreferenceTest : ::testing::Test {
    FakePlatform fakes;
    Platform platform = fakes.platform();
    FakePreferenceDomains& domains = fakes.preferenceDomains;
};

TEST_F(SystemPreferenceTest, RestoreAfterSeveralSetsBringsBackTheValueFromBeforeTheFirst) {
    domains.store("autohide-delay", 0.2, "com.apple.dock");
    EXPECT_TRUE(SystemPreference::set(platform, "autohide-delay", 0.0, Domain::dock()));
    EXPECT_TRUE(SystemPreference::set(platform, "autohide-delay", 1.5, Domain::dock()));
    EXPECT_EQ(fakes.preferences.object("original.com.apple.dock.autohide-delay"),
              PreferenceValue(PreferenceValue::Dictionary{{"value", 0.2}}));
    EXPECT_EQ(domains.stored("autohide-delay", "com.apple.dock"), PreferenceValue(1.5));

    EXPECT_TRUE(SystemPreference::restore(platform, "autohide-delay", Domain::dock()));
    EXPECT_EQ(domains.stored("autohide-delay", "com.apple.dock"), PreferenceValue(0.2));
    EXPECT_FALSE(fakes.preferences.object("original.com.apple.dock.autohide-delay"));
    EXPECT_FALSE(SystemPreference::restore(platform, "autohide-delay", Domain::dock()))
        << "a second restore finds no record and does nothing";
    EXPECT_EQ(domains.stored("autohide-delay", "com.apple.dock"), PreferenceValue(0.2));
}

TEST_F(SystemPreferenceTest, AKeyThatWasAbsentIsDeletedAgain) {
    const auto finder = Domain::app("com.apple.finder");
    EXPECT_TRUE(SystemPreference::set(platform, "AppleShowAllFiles", true, finder));
    EXPECT_EQ(fakes.preferences.object("original.com.apple.finder.AppleShowAllFiles"),
              PreferenceValue(PreferenceValue::Dictionary{}));
    EXPECT_TRUE(SystemPreference::restore(platform, "AppleShowAllFiles", finder));
    EXPECT_FALSE(domains.stored("AppleShowAllFiles", "com.apple.finder"));
    EXPECT_EQ(domains.calls.back().operation, Operation::synchronize);
    const auto& removal = domains.calls[domains.calls.size() - 2];
    EXPECT_EQ(removal.operation, Operation::setValue);
    EXPECT_FALSE(removal.value) << "deleting is a set of nothing";
}

TEST_F(SystemPreferenceTest, WritingWhatIsAlreadyThereSetsNothing) {
    domains.store("mru-spaces", false, "com.apple.dock");
    EXPECT_FALSE(SystemPreference::write(platform, "mru-spaces", false, Domain::dock()));
    EXPECT_FALSE(SystemPreference::write(platform, "absent", std::nullopt, Domain::dock()));
    EXPECT_EQ(domains.count(Operation::setValue), 0u);
    // Each read synchronizes first, so another program's recent write is what is compared.
    ASSERT_EQ(domains.calls.size(), 4u);
    EXPECT_EQ(domains.calls[0].operation, Operation::synchronize);
    EXPECT_EQ(domains.calls[1].operation, Operation::copyValue);

    // Equality is by value and kind: an integer 0 is not the Boolean false.
    EXPECT_TRUE(SystemPreference::write(platform, "mru-spaces", 0, Domain::dock()));
    EXPECT_EQ(domains.count(Operation::setValue), 1u);
}

TEST_F(SystemPreferenceTest, ThisMacAndAllMacsAreSeparateDomainsAndRecords) {
    domains.store("NSStatusItemSpacing", 12, PreferenceDomains::kAnyApplication);
    SystemPreference::set(platform, "NSStatusItemSpacing", 4, Domain::globalThisMac());
    SystemPreference::set(platform, "NSStatusItemSpacing", 8, Domain::global());
    EXPECT_EQ(
        fakes.preferences.object("original.kCFPreferencesAnyApplication.host.NSStatusItemSpacing"),
        PreferenceValue(PreferenceValue::Dictionary{}));
    EXPECT_EQ(fakes.preferences.object("original.kCFPreferencesAnyApplication.NSStatusItemSpacing"),
              PreferenceValue(PreferenceValue::Dictionary{{"value", 12}}));
    EXPECT_EQ(domains.stored("NSStatusItemSpacing", PreferenceDomains::kAnyApplication,
                             PreferenceHost::current),
              PreferenceValue(4));

    SystemPreference::restore(platform, "NSStatusItemSpacing", Domain::globalThisMac());
    EXPECT_FALSE(domains.stored("NSStatusItemSpacing", PreferenceDomains::kAnyApplication,
                                PreferenceHost::current));
    EXPECT_EQ(domains.stored("NSStatusItemSpacing", PreferenceDomains::kAnyApplication),
              PreferenceValue(8))
        << "restoring this Mac's value leaves the all-Macs change in force";
    EXPECT_TRUE(SystemPreference::hasBackup(platform, "NSStatusItemSpacing", Domain::global()));
    EXPECT_EQ(Domain::appThisMac("com.apple.ImageCapture").backupKey("disableHotPlug"),
              "original.com.apple.ImageCapture.host.disableHotPlug");
}

TEST_F(SystemPreferenceTest, AChangeThatCannotBeSavedLeavesNoRecordAndARestoreKeepsItsRecord) {
    const std::pair<std::string, PreferenceHost> dock{"com.apple.dock", PreferenceHost::any};
    domains.store("mru-spaces", true, "com.apple.dock");
    domains.unsavable.insert(dock);
    EXPECT_THROW(SystemPreference::set(platform, "mru-spaces", false, Domain::dock()),
                 SystemPreferenceError);
    EXPECT_FALSE(SystemPreference::hasBackup(platform, "mru-spaces", Domain::dock()))
        << "the next attempt reads the user's value afresh";

    domains.unsavable.clear();
    SystemPreference::set(platform, "mru-spaces", false, Domain::dock());
    domains.unsavable.insert(dock);
    EXPECT_THROW(SystemPreference::restore(platform, "mru-spaces", Domain::dock()),
                 SystemPreferenceError);
    EXPECT_TRUE(SystemPreference::hasBackup(platform, "mru-spaces", Domain::dock()))
        << "the user's value is still known for the next attempt";
    domains.unsavable.clear();
    EXPECT_TRUE(SystemPreference::restore(platform, "mru-spaces", Domain::dock()));
    EXPECT_EQ(domains.stored("mru-spaces", "com.apple.dock"), PreferenceValue(true));
}

TEST_F(SystemPreferenceTest, ADamagedRecordIsNeitherUsedNorReplaced) {
    domains.store("mru-spaces", false, "com.apple.dock");
    fakes.preferences.set("original.com.apple.dock.mru-spaces", "true");
    EXPECT_THROW(SystemPreference::restore(platform, "mru-spaces", Domain::dock()),
                 SystemPreferenceError);
    SystemPreference::set(platform, "mru-spaces", true, Domain::dock());
    EXPECT_EQ(fakes.preferences.object("original.com.apple.dock.mru-spaces"),
              PreferenceValue("true"));
    EXPECT_EQ(domains.stored("mru-spaces", "com.apple.dock"), PreferenceValue(true));
}

TEST_F(SystemPreferenceTest, RestartRunsKillallAndIgnoresItsFailure) {
    fakes.childProcesses.results[SystemPreference::kKillallPath] = ChildProcessStatus::exited(1);
    SystemPreference::restart(platform, "Dock");
    fakes.childProcesses.results[SystemPreference::kKillallPath] =
        ChildProcessStatus::couldNotLaunch("gone");
    SystemPreference::restart(platform, "Finder");
    const std::vector<FakeChildProcesses::Run> expected = {{"/usr/bin/killall", {"Dock"}},
                                                           {"/usr/bin/killall", {"Finder"}}};
    EXPECT_EQ(fakes.childProcesses.runs, expected);
}

}  // namespace
}  // namespace quorvane
