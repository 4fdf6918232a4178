#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "audio/AudioApp.hpp"
#include "audio/ProcessKey.hpp"
#include "audio/PropertyListener.hpp"
#include "base/Observable.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

class AudioHardware;
class Preferences;
class ProcessFacts;

// The applications that own audio process objects, one entry per application however many
// helper processes it runs, each marked playing or silent, sorted by name. It also remembers
// which applications were ever heard playing, across launches. Refreshes when the process list
// changes, when any listed process starts or stops playing, and once a second while started.
// Main thread only.
class AudioProcessMonitor : public Observable {
public:
    static constexpr const char* kPlayedKey = "appVolume.played";
    static constexpr Seconds kPollInterval{1.0};

    AudioProcessMonitor(AudioHardware& hardware, ProcessFacts& facts, Preferences& preferences,
                        Scheduler& scheduler);
    ~AudioProcessMonitor() override;

    const std::vector<AudioApp>& apps() const { return apps_; }
    const std::set<std::string>& playedIDs() const { return playedIDs_; }
    bool isStarted() const { return listListener_ != nullptr; }
    // Called after `apps` changed, and only then.
    std::function<void()> onChange;

    void start();
    void stop();
    void refresh();

private:
    void markPlayed(const std::string& id);

    AudioHardware& hardware_;
    ProcessFacts& facts_;
    Preferences& preferences_;
    Scheduler& scheduler_;
    std::vector<AudioApp> apps_;
    std::set<std::string> playedIDs_;
    std::unique_ptr<PropertyListener> listListener_;
    std::map<ProcessKey, std::unique_ptr<PropertyListener>> playbackListeners_;
    Timer pollTimer_;
    Timer pendingRefresh_;
};

}  // namespace quorvane
