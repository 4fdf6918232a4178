#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "base/Subscription.hpp"
#include "platform/Thumbnail.hpp"

namespace quorvane {

// Pictures and recordings of the screen through ScreenCaptureKit: what may be captured, one
// image of a display or window, and a stream written straight to a movie file. Every answer
// comes later on the main thread; destroying the returned Subscription means the handler is
// never called.
class ScreenCapture {
public:
    // SCDisplay.
    struct Display {
        std::uint32_t displayID = 0;
        Rect frame;        // global coordinates, top-left origin like accessibility frames
        double scale = 1;  // pixels per point (SCShareableContentInfo.pointPixelScale)
        friend bool operator==(const Display&, const Display&) = default;
    };
    // SCWindow.
    struct Window {
        std::uint32_t windowID = 0;  // the window server's number, as in WindowInfo
        int pid = 0;                 // the owning application's process
        std::string title;
        Rect frame;
        int layer = 0;
        bool onScreen = false;
        double scale = 1;  // pixels per point of the display it is on
        friend bool operator==(const Window&, const Window&) = default;
    };
    // SCShareableContent.
    struct Content {
        std::vector<Display> displays;
        std::vector<Window> windows;
    };
    // A content filter with the configuration's source rectangle: a whole display, part of it
    // (in the display's own points, top-left origin), or one window wherever it is.
    struct Target {
        enum class Kind { display, window };
        Kind kind = Kind::display;
        std::uint32_t id = 0;
        std::optional<Rect> sourceRect;
        friend bool operator==(const Target&, const Target&) = default;
    };
    struct RecordingRequest {
        Target target;
        std::string path;  // the movie file to write; it must not exist yet
        int width = 0;     // output pixels
        int height = 0;
        bool capturesAudio = true;  // the Mac's own sound
        bool capturesMicrophone = false;
        bool showsCursor = true;
    };
    // A stream recording to a file. Destroying it stops the stream too, and the file is
    // finished all the same, but the finish handler is then never called.
    class Recording {
    public:
        virtual ~Recording() = default;
        // Stops the stream; the finish handler is told once the file is complete.
        virtual void stop() = 0;
    };

    using ContentHandler =
        std::function<void(std::optional<Content> content, const std::string& error)>;
    using ImageHandler =
        std::function<void(std::optional<Thumbnail> image, const std::string& error)>;
    // Called once: an empty error when the file was written.
    using FinishHandler = std::function<void(const std::string& error)>;
    using AreaHandler = std::function<void(std::optional<Rect> area)>;

    virtual ~ScreenCapture() = default;

    // The displays and the on-screen windows, desktop elements left out.
    [[nodiscard]] virtual Subscription shareableContent(ContentHandler handler) = 0;
    // One frame of the target, scaled to `pixelWidth` × `pixelHeight`.
    [[nodiscard]] virtual Subscription captureImage(const Target& target, int pixelWidth,
                                                    int pixelHeight, ImageHandler handler) = 0;
    // Nothing, with `error` set, when the stream could not be set up.
    virtual std::unique_ptr<Recording> startRecording(const RecordingRequest& request,
                                                      FinishHandler finished,
                                                      std::string& error) = 0;
    // Writes an image as a PNG file; false when it could not.
    virtual bool writePNG(const Thumbnail& image, const std::string& path) = 0;
    // Lets the user drag out a rectangle on any display (Esc cancels); nothing when cancelled.
    // Accessibility coordinates. Apps are not offered the system's own selection, so this is
    // a full-screen crosshair of our own.
    [[nodiscard]] virtual Subscription selectArea(AreaHandler handler) = 0;
};

}  // namespace quorvane
