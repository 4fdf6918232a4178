#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "input/HotKey.hpp"
#include "input/KeyCombo.hpp"
#include "platform/HotKeySystem.hpp"

namespace quorvane {

// The one registry of Quorvane's global shortcuts. Tools never register with the system
// themselves: a combo that another tool holds is refused here, one that another application
// holds is refused by the system, and a shortcut recorder can suspend them all while the user
// types a new one. Main thread only.
class HotKeyCenter {
public:
    // "KVLT", the same for every hot key.
    static constexpr std::uint32_t kSignature = 0x4B564C54;
    static constexpr std::uint32_t kCommandKey = 0x100;
    static constexpr std::uint32_t kShiftKey = 0x200;
    static constexpr std::uint32_t kOptionKey = 0x800;
    static constexpr std::uint32_t kControlKey = 0x1000;

    explicit HotKeyCenter(HotKeySystem& system) : system_(system) {}
    HotKeyCenter(const HotKeyCenter&) = delete;
    HotKeyCenter& operator=(const HotKeyCenter&) = delete;

    // The event's modifier flags as Carbon modifiers.
    static std::uint32_t carbonModifiers(std::uint64_t flags);

    // Nothing when the shortcut is taken, by another part of Quorvane (the same key and
    // modifiers, whatever the label) or by another application. While paused, the shortcut is
    // only recorded and goes live on resume.
    [[nodiscard]] std::optional<HotKey> registerCombo(const KeyCombo& combo,
                                                      std::function<void()> action);
    // Suspends every shortcut with the system, keeping the registrations. Pauses nest: the
    // shortcuts go live again only when every pause has been resumed, so one caller's resume
    // cannot wake them while another still needs them quiet.
    void pause();
    void resume();
    bool isPaused() const { return pauseDepth_ > 0; }
    // One shortcut recorder at a time, so that every key press is recorded by exactly one of
    // them: a recorder that starts ends the one recording before it through `stopRecording`.
    void beginRecording(const void* recorder, std::function<void()> stopRecording);
    // Harmless for a recorder that is not the current one.
    void endRecording(const void* recorder);
    // Runs the action of the hot key with this id, if it is still registered.
    void dispatch(std::uint32_t id);

    std::size_t count() const { return entries_.size(); }

private:
    friend class HotKey;
    struct Entry {
        KeyCombo combo;
        HotKeySystem::Ref ref = 0;
        std::function<void()> action;
    };

    void unregister(std::uint32_t id);
    // Registers with the system; false when it refused.
    bool registerWithSystem(std::uint32_t id, Entry& entry);

    HotKeySystem& system_;
    std::map<std::uint32_t, Entry> entries_;
    std::uint32_t nextID_ = 1;
    bool isInstalled_ = false;
    int pauseDepth_ = 0;
    const void* recorder_ = nullptr;
    std::function<void()> stopRecording_;
};

}  // namespace quorvane
