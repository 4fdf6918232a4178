#include "tools/system/TextFromScreenTool.hpp"

#include <algorithm>

#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Preferences.hpp"
#include "platform/Screens.hpp"
#include "platform/TextRecognition.hpp"
#include "tools/system/CaptureTargets.hpp"
#include "tools/system/RecognizedLines.hpp"

namespace quorvane {

namespace {

constexpr Seconds kNoticeDuration{1.5};

KeyCombo defaultCombo() {
    KeyCombo combo;
    combo.keyCode = 17;  // T
    combo.modifierFlags = modifierFlag::shift | modifierFlag::option | modifierFlag::command;
    combo.keyLabel = "T";
    return combo;
}

}  // namespace

TextFromScreenTool::TextFromScreenTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey, defaultCombo(), [this] { capture(); }, [this] { publish(); }),
      keepLineBreaks_(platform.preferences.boolean(kLineBreaksKey).value_or(true)) {}

void TextFromScreenTool::start() {
    shortcut_.activate();
    publish();
}

void TextFromScreenTool::stop() {
    shortcut_.deactivate();
    request_.cancel();
    publish();
}

void TextFromScreenTool::capture() {
    if (request_.isActive()) {
        return;  // one selection at a time
    }
    request_ =
        platform_.screenCapture.selectArea([this](std::optional<Rect> area) { areaChosen(area); });
}

void TextFromScreenTool::areaChosen(std::optional<Rect> area) {
    if (!area) {
        request_ = {};  // Esc
        return;
    }
    request_ = platform_.screenCapture.shareableContent(
        [this, chosen = *area](std::optional<ScreenCapture::Content> content,
                               const std::string& error) {
            if (!content) {
                fail("Couldn't see the screen: " + error);
                return;
            }
            const auto target = CaptureTargets::area(*content, chosen);
            if (!target) {
                request_ = {};  // a click rather than a drag
                return;
            }
            const double scale = std::max(kMinimumScale, CaptureTargets::scale(*content, *target));
            const Size pixels = CaptureTargets::pixels(target->sourceRect->size, scale);
            request_ = platform_.screenCapture.captureImage(
                *target, static_cast<int>(pixels.width), static_cast<int>(pixels.height),
                [this](std::optional<Thumbnail> image, const std::string& failure) {
                    captured(std::move(image), failure);
                });
        });
}

void TextFromScreenTool::captured(std::optional<Thumbnail> image, const std::string& error) {
    if (!image) {
        fail("Couldn't capture the area: " + error);
        return;
    }
    request_ = platform_.textRecognition.recognize(
        *image, true, true,
        [this](const std::vector<TextRecognition::Observation>& found, const std::string& failure) {
            read(found, failure);
        });
}

void TextFromScreenTool::read(const std::vector<TextRecognition::Observation>& found,
                              const std::string& error) {
    request_ = {};
    if (!error.empty()) {
        fail("Couldn't read the text: " + error);
        return;
    }
    const std::string text = RecognizedLines::text(found, keepLineBreaks_);
    HUDCard card;
    card.systemImage = kSymbol;
    if (text.empty()) {
        card.title = "No text found";
    } else {
        platform_.pasteboard.clearContents();
        if (!platform_.pasteboard.setString(text, pasteboard_type::string)) {
            fail("Couldn't put the text on the clipboard");
            return;
        }
        card.title = "Text copied";
    }
    setLastError({});
    platform_.input.hud.show(card, false, kNoticeDuration);
}

void TextFromScreenTool::fail(std::string error) {
    request_ = {};
    platform_.screens.beep();
    setLastError(std::move(error));
}

void TextFromScreenTool::setKeepsLineBreaks(bool on) {
    keepLineBreaks_ = on;
    platform_.preferences.set(kLineBreaksKey, PreferenceValue(on));
    publish();
}

void TextFromScreenTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

std::optional<ToolControl> TextFromScreenTool::control() {
    return ToolControl{"Copy Text", kSymbol, nullptr, [this] { capture(); }};
}

}  // namespace quorvane
