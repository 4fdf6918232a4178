#include "app/PermissionCenter.hpp"

#include "platform/PermissionProbe.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

PermissionCenter::PermissionCenter(PermissionProbe& probe, Scheduler& scheduler,
                                   Workspace& workspace)
    : probe_(probe),
      workspace_(workspace),
      accessibilityGranted_(probe.isAccessibilityTrusted()),
      screenRecordingGranted_(probe.preflightScreenCapture()),
      timer_(scheduler.every(kPollInterval, [this] { refresh(); })) {}

bool PermissionCenter::isGranted(Permission permission) const {
    switch (permission) {
        case Permission::accessibility:
            return accessibilityGranted_;
        case Permission::screenRecording:
            return screenRecordingGranted_;
        case Permission::systemAudioRecording:
            return true;
    }
    return false;
}

void PermissionCenter::refresh() {
    const bool accessibility = probe_.isAccessibilityTrusted();
    const bool screenRecording = probe_.preflightScreenCapture();
    if (accessibility == accessibilityGranted_ && screenRecording == screenRecordingGranted_) {
        return;
    }
    // Each flag that changed is published on its own, as views observe them separately.
    if (accessibility != accessibilityGranted_) {
        accessibilityGranted_ = accessibility;
        publish();
    }
    if (screenRecording != screenRecordingGranted_) {
        screenRecordingGranted_ = screenRecording;
        publish();
    }
    if (onChange) {
        onChange();
    }
}

void PermissionCenter::request(Permission permission) {
    switch (permission) {
        case Permission::screenRecording:
            if (probe_.requestScreenCapture()) {
                refresh();
                return;
            }
            workspace_.openURL(kScreenCaptureSettingsURL);
            return;
        case Permission::accessibility:
            if (probe_.promptForAccessibility()) {
                refresh();
                return;
            }
            workspace_.openURL(kAccessibilitySettingsURL);
            return;
        case Permission::systemAudioRecording:
            // Nothing to ask for in advance; the system lists this on the screen-capture page.
            workspace_.openURL(kScreenCaptureSettingsURL);
            return;
    }
}

}  // namespace quorvane
