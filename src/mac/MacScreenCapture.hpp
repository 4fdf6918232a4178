#pragma once

#include "platform/ScreenCapture.hpp"

namespace quorvane {

// Screen capture through ScreenCaptureKit; recordings through its recording output.
class MacScreenCapture final : public ScreenCapture {
public:
    Subscription shareableContent(ContentHandler handler) override;
    Subscription captureImage(const Target& target, int pixelWidth, int pixelHeight,
                              ImageHandler handler) override;
    std::unique_ptr<Recording> startRecording(const RecordingRequest& request,
                                              FinishHandler finished, std::string& error) override;
    bool writePNG(const Thumbnail& image, const std::string& path) override;
    Subscription selectArea(AreaHandler handler) override;
};

}  // namespace quorvane
