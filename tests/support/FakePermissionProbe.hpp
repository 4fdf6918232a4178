#pragma once

#include "platform/PermissionProbe.hpp"

namespace quorvane {

struct FakePermissionProbe : PermissionProbe {
    bool accessibility = false;
    bool screenCapture = false;
    // What the system's request calls answer (the user's choice in the prompt).
    bool accessibilityPromptAnswer = false;
    bool screenCaptureRequestAnswer = false;
    int accessibilityPrompts = 0;
    int screenCaptureRequests = 0;

    bool isAccessibilityTrusted() override { return accessibility; }
    bool promptForAccessibility() override {
        ++accessibilityPrompts;
        return accessibilityPromptAnswer;
    }
    bool preflightScreenCapture() override { return screenCapture; }
    bool requestScreenCapture() override {
        ++screenCaptureRequests;
        return screenCaptureRequestAnswer;
    }
};

}  // namespace quorvane
