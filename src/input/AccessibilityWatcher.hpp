#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/Accessibility.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

class Workspace;

// Keeps an accessibility observer on every regular application, running or launched later, for
// the notifications its owner asks for. An application that has only just launched often
// refuses registration for a moment, so attaching is retried: 50 times 20 ms apart, then 10
// times 250 ms apart (about 3.5 s in all), after which the application stays unwatched until
// it launches again. Main thread only.
class AccessibilityWatcher {
public:
    static constexpr int kFastRetries = 50;
    static constexpr int kMaxAttempt = 60;
    static constexpr Seconds kFastRetryDelay{0.020};
    static constexpr Seconds kSlowRetryDelay{0.250};
    static constexpr float kMessagingTimeout = 1.0F;

    using Handler =
        std::function<void(const Element& element, const std::string& notification, int pid)>;

    AccessibilityWatcher(Accessibility& accessibility, Workspace& workspace, Scheduler& scheduler,
                         std::vector<std::string> notifications, Handler handler);
    AccessibilityWatcher(const AccessibilityWatcher&) = delete;
    AccessibilityWatcher& operator=(const AccessibilityWatcher&) = delete;
    ~AccessibilityWatcher();

    // Once an application's observer is fully registered; `launched` is true only when the
    // workspace's launch notification brought the application in.
    std::function<void(int pid, bool launched)> onAppReady;
    std::function<void(int pid)> onAppTerminated;

    void start();
    // Refuses every attach from now on, including retries already scheduled.
    void stop();
    void attach(int pid, bool launched, int attempt);
    void detach(int pid);
    // One more notification on an element (a window, say) of an application already watched.
    // True when registered now or before.
    bool observe(const std::string& notification, const Element& element, int pid);

    bool isActive() const { return isActive_; }
    bool isWatching(int pid) const { return observers_.contains(pid); }
    // The attempt the pending retry of this process will make; 0 when none is pending.
    int pendingAttempt(int pid) const;

private:
    Accessibility& accessibility_;
    Workspace& workspace_;
    Scheduler& scheduler_;
    std::vector<std::string> notifications_;
    Handler handler_;
    std::map<int, std::unique_ptr<AccessibilityObserver>> observers_;
    std::map<int, int> pending_;
    std::map<int, Timer> retries_;
    std::vector<Subscription> workspaceTokens_;
    Timer listTask_;
    bool isActive_ = false;
};

}  // namespace quorvane
