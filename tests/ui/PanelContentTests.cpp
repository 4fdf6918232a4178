#include "ui/PanelContent.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(PanelContentPage, APageIsBuiltAgainOnlyWhenItsLayoutChanges) {
    std::string apps = "Music,Podcasts";
    PanelContent::Page mixer{[] { return SettingsPage{}; }, nullptr, 340, [&] { return apps; }};
    const std::string built = mixer.layout();
    EXPECT_FALSE(mixer.needsRebuild(built)) << "a moving slider is never replaced";
    apps = "Music";
    EXPECT_TRUE(mixer.needsRebuild(built));

    const PanelContent::Page fixed;
    EXPECT_FALSE(fixed.needsRebuild("")) << "without a layout key it is built once";
    EXPECT_TRUE(fixed.build().sections.empty()) << "nothing to build from draws an empty page";
}

}  // namespace
}  // namespace quorvane
