#include "input/KeyPressSynthesizer.hpp"

#include <array>

#include "platform/EventField.hpp"
#include "platform/EventSystem.hpp"

namespace quorvane {

namespace {

struct ModifierKey {
    std::uint16_t keyCode;
    std::uint64_t flag;
};

constexpr std::array<ModifierKey, 4> kModifierKeys = {{
    {55, modifierFlag::command},
    {56, modifierFlag::shift},
    {58, modifierFlag::option},
    {59, modifierFlag::control},
}};

}  // namespace

void KeyPressSynthesizer::press(EventSystem& events, std::uint16_t keyCode, std::uint64_t flags,
                                std::optional<std::int64_t> tag) {
    const auto post = [&](std::uint16_t code, bool down, std::uint64_t held) {
        auto event = events.makeKeyEvent(EventSystem::SourceState::combinedSession, code, down);
        if (!event) {
            return;
        }
        event->setFlags(held);
        if (tag) {
            event->setIntegerField(eventField::sourceUserData, *tag);
        }
        events.post(EventSystem::Location::hid, *event);
    };
    std::uint64_t held = 0;
    for (const auto& modifier : kModifierKeys) {
        if ((flags & modifier.flag) != 0) {
            held |= modifier.flag;
            post(modifier.keyCode, true, held);
        }
    }
    post(keyCode, true, flags);
    post(keyCode, false, flags);
    // Released too, or the system would go on believing the modifiers are held.
    for (auto modifier = kModifierKeys.rbegin(); modifier != kModifierKeys.rend(); ++modifier) {
        if ((flags & modifier->flag) != 0) {
            held &= ~modifier->flag;
            post(modifier->keyCode, false, held);
        }
    }
}

}  // namespace quorvane
