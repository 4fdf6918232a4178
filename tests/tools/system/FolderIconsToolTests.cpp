#include "tools/system/FolderIconsTool.hpp"

#include <gtest/gtest.h>

#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/FolderIconStyle.hpp"

namespace quorvane {
namespace {

TEST(FolderIconStyle, ColoursBadgesAndMistakes) {
    std::string error;
    const auto blue = FolderIconStyle::artwork("Blue", error);
    ASSERT_TRUE(blue);
    EXPECT_EQ(blue->tint, (FolderArtwork::Color{0.00, 0.48, 1.00}));
    EXPECT_EQ(blue->tintStrength, FolderIconStyle::kTintStrength);
    EXPECT_EQ(blue->badgeText, "");
    EXPECT_EQ(blue->badgeScale, 0);

    const auto both = FolderIconStyle::artwork(" #FF8000  📸 ", error);
    ASSERT_TRUE(both);
    EXPECT_EQ(both->tint, (FolderArtwork::Color{1.0, 128 / 255.0, 0.0}));
    EXPECT_EQ(both->badgeText, "📸");
    EXPECT_EQ(both->badgeScale, FolderIconStyle::kBadgeScale);

    const auto badge = FolderIconStyle::artwork("❤️", error);
    ASSERT_TRUE(badge);
    EXPECT_FALSE(badge->tint);
    EXPECT_EQ(badge->tintStrength, 0);

    for (const char* wrong : {"", "  ", "#12345G", "a badge far too long"}) {
        error.clear();
        EXPECT_FALSE(FolderIconStyle::artwork(wrong, error)) << wrong;
        EXPECT_FALSE(error.empty()) << wrong;
    }
}

struct FolderIconsToolTest : ::testing::Test {
    FakePlatform fakes;

    void SetUp() override {
        PreferenceValue::Array folders;
        for (const auto& [path, style] : std::vector<std::pair<std::string, std::string>>{
                 {"/work", "green"}, {"/mine", "red ★"}, {"/broken", "#nope"}}) {
            folders.emplace_back(PreferenceValue::Dictionary{{"path", path}, {"style", style}});
        }
        fakes.preferences.set(FolderIconsTool::kFoldersKey, std::move(folders));
        fakes.fileIcons.icons["/mine"] = std::nullopt;  // the user's own icon
    }
    std::unique_ptr<FolderIconsTool> makeTool() {
        return std::make_unique<FolderIconsTool>(catalogDescriptor("folder-icons"),
                                                 fakes.platform());
    }
};

TEST_F(FolderIconsToolTest, OnlyFoldersWithoutTheirOwnIconChangeAndOffPutsThemBack) {
    auto tool = makeTool();
    tool->start();
    ASSERT_TRUE(fakes.fileIcons.icons["/work"]);
    EXPECT_TRUE(fakes.fileIcons.icons["/work"]->tint);
    EXPECT_FALSE(fakes.fileIcons.icons["/mine"]) << "the user's icon is left alone";
    EXPECT_NE(tool->warning("/mine").find("icon of its own"), std::string::npos);
    EXPECT_NE(tool->warning("/broken").find("#RRGGBB"), std::string::npos);

    tool->setStyle(0, "green 🎵");
    EXPECT_EQ(fakes.fileIcons.icons["/work"]->badgeText, "🎵") << "an edit shows at once";
    tool->setPath(0, "/elsewhere");
    EXPECT_FALSE(fakes.fileIcons.icons.contains("/work")) << "the old folder gets its icon back";

    tool->stop();
    EXPECT_EQ(fakes.fileIcons.icons.size(), 1u);
    EXPECT_TRUE(fakes.fileIcons.icons.contains("/mine"));
    EXPECT_TRUE(tool->applied().empty());
}

TEST_F(FolderIconsToolTest, IconsLeftByACrashAreRemovedByTheNextTidy) {
    makeTool()->start();  // and never stopped
    EXPECT_TRUE(fakes.fileIcons.icons.contains("/work"));
    auto next = makeTool();
    next->tidy();
    EXPECT_FALSE(fakes.fileIcons.icons.contains("/work"));
    EXPECT_TRUE(fakes.fileIcons.icons.contains("/mine"));
}

}  // namespace
}  // namespace quorvane
