#include "audio/TappedProcessCounts.hpp"

#include "platform/NotificationBus.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

TappedProcessCounts& TappedProcessCounts::shared() {
    static TappedProcessCounts counts;
    return counts;
}

std::vector<AudioObjectID> TappedProcessCounts::processes() const {
    std::vector<AudioObjectID> objects;
    objects.reserve(counts_.size());
    for (const auto& entry : counts_) {
        objects.push_back(entry.first);
    }
    return objects;
}

void TappedProcessCounts::registerProcesses(std::span<const AudioObjectID> objects,
                                            Scheduler& scheduler, NotificationBus& notifications) {
    for (const AudioObjectID object : objects) {
        ++counts_[object];
    }
    announce(scheduler, notifications);
}

void TappedProcessCounts::unregisterProcesses(std::span<const AudioObjectID> objects,
                                              Scheduler& scheduler,
                                              NotificationBus& notifications) {
    for (const AudioObjectID object : objects) {
        const auto found = counts_.find(object);
        if (found != counts_.end() && --found->second == 0) {
            counts_.erase(found);
        }
    }
    announce(scheduler, notifications);
}

void TappedProcessCounts::announce(Scheduler& scheduler, NotificationBus& notifications) {
    // Asynchronous: observers rebuild taps, and the caller may be in the middle of doing so.
    pendingAnnouncement_ = scheduler.post(
        [&notifications] { notifications.post(kChangedNotification, std::nullopt); });
}

}  // namespace quorvane
