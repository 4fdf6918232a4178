#include "tools/system/DefaultAppsTool.hpp"

#include <algorithm>

#include "platform/Preferences.hpp"
#include "tools/system/DefaultAppKind.hpp"

namespace quorvane {

DefaultAppsTool::DefaultAppsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    const auto stored = platform_.preferences.object(kBackupKey);
    if (const auto* record = stored ? stored->dictionary() : nullptr) {
        std::map<std::string, std::string> originals;
        for (const auto& [handler, value] : *record) {
            if (const auto* path = value.string()) {
                originals[handler] = *path;
            }
        }
        backup_ = DefaultAppBackup(std::move(originals));
    }
}

void DefaultAppsTool::start() {
    running_ = true;
    lastError_.clear();
    publish();
}

void DefaultAppsTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    restoreAll();
}

std::optional<std::string> DefaultAppsTool::handlerNow(const std::string& handler) {
    const std::string subject = DefaultAppKind::subject(handler);
    return DefaultAppKind::isScheme(handler)
               ? platform_.defaultApplications.defaultForURLScheme(subject)
               : platform_.defaultApplications.defaultForContentType(subject);
}

void DefaultAppsTool::setHandler(const std::string& handler, const std::string& applicationPath,
                                 DefaultApplications::Completion completion) {
    const std::string subject = DefaultAppKind::subject(handler);
    if (DefaultAppKind::isScheme(handler)) {
        platform_.defaultApplications.setDefaultForURLScheme(applicationPath, subject,
                                                             std::move(completion));
    } else {
        platform_.defaultApplications.setDefaultForContentType(applicationPath, subject,
                                                               std::move(completion));
    }
}

std::optional<std::string> DefaultAppsTool::current(const std::string& kindKey) {
    const auto* kind = DefaultAppKind::find(kindKey);
    return kind != nullptr ? handlerNow(kind->handlers.front()) : std::nullopt;
}

DefaultApplications::Completion DefaultAppsTool::guarded(
    std::function<void(const std::string& error)> work) const {
    return
        [alive = std::weak_ptr<int>(lifetime_), work = std::move(work)](const std::string& error) {
            if (!alive.expired()) {
                work(error);
            }
        };
}

void DefaultAppsTool::choose(const std::string& kindKey, const std::string& applicationPath) {
    const auto* kind = DefaultAppKind::find(kindKey);
    if (kind == nullptr || applicationPath.empty()) {
        return;
    }
    lastError_.clear();
    for (const auto& handler : kind->handlers) {
        const auto before = handlerNow(handler);
        if (before == applicationPath) {
            continue;
        }
        if (backup_.recordBefore(handler, before)) {
            saveBackup();
        }
        const std::string title(kind->title);
        setHandler(handler, applicationPath,
                   guarded([this, title, applicationPath](const std::string& error) {
                       if (!error.empty()) {
                           lastError_ = "Couldn't make " +
                                        DefaultAppChoices::appName(applicationPath) +
                                        " the app for " + title + ": " + error;
                       }
                       publish();
                   }));
    }
    publish();
}

void DefaultAppsTool::restoreAll() {
    std::map<std::string, std::optional<std::string>> now;
    for (const auto& [handler, original] : backup_.originals()) {
        now[handler] = handlerNow(handler);
    }
    const auto changes = backup_.restorations(now);
    // Handlers already back, or with nothing to go back to, are done with.
    for (const auto& entry : std::map(backup_.originals())) {
        const std::string& handler = entry.first;
        if (std::none_of(changes.begin(), changes.end(),
                         [&](const auto& change) { return change.first == handler; })) {
            backup_.drop(handler);
        }
    }
    saveBackup();
    for (const auto& change : changes) {
        // Named copies: lambdas cannot capture structured bindings on every compiler we support.
        const std::string handler = change.first;
        const std::string original = change.second;
        setHandler(handler, original, guarded([this, handler, original](const std::string& error) {
                       if (error.empty()) {
                           backup_.drop(handler);
                           saveBackup();
                       } else {
                           lastError_ = "Couldn't give " + DefaultAppChoices::appName(original) +
                                        " back its files or links: " + error;
                       }
                       publish();
                   }));
    }
    publish();
}

void DefaultAppsTool::saveBackup() {
    if (backup_.originals().empty()) {
        platform_.preferences.remove(kBackupKey);
        return;
    }
    PreferenceValue::Dictionary record;
    for (const auto& [handler, original] : backup_.originals()) {
        record.emplace(handler, original);
    }
    platform_.preferences.set(kBackupKey, std::move(record));
}

}  // namespace quorvane
