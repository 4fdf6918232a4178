#include "platform/ShareableContent.hpp"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(ShareableContent, WindowsTakeTheScaleOfTheDisplayHoldingTheirCentre) {
    ScreenCapture::Content content;
    content.displays = {{1, Rect(0, 0, 1440, 900), 2}, {2, Rect(1440, 0, 1920, 1080), 1}};
    ScreenCapture::Window onMain;
    onMain.frame = Rect(100, 100, 400, 300);
    ScreenCapture::Window mostlyOnSecond;  // its centre is at x 1540
    mostlyOnSecond.frame = Rect(1240, 100, 600, 300);
    ScreenCapture::Window offScreen;
    offScreen.frame = Rect(-5000, -5000, 100, 100);
    offScreen.scale = 3;
    content.windows = {onMain, mostlyOnSecond, offScreen};

    assignWindowScales(content);
    EXPECT_EQ(content.windows[0].scale, 2);
    EXPECT_EQ(content.windows[1].scale, 1);
    EXPECT_EQ(content.windows[2].scale, 3);
}

}  // namespace
}  // namespace quorvane
