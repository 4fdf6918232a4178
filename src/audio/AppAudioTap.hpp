#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "audio/CoreAudioError.hpp"
#include "audio/EqualizerState.hpp"
#include "audio/GainControl.hpp"
#include "audio/TapRenderContext.hpp"
#include "platform/AudioHardware.hpp"

namespace quorvane {

class EqualizerEngine;
class NotificationBus;
class Scheduler;
class TappedProcessCounts;

// The audio of some processes (an app tap) or of everything but some processes (the
// equalizer's global tap), played through one output device with a gain, the shared equalizer
// and a limiter. It is built from a process tap that mutes the tapped processes, a private
// aggregate device of the output device and the tap, and an I/O procedure on the HAL's
// real-time thread. A tap is built whole or not at all; destroying it takes everything down.
class AppAudioTap {
public:
    static constexpr const char* kAppTapName = "Quorvane App Volume";
    static constexpr const char* kGlobalTapName = "Quorvane Equalizer";
    // Both kinds of tap name their aggregate device this way.
    static constexpr const char* kDeviceName = "Quorvane App Volume";
    static constexpr const char* kDeviceUIDPrefix = "com.quorvane.app.volume.";

    enum class Kind { app, global };

    // Throws CoreAudioError, after undoing what was made, when a step of the set-up fails.
    AppAudioTap(AudioHardware& hardware, const EqualizerEngine& engine, Kind kind,
                std::vector<AudioObjectID> processObjects, AudioObjectID outputDevice, float gain,
                bool running);
    // Captures `processes` at `gain`.
    static std::unique_ptr<AppAudioTap> capturing(AudioHardware& hardware,
                                                  const EqualizerEngine& engine,
                                                  std::vector<AudioObjectID> processes,
                                                  AudioObjectID outputDevice, float gain,
                                                  bool running);
    // Captures everything except `excluded`, at unity gain.
    static std::unique_ptr<AppAudioTap> global(AudioHardware& hardware,
                                               const EqualizerEngine& engine,
                                               std::vector<AudioObjectID> excluded,
                                               AudioObjectID outputDevice, bool running);
    ~AppAudioTap();
    AppAudioTap(const AppAudioTap&) = delete;
    AppAudioTap& operator=(const AppAudioTap&) = delete;

    const std::vector<AudioObjectID>& processObjects() const { return processObjects_; }
    AudioObjectID outputDevice() const { return outputDevice_; }
    bool isGlobal() const { return isGlobal_; }
    GainControl& control() { return realTime_->control; }
    AudioObjectID tapID() const { return tapID_; }
    AudioObjectID aggregateID() const { return aggregateID_; }
    std::optional<AudioHardware::IOProcID> ioProcID() const { return ioProcID_; }
    bool isRunning() const { return isRunning_; }

    // Main thread: the gain the procedure moves to over its next cycle.
    void setGain(float gain) { realTime_->control.setTarget(gain); }
    // Starts or stops the aggregate device without rebuilding anything. Throws CoreAudioError
    // when starting fails; the tap then stays stopped.
    void setRunning(bool running);
    // A start the platform carried out after answering, which failed: the tap is stopped by
    // then. Runs on the main thread, never after the tap is destroyed.
    std::function<void(const CoreAudioError&)> onLateStartFailure;
    // Counts this app tap's processes as tapped until the tap is destroyed.
    void registerTappedProcesses(TappedProcessCounts& counts, Scheduler& scheduler,
                                 NotificationBus& notifications);

private:
    void setUp(const EqualizerEngine& engine);
    void start(AudioHardware::IOProcID procID);
    void tearDown() noexcept;
    static void render(void* context, std::span<const AudioBufferView> input,
                       std::span<AudioBufferView> output);

    AudioHardware& hardware_;
    std::vector<AudioObjectID> processObjects_;
    AudioObjectID outputDevice_;
    bool isGlobal_;
    // What the real-time procedure works on. Shared with the procedure, which may outlive this
    // tap by the time the platform takes to destroy it.
    struct RealTime {
        explicit RealTime(float gain) : control(gain) {}
        GainControl control;
        EqualizerState equalizer;
        TapRenderContext context;
    };
    std::shared_ptr<RealTime> realTime_;
    AudioObjectID tapID_ = 0;
    AudioObjectID aggregateID_ = 0;
    std::optional<AudioHardware::IOProcID> ioProcID_;
    bool isRunning_;
    // Reached by a late start failure only while this tap exists.
    std::shared_ptr<AppAudioTap*> self_;

    struct Registration {
        TappedProcessCounts& counts;
        Scheduler& scheduler;
        NotificationBus& notifications;
    };
    std::optional<Registration> registration_;
};

}  // namespace quorvane
