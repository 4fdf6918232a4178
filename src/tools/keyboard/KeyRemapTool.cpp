#include "tools/keyboard/KeyRemapTool.hpp"

#include <algorithm>

#include "platform/ChildProcesses.hpp"
#include "platform/HIDEventServices.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/keyboard/HidutilCommand.hpp"

namespace quorvane {

KeyRemapTool::KeyRemapTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    if (const auto data = platform_.preferences.data(kMappingsKey)) {
        // A damaged list starts empty here and stays stored as it is until the user
        // changes it.
        mappings_ = Mapping::decode(
                        std::string_view(reinterpret_cast<const char*>(data->data()), data->size()))
                        .value_or(std::vector<Mapping>{});
    }
    hasApplied_ = platform_.preferences.boolean(kAppliedKey).value_or(false);
}

void KeyRemapTool::start() {
    isActive_ = true;
    apply(mappings_);
    wakeToken_ = platform_.workspace.observe(
        WorkspaceNotification::didWake, [this](const RunningApplication*) { apply(mappings_); });
    publish();
}

void KeyRemapTool::stop() {
    isActive_ = false;
    wakeToken_ = {};
    if (hasApplied_) {
        apply({});
    }
    publish();
}

void KeyRemapTool::tidy() {
    // A table left by an earlier run that ended without switching the tool off.
    if (hasApplied_) {
        apply({});
    }
}

SystemModifierMappings KeyRemapTool::systemMappings() {
    PreferenceDomains& domains = platform_.preferenceDomains;
    const std::string global = PreferenceDomains::kAnyApplication;
    return SystemModifierMappings::collect(
        domains.copyKeyList(global, PreferenceHost::current),
        [&](const std::string& key) {
            return domains.copyValue(key, global, PreferenceHost::current);
        },
        [this](std::int64_t vendorID, std::int64_t productID) -> std::optional<bool> {
            const auto value = platform_.hidEventServices.property(vendorID, productID, "Built-In");
            if (!value) {
                return std::nullopt;
            }
            if (const auto* flag = value->boolean()) {
                return *flag;
            }
            // Some drivers publish the flag as a number.
            if (const auto* number = value->integer()) {
                return *number != 0;
            }
            return std::nullopt;
        });
}

std::optional<std::vector<std::vector<std::string>>> KeyRemapTool::plannedCalls(
    const std::vector<Mapping>& mappings) {
    if (mappings.empty() && !hasApplied_) {
        return std::nullopt;
    }
    const auto system = systemMappings();
    std::vector<std::vector<std::string>> calls;
    for (const bool builtIn : {true, false}) {
        calls.push_back(
            HidutilCommand::arguments(builtIn, HidutilCommand::table(mappings, system, builtIn)));
    }
    return calls;
}

void KeyRemapTool::apply(const std::vector<Mapping>& mappings) {
    const auto calls = plannedCalls(mappings);
    if (!calls) {
        return;
    }
    bool accepted = true;
    for (const auto& arguments : *calls) {
        // Both run even when the first fails: the other kind of keyboard should not
        // lose out.
        accepted =
            platform_.childProcesses.run(HidutilCommand::kPath, arguments).succeeded() && accepted;
    }
    lastError_ = accepted ? "" : kRejected;
    hasApplied_ = !mappings.empty();
    platform_.preferences.set(kAppliedKey, hasApplied_);
    publish();
}

void KeyRemapTool::setMappings(std::vector<Mapping> mappings) {
    mappings_ = std::move(mappings);
    const std::string text = Mapping::encode(mappings_);
    platform_.preferences.set(kMappingsKey, PreferenceValue::Data(text.begin(), text.end()));
    if (isActive_) {
        apply(mappings_);
    }
    publish();
}

void KeyRemapTool::addPreset(const Preset& preset) {
    auto list = mappings_;
    for (auto& mapping : preset.makeMappings()) {
        list.push_back(mapping);
    }
    setMappings(std::move(list));
}

void KeyRemapTool::add(Key from, Key to, Keyboards keyboards) {
    auto list = mappings_;
    list.push_back({Uuid::random(), from, to, keyboards});
    setMappings(std::move(list));
}

bool KeyRemapTool::remove(const Uuid& id) {
    auto list = mappings_;
    if (std::erase_if(list, [&](const Mapping& mapping) { return mapping.id == id; }) == 0) {
        return false;
    }
    setMappings(std::move(list));
    return true;
}

void KeyRemapTool::replace(std::size_t index, Mapping mapping) {
    if (index >= mappings_.size() || mappings_[index] == mapping) {
        return;
    }
    auto list = mappings_;
    list[index] = mapping;
    setMappings(std::move(list));
}

}  // namespace quorvane
