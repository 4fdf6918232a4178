#include "tools/system/DefaultAppsTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"

namespace quorvane {
namespace {

TEST(DefaultAppChoices, EachAppOnceByNameWithTheCurrentOneAlwaysListed) {
    const auto options =
        DefaultAppChoices::options("/Users/me/Applications/Safari.app",
                                   {"/Applications/Safari.app", "/Applications/firefox.app",
                                    "/Applications/Safari.app", "/Applications/Arc.app/"});
    std::vector<std::string> titles;
    for (const auto& option : options) {
        titles.push_back(option.title);
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"Arc", "firefox", "Safari (/Applications)",
                                                "Safari (/Users/me/Applications)"}));
}

struct DefaultAppsToolTest : ::testing::Test {
    FakePlatform fakes;
    DefaultAppsTool tool{catalogDescriptor("default-apps"), fakes.platform()};

    void SetUp() override {
        fakes.defaultApplications.defaults = {{"scheme:https", "/Applications/Safari.app"},
                                              {"scheme:http", "/Applications/Safari.app"}};
        tool.start();
    }
};

TEST_F(DefaultAppsToolTest, OffGivesEveryKindBackTheAppItHadBeforeTheFirstChange) {
    tool.choose("browser", "/Applications/Firefox.app");
    tool.choose("browser", "/Applications/Arc.app");
    tool.choose("pdf", "/Applications/Reader.app");  // had no app: nothing to go back to
    EXPECT_EQ(tool.current("browser"), "/Applications/Arc.app");
    EXPECT_EQ(fakes.defaultApplications.defaults["scheme:http"], "/Applications/Arc.app");
    EXPECT_EQ(tool.backup().originals().at("scheme:https"), "/Applications/Safari.app");
    EXPECT_TRUE(fakes.preferences.object(DefaultAppsTool::kBackupKey));

    fakes.defaultApplications.changes.clear();
    tool.stop();
    EXPECT_EQ(fakes.defaultApplications.changes,
              (std::vector<std::string>{"scheme:http=/Applications/Safari.app",
                                        "scheme:https=/Applications/Safari.app"}));
    EXPECT_EQ(fakes.defaultApplications.defaults["type:com.adobe.pdf"], "/Applications/Reader.app");
    EXPECT_FALSE(fakes.preferences.object(DefaultAppsTool::kBackupKey));
}

TEST_F(DefaultAppsToolTest, ADeclinedChangeIsShownAndLeavesNothingToUndo) {
    fakes.defaultApplications.declined = "The user declined";
    tool.choose("browser", "/Applications/Firefox.app");
    EXPECT_NE(tool.lastError().find("Firefox"), std::string::npos);
    EXPECT_NE(tool.lastError().find("declined"), std::string::npos);
    fakes.defaultApplications.changes.clear();
    tool.stop();
    EXPECT_TRUE(fakes.defaultApplications.changes.empty());
    EXPECT_TRUE(tool.backup().originals().empty());
}

}  // namespace
}  // namespace quorvane
