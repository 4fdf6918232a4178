#include "portable/FilePreferenceDomains.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

using enum PreferenceHost;

TEST(FilePreferenceDomains, EachDomainAndHostIsItsOwnFileAndSurvivesAReopen) {
    TemporaryDirectory dir;
    {
        FilePreferenceDomains domains(dir.path());
        domains.setValue("autohide-delay", 0.0, "com.apple.dock", any);
        domains.setValue("NSStatusItemSpacing", 6, PreferenceDomains::kAnyApplication, current);
        domains.setValue("AppleShowAllExtensions", true, PreferenceDomains::kAnyApplication, any);
        EXPECT_TRUE(domains.synchronize("com.apple.dock", any));
        EXPECT_TRUE(domains.synchronize(PreferenceDomains::kAnyApplication, current));
    }
    EXPECT_TRUE(std::filesystem::exists(dir / "com.apple.dock.json"));
    EXPECT_TRUE(std::filesystem::exists(dir / ".GlobalPreferences.json"));
    EXPECT_TRUE(std::filesystem::exists(dir / "ByHost" / ".GlobalPreferences.json"));

    FilePreferenceDomains domains(dir.path());
    EXPECT_EQ(domains.copyValue("autohide-delay", "com.apple.dock", any), PreferenceValue(0.0));
    EXPECT_EQ(domains.copyValue("NSStatusItemSpacing", PreferenceDomains::kAnyApplication, current),
              PreferenceValue(6));
    EXPECT_EQ(domains.copyValue("NSStatusItemSpacing", PreferenceDomains::kAnyApplication, any),
              std::nullopt)
        << "this host's value is not the any-host value";
    EXPECT_EQ(domains.copyKeyList(PreferenceDomains::kAnyApplication, any),
              std::vector<std::string>{"AppleShowAllExtensions"});

    domains.setValue("autohide-delay", std::nullopt, "com.apple.dock", any);
    EXPECT_EQ(domains.copyValue("autohide-delay", "com.apple.dock", any), std::nullopt);
    EXPECT_TRUE(domains.copyKeyList("com.apple.dock", any).empty());
}

TEST(FilePreferenceDomains, SynchronizeSeesAnotherProgramsWrite) {
    TemporaryDirectory dir;
    FilePreferenceDomains ours(dir.path());
    EXPECT_EQ(ours.copyValue("mru-spaces", "com.apple.dock", any), std::nullopt);
    FilePreferenceDomains theirs(dir.path());
    theirs.setValue("mru-spaces", false, "com.apple.dock", any);

    EXPECT_EQ(ours.copyValue("mru-spaces", "com.apple.dock", any), std::nullopt) << "cached";
    EXPECT_TRUE(ours.synchronize("com.apple.dock", any));
    EXPECT_EQ(ours.copyValue("mru-spaces", "com.apple.dock", any), PreferenceValue(false));
}

TEST(FilePreferenceDomains, ADamagedOrUnnameableDomainIsRefusedAndNeverOverwritten) {
    TemporaryDirectory dir;
    const auto file = dir / "com.apple.finder.json";
    TemporaryDirectory::write(file, "{\"AppleShowAllFiles\": ");
    FilePreferenceDomains domains(dir.path());

    EXPECT_EQ(domains.copyValue("AppleShowAllFiles", "com.apple.finder", any), std::nullopt);
    domains.setValue("AppleShowAllFiles", true, "com.apple.finder", any);
    EXPECT_FALSE(domains.synchronize("com.apple.finder", any));
    EXPECT_NE(domains.lastError().find("com.apple.finder.json"), std::string::npos);
    EXPECT_EQ(TemporaryDirectory::read(file), "{\"AppleShowAllFiles\": ");

    for (const std::string id : {"", "../escape", ".hidden", "a/b"}) {
        domains.setValue("key", 1, id, any);
        EXPECT_FALSE(domains.synchronize(id, any)) << id;
        EXPECT_NE(domains.lastError().find("is not a preference domain"), std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(dir.path().parent_path() / "escape.json"));
    EXPECT_TRUE(domains.synchronize("com.apple.dock", any)) << "a good domain is unaffected";
}

}  // namespace
}  // namespace quorvane
