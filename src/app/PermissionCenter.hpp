#pragma once

#include <functional>

#include "app/Permission.hpp"
#include "base/Observable.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

class PermissionProbe;
class Workspace;

// Knows whether the two testable permissions are granted and notices, by polling, when the user
// flips them in System Settings while Quorvane runs. There is no test for system audio
// recording: the audio tools ask for it the moment they first tap an app's audio.
class PermissionCenter : public Observable {
public:
    static constexpr Seconds kPollInterval{2.0};
    static constexpr const char* kAccessibilitySettingsURL =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
    static constexpr const char* kScreenCaptureSettingsURL =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture";

    PermissionCenter(PermissionProbe& probe, Scheduler& scheduler, Workspace& workspace);

    bool accessibilityGranted() const { return accessibilityGranted_; }
    bool screenRecordingGranted() const { return screenRecordingGranted_; }
    // Whether the permission counts as granted when deciding which tools may run. System audio
    // recording always does: it cannot be tested in advance.
    bool isGranted(Permission permission) const;

    // Called at most once per poll, and only when a flag actually changed.
    std::function<void()> onChange;

    void refresh();
    // The "Open System Settings" button of a permission's card.
    void request(Permission permission);

private:
    PermissionProbe& probe_;
    Workspace& workspace_;
    bool accessibilityGranted_;
    bool screenRecordingGranted_;
    Timer timer_;
};

}  // namespace quorvane
