#include <gtest/gtest.h>

#include "cli/SettingsTextRenderer.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/system/HideMenuBarIconsTool.hpp"
#include "tools/system/MenuBarStatsTool.hpp"

namespace quorvane {
namespace {

using namespace std::chrono_literals;

struct MenuBarStatsToolTest : ::testing::Test {
    FakePlatform fakes;
    MenuBarStatsTool tool{catalogDescriptor("menu-bar-stats"), fakes.platform()};

    FakeMenuBar::Item& item() { return *fakes.menuBar.items.at(0); }
    void work(std::uint32_t busy, std::uint32_t idle) {
        fakes.hostStatistics.ticks.user += busy;
        fakes.hostStatistics.ticks.idle += idle;
    }
};

TEST_F(MenuBarStatsToolTest, ReadsEveryTwoSecondsOnlyWhileTheItemIsOnScreen) {
    tool.start();
    EXPECT_EQ(fakes.hostStatistics.readings, 1) << "a reading at once";
    EXPECT_EQ(item().title, "") << "one reading is no measurement yet";
    work(25, 75);
    fakes.scheduler.advance(1.9s);
    EXPECT_EQ(fakes.hostStatistics.readings, 1);
    fakes.scheduler.advance(0.1s);
    EXPECT_EQ(fakes.hostStatistics.readings, 2);
    EXPECT_EQ(item().title, "CPU 25% MEM 0%");

    // Hidden (a full-screen app, the notch): nothing is read at all.
    item().setOnScreen(false);
    EXPECT_FALSE(tool.isSampling());
    fakes.scheduler.advance(60s);
    EXPECT_EQ(fakes.hostStatistics.readings, 2);

    // Back in sight: one reading at once, averaged over the time it was away, then every 2 s.
    work(10, 990);
    item().setOnScreen(true);
    item().setOnScreen(true);
    EXPECT_EQ(fakes.hostStatistics.readings, 3);
    EXPECT_EQ(item().title, "CPU 1% MEM 0%");
    fakes.scheduler.advance(2s);
    EXPECT_EQ(fakes.hostStatistics.readings, 4);

    tool.stop();
    fakes.scheduler.advance(10s);
    EXPECT_EQ(fakes.hostStatistics.readings, 4);
    EXPECT_TRUE(fakes.menuBar.items.empty());
}

TEST_F(MenuBarStatsToolTest, TheChosenPartsMakeTheTitleAndAFailedReadingIsShown) {
    fakes.hostStatistics.interfacesNow = {{"en0", false, 0, 0}};
    tool.start();
    tool.setShows(MenuBarStatsTool::kCpuKey, false);
    tool.setShows(MenuBarStatsTool::kNetworkKey, true);
    fakes.hostStatistics.interfacesNow = {{"en0", false, 4000, 2000}};
    fakes.scheduler.advance(2s);
    EXPECT_EQ(item().title, "MEM 0% ↓2.0 KB/s ↑1.0 KB/s");
    EXPECT_EQ(fakes.preferences.boolean(MenuBarStatsTool::kCpuKey), false);
    EXPECT_NE(SettingsTextRenderer::render(tool.panelPage()).find("Network: ↓2.0 KB/s"),
              std::string::npos);
    tool.setShows(MenuBarStatsTool::kDiskKey, true);
    EXPECT_EQ(item().title, "MEM 0% ↓2.0 KB/s ↑1.0 KB/s SSD 75%");
    EXPECT_NE(
        SettingsTextRenderer::render(tool.panelPage()).find("Disk: 125.0 GB free of 500.0 GB"),
        std::string::npos);

    fakes.hostStatistics.status = 5;  // KERN_FAILURE
    fakes.scheduler.advance(2s);
    EXPECT_EQ(item().title, "");
    ASSERT_TRUE(tool.lastError());
    EXPECT_EQ(*tool.lastError(), "Reading the processor's counters failed (status 5)");
    EXPECT_NE(SettingsTextRenderer::render(tool.settingsPage()).find(*tool.lastError()),
              std::string::npos);
}

struct HideMenuBarIconsToolTest : ::testing::Test {
    FakePlatform fakes;
    HideMenuBarIconsTool tool{catalogDescriptor("hide-menu-bar-icons"), fakes.platform()};

    FakeMenuBar::Item& arrow() { return *fakes.menuBar.items.at(0); }
    FakeMenuBar::Item& separator() { return *fakes.menuBar.items.at(1); }
};

TEST_F(HideMenuBarIconsToolTest, TheArrowShowsTheIconsUntilTheDelayAndStopGivesThemBack) {
    tool.start();
    tool.start();
    ASSERT_EQ(fakes.menuBar.items.size(), 2u);
    EXPECT_TRUE(tool.isHiding());
    EXPECT_EQ(separator().length, HideMenuBarIconsTool::kHiddenLength);
    EXPECT_EQ(arrow().image, HideMenuBarIconsTool::kShowImage);

    fakes.menuBar.click(0);
    EXPECT_FALSE(tool.isHiding());
    EXPECT_EQ(separator().length, HideMenuBarIconsTool::kShownLength);
    EXPECT_EQ(separator().title, HideMenuBarIconsTool::kSeparatorTitle);
    EXPECT_TRUE(tool.control()->isOn());
    fakes.scheduler.advance(9s);
    EXPECT_FALSE(tool.isHiding());
    fakes.scheduler.advance(1s);
    EXPECT_TRUE(tool.isHiding()) << "hidden again after the default ten seconds";

    // "Never" keeps them shown until the next click; a stored value off the list falls back.
    tool.setAutoHideSeconds(0);
    tool.control()->action();
    fakes.scheduler.advance(1h);
    EXPECT_FALSE(tool.isHiding());
    fakes.menuBar.click(0);
    EXPECT_TRUE(tool.isHiding());
    tool.setAutoHideSeconds(7);
    EXPECT_EQ(tool.autoHideSeconds(), HideMenuBarIconsTool::kDefaultAutoHide);

    fakes.menuBar.click(0);
    tool.stop();
    EXPECT_TRUE(fakes.menuBar.items.empty()) << "without the separator every icon is back";
    fakes.scheduler.advance(1h);  // the pending hide died with the items
    tool.control()->action();
    EXPECT_TRUE(fakes.menuBar.items.empty());
}

}  // namespace
}  // namespace quorvane
