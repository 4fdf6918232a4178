#include "tools/system/StartupItems.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/ToolRegistry.hpp"
#include "platform/PreferenceValue.hpp"
#include "portable/XmlPropertyList.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/system/StartupItemsTool.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

std::string agent(const std::string& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n<dict>\n" +
           body + "</dict>\n</plist>\n";
}

TEST(XmlPropertyListTest, ReadsEveryKindAndRefusesDamageWithoutCrashing) {
    std::string error;
    const auto value = XmlPropertyList::parse(
        agent("<key>Label</key><string>a &amp; b &#x263A;</string>"
              "<key>Args</key><array><string>/bin/x</string><string/></array>"
              "<key>N</key><integer>-42</integer><key>R</key><real>2.5</real>"
              "<key>On</key><true/><key>Off</key><false/>"
              "<key>Blob</key><data>\n  AAEC\n</data>"
              "<key>When</key><date>2001-01-02T00:00:01Z</date><key>Empty</key><dict/>"),
        error);
    ASSERT_TRUE(value) << error;
    const auto& dictionary = *value->dictionary();
    EXPECT_EQ(*dictionary.at("Label").string(), "a & b \xE2\x98\xBA");
    EXPECT_EQ(dictionary.at("Args").array()->size(), 2u);
    EXPECT_EQ(*dictionary.at("N").integer(), -42);
    EXPECT_EQ(*dictionary.at("R").real(), 2.5);
    EXPECT_TRUE(*dictionary.at("On").boolean());
    EXPECT_EQ(*dictionary.at("Blob").data(), (PreferenceValue::Data{0, 1, 2}));
    EXPECT_EQ(dictionary.at("When").date()->secondsSinceReferenceDate, 86401);

    const std::string deep = "<plist>" + std::string(5000, '<') + "</plist>";
    std::string nested = "<plist>";
    for (int i = 0; i < 5000; ++i) {
        nested += "<array>";
    }
    for (const std::string& damaged :
         {std::string(), std::string("bplist00\x01\x02"), std::string("<plist><dict><key>A"),
          agent("<key>A</key>"), agent("<key>A</key><string>x</dict>"),
          agent("<key>A</key><integer>12x</integer>"), agent("<string>no key</string>"),
          agent("<key>A</key><string>&bogus;</string>"), agent("<key>A</key><date>soon</date>"),
          agent("<key>A</key><data>!!</data>"), deep, nested, std::string("\0\0\0", 3)}) {
        error.clear();
        EXPECT_FALSE(XmlPropertyList::parse(damaged, error)) << damaged.substr(0, 60);
        EXPECT_FALSE(error.empty());
    }
}

struct StartupItemsTest : ::testing::Test {
    TemporaryDirectory home;
    TemporaryDirectory root;
    FakeFileSystem files;

    StartupItemsTest() {
        files.home = home.path().string();
        fs::create_directories(home.path() / "Library/LaunchAgents");
        fs::create_directories(root.path() / "Library/LaunchDaemons");
    }
    void put(const fs::path& path, const std::string& text) {
        TemporaryDirectory::write(path, text);
    }
};

TEST_F(StartupItemsTest, ListsTheUsersAndTheComputersItemsButNotTheSystemsOwn) {
    const fs::path agents = home.path() / "Library/LaunchAgents";
    put(agents / "com.maker.sync.plist",
        agent("<key>Label</key><string>com.maker.sync</string><key>ProgramArguments</key>"
              "<array><string>/Applications/Maker.app/sync</string></array>"));
    put(agents / "com.broken.plist", "<plist><dict><key>Label</key><string>half");
    put(agents / "com.apple.thing.plist", agent("<key>Label</key><string>com.apple.x</string>"));
    put(agents / "com.off.plist", agent("<key>Label</key><string>com.off</string>"
                                        "<key>Disabled</key><true/>"));
    put(root.path() / "Library/LaunchDaemons/com.vendor.daemon.plist",
        agent("<key>Label</key><string>com.vendor.daemon</string><key>Program</key>"
              "<string>/usr/local/bin/daemon</string>"));

    const auto items = StartupItems::list(files, files.home, root.path().string());
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[0].label, "com.broken");
    EXPECT_NE(items[0].problem.find("unreadable"), std::string::npos);
    EXPECT_EQ(items[1].label, "com.maker.sync");
    EXPECT_EQ(items[1].program, "/Applications/Maker.app/sync");
    EXPECT_TRUE(items[2].disabled);
    EXPECT_EQ(items[3].program, "/usr/local/bin/daemon");
    EXPECT_FALSE(items[3].isUsers());
    EXPECT_FALSE(StartupItems::setEnabled(files, files.home, items[3], false).empty());
}

TEST_F(StartupItemsTest, TheToolSwitchesAUsersItemOffByMovingItAsideAndBackOn) {
    FakePlatform fakes;
    fakes.fileSystem.home = home.path().string();
    const fs::path original = home.path() / "Library/LaunchAgents/com.maker.sync.plist";
    put(original, agent("<key>Label</key><string>com.maker.sync</string>"));
    StartupItemsTool tool(catalogDescriptor("startup-items"), fakes.platform());
    tool.start();
    ASSERT_EQ(tool.items().size(), 1u);

    const auto page = tool.settingsPage();
    const auto& toggle = std::get<SettingsRow::Toggle>(page.sections[0].rows[0].kind);
    EXPECT_EQ(toggle.label, "com.maker.sync");
    EXPECT_TRUE(toggle.get());
    toggle.set(false);
    EXPECT_FALSE(fs::exists(original));
    EXPECT_TRUE(fs::exists(fs::path(StartupItems::disabledFolder(fakes.fileSystem.home)) /
                           "com.maker.sync.plist"));
    EXPECT_FALSE(toggle.get());
    toggle.set(true);
    EXPECT_TRUE(fs::exists(original));
    EXPECT_TRUE(tool.lastError().empty());
    EXPECT_FALSE(tool.setEnabled("com.nobody", false));

    // Quitting keeps the user's choice; turning the tool off, or the clean-up of a tool that
    // was turned off while Quorvane was not running, puts the item back.
    toggle.set(false);
    fakes.preferences.set(ToolRegistry::enabledKey("startup-items"), PreferenceValue(true));
    tool.stop();
    EXPECT_FALSE(fs::exists(original));
    tool.tidy();
    EXPECT_TRUE(fs::exists(original));
    tool.start();
    tool.setEnabled("com.maker.sync", false);
    fakes.preferences.set(ToolRegistry::enabledKey("startup-items"), PreferenceValue(false));
    tool.stop();
    EXPECT_TRUE(fs::exists(original));
}

}  // namespace
}  // namespace quorvane
