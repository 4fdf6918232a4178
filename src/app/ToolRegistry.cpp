#include "app/ToolRegistry.hpp"

#include <algorithm>

#include "app/PermissionCenter.hpp"
#include "platform/NotificationBus.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

char foldASCII(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string folded(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), foldASCII);
    return result;
}

bool endsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

// A whole word, or else its stem after the first of the suffixes that yields a match; a
// doubled last letter of the stem is tried single as well ("snapping" → "snapp" → "snap").
bool wordMatches(std::string_view text, std::string_view word) {
    if (text.find(word) != std::string_view::npos) {
        return true;
    }
    for (const std::string_view suffix : {"ing", "es", "ed", "s"}) {
        if (word.size() <= suffix.size() + 3 || !endsWith(word, suffix)) {
            continue;
        }
        const std::string_view stem = word.substr(0, word.size() - suffix.size());
        if (text.find(stem) != std::string_view::npos) {
            return true;
        }
        const std::size_t n = stem.size();
        if (n >= 2 && stem[n - 1] == stem[n - 2] &&
            text.find(stem.substr(0, n - 1)) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string ToolRegistry::enabledKey(std::string_view id) {
    return "tool." + std::string(id) + ".enabled";
}

ToolRegistry::ToolRegistry(std::vector<std::unique_ptr<Tool>> tools, PermissionCenter& permissions,
                           Preferences& preferences, NotificationBus& notifications)
    : tools_(std::move(tools)),
      permissions_(permissions),
      preferences_(preferences),
      enabledIDs_(storedEnabledIDs()),
      controlIDs_(storedControlIDs()) {
    turnOffToken_ = notifications.observe(
        kTurnedItselfOff,
        [this](const std::optional<std::string>& id) { handleSelfSwitch(id, false); });
    turnOnToken_ = notifications.observe(
        kTurnedItselfOn,
        [this](const std::optional<std::string>& id) { handleSelfSwitch(id, true); });
}

ToolRegistry::~ToolRegistry() = default;

std::set<std::string> ToolRegistry::storedEnabledIDs() const {
    std::set<std::string> ids;
    for (const auto& tool : tools_) {
        if (isEnabled(*tool, preferences_)) {
            ids.insert(tool->id());
        }
    }
    return ids;
}

std::vector<std::string> ToolRegistry::storedControlIDs() const {
    // Ids of tools that no longer exist are dropped here; the pruned list is written back only
    // with the next change, so a downgrade does not lose a newer version's tiles for nothing.
    std::vector<std::string> ids;
    for (auto& id : preferences_.stringArray(kControlsKey).value_or(std::vector<std::string>{})) {
        if (indexOfTool(id) && std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(std::move(id));
        }
    }
    return ids;
}

void ToolRegistry::reloadPreferences() {
    auto enabled = storedEnabledIDs();
    auto controls = storedControlIDs();
    if (enabled != enabledIDs_ || controls != controlIDs_) {
        enabledIDs_ = std::move(enabled);
        controlIDs_ = std::move(controls);
        publish();
    }
    reconcile();
}

bool ToolRegistry::isEnabled(const Tool& tool, const Preferences& defaults) {
    return defaults.boolean(enabledKey(tool.id())).value_or(tool.isEnabledByDefault());
}

void ToolRegistry::setEnabled(bool on, Tool& tool, bool offerSetup) {
    const bool changed =
        on ? enabledIDs_.insert(tool.id()).second : enabledIDs_.erase(tool.id()) > 0;
    preferences_.set(enabledKey(tool.id()), on);
    if (changed) {
        publish();
    }
    reconcile();
    if (on && offerSetup && (tool.needsSetup() || tool.opensSettingsWhenTurnedOn()) &&
        onNeedsSetup) {
        onNeedsSetup(tool);
    }
}

void ToolRegistry::setInControls(bool on, Tool& tool) {
    std::erase(controlIDs_, tool.id());
    if (on) {
        controlIDs_.push_back(tool.id());
    }
    preferences_.set(kControlsKey, PreferenceValue::stringArray(controlIDs_));
    publish();
}

std::optional<std::size_t> ToolRegistry::indexOfTool(std::string_view id) const {
    for (std::size_t i = 0; i < tools_.size(); ++i) {
        if (tools_[i]->id() == id) {
            return i;
        }
    }
    return std::nullopt;
}

std::vector<Permission> ToolRegistry::permissionsNeeded(
    const std::function<bool(const Tool&)>& counts) const {
    std::vector<Permission> needed;
    for (const auto permission : kAllPermissions) {
        const bool used = std::any_of(tools_.begin(), tools_.end(), [&](const auto& tool) {
            const auto& required = tool->requiredPermissions();
            return tool->isAvailable() && counts(*tool) &&
                   std::find(required.begin(), required.end(), permission) != required.end();
        });
        if (used) {
            needed.push_back(permission);
        }
    }
    return needed;
}

Tool* ToolRegistry::tool(std::string_view id) const {
    const auto index = indexOfTool(id);
    return index ? tools_[*index].get() : nullptr;
}

bool ToolRegistry::matches(const Tool& tool, const std::vector<std::string>& words) {
    if (words.empty()) {
        return true;
    }
    std::string text =
        tool.name() + " " + tool.summary() + " " + std::string(title(tool.category()));
    for (const auto& keyword : tool.keywords()) {
        text += " " + keyword;
    }
    text = folded(text);
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return wordMatches(text, folded(word)); });
}

std::vector<std::string> ToolRegistry::searchWords(std::string_view query) {
    std::vector<std::string> words;
    std::string current;
    for (const char c : query) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v') {
            if (!current.empty()) {
                words.push_back(folded(current));
                current.clear();
            }
        } else {
            current.push_back(c);
        }
    }
    if (!current.empty()) {
        words.push_back(folded(current));
    }
    return words;
}

void ToolRegistry::reconcile() {
    bool changed = false;
    for (const auto& tool : tools_) {
        const std::string& id = tool->id();
        const auto& required = tool->requiredPermissions();
        const bool permitted = std::all_of(required.begin(), required.end(),
                                           [&](Permission p) { return permissions_.isGranted(p); });
        if (enabledIDs_.contains(id) && permitted) {
            if (!runningIDs_.contains(id)) {
                tool->start();
                runningIDs_.insert(id);
                changed = true;
            }
        } else if (runningIDs_.contains(id)) {
            tool->stop();
            runningIDs_.erase(id);
            tidiedIDs_.insert(id);
            changed = true;
        } else if (!tidiedIDs_.contains(id)) {
            tool->tidy();
            tidiedIDs_.insert(id);
        }
    }
    if (changed) {
        publish();
    }
}

void ToolRegistry::stopAll() {
    for (const auto& tool : tools_) {
        if (runningIDs_.contains(tool->id())) {
            tool->stop();
        }
    }
    if (!runningIDs_.empty()) {
        runningIDs_.clear();
        publish();
    }
}

void ToolRegistry::handleSelfSwitch(const std::optional<std::string>& id, bool on) {
    if (!id) {
        return;
    }
    if (Tool* target = tool(*id)) {
        // A tool that switches itself on never opens its settings.
        setEnabled(on, *target, false);
    }
}

}  // namespace quorvane
