#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/DisplayControl.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

class Event;

// The brightness of external displays, from the brightness keys (for the display with the
// pointer) or a slider. A display that answers DDC/CI changes its own backlight; any other is
// dimmed through its gamma table. Turning the tool off gives every display back the brightness
// and colours it had before.
class DisplayBrightnessTool : public Tool {
public:
    static constexpr const char* kKeysKey = "displayBrightness.keys";
    // Software levels by display, so a dimmed display is dimmed again when the tool starts.
    static constexpr const char* kLevelsKey = "displayBrightness.levels";
    // Each display's DDC brightness before Quorvane first changed it, kept until it is put back,
    // so a crash is undone on the next stop or launch.
    static constexpr const char* kOriginalsKey = "displayBrightness.originals";
    // DDC/CI wants 40 ms between a request and reading its reply.
    static constexpr Seconds kReplyDelay{0.05};
    static constexpr Seconds kCardDuration{1.5};
    static constexpr const char* kNoTap =
        "Quorvane couldn't watch the brightness keys. Allow it under Accessibility in System "
        "Settings; the sliders work without it.";

    enum class Method { probing, ddc, gamma, none };
    struct Screen {
        DisplayControl::Display display;
        Method method = Method::probing;
        std::uint16_t maximum = 0;
        double level = 1;
        DisplayControl::GammaTable original;
    };

    DisplayBrightnessTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~DisplayBrightnessTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    const std::vector<Screen>& screens() const { return screens_; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    bool usesKeys() const { return keys_; }
    void setUsesKeys(bool on);
    // 0…1 for the display with this CGDirectDisplayID; ignored while it is being probed.
    void setLevel(std::uint32_t display, double level);

private:
    void probe();
    void readReplies();
    void useGamma(Screen& screen);
    bool handle(Event& event);
    void putBack();
    void putBackDdc(const std::vector<DisplayControl::Display>& displays);
    void fail(const std::string& what, int status);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool keys_;
    bool running_ = false;
    bool gammaChanged_ = false;
    std::optional<std::string> lastError_;
    std::vector<Screen> screens_;
    std::unique_ptr<EventTap> tap_;
    Subscription reconfiguration_;
    Timer replyTimer_;
};

}  // namespace quorvane
