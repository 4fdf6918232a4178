#include "tools/keyboard/InputSourcePerAppTool.hpp"

#include "platform/KeyboardLayout.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

InputSourcePerAppTool::InputSourcePerAppTool(const ToolDescriptor& descriptor,
                                             const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    newAppSource_ = platform_.preferences.string(kNewAppSourceKey).value_or("");
    const auto stored = platform_.preferences.object(kSourcesKey);
    if (!stored) {
        return;
    }
    const auto* dictionary = stored->dictionary();
    if (dictionary == nullptr) {
        storeUnreadable_ = true;
        return;
    }
    std::map<std::string, std::string> sources;
    for (const auto& [bundleID, value] : *dictionary) {
        if (const auto* id = value.string()) {
            sources[bundleID] = *id;
        }
    }
    memory_ = InputSourceMemory(std::move(sources));
}

void InputSourcePerAppTool::start() {
    stop();
    running_ = true;
    const auto front = platform_.workspace.frontmostApplication();
    frontBundleID_ = front ? front->bundleID : std::string();
    activations_ = platform_.workspace.observe(WorkspaceNotification::didActivateApplication,
                                               [this](const RunningApplication* app) {
                                                   if (app) {
                                                       activated(*app);
                                                   }
                                               });
    sourceChanges_ =
        platform_.keyboardLayout.observeInputSourceChanges([this] { sourceChanged(); });
    publish();
}

void InputSourcePerAppTool::stop() {
    activations_ = {};
    sourceChanges_ = {};
    running_ = false;
    frontBundleID_.clear();
    lastError_.clear();
    publish();
}

void InputSourcePerAppTool::activated(const RunningApplication& app) {
    frontBundleID_ = app.bundleID;
    if (frontBundleID_.empty()) {
        return;
    }
    KeyboardLayout& layout = platform_.keyboardLayout;
    const auto available = layout.inputSources();
    const auto current = layout.currentInputSourceID();
    const auto target = memory_.sourceFor(frontBundleID_, current, available, newAppSource_);
    if (!target) {
        // The app's source was removed from the input menu: from now on it has the one it got.
        if (current && memory_.remembersMissing(frontBundleID_, available) &&
            memory_.remember(frontBundleID_, *current)) {
            save();
        }
        return;
    }
    // The change notification that follows learns the same source again, which changes nothing.
    // ⚠ Some input methods of Chinese, Japanese and Korean take the selection only after the
    // focus moves; the tool does not work around that.
    const std::string error =
        layout.selectInputSource(*target) ? "" : "Couldn't switch to " + sourceName(*target);
    if (error != lastError_) {
        lastError_ = error;
        publish();
    }
}

void InputSourcePerAppTool::sourceChanged() {
    const auto current = platform_.keyboardLayout.currentInputSourceID();
    if (current && memory_.remember(frontBundleID_, *current)) {
        save();
    }
}

void InputSourcePerAppTool::setNewAppSource(const std::string& sourceID) {
    newAppSource_ = sourceID;
    platform_.preferences.set(kNewAppSourceKey, newAppSource_);
    publish();
}

void InputSourcePerAppTool::forget(const std::string& bundleID) {
    if (memory_.forget(bundleID)) {
        save();
    }
}

void InputSourcePerAppTool::save() {
    if (!storeUnreadable_) {
        PreferenceValue::Dictionary dictionary;
        for (const auto& [bundleID, id] : memory_.sources()) {
            dictionary.emplace(bundleID, id);
        }
        platform_.preferences.set(kSourcesKey, std::move(dictionary));
    }
    publish();
}

std::string InputSourcePerAppTool::sourceName(const std::string& id) {
    for (const auto& source : platform_.keyboardLayout.inputSources()) {
        if (source.id == id) {
            return source.name;
        }
    }
    return id;
}

}  // namespace quorvane
