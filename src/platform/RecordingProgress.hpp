#pragma once

#include <string>
#include <utility>

#include "platform/ScreenCapture.hpp"

namespace quorvane {

// A recording's one answer. The stream is set up only after the content it films has been
// found, so a stop can come before it begins; and once it runs, the stream, the file output
// and the stop can each fail or finish. The first of these is the answer. Once the owner has
// forgotten the recording, nothing is answered.
class RecordingProgress {
public:
    RecordingProgress() = default;
    explicit RecordingProgress(ScreenCapture::FinishHandler handler)
        : handler_(std::move(handler)) {}

    // The content to film was looked for, and `found` or not (`failure` says why). True when
    // the stream is to be set up now; otherwise the answer has been given.
    bool begins(bool found, const std::string& failure);
    void stopRequested() { stopRequested_ = true; }
    // An empty error means the movie file is complete. Only the first call counts.
    void report(const std::string& error);
    void forget() { forgotten_ = true; }

private:
    ScreenCapture::FinishHandler handler_;
    bool stopRequested_ = false;
    bool reported_ = false;
    bool forgotten_ = false;
};

}  // namespace quorvane
