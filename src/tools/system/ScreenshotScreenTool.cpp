#include "tools/system/ScreenshotScreenTool.hpp"

#include <algorithm>

#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Screens.hpp"
#include "tools/system/CaptureFileName.hpp"
#include "tools/system/CaptureFolder.hpp"
#include "tools/system/CaptureTargets.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

namespace {

constexpr Seconds kNoticeDuration{1.5};

KeyCombo defaultCombo() {
    KeyCombo combo;
    combo.keyCode = 20;  // 3
    combo.modifierFlags = modifierFlag::shift | modifierFlag::command;
    combo.keyLabel = "3";
    return combo;
}

}  // namespace

ScreenshotScreenTool::ScreenshotScreenTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey, defaultCombo(), [this] { shoot(); }, [this] { publish(); }) {}

void ScreenshotScreenTool::start() {
    shortcut_.activate();
    publish();
}

void ScreenshotScreenTool::stop() {
    shortcut_.deactivate();
    request_.cancel();
    publish();
}

std::string ScreenshotScreenTool::folder() {
    const std::string desktop = CaptureFolder::home() + "/Desktop";
    const auto location = platform_.preferenceDomains.copyValue(kLocationKey, kScreencaptureDomain,
                                                                PreferenceHost::any);
    const std::string* chosen = location ? location->string() : nullptr;
    const std::string path =
        CaptureFileName::folder(chosen != nullptr ? *chosen : "", CaptureFolder::home(), desktop);
    return CaptureFolder::isFolder(path) ? path : desktop;
}

void ScreenshotScreenTool::shoot() {
    if (request_.isActive()) {
        return;
    }
    // Where the pointer is now, not when the answer comes.
    const auto layout = DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    const Point pointer =
        layout.toAccessibility(Rect(platform_.screens.mouseLocation(), Size{0, 0})).origin;
    request_ = platform_.screenCapture.shareableContent(
        [this, pointer](std::optional<ScreenCapture::Content> content, const std::string& error) {
            if (!content) {
                fail("Couldn't see the screen: " + error);
                return;
            }
            const auto target = CaptureTargets::display(*content, pointer);
            const auto size = target ? CaptureTargets::size(*content, *target) : std::nullopt;
            if (!size) {
                fail("There is no display to capture");
                return;
            }
            const Size pixels =
                CaptureTargets::pixels(*size, CaptureTargets::scale(*content, *target));
            request_ = platform_.screenCapture.captureImage(
                *target, static_cast<int>(pixels.width), static_cast<int>(pixels.height),
                [this](std::optional<Thumbnail> image, const std::string& failure) {
                    captured(std::move(image), failure);
                });
        });
}

void ScreenshotScreenTool::captured(std::optional<Thumbnail> image, const std::string& error) {
    request_ = {};
    if (!image) {
        fail("Couldn't capture the screen: " + error);
        return;
    }
    const std::string where = folder();
    const auto path = CaptureFileName::freePath(
        where,
        CaptureFileName::stem("Screenshot", CaptureFileName::localTime(platform_.scheduler.date())),
        "png", &CaptureFolder::taken);
    if (!path) {
        fail("Too many screenshots with this name in " + where);
        return;
    }
    if (!platform_.screenCapture.writePNG(*image, *path)) {
        fail("Couldn't save the screenshot in " + where);
        return;
    }
    lastSaved_ = *path;
    setLastError({});
    HUDCard card;
    card.systemImage = kSymbol;
    card.title = "Screenshot saved";
    platform_.input.hud.show(card, false, kNoticeDuration);
    publish();
}

void ScreenshotScreenTool::fail(std::string error) {
    request_ = {};
    platform_.screens.beep();
    setLastError(std::move(error));
}

void ScreenshotScreenTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
