#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "tools/keyboard/Mapping.hpp"
#include "tools/keyboard/Preset.hpp"
#include "tools/keyboard/SystemModifierMappings.hpp"

namespace quorvane {

// Turns one key into another by handing the whole table to the system's HID
// event services through hidutil; nothing here sees a key press. The system
// forgets the table across restarts and some sleeps, so it is set again on
// every wake; and since Quorvane may have quit or crashed with a table set,
// "keyRemap.applied" remembers that one is, for the next launch to clear while
// the tool is off.
class KeyRemapTool : public Tool {
public:
    static constexpr const char* kMappingsKey = "keyRemap.mappings";
    static constexpr const char* kAppliedKey = "keyRemap.applied";
    static constexpr const char* kRejected = "macOS rejected the key mapping.";
    // The settings page has picker rows for this many mappings, or for all of
    // them if more.
    static constexpr std::size_t kPickerSlots = 32;

    KeyRemapTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override;
    SettingsPage settingsPage() override;

    const std::vector<Mapping>& mappings() const { return mappings_; }
    // Stores the list and, while on, hands it to the system at once.
    void setMappings(std::vector<Mapping> mappings);
    void addPreset(const Preset& preset);
    void add(Key from, Key to, Keyboards keyboards);
    // Removes the mapping with this id; false when there is none.
    bool remove(const Uuid& id);
    const std::string& lastError() const { return lastError_; }
    bool isActive() const { return isActive_; }
    bool hasApplied() const { return hasApplied_; }

    // What System Settings › Keyboard › Modifier Keys holds for the attached
    // keyboards.
    SystemModifierMappings systemMappings();
    // The hidutil arguments of the two calls an apply of `mappings` makes (the
    // built-in keyboards' first), or nothing when it would make none.
    std::optional<std::vector<std::vector<std::string>>> plannedCalls(
        const std::vector<Mapping>& mappings);

private:
    void apply(const std::vector<Mapping>& mappings);
    void replace(std::size_t index, Mapping mapping);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<Mapping> mappings_;
    std::string lastError_;
    bool isActive_ = false;
    bool hasApplied_ = false;
    Subscription wakeToken_;
};

}  // namespace quorvane
