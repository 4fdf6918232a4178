#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "platform/StatusItem.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

// Tucks the menu-bar icons left of a separator of its own away: while hidden, the separator is
// far wider than any screen and pushes them off the menu bar's end. A click on the arrow beside
// it shows them until the chosen delay has passed. Turning the tool off removes both items, so
// every icon is back where it was.
class HideMenuBarIconsTool : public Tool {
public:
    static constexpr const char* kAutoHideKey = "hideMenuBarIcons.autoHideSeconds";
    static constexpr std::int64_t kDefaultAutoHide = 10;
    // Wider than any display, so everything left of it is pushed out of sight.
    static constexpr double kHiddenLength = 10000;
    static constexpr double kShownLength = 14;
    static constexpr const char* kSeparatorTitle = "│";
    static constexpr const char* kShowImage = "chevron.left";
    static constexpr const char* kHideImage = "chevron.right";

    HideMenuBarIconsTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~HideMenuBarIconsTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    bool isHiding() const { return hiding_; }
    // Shows the icons, or hides them again.
    void toggle();
    std::int64_t autoHideSeconds() const { return autoHide_; }
    // 0 keeps them shown until the next click; other values than the choices fall back.
    void setAutoHideSeconds(std::int64_t seconds);
    static const std::vector<std::int64_t>& autoHideChoices();

private:
    void setHiding(bool hiding);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::int64_t autoHide_;
    bool hiding_ = false;
    // The arrow is made first, so the separator the system places after it sits on its left.
    std::unique_ptr<StatusItem> arrow_;
    std::unique_ptr<StatusItem> separator_;
    Timer autoHideTimer_;
};

}  // namespace quorvane
