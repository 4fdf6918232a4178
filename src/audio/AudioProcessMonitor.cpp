#include "audio/AudioProcessMonitor.hpp"

#include <unistd.h>

#include <algorithm>

#include "audio/AudioAppIdentity.hpp"
#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "platform/Preferences.hpp"
#include "platform/ProcessFacts.hpp"

namespace quorvane {

AudioProcessMonitor::AudioProcessMonitor(AudioHardware& hardware, ProcessFacts& facts,
                                         Preferences& preferences, Scheduler& scheduler)
    : hardware_(hardware), facts_(facts), preferences_(preferences), scheduler_(scheduler) {
    for (auto& id : preferences_.stringArray(kPlayedKey).value_or(std::vector<std::string>{})) {
        playedIDs_.insert(std::move(id));
    }
}

AudioProcessMonitor::~AudioProcessMonitor() = default;

void AudioProcessMonitor::start() {
    if (isStarted()) {
        return;
    }
    listListener_ = std::make_unique<PropertyListener>(hardware_, hal::kSystemObject,
                                                       hal::globalAddress(hal::kProcessObjectList),
                                                       [this] { refresh(); });
    refresh();
    pollTimer_ = scheduler_.every(kPollInterval, [this] { refresh(); });
}

void AudioProcessMonitor::stop() {
    listListener_.reset();
    pollTimer_.cancel();
    pendingRefresh_.cancel();
    playbackListeners_.clear();
}

void AudioProcessMonitor::refresh() {
    std::vector<std::uint32_t> objects;
    try {
        objects = readIDListProperty(hardware_, hal::kProcessObjectList, 0, hal::kSystemObject);
    } catch (const CoreAudioError&) {
    }
    const int ownPID = ::getpid();
    std::vector<AudioApp> found;
    // Listeners of processes that are gone are released here, so a long session does not
    // collect them.
    std::map<ProcessKey, std::unique_ptr<PropertyListener>> listeners;
    for (const AudioObjectID object : objects) {
        std::int32_t pid = 0;
        try {
            pid =
                readProperty<std::int32_t>(hardware_, object, hal::globalAddress(hal::kProcessPID));
        } catch (const CoreAudioError&) {
            continue;
        }
        if (pid <= 0 || pid == ownPID) {
            continue;
        }
        const ProcessKey key{object, pid};
        if (isStarted() && !listeners.contains(key)) {
            auto existing = playbackListeners_.find(key);
            listeners[key] =
                existing != playbackListeners_.end()
                    ? std::move(existing->second)
                    : std::make_unique<PropertyListener>(
                          hardware_, object, hal::globalAddress(hal::kProcessIsRunningOutput),
                          [this] { pendingRefresh_ = scheduler_.post([this] { refresh(); }); });
        }
        std::string bundleID;
        try {
            bundleID = readStringProperty(hardware_, hal::kProcessBundleID, object);
        } catch (const CoreAudioError&) {
        }
        bool playing = false;
        try {
            playing = readProperty<std::uint32_t>(
                          hardware_, object, hal::globalAddress(hal::kProcessIsRunningOutput)) != 0;
        } catch (const CoreAudioError&) {
        }

        AudioAppIdentity identity = AudioAppIdentity::of(pid, bundleID, facts_);
        auto app = std::find_if(found.begin(), found.end(),
                                [&](const AudioApp& a) { return a.id == identity.id; });
        if (app == found.end()) {
            found.push_back({std::move(identity.id),
                             std::move(identity.name),
                             std::move(identity.bundleURL),
                             {},
                             false});
            app = std::prev(found.end());
        }
        app->processObjects.push_back(object);
        app->isPlaying = app->isPlaying || playing;
        if (playing) {
            markPlayed(app->id);
        }
    }
    playbackListeners_ = std::move(listeners);

    std::stable_sort(found.begin(), found.end(), [this](const AudioApp& a, const AudioApp& b) {
        return facts_.compareNames(a.name, b.name) < 0;
    });
    if (found != apps_) {
        apps_ = std::move(found);
        if (onChange) {
            onChange();
        }
        publish();
    }
}

void AudioProcessMonitor::markPlayed(const std::string& id) {
    if (playedIDs_.contains(id)) {
        return;
    }
    // The app volume mixer and the equalizer each keep a monitor; merging with what is stored
    // keeps one from dropping what the other added.
    for (auto& stored : preferences_.stringArray(kPlayedKey).value_or(std::vector<std::string>{})) {
        playedIDs_.insert(std::move(stored));
    }
    playedIDs_.insert(id);
    preferences_.set(kPlayedKey, PreferenceValue::stringArray(std::vector<std::string>(
                                     playedIDs_.begin(), playedIDs_.end())));
}

}  // namespace quorvane
