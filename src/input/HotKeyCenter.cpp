#include "input/HotKeyCenter.hpp"

#include <algorithm>
#include <cstdlib>

#include "platform/EventField.hpp"

namespace quorvane {

void HotKey::release() {
    if (HotKeyCenter* center = std::exchange(center_, nullptr)) {
        center->unregister(id_);
    }
}

std::uint32_t HotKeyCenter::carbonModifiers(std::uint64_t flags) {
    std::uint32_t modifiers = 0;
    if ((flags & modifierFlag::command) != 0) {
        modifiers += kCommandKey;
    }
    if ((flags & modifierFlag::shift) != 0) {
        modifiers += kShiftKey;
    }
    if ((flags & modifierFlag::option) != 0) {
        modifiers += kOptionKey;
    }
    if ((flags & modifierFlag::control) != 0) {
        modifiers += kControlKey;
    }
    return modifiers;
}

std::optional<HotKey> HotKeyCenter::registerCombo(const KeyCombo& combo,
                                                  std::function<void()> action) {
    if (!isInstalled_) {
        isInstalled_ = true;
        system_.installHandler([this](std::uint32_t id) { dispatch(id); });
    }
    const bool taken = std::any_of(entries_.begin(), entries_.end(), [&](const auto& item) {
        return item.second.combo.keyCode == combo.keyCode &&
               item.second.combo.modifierFlags == combo.modifierFlags;
    });
    if (taken) {
        return std::nullopt;
    }
    // Ids only grow, even past a refusal, so an action can never reach a later shortcut.
    if (nextID_ == 0) {
        std::abort();  // four billion registrations in one process: something is looping
    }
    const std::uint32_t id = nextID_++;
    Entry entry{combo, 0, std::move(action)};
    if (pauseDepth_ == 0 && !registerWithSystem(id, entry)) {
        return std::nullopt;
    }
    entries_.emplace(id, std::move(entry));
    return HotKey(*this, id);
}

bool HotKeyCenter::registerWithSystem(std::uint32_t id, Entry& entry) {
    HotKeySystem::Ref ref = 0;
    const std::int32_t status = system_.registerHotKey(
        entry.combo.keyCode, carbonModifiers(entry.combo.modifierFlags), kSignature, id, ref);
    if (status != 0 || ref == 0) {
        return false;
    }
    entry.ref = ref;
    return true;
}

void HotKeyCenter::unregister(std::uint32_t id) {
    const auto found = entries_.find(id);
    if (found == entries_.end()) {
        return;
    }
    if (found->second.ref != 0) {
        system_.unregisterHotKey(found->second.ref);
    }
    entries_.erase(found);
}

void HotKeyCenter::pause() {
    if (pauseDepth_++ > 0) {
        return;
    }
    for (auto& [id, entry] : entries_) {
        if (entry.ref != 0) {
            system_.unregisterHotKey(std::exchange(entry.ref, 0));
        }
    }
}

void HotKeyCenter::resume() {
    if (pauseDepth_ == 0 || --pauseDepth_ > 0) {
        return;
    }
    // A shortcut that another application took meanwhile stays registered here without the
    // system's part, silently, until its owner gives it back.
    for (auto& [id, entry] : entries_) {
        registerWithSystem(id, entry);
    }
}

void HotKeyCenter::beginRecording(const void* recorder, std::function<void()> stopRecording) {
    if (recorder_ != nullptr && recorder_ != recorder) {
        // The earlier recorder calls endRecording from its stop, which clears it here.
        auto stopEarlier = std::exchange(stopRecording_, nullptr);
        if (stopEarlier) {
            stopEarlier();
        }
    }
    recorder_ = recorder;
    stopRecording_ = std::move(stopRecording);
}

void HotKeyCenter::endRecording(const void* recorder) {
    if (recorder_ == recorder) {
        recorder_ = nullptr;
        stopRecording_ = nullptr;
    }
}

void HotKeyCenter::dispatch(std::uint32_t id) {
    const auto found = entries_.find(id);
    if (found == entries_.end()) {
        return;
    }
    // The action may give its own hot key back, which destroys the entry it lives in.
    const auto action = found->second.action;
    if (action) {
        action();
    }
}

}  // namespace quorvane
