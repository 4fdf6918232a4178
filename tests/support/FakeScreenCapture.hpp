#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/ScreenCapture.hpp"

namespace quorvane {

// Screen capture that answers later, like the system: every answer waits in a queue until the
// test calls `settle`, and a request whose Subscription is gone is never answered. A recording
// writes an empty file at its path, so name clashes show up on disk.
struct FakeScreenCapture : ScreenCapture {
    struct Pending {
        std::function<void()> answer;
        bool cancelled = false;
    };
    struct FakeRecording : Recording {
        FakeRecording(FakeScreenCapture& fake, FinishHandler handler)
            : owner(fake), finished(std::move(handler)) {
            ++owner.liveRecordings;
        }
        ~FakeRecording() override {
            --owner.liveRecordings;
            if (answer) {
                answer->cancelled = true;
            }
        }
        void stop() override {
            if (stopped) {
                return;
            }
            stopped = true;
            ++owner.stops;
            answer = std::make_shared<Pending>();
            answer->answer = [handler = finished, error = owner.finishError] { handler(error); };
            owner.queue.push_back(answer);
        }
        FakeScreenCapture& owner;
        FinishHandler finished;
        std::shared_ptr<Pending> answer;
        bool stopped = false;
    };

    Content content;
    std::string contentError;
    std::optional<Rect> area;
    std::string imageError;
    std::string startError;
    std::string finishError;
    bool pngWritable = true;

    std::vector<std::pair<Target, Size>> captures;
    std::vector<RecordingRequest> recordings;
    std::vector<std::string> pngs;
    int areaRequests = 0;
    int liveRecordings = 0;
    int stops = 0;
    std::deque<std::shared_ptr<Pending>> queue;

    // Runs the answers due, and those they lead to.
    void settle() {
        while (!queue.empty()) {
            auto next = queue.front();
            queue.pop_front();
            if (!next->cancelled) {
                next->answer();
            }
        }
    }

    Subscription later(std::function<void()> answer) {
        auto pending = std::make_shared<Pending>();
        pending->answer = std::move(answer);
        queue.push_back(pending);
        return Subscription([pending] { pending->cancelled = true; });
    }

    Subscription shareableContent(ContentHandler handler) override {
        return later([this, handler] {
            if (contentError.empty()) {
                handler(content, {});
            } else {
                handler(std::nullopt, contentError);
            }
        });
    }
    Subscription captureImage(const Target& target, int pixelWidth, int pixelHeight,
                              ImageHandler handler) override {
        captures.emplace_back(target, Size{double(pixelWidth), double(pixelHeight)});
        return later([this, handler, pixelWidth, pixelHeight] {
            if (imageError.empty()) {
                handler(Thumbnail{pixelWidth, pixelHeight, std::make_shared<int>(0)}, {});
            } else {
                handler(std::nullopt, imageError);
            }
        });
    }
    std::unique_ptr<Recording> startRecording(const RecordingRequest& request,
                                              FinishHandler finished, std::string& error) override {
        if (!startError.empty()) {
            error = startError;
            return nullptr;
        }
        recordings.push_back(request);
        std::ofstream(request.path, std::ios::binary) << "";
        return std::make_unique<FakeRecording>(*this, std::move(finished));
    }
    bool writePNG(const Thumbnail& /*image*/, const std::string& path) override {
        if (!pngWritable) {
            return false;
        }
        pngs.push_back(path);
        std::ofstream(path, std::ios::binary) << "png";
        return true;
    }
    Subscription selectArea(AreaHandler handler) override {
        ++areaRequests;
        return later([this, handler] { handler(area); });
    }
};

}  // namespace quorvane
