#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/TemporaryDirectory.hpp"
#include "tools/system/CaptureFileName.hpp"
#include "tools/system/CaptureFolder.hpp"
#include "tools/system/CaptureTargets.hpp"
#include "tools/system/ColorFormat.hpp"
#include "tools/system/RecognizedLines.hpp"

namespace quorvane {
namespace {

TEST(CaptureFileNameTest, ANameInUseGetsTheNextNumberAndNothingIsEverOverwritten) {
    TemporaryDirectory folder;
    const std::string stem = CaptureFileName::stem("Screen Recording", {2026, 3, 7, 9, 5, 1});
    EXPECT_EQ(stem, "Screen Recording 2026-03-07 at 09.05.01");
    const std::string dir = folder.path().string();
    const auto first = CaptureFileName::freePath(dir, stem, "mp4", &CaptureFolder::taken);
    EXPECT_EQ(*first, dir + "/" + stem + ".mp4");
    TemporaryDirectory::write(*first, "a");
    // A folder, even a dangling link, takes a name as much as a file does.
    std::filesystem::create_directory(dir + "/" + stem + " 2.mp4");
    std::filesystem::create_symlink(dir + "/gone", dir + "/" + stem + " 3.mp4");
    EXPECT_EQ(*CaptureFileName::freePath(dir, stem, "mp4", &CaptureFolder::taken),
              dir + "/" + stem + " 4.mp4");
    EXPECT_FALSE(CaptureFileName::freePath(dir, stem, "mp4", [](const std::string&) {
        return true;
    })) << "every number taken: refuse rather than loop or overwrite";
}

TEST(CaptureFileNameTest, AFolderSettingThatCouldLandAnywhereFallsBack) {
    EXPECT_EQ(CaptureFileName::folder("~/Movies", "/Users/a", "/fb"), "/Users/a/Movies");
    EXPECT_EQ(CaptureFileName::folder("~", "/Users/a", "/fb"), "/Users/a");
    EXPECT_EQ(CaptureFileName::folder("/Volumes/Work", "/Users/a", "/fb"), "/Volumes/Work");
    EXPECT_EQ(CaptureFileName::folder("", "/Users/a", "/fb"), "/fb");
    EXPECT_EQ(CaptureFileName::folder("Movies", "/Users/a", "/fb"), "/fb");
    EXPECT_EQ(CaptureFileName::folder("~someone/x", "/Users/a", "/fb"), "/fb");
}

TextRecognition::Observation piece(std::string text, double x, double y, double w, double h,
                                   double confidence = 0.9) {
    return {std::move(text), Rect(x, y, w, h), confidence};
}

TEST(RecognizedLinesTest, PiecesComeBackInReadingOrder) {
    // Vision's boxes: origin at the bottom, so the first line has the largest y. The pieces
    // arrive shuffled, one line is split into two boxes slightly out of level, a paragraph
    // gap follows, and a speck of noise is read with little confidence.
    const std::vector<TextRecognition::Observation> found = {
        piece("world", 0.40, 0.795, 0.2, 0.05),       piece("second line", 0.1, 0.70, 0.5, 0.05),
        piece("  Hello ", 0.10, 0.80, 0.25, 0.05),    piece("~", 0.9, 0.9, 0.02, 0.02, 0.1),
        piece("New paragraph", 0.1, 0.45, 0.5, 0.05),
    };
    EXPECT_EQ(RecognizedLines::lines(found),
              (std::vector<std::string>{"Hello world", "second line", "", "New paragraph"}));
    EXPECT_EQ(RecognizedLines::text(found, true), "Hello world\nsecond line\n\nNew paragraph");
    EXPECT_EQ(RecognizedLines::text(found, false), "Hello world second line New paragraph");
    EXPECT_EQ(RecognizedLines::text({}, true), "");
}

TEST(ColorFormatTest, TheThreeFormsNameTheSameEightBitColour) {
    const ColorSampler::Color blue{30 / 255.0, 144 / 255.0, 1.0};
    EXPECT_EQ(ColorFormat::format(blue, ColorFormat::Kind::hex), "#1E90FF");
    EXPECT_EQ(ColorFormat::format(blue, ColorFormat::Kind::rgb), "rgb(30, 144, 255)");
    EXPECT_EQ(ColorFormat::format(blue, ColorFormat::Kind::hsl), "hsl(210, 100%, 56%)");
    // A hue just short of red wraps to the top of the circle, not to a negative angle.
    EXPECT_EQ(ColorFormat::format({1, 0, 0.5}, ColorFormat::Kind::hsl), "hsl(330, 100%, 50%)");
    EXPECT_EQ(ColorFormat::format({0.5, 0.5, 0.5}, ColorFormat::Kind::hsl), "hsl(0, 0%, 50%)");
    // Wide-gamut leftovers and broken conversions stay inside the 8-bit range.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ColorFormat::format({1.2, -0.1, nan}, ColorFormat::Kind::hex), "#FF0000");
    EXPECT_EQ(ColorFormat::parse("hsl"), ColorFormat::Kind::hsl);
    EXPECT_FALSE(ColorFormat::parse("cmyk"));
}

ScreenCapture::Content twoDisplays() {
    ScreenCapture::Content content;
    content.displays = {{1, {0, 0, 1440, 900}, 2}, {2, {1440, -180, 1920, 1080}, 1}};
    content.windows = {{77, 100, "Inbox", {100, 100, 800, 600}, 0, true, 2},
                       {78, 200, "Palette", {50, 50, 200, 200}, 3, true, 2},
                       {79, 200, "Draft", {1500, 0, 900, 700}, 0, true, 1}};
    return content;
}

TEST(CaptureTargetsTest, ChoicesBecomeTheRightDisplayWindowOrPart) {
    const auto content = twoDisplays();
    EXPECT_EQ(CaptureTargets::display(content, {2000, 500})->id, 2u);
    EXPECT_EQ(CaptureTargets::display(content, {5000, 5000})->id, 1u) << "off every display";
    // An area on the monitor is a part of that monitor, in its own coordinates.
    const auto area = CaptureTargets::area(content, {1540, -80, 300, 200});
    ASSERT_TRUE(area);
    EXPECT_EQ(area->id, 2u);
    EXPECT_EQ(*area->sourceRect, Rect(100, 100, 300, 200));
    // Dragged right to left, it is the same area; a click is no area at all.
    EXPECT_EQ(CaptureTargets::area(content, {1840, 120, -300, -200}), area);
    EXPECT_FALSE(CaptureTargets::area(content, {100, 100, 4, 300}));
    // The front window is the frontmost ordinary one of that app: the palette floats above
    // it but is not a document window.
    const std::vector<WindowInfo> order = {
        {78, 200, 3, {50, 50, 200, 200}}, {77, 100, 0, {}}, {79, 200, 0, {}}};
    EXPECT_EQ(CaptureTargets::frontWindow(content, 200, order)->id, 79u);
    EXPECT_FALSE(CaptureTargets::frontWindow(content, 300, order));
    EXPECT_EQ(*CaptureTargets::size(content, {ScreenCapture::Target::Kind::window, 79, {}}),
              (Size{900, 700}));
    EXPECT_EQ(CaptureTargets::scale(content, {ScreenCapture::Target::Kind::window, 77, {}}), 2);
    EXPECT_EQ(CaptureTargets::scale(content, *area), 1);
    EXPECT_EQ(CaptureTargets::scale(content, {ScreenCapture::Target::Kind::display, 9, {}}), 1);
    EXPECT_EQ(CaptureTargets::pixels({301, 200.4}, 2), (Size{602, 400}));
    EXPECT_EQ(CaptureTargets::pixels({301, 201}, 1), (Size{300, 200})) << "even for the encoder";
}

}  // namespace
}  // namespace quorvane
