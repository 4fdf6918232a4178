#include "tools/system/ScreenRecorderTool.hpp"

#include <algorithm>

#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"
#include "tools/system/CaptureFileName.hpp"
#include "tools/system/CaptureFolder.hpp"
#include "tools/system/CaptureTargets.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

namespace {

constexpr Seconds kNoticeDuration{2.0};

KeyCombo defaultCombo() {
    KeyCombo combo;
    combo.keyCode = 15;  // R
    combo.modifierFlags = modifierFlag::shift | modifierFlag::option | modifierFlag::command;
    combo.keyLabel = "R";
    return combo;
}

}  // namespace

std::string_view ScreenRecorderTool::raw(Source source) {
    switch (source) {
        case Source::display:
            return "display";
        case Source::window:
            return "window";
        case Source::area:
            return "area";
    }
    return "display";
}

std::optional<ScreenRecorderTool::Source> ScreenRecorderTool::parseSource(std::string_view text) {
    for (const Source source : {Source::display, Source::window, Source::area}) {
        if (raw(source) == text) {
            return source;
        }
    }
    return std::nullopt;
}

ScreenRecorderTool::ScreenRecorderTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey, defaultCombo(), [this] { toggle(); }, [this] { publish(); }),
      source_(parseSource(platform.preferences.string(kSourceKey).value_or(""))
                  .value_or(Source::display)),
      systemAudio_(platform.preferences.boolean(kSystemAudioKey).value_or(true)),
      microphone_(platform.preferences.boolean(kMicrophoneKey).value_or(false)),
      showsCursor_(platform.preferences.boolean(kCursorKey).value_or(true)),
      folderSetting_(platform.preferences.string(kFolderKey).value_or(kDefaultFolder)) {}

void ScreenRecorderTool::start() {
    shortcut_.activate();
    publish();
}

void ScreenRecorderTool::stop() {
    shortcut_.deactivate();
    request_.cancel();
    // The stream stops with its owner and the movie is still finished, so turning the tool off
    // mid-recording keeps what was recorded.
    recording_.reset();
    stopping_ = false;
    publish();
}

std::string ScreenRecorderTool::folder() const {
    const std::string fallback = CaptureFolder::home() + "/Movies";
    return CaptureFileName::folder(folderSetting_, CaptureFolder::home(), fallback);
}

void ScreenRecorderTool::toggle() {
    if (recording_) {
        if (!stopping_) {
            stopping_ = true;
            recording_->stop();
            publish();
        }
        return;
    }
    if (request_.isActive()) {
        return;  // still choosing what to record
    }
    if (source_ == Source::area) {
        request_ = platform_.screenCapture.selectArea([this](std::optional<Rect> area) {
            if (!area) {
                request_ = {};  // Esc
                return;
            }
            withContent(area);
        });
        return;
    }
    withContent(std::nullopt);
}

void ScreenRecorderTool::withContent(std::optional<Rect> area) {
    request_ = platform_.screenCapture.shareableContent(
        [this, area](std::optional<ScreenCapture::Content> content, const std::string& error) {
            request_ = {};
            if (!content) {
                fail("Couldn't see the screen: " + error);
                return;
            }
            begin(*content, area);
        });
}

void ScreenRecorderTool::begin(const ScreenCapture::Content& content, std::optional<Rect> area) {
    std::optional<ScreenCapture::Target> target;
    switch (source_) {
        case Source::display: {
            const auto layout =
                DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
            target = CaptureTargets::display(
                content,
                layout.toAccessibility(Rect(platform_.screens.mouseLocation(), Size{0, 0})).origin);
            break;
        }
        case Source::window: {
            const auto front = platform_.workspace.frontmostApplication();
            if (front) {
                target = CaptureTargets::frontWindow(content, front->pid,
                                                     platform_.windowList.onScreenWindows());
            }
            break;
        }
        case Source::area:
            target = area ? CaptureTargets::area(content, *area) : std::nullopt;
            if (!target) {
                return;  // a click rather than a drag
            }
            break;
    }
    const auto size = target ? CaptureTargets::size(content, *target) : std::nullopt;
    if (!size) {
        fail(source_ == Source::window ? "The app in front has no window to record"
                                       : "There is no display to record");
        return;
    }
    const std::string where = folder();
    if (!CaptureFolder::isFolder(where)) {
        fail("The folder " + where + " doesn't exist");
        return;
    }
    const auto path = CaptureFileName::freePath(
        where,
        CaptureFileName::stem("Screen Recording",
                              CaptureFileName::localTime(platform_.scheduler.date())),
        "mp4", &CaptureFolder::taken);
    if (!path) {
        fail("Too many recordings with this name in " + where);
        return;
    }
    const Size pixels = CaptureTargets::pixels(*size, CaptureTargets::scale(content, *target));
    ScreenCapture::RecordingRequest request;
    request.target = *target;
    request.path = *path;
    request.width = static_cast<int>(pixels.width);
    request.height = static_cast<int>(pixels.height);
    request.capturesAudio = systemAudio_;
    request.capturesMicrophone = microphone_;
    request.showsCursor = showsCursor_;
    std::string error;
    recording_ = platform_.screenCapture.startRecording(
        request, [this, saved = *path](const std::string& failure) { finished(saved, failure); },
        error);
    if (!recording_) {
        fail("Couldn't start recording: " + error);
        return;
    }
    setLastError({});
    notify("Recording");
    publish();
}

void ScreenRecorderTool::finished(const std::string& path, const std::string& error) {
    recording_.reset();
    stopping_ = false;
    if (!error.empty()) {
        fail("The recording stopped: " + error);
        publish();
        return;
    }
    lastSaved_ = path;
    setLastError({});
    notify("Recording saved");
    publish();
}

void ScreenRecorderTool::notify(const std::string& title) {
    HUDCard card;
    card.systemImage = kSymbol;
    card.title = title;
    platform_.input.hud.show(card, false, kNoticeDuration);
}

void ScreenRecorderTool::fail(std::string error) {
    request_ = {};
    platform_.screens.beep();
    setLastError(std::move(error));
}

void ScreenRecorderTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

void ScreenRecorderTool::setSource(Source source) {
    source_ = source;
    platform_.preferences.set(kSourceKey, PreferenceValue(std::string(raw(source))));
    publish();
}

void ScreenRecorderTool::setSystemAudio(bool on) {
    systemAudio_ = on;
    platform_.preferences.set(kSystemAudioKey, PreferenceValue(on));
    publish();
}

void ScreenRecorderTool::setMicrophone(bool on) {
    microphone_ = on;
    platform_.preferences.set(kMicrophoneKey, PreferenceValue(on));
    publish();
}

void ScreenRecorderTool::setShowsCursor(bool on) {
    showsCursor_ = on;
    platform_.preferences.set(kCursorKey, PreferenceValue(on));
    publish();
}

void ScreenRecorderTool::setFolderSetting(const std::string& folder) {
    folderSetting_ = folder;
    platform_.preferences.set(kFolderKey, PreferenceValue(folder));
    publish();
}

std::optional<ToolControl> ScreenRecorderTool::control() {
    return ToolControl{"Record Screen", kSymbol, [this] { return isRecording(); },
                       [this] { toggle(); }};
}

}  // namespace quorvane
