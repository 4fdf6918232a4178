#include <gtest/gtest.h>

#include <filesystem>

#include "platform/PasteboardType.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/system/ColorPickerTool.hpp"
#include "tools/system/ScreenRecorderTool.hpp"
#include "tools/system/ScreenshotScreenTool.hpp"
#include "tools/system/TextFromScreenTool.hpp"

namespace quorvane {
namespace {

// Carbon modifier bits the fake hot-key system is pressed with.
constexpr std::uint32_t kCommand = 0x100;
constexpr std::uint32_t kShift = 0x200;
constexpr std::uint32_t kOption = 0x800;
constexpr std::uint32_t kControl = 0x1000;

// A laptop and, to its right, a monitor; the pointer on the monitor.
struct CaptureToolsTest : ::testing::Test {
    FakePlatform fakes;
    TemporaryDirectory folder;

    void SetUp() override {
        fakes.screens.displays = {{{0, 0, 1440, 900}, {0, 0, 1440, 875}},
                                  {{1440, 0, 1920, 1080}, {1440, 0, 1920, 1080}}};
        fakes.displayConfiguration.ids = {"laptop", "monitor"};
        fakes.screens.mouse = {2000, 500};  // screen coordinates: y 580 from the top
        fakes.screenCapture.content.displays = {{1, {0, 0, 1440, 900}, 2},
                                                {2, {1440, -180, 1920, 1080}, 1}};
        fakes.workspace.add(100, "com.example.mail", "Mail");
    }
    void settle() {
        fakes.screenCapture.settle();
        fakes.textRecognition.settle();
        fakes.screenCapture.settle();
    }
    std::string hudTitle() {
        return fakes.screens.panels.empty() ? std::string()
                                            : fakes.screens.panels.back()->content.title;
    }
    std::optional<std::string> clipboard() {
        return fakes.pasteboard.string(pasteboard_type::string);
    }
};

TEST_F(CaptureToolsTest, ARecordingOfTheDisplayUnderThePointerStartsAndStopsWithOneShortcut) {
    fakes.preferences.set(ScreenRecorderTool::kFolderKey, PreferenceValue(folder.path().string()));
    fakes.preferences.set(ScreenRecorderTool::kMicrophoneKey, PreferenceValue(true));
    ScreenRecorderTool tool(catalogDescriptor("screen-recorder"), fakes.platform());
    tool.start();
    ASSERT_TRUE(fakes.hotKeys.press(15, kCommand | kShift | kOption));
    settle();
    ASSERT_EQ(fakes.screenCapture.recordings.size(), 1u);
    const auto request = fakes.screenCapture.recordings[0];
    EXPECT_EQ(request.target, (ScreenCapture::Target{ScreenCapture::Target::Kind::display, 2, {}}));
    EXPECT_EQ(request.width, 1920);
    EXPECT_TRUE(request.capturesAudio);
    EXPECT_TRUE(request.capturesMicrophone);
    EXPECT_EQ(std::filesystem::path(request.path).parent_path(), folder.path());
    EXPECT_TRUE(request.path.ends_with(".mp4"));
    EXPECT_TRUE(tool.isRecording());
    EXPECT_TRUE(tool.control()->isOn());

    tool.control()->action();  // the tile stops it as the shortcut would
    tool.control()->action();  // a second press while the file is being finished does nothing
    EXPECT_EQ(fakes.screenCapture.stops, 1);
    settle();
    EXPECT_FALSE(tool.isRecording());
    EXPECT_EQ(tool.lastSaved(), request.path);
    EXPECT_EQ(hudTitle(), "Recording saved");

    // Another recording in the same second gets its own name.
    tool.toggle();
    settle();
    ASSERT_EQ(fakes.screenCapture.recordings.size(), 2u);
    EXPECT_NE(fakes.screenCapture.recordings[1].path, request.path);
    EXPECT_TRUE(fakes.screenCapture.recordings[1].path.ends_with(" 2.mp4"));

    // Turning the tool off mid-recording stops the stream and keeps the file; no answer comes
    // back to a tool that is off.
    tool.stop();
    EXPECT_EQ(fakes.screenCapture.liveRecordings, 0);
    settle();
    EXPECT_EQ(tool.lastSaved(), request.path);
}

TEST_F(CaptureToolsTest, ARecordingThatCannotStartOrFailsSaysWhy) {
    fakes.preferences.set(ScreenRecorderTool::kFolderKey, PreferenceValue(folder.path().string()));
    ScreenRecorderTool tool(catalogDescriptor("screen-recorder"), fakes.platform());
    tool.start();
    fakes.screenCapture.startError = "recording needs macOS 15 or later";
    tool.toggle();
    settle();
    EXPECT_EQ(tool.lastError(), "Couldn't start recording: recording needs macOS 15 or later");
    EXPECT_FALSE(tool.isRecording());

    fakes.screenCapture.startError.clear();
    fakes.screenCapture.finishError = "The disk is full";
    tool.toggle();
    settle();
    EXPECT_TRUE(tool.lastError().empty()) << "a good start clears the old error";
    tool.toggle();
    settle();
    EXPECT_EQ(tool.lastError(), "The recording stopped: The disk is full");

    tool.setSource(ScreenRecorderTool::Source::window);
    fakes.workspace.frontmostPID = 100;
    tool.toggle();
    settle();
    EXPECT_EQ(tool.lastError(), "The app in front has no window to record");

    tool.setFolderSetting(folder.path().string() + "/missing");
    tool.setSource(ScreenRecorderTool::Source::display);
    tool.toggle();
    settle();
    EXPECT_EQ(tool.lastError(), "The folder " + folder.path().string() + "/missing doesn't exist");
    EXPECT_EQ(fakes.screenCapture.recordings.size(), 1u);
    EXPECT_EQ(fakes.preferences.string(ScreenRecorderTool::kSourceKey), "display");
}

TEST_F(CaptureToolsTest, AnAreaRecordingWaitsForTheAreaAndEscRecordsNothing) {
    fakes.preferences.set(ScreenRecorderTool::kFolderKey, PreferenceValue(folder.path().string()));
    fakes.preferences.set(ScreenRecorderTool::kSourceKey, PreferenceValue(std::string("area")));
    ScreenRecorderTool tool(catalogDescriptor("screen-recorder"), fakes.platform());
    tool.start();
    tool.toggle();
    tool.toggle();  // still choosing: not a second selection
    EXPECT_EQ(fakes.screenCapture.areaRequests, 1);
    settle();
    EXPECT_TRUE(fakes.screenCapture.recordings.empty());
    EXPECT_TRUE(tool.lastError().empty());

    fakes.screenCapture.area = Rect(100, 100, 641, 480);
    tool.toggle();
    settle();
    ASSERT_EQ(fakes.screenCapture.recordings.size(), 1u);
    EXPECT_EQ(*fakes.screenCapture.recordings[0].target.sourceRect, Rect(100, 100, 641, 480));
    EXPECT_EQ(fakes.screenCapture.recordings[0].width, 1282) << "twice the points, even";
}

TEST_F(CaptureToolsTest, TextInADraggedAreaGoesToTheClipboardInReadingOrder) {
    TextFromScreenTool tool(catalogDescriptor("text-from-screen"), fakes.platform());
    tool.start();
    fakes.screenCapture.area = Rect(1540, -80, 300, 100);
    fakes.textRecognition.found = {{"world", {0.5, 0.5, 0.4, 0.3}, 0.9},
                                   {"Hello", {0.1, 0.5, 0.3, 0.3}, 0.9},
                                   {"again", {0.1, 0.1, 0.3, 0.3}, 0.9}};
    ASSERT_TRUE(fakes.hotKeys.press(17, kCommand | kShift | kOption));
    settle();
    ASSERT_EQ(fakes.screenCapture.captures.size(), 1u);
    EXPECT_EQ(*fakes.screenCapture.captures[0].first.sourceRect, Rect(100, 100, 300, 100));
    EXPECT_EQ(fakes.screenCapture.captures[0].second, (Size{600, 200}))
        << "a 1× monitor is still read at twice its pixels";
    EXPECT_EQ(clipboard(), "Hello world\nagain");
    EXPECT_EQ(hudTitle(), "Text copied");

    tool.setKeepsLineBreaks(false);
    tool.control()->action();
    settle();
    EXPECT_EQ(clipboard(), "Hello world again");

    // Nothing readable: the clipboard keeps what it had.
    fakes.textRecognition.found.clear();
    tool.capture();
    settle();
    EXPECT_EQ(clipboard(), "Hello world again");
    EXPECT_EQ(hudTitle(), "No text found");
}

TEST_F(CaptureToolsTest, AnEscapedSelectionFailureOrStopLeavesTheClipboardAlone) {
    TextFromScreenTool tool(catalogDescriptor("text-from-screen"), fakes.platform());
    tool.start();
    fakes.pasteboard.copyText("mine");
    fakes.textRecognition.found = {{"text", {0.1, 0.1, 0.5, 0.5}, 0.9}};
    tool.capture();  // Esc: no area
    settle();
    EXPECT_TRUE(fakes.screenCapture.captures.empty());

    fakes.screenCapture.area = Rect(10, 10, 200, 100);
    fakes.screenCapture.imageError = "the display or window is gone";
    tool.capture();
    settle();
    EXPECT_EQ(tool.lastError(), "Couldn't capture the area: the display or window is gone");
    EXPECT_EQ(fakes.screens.beeps, 1);

    fakes.screenCapture.imageError.clear();
    tool.capture();
    fakes.screenCapture.settle();  // the picture is being read when the tool is turned off
    tool.stop();
    fakes.textRecognition.settle();
    EXPECT_EQ(clipboard(), "mine");
    EXPECT_FALSE(tool.isBusy());
}

TEST_F(CaptureToolsTest, AScreenshotIsOfTheDisplayUnderThePointerAndNeverReplacesAFile) {
    fakes.preferenceDomains
        .values[{ScreenshotScreenTool::kScreencaptureDomain, PreferenceHost::any}]
        .insert_or_assign("location", PreferenceValue(folder.path().string()));
    fakes.screenCapture.content.displays[1].scale = 2;
    ScreenshotScreenTool tool(catalogDescriptor("screenshot-screen"), fakes.platform());
    tool.start();
    ASSERT_TRUE(fakes.hotKeys.press(20, kCommand | kShift));
    settle();
    ASSERT_EQ(fakes.screenCapture.captures.size(), 1u);
    EXPECT_EQ(fakes.screenCapture.captures[0].first.id, 2u);
    EXPECT_EQ(fakes.screenCapture.captures[0].second, (Size{3840, 2160}));
    ASSERT_EQ(fakes.screenCapture.pngs.size(), 1u);
    EXPECT_EQ(std::filesystem::path(tool.lastSaved()).parent_path(), folder.path());
    EXPECT_TRUE(tool.lastSaved().starts_with(folder.path().string() + "/Screenshot "));

    tool.shoot();
    settle();
    ASSERT_EQ(fakes.screenCapture.pngs.size(), 2u);
    EXPECT_TRUE(fakes.screenCapture.pngs[1].ends_with(" 2.png"));

    fakes.screenCapture.pngWritable = false;
    tool.shoot();
    settle();
    EXPECT_EQ(tool.lastError(), "Couldn't save the screenshot in " + folder.path().string());
}

TEST_F(CaptureToolsTest, APickedColourIsCopiedInTheChosenFormatAndEscCopiesNothing) {
    ColorPickerTool tool(catalogDescriptor("color-picker"), fakes.platform());
    tool.start();
    fakes.pasteboard.copyText("mine");
    ASSERT_TRUE(fakes.hotKeys.press(8, kCommand | kOption | kControl));
    EXPECT_TRUE(tool.isPicking());
    tool.pick();
    EXPECT_EQ(fakes.colorSampler.shown, 1) << "one sampler at a time";
    ASSERT_TRUE(fakes.colorSampler.pick(std::nullopt));
    EXPECT_EQ(clipboard(), "mine");

    tool.setFormat(ColorFormat::Kind::rgb);
    tool.control()->action();
    ASSERT_TRUE(fakes.colorSampler.pick(ColorSampler::Color{1, 0.5, 0}));
    EXPECT_EQ(clipboard(), "rgb(255, 128, 0)");
    EXPECT_EQ(hudTitle(), "rgb(255, 128, 0)");
    EXPECT_EQ(fakes.preferences.string(ColorPickerTool::kFormatKey), "rgb");

    tool.pick();
    tool.stop();
    EXPECT_FALSE(fakes.colorSampler.pick(ColorSampler::Color{0, 0, 0})) << "turned off";
    EXPECT_EQ(clipboard(), "rgb(255, 128, 0)");
}

}  // namespace
}  // namespace quorvane
