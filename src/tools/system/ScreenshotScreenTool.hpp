#pragma once

#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/ScreenCapture.hpp"

namespace quorvane {

// A screenshot of only the display under the pointer, saved where the system saves its own
// screenshots, under the system's kind of name.
class ScreenshotScreenTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "screenshotScreen.shortcut";
    static constexpr const char* kSymbol = "display.2";
    // Where the system keeps its choice of screenshot folder.
    static constexpr const char* kScreencaptureDomain = "com.apple.screencapture";
    static constexpr const char* kLocationKey = "location";

    ScreenshotScreenTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    void shoot();
    // The system's screenshot folder, else the desktop.
    std::string folder();
    const std::string& lastSaved() const { return lastSaved_; }
    const std::string& lastError() const { return lastError_; }

private:
    void captured(std::optional<Thumbnail> image, const std::string& error);
    void fail(std::string error);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    Subscription request_;
    std::string lastSaved_;
    std::string lastError_;
};

}  // namespace quorvane
