#include "tools/sound/AppVolumeTool.hpp"

#include <algorithm>
#include <cmath>

#include "audio/CoreAudioError.hpp"
#include "audio/EqualizerEngine.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

AppVolumeTool::AppVolumeTool(const ToolDescriptor& descriptor, const Platform& platform)
    : AppVolumeTool(descriptor, platform, EqualizerEngine::shared(),
                    TappedProcessCounts::shared()) {}

AppVolumeTool::AppVolumeTool(const ToolDescriptor& descriptor, const Platform& platform,
                             const EqualizerEngine& engine, TappedProcessCounts& tappedProcesses)
    : descriptor_(descriptor),
      platform_(platform),
      engine_(engine),
      tappedProcesses_(tappedProcesses),
      monitor_(platform.audioHardware, platform.processFacts, platform.preferences,
               platform.scheduler),
      panelContent_{PanelContent::Page{[this] { return mixerPage(); }, this, 340,
                                       [this] { return mixerLayout(); },
                                       [this](bool inside) { list_.setPointerInside(inside); }}} {
    loadSettings();
}

AppVolumeTool::~AppVolumeTool() {
    stop();
}

// Entries of the wrong kind are skipped; nothing is written back until the user changes a level.
void AppVolumeTool::loadSettings() {
    if (const auto stored = platform_.preferences.object(kVolumesKey)) {
        if (const auto* levels = stored->dictionary()) {
            for (const auto& [id, value] : *levels) {
                const auto number = value.number();
                if (number && std::isfinite(*number)) {
                    volumes_[id] = std::clamp(*number, 0.0, kMaximumLevel);
                }
            }
        }
    }
    if (const auto muted = platform_.preferences.stringArray(kMutedKey)) {
        mutedIDs_.insert(muted->begin(), muted->end());
    }
}

void AppVolumeTool::saveSettings() {
    PreferenceValue::Dictionary levels;
    for (const auto& [id, level] : volumes_) {
        levels.emplace(id, level);
    }
    platform_.preferences.set(kVolumesKey, PreferenceValue(std::move(levels)));
    platform_.preferences.set(kMutedKey, PreferenceValue::stringArray(std::vector<std::string>(
                                             mutedIDs_.begin(), mutedIDs_.end())));
}

double AppVolumeTool::level(const std::string& id) const {
    const auto found = volumes_.find(id);
    return found == volumes_.end() ? 1.0 : found->second;
}

double AppVolumeTool::gain(const std::string& id) const {
    return isMuted(id) ? 0.0 : level(id);
}

void AppVolumeTool::setVolume(const std::string& id, double newLevel) {
    if (!std::isfinite(newLevel)) {
        return;
    }
    newLevel = std::clamp(newLevel, 0.0, kMaximumLevel);
    if (std::abs(newLevel - 1.0) < kSnap) {
        volumes_.erase(id);
    } else {
        volumes_[id] = newLevel;
    }
    changed();
}

void AppVolumeTool::setMuted(const std::string& id, bool muted) {
    if (muted) {
        mutedIDs_.insert(id);
    } else {
        mutedIDs_.erase(id);
    }
    changed();
}

void AppVolumeTool::reset(const std::string& id) {
    volumes_.erase(id);
    mutedIDs_.erase(id);
    changed();
}

void AppVolumeTool::resetAll() {
    volumes_.clear();
    mutedIDs_.clear();
    changed();
}

void AppVolumeTool::changed() {
    saveSettings();
    syncTaps();
    publish();
}

void AppVolumeTool::start() {
    if (isActive_) {
        return;
    }
    isActive_ = true;
    // Before the monitor, whose first list already runs syncTaps.
    outputListener_ =
        std::make_unique<OutputDeviceWatch>(platform_.audioHardware, [this] { outputChanged(); });
    panel_ = std::make_unique<MenuBarPanel>(platform_.menuBar, platform_.eventMonitors,
                                            platform_.scheduler, panelContent_, kSquareItemLength);
    panel_->statusItem().setImage(kItemImage, kItemDescription);
    panel_->onClose = [this] { list_.setPointerInside(false); };
    monitor_.onChange = [this] {
        syncTaps();
        publish();
    };
    monitor_.start();
    syncTaps();
    publish();
}

void AppVolumeTool::stop() {
    if (!isActive_) {
        return;
    }
    isActive_ = false;
    monitor_.stop();
    monitor_.onChange = nullptr;
    outputListener_.reset();
    panel_.reset();
    list_.setPointerInside(false);
    pauseTimer_.cancel();
    quietSince_.clear();
    taps_.clear();
    lastError_.reset();
    publish();
}

// A tap's aggregate device is made for one device, rate and layout: any change of those
// rebuilds every tap.
void AppVolumeTool::outputChanged() {
    taps_.clear();
    syncTaps();
    publish();
}

void AppVolumeTool::syncTaps() {
    if (!isActive_) {
        return;
    }
    lastError_.reset();
    if (const auto& problem = outputListener_->problem()) {
        // Untapped applications play at their normal level on whatever device there is.
        taps_.clear();
        lastError_ = kOutputErrorPrefix + *problem;
        pauseTimer_.cancel();
        return;
    }
    const AudioObjectID device = outputListener_->device();
    const Seconds now = platform_.scheduler.now();

    struct Need {
        const AudioApp* app;
        bool run;
    };
    std::map<std::string, Need> needed;
    std::optional<Seconds> nextDeadline;
    for (const AudioApp& app : monitor_.apps()) {
        if (!volumes_.contains(app.id) && !mutedIDs_.contains(app.id)) {
            continue;
        }
        bool run = true;
        if (app.isPlaying) {
            quietSince_.erase(app.id);
        } else {
            const Seconds since = quietSince_.try_emplace(app.id, now).first->second;
            const Seconds deadline = since + kQuietDelay;
            run = now < deadline;
            if (run && (!nextDeadline || deadline < *nextDeadline)) {
                nextDeadline = deadline;
            }
        }
        needed.emplace(app.id, Need{&app, run});
    }
    std::erase_if(quietSince_, [&](const auto& entry) { return !needed.contains(entry.first); });

    std::erase_if(taps_, [&](const auto& entry) {
        const auto need = needed.find(entry.first);
        return need == needed.end() || entry.second->outputDevice() != device ||
               entry.second->processObjects() != need->second.app->processObjects;
    });

    for (const auto& [id, need] : needed) {
        const auto tapGain = static_cast<float>(gain(id));
        try {
            if (const auto existing = taps_.find(id); existing != taps_.end()) {
                existing->second->setGain(tapGain);
                existing->second->setRunning(need.run);
                continue;
            }
            auto tap = AppAudioTap::capturing(platform_.audioHardware, engine_,
                                              need.app->processObjects, device, tapGain, need.run);
            tap->registerTappedProcesses(tappedProcesses_, platform_.scheduler,
                                         platform_.notifications);
            tap->onLateStartFailure = [this, name = need.app->name](const CoreAudioError& error) {
                lastError_ = kErrorPrefix + name + ": " + error.description();
                publish();
            };
            taps_.emplace(id, std::move(tap));
        } catch (const CoreAudioError& error) {
            lastError_ = kErrorPrefix + need.app->name + ": " + error.description();
        }
    }

    if (nextDeadline) {
        pauseTimer_ = platform_.scheduler.after(*nextDeadline - now, [this] {
            syncTaps();
            publish();
        });
    } else {
        pauseTimer_.cancel();
    }
}

}  // namespace quorvane
