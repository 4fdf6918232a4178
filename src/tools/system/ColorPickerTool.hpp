#pragma once

#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "tools/system/ColorFormat.hpp"

namespace quorvane {

// The shortcut (or the menu tile) opens the system's colour sampler; the colour clicked goes
// to the clipboard as hex, RGB or HSL, and a notice shows what was copied.
class ColorPickerTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "colorPicker.shortcut";
    static constexpr const char* kFormatKey = "colorPicker.format";
    static constexpr const char* kSymbol = "eyedropper";

    ColorPickerTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    void pick();
    bool isPicking() const { return sampling_.isActive(); }
    ColorFormat::Kind format() const { return format_; }
    void setFormat(ColorFormat::Kind kind);
    const std::string& lastPicked() const { return lastPicked_; }
    const std::string& lastError() const { return lastError_; }

private:
    void picked(std::optional<ColorSampler::Color> color);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    ColorFormat::Kind format_;
    Subscription sampling_;
    std::string lastPicked_;
    std::string lastError_;
};

}  // namespace quorvane
