#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <vector>

#include "platform/AudioPropertyAddress.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

class NotificationBus;
class Scheduler;

// How many app taps capture each process object. The equalizer's system-wide tap leaves these
// processes out, since their app taps equalize them already. Every change is announced with a
// notification, posted on the main loop after the change. Main thread only.
class TappedProcessCounts {
public:
    static constexpr const char* kChangedNotification = "com.quorvane.app.appAudioTapsChanged";

    // The application's one table.
    static TappedProcessCounts& shared();

    const std::map<AudioObjectID, std::size_t>& counts() const { return counts_; }
    // The tapped process objects, in ascending order.
    std::vector<AudioObjectID> processes() const;

    void registerProcesses(std::span<const AudioObjectID> objects, Scheduler& scheduler,
                           NotificationBus& notifications);
    void unregisterProcesses(std::span<const AudioObjectID> objects, Scheduler& scheduler,
                             NotificationBus& notifications);

private:
    void announce(Scheduler& scheduler, NotificationBus& notifications);

    std::map<AudioObjectID, std::size_t> counts_;
    // Changes made before a queued notification went out are covered by it.
    Timer pendingAnnouncement_;
};

}  // namespace quorvane
