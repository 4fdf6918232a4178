#include "tools/system/ColorPickerTool.hpp"

#include "input/InputServices.hpp"
#include "platform/ColorSampler.hpp"
#include "platform/EventField.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

constexpr Seconds kNoticeDuration{1.5};

KeyCombo defaultCombo() {
    KeyCombo combo;
    combo.keyCode = 8;  // C
    combo.modifierFlags = modifierFlag::control | modifierFlag::option | modifierFlag::command;
    combo.keyLabel = "C";
    return combo;
}

}  // namespace

ColorPickerTool::ColorPickerTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey, defaultCombo(), [this] { pick(); }, [this] { publish(); }),
      format_(ColorFormat::parse(platform.preferences.string(kFormatKey).value_or(""))
                  .value_or(ColorFormat::Kind::hex)) {}

void ColorPickerTool::start() {
    shortcut_.activate();
    publish();
}

void ColorPickerTool::stop() {
    shortcut_.deactivate();
    sampling_.cancel();
    publish();
}

void ColorPickerTool::pick() {
    if (sampling_.isActive()) {
        return;  // the sampler is already up
    }
    sampling_ = platform_.colorSampler.sample(
        [this](std::optional<ColorSampler::Color> color) { picked(color); });
    publish();
}

void ColorPickerTool::picked(std::optional<ColorSampler::Color> color) {
    sampling_ = {};
    if (!color) {
        publish();  // Esc: nothing to copy
        return;
    }
    const std::string text = ColorFormat::format(*color, format_);
    platform_.pasteboard.clearContents();
    if (!platform_.pasteboard.setString(text, pasteboard_type::string)) {
        setLastError("Couldn't copy " + text + " to the clipboard");
        return;
    }
    lastPicked_ = text;
    setLastError({});
    HUDCard card;
    card.systemImage = kSymbol;
    card.title = text;
    platform_.input.hud.show(card, false, kNoticeDuration);
    publish();
}

void ColorPickerTool::setFormat(ColorFormat::Kind kind) {
    format_ = kind;
    platform_.preferences.set(kFormatKey, PreferenceValue(std::string(ColorFormat::raw(kind))));
    publish();
}

void ColorPickerTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

std::optional<ToolControl> ColorPickerTool::control() {
    return ToolControl{"Pick Color", kSymbol, nullptr, [this] { pick(); }};
}

}  // namespace quorvane
