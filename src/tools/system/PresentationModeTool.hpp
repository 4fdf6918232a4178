#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/PowerAssertion.hpp"
#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/ChildProcessRun.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// One switch for presenting: keeps the Mac and its display awake, hides the desktop icons and
// runs a Shortcut of the user's choice (macOS lets apps change Focus only that way), with a
// second Shortcut to run when it ends. Everything is undone on stop. A Shortcut may take a
// while, so it runs beside Quorvane and the page shows it until it ends; the start Shortcut
// still running when the presentation ends is stopped before the end one runs.
class PresentationModeTool : public Tool {
public:
    static constexpr const char* kHideIconsKey = "presentationMode.hideDesktopIcons";
    static constexpr const char* kStartShortcutKey = "presentationMode.startShortcut";
    static constexpr const char* kEndShortcutKey = "presentationMode.endShortcut";
    // Present while this tool's hiding of the icons is in force, so a crash is undone at the
    // next launch without touching a hiding that belongs to the hide-desktop-icons tool.
    static constexpr const char* kHidingKey = "presentationMode.hidingIcons";
    static constexpr const char* kShortcutsPath = "/usr/bin/shortcuts";
    static constexpr const char* kAssertionName = "Quorvane Presentation Mode";

    PresentationModeTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~PresentationModeTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    bool isPresenting() const { return running_; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    // The Shortcut still running, if any.
    const std::optional<std::string>& runningShortcut() const { return runningShortcut_; }
    void setHidesDesktopIcons(bool on);
    void setStartShortcut(const std::string& name);
    void setEndShortcut(const std::string& name);

private:
    void hideIcons();
    void showIcons();
    void runShortcut(const std::string& name);
    void fail(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool hideIcons_;
    std::string startShortcut_;
    std::string endShortcut_;
    bool running_ = false;
    std::optional<std::string> lastError_;
    std::unique_ptr<PowerAssertion> assertion_;
    std::optional<std::string> runningShortcut_;
    std::unique_ptr<ChildProcessRun> shortcut_;
};

}  // namespace quorvane
