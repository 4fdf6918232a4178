#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/ScreenCapture.hpp"

namespace quorvane {

// One shortcut (or the menu tile) starts recording the display under the pointer, the front
// window or a dragged area, with the Mac's sound and optionally the microphone, into a movie
// file; the same shortcut stops it.
class ScreenRecorderTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "screenRecorder.shortcut";
    static constexpr const char* kSourceKey = "screenRecorder.source";
    static constexpr const char* kSystemAudioKey = "screenRecorder.systemAudio";
    static constexpr const char* kMicrophoneKey = "screenRecorder.microphone";
    static constexpr const char* kCursorKey = "screenRecorder.showsCursor";
    static constexpr const char* kFolderKey = "screenRecorder.folder";
    static constexpr const char* kDefaultFolder = "~/Movies";
    static constexpr const char* kSymbol = "record.circle";

    enum class Source { display, window, area };
    static std::string_view raw(Source source);
    static std::optional<Source> parseSource(std::string_view raw);

    ScreenRecorderTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    // Starts a recording, or stops the one running.
    void toggle();
    bool isRecording() const { return recording_ != nullptr; }
    bool isStopping() const { return stopping_; }
    // The folder recordings go to, "~" expanded; the default when the setting is unusable.
    std::string folder() const;

    Source source() const { return source_; }
    void setSource(Source source);
    bool systemAudio() const { return systemAudio_; }
    void setSystemAudio(bool on);
    bool microphone() const { return microphone_; }
    void setMicrophone(bool on);
    bool showsCursor() const { return showsCursor_; }
    void setShowsCursor(bool on);
    const std::string& folderSetting() const { return folderSetting_; }
    void setFolderSetting(const std::string& folder);
    const std::string& lastSaved() const { return lastSaved_; }
    const std::string& lastError() const { return lastError_; }

private:
    void withContent(std::optional<Rect> area);
    void begin(const ScreenCapture::Content& content, std::optional<Rect> area);
    void finished(const std::string& path, const std::string& error);
    void fail(std::string error);
    void setLastError(std::string error);
    void notify(const std::string& title);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    Source source_;
    bool systemAudio_;
    bool microphone_;
    bool showsCursor_;
    std::string folderSetting_;
    Subscription request_;
    std::unique_ptr<ScreenCapture::Recording> recording_;
    bool stopping_ = false;
    std::string lastSaved_;
    std::string lastError_;
};

}  // namespace quorvane
