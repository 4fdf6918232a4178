#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/TextRecognition.hpp"

namespace quorvane {

// Text recognition that finds what the test put there, answering when the test settles it.
struct FakeTextRecognition : TextRecognition {
    std::vector<Observation> found;
    std::string error;
    std::vector<Size> images;
    std::deque<std::pair<std::shared_ptr<bool>, std::function<void()>>> queue;

    Subscription recognize(const Thumbnail& image, bool /*accurate*/, bool /*languageCorrection*/,
                           Handler handler) override {
        images.push_back({double(image.width), double(image.height)});
        auto cancelled = std::make_shared<bool>(false);
        queue.emplace_back(cancelled, [this, handler] { handler(found, error); });
        return Subscription([cancelled] { *cancelled = true; });
    }
    void settle() {
        while (!queue.empty()) {
            auto [cancelled, answer] = queue.front();
            queue.pop_front();
            if (!*cancelled) {
                answer();
            }
        }
    }
};

}  // namespace quorvane
