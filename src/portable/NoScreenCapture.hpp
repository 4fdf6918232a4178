#pragma once

#include "platform/ScreenCapture.hpp"

namespace quorvane {

// No screen capture outside macOS: every request answers at once with the reason.
class NoScreenCapture : public ScreenCapture {
public:
    static constexpr const char* kReason = "Screen capture needs macOS";

    Subscription shareableContent(ContentHandler handler) override {
        handler(std::nullopt, kReason);
        return {};
    }
    Subscription captureImage(const Target& /*target*/, int /*pixelWidth*/, int /*pixelHeight*/,
                              ImageHandler handler) override {
        handler(std::nullopt, kReason);
        return {};
    }
    std::unique_ptr<Recording> startRecording(const RecordingRequest& /*request*/,
                                              FinishHandler /*finished*/,
                                              std::string& error) override {
        error = kReason;
        return nullptr;
    }
    bool writePNG(const Thumbnail& /*image*/, const std::string& /*path*/) override {
        return false;
    }
    Subscription selectArea(AreaHandler handler) override {
        handler(std::nullopt);
        return {};
    }
};

}  // namespace quorvane
