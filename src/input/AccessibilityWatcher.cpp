#include "input/AccessibilityWatcher.hpp"

#include "platform/Workspace.hpp"

namespace quorvane {

AccessibilityWatcher::AccessibilityWatcher(Accessibility& accessibility, Workspace& workspace,
                                           Scheduler& scheduler,
                                           std::vector<std::string> notifications, Handler handler)
    : accessibility_(accessibility),
      workspace_(workspace),
      scheduler_(scheduler),
      notifications_(std::move(notifications)),
      handler_(std::move(handler)) {}

AccessibilityWatcher::~AccessibilityWatcher() {
    stop();
}

int AccessibilityWatcher::pendingAttempt(int pid) const {
    const auto found = pending_.find(pid);
    return found == pending_.end() ? 0 : found->second;
}

void AccessibilityWatcher::start() {
    if (isActive_) {
        return;
    }
    isActive_ = true;
    // Every accessibility call waits for the other application to answer; a hung one could
    // otherwise stall Quorvane's main thread for the system's much longer default.
    accessibility_.setMessagingTimeout(accessibility_.systemWide(), kMessagingTimeout);
    workspaceTokens_.push_back(workspace_.observe(WorkspaceNotification::didLaunchApplication,
                                                  [this](const RunningApplication* app) {
                                                      if (app != nullptr) {
                                                          attach(app->pid, true, 0);
                                                      }
                                                  }));
    workspaceTokens_.push_back(workspace_.observe(WorkspaceNotification::didTerminateApplication,
                                                  [this](const RunningApplication* app) {
                                                      if (app != nullptr) {
                                                          detach(app->pid);
                                                      }
                                                  }));
    // Not every application is announced by a launch notification; the list catches the rest.
    // Only an attach that a launch notification caused counts as launched.
    workspaceTokens_.push_back(workspace_.observeRunningApplications([this] {
        listTask_ = scheduler_.post([this] {
            for (const auto& app : workspace_.runningApplications()) {
                attach(app.pid, false, 0);
            }
        });
    }));
    for (const auto& app : workspace_.runningApplications()) {
        attach(app.pid, false, 0);
    }
}

void AccessibilityWatcher::stop() {
    isActive_ = false;
    workspaceTokens_.clear();
    listTask_.cancel();
    retries_.clear();
    observers_.clear();
    pending_.clear();
}

void AccessibilityWatcher::attach(int pid, bool launched, int attempt) {
    if (!isActive_ || observers_.contains(pid) || pid == workspace_.currentProcessID()) {
        return;
    }
    const auto app = workspace_.runningApplication(pid);
    // Agents and background processes have no windows worth watching.
    if (!app || app->terminated ||
        app->activationPolicy != RunningApplication::ActivationPolicy::regular) {
        return;
    }
    // A retry belongs to the chain now pending, or to none at all.
    if (attempt >= 1 && pendingAttempt(pid) != attempt) {
        return;
    }
    std::int32_t status = Accessibility::kSuccess;
    auto observer = accessibility_.createObserver(
        pid,
        [this, pid](const Element& element, const std::string& notification) {
            handler_(element, notification, pid);
        },
        status);
    if (!observer) {
        return;
    }
    const Element application = accessibility_.application(pid);
    bool ready = true;
    for (const auto& name : notifications_) {
        const std::int32_t result = observer->addNotification(application, name);
        if (result != Accessibility::kSuccess &&
            result != Accessibility::kNotificationAlreadyRegistered) {
            ready = false;
        }
    }
    if (!ready) {
        // A chain already pending carries on by itself; a second one would double the calls.
        if (attempt == 0 && pending_.contains(pid)) {
            return;
        }
        if (attempt >= kMaxAttempt) {
            pending_.erase(pid);
            retries_.erase(pid);
            return;
        }
        const int next = attempt + 1;
        pending_[pid] = next;
        retries_[pid] =
            scheduler_.after(attempt < kFastRetries ? kFastRetryDelay : kSlowRetryDelay,
                             [this, pid, launched, next] { attach(pid, launched, next); });
        return;
    }
    pending_.erase(pid);
    retries_.erase(pid);
    observer->schedule();
    observers_[pid] = std::move(observer);
    if (onAppReady) {
        onAppReady(pid, launched);
    }
}

void AccessibilityWatcher::detach(int pid) {
    observers_.erase(pid);
    pending_.erase(pid);
    retries_.erase(pid);
    if (onAppTerminated) {
        onAppTerminated(pid);
    }
}

bool AccessibilityWatcher::observe(const std::string& notification, const Element& element,
                                   int pid) {
    const auto found = observers_.find(pid);
    if (found == observers_.end()) {
        return false;
    }
    const std::int32_t status = found->second->addNotification(element, notification);
    return status == Accessibility::kSuccess ||
           status == Accessibility::kNotificationAlreadyRegistered;
}

}  // namespace quorvane
