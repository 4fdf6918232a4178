#pragma once

#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/ScreenCapture.hpp"
#include "platform/TextRecognition.hpp"

namespace quorvane {

// The shortcut (or the menu tile) lets the user drag out an area of the screen; the text in
// it is read and put on the clipboard, in reading order.
class TextFromScreenTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "textFromScreen.shortcut";
    static constexpr const char* kLineBreaksKey = "textFromScreen.keepLineBreaks";
    static constexpr const char* kSymbol = "text.viewfinder";
    // Text is read from twice the pixels a point has on a standard display at least: small
    // print on a 1× monitor is too coarse to read reliably otherwise.
    static constexpr double kMinimumScale = 2;

    TextFromScreenTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    void capture();
    bool isBusy() const { return request_.isActive(); }
    bool keepsLineBreaks() const { return keepLineBreaks_; }
    void setKeepsLineBreaks(bool on);
    const std::string& lastError() const { return lastError_; }

private:
    void areaChosen(std::optional<Rect> area);
    void captured(std::optional<Thumbnail> image, const std::string& error);
    void read(const std::vector<TextRecognition::Observation>& found, const std::string& error);
    void fail(std::string error);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    bool keepLineBreaks_;
    Subscription request_;
    std::string lastError_;
};

}  // namespace quorvane
