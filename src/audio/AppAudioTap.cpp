#include "audio/AppAudioTap.hpp"

#include "audio/AudioCodes.hpp"
#include "audio/AudioStreamFormat.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "audio/RenderTap.hpp"
#include "audio/TappedProcessCounts.hpp"
#include "base/Uuid.hpp"

namespace quorvane {

namespace {

void check(OSStatus status, const char* operation) {
    if (status != 0) {
        throw CoreAudioError(status, operation);
    }
}

PreferenceValue::Dictionary aggregateDescription(const std::string& outputUID,
                                                 const Uuid& tapUUID) {
    using Dictionary = PreferenceValue::Dictionary;
    using Array = PreferenceValue::Array;
    return Dictionary{
        {"name", AppAudioTap::kDeviceName},
        {"uid", std::string(AppAudioTap::kDeviceUIDPrefix) + Uuid::random().text()},
        {"master", outputUID},
        {"private", true},
        {"stacked", false},
        // The device starts only once a tapped process plays.
        {"tapautostart", true},
        {"subdevices", Array{Dictionary{{"uid", outputUID}}}},
        {"taps", Array{Dictionary{{"uid", tapUUID.text()}, {"drift", true}}}},
    };
}

}  // namespace

AppAudioTap::AppAudioTap(AudioHardware& hardware, const EqualizerEngine& engine, Kind kind,
                         std::vector<AudioObjectID> processObjects, AudioObjectID outputDevice,
                         float gain, bool running)
    : hardware_(hardware),
      processObjects_(std::move(processObjects)),
      outputDevice_(outputDevice),
      isGlobal_(kind == Kind::global),
      realTime_(std::make_shared<RealTime>(gain)),
      isRunning_(running),
      self_(std::make_shared<AppAudioTap*>(this)) {
    try {
        setUp(engine);
    } catch (...) {
        tearDown();
        throw;
    }
}

std::unique_ptr<AppAudioTap> AppAudioTap::capturing(AudioHardware& hardware,
                                                    const EqualizerEngine& engine,
                                                    std::vector<AudioObjectID> processes,
                                                    AudioObjectID outputDevice, float gain,
                                                    bool running) {
    return std::make_unique<AppAudioTap>(hardware, engine, Kind::app, std::move(processes),
                                         outputDevice, gain, running);
}

std::unique_ptr<AppAudioTap> AppAudioTap::global(AudioHardware& hardware,
                                                 const EqualizerEngine& engine,
                                                 std::vector<AudioObjectID> excluded,
                                                 AudioObjectID outputDevice, bool running) {
    return std::make_unique<AppAudioTap>(hardware, engine, Kind::global, std::move(excluded),
                                         outputDevice, 1.0f, running);
}

AppAudioTap::~AppAudioTap() {
    tearDown();
    if (registration_) {
        registration_->counts.unregisterProcesses(processObjects_, registration_->scheduler,
                                                  registration_->notifications);
    }
}

void AppAudioTap::setUp(const EqualizerEngine& engine) {
    ProcessTapDescription description;
    description.kind = isGlobal_ ? ProcessTapDescription::Kind::stereoGlobalTapButExcludeProcesses
                                 : ProcessTapDescription::Kind::stereoMixdownOfProcesses;
    description.processes = processObjects_;
    description.uuid = Uuid::random();
    description.name = isGlobal_ ? kGlobalTapName : kAppTapName;
    description.isPrivate = true;
    // The tapped processes fall silent on their own device while the tap is read, so they are
    // heard only through it.
    description.muteBehavior = ProcessTapDescription::MuteBehavior::mutedWhenTapped;
    check(hardware_.createProcessTap(description, tapID_), "Creating the audio tap");

    const std::string outputUID = readStringProperty(hardware_, hal::kDeviceUID, outputDevice_);
    check(hardware_.createAggregateDevice(aggregateDescription(outputUID, description.uuid),
                                          aggregateID_),
          "Creating the audio device");

    const auto format =
        readProperty<AudioStreamFormat>(hardware_, tapID_, hal::globalAddress(hal::kTapFormat));
    const bool oneBufferPerChannel = (format.formatFlags & hal::kFormatFlagIsNonInterleaved) != 0;
    realTime_->context = {oneBufferPerChannel ? format.channelsPerFrame : 1, &realTime_->control,
                          &realTime_->equalizer, &engine};

    AudioHardware::IOProcID procID = 0;
    check(hardware_.createIOProcID(aggregateID_, &AppAudioTap::render,
                                   std::shared_ptr<void>(realTime_, &realTime_->context), procID),
          "Creating the audio callback");
    ioProcID_ = procID;
    if (isRunning_) {
        start(procID);
    }
}

void AppAudioTap::tearDown() noexcept {
    // Statuses are ignored: there is nothing left to do about a failure here.
    if (aggregateID_ != 0) {
        if (ioProcID_) {
            hardware_.stopDevice(aggregateID_, *ioProcID_);
            hardware_.destroyIOProcID(aggregateID_, *ioProcID_);
        }
        hardware_.destroyAggregateDevice(aggregateID_);
    }
    if (tapID_ != 0) {
        hardware_.destroyProcessTap(tapID_);
    }
    tapID_ = 0;
    aggregateID_ = 0;
    ioProcID_.reset();
}

void AppAudioTap::start(AudioHardware::IOProcID procID) {
    std::weak_ptr<AppAudioTap*> self = self_;
    check(hardware_.startDevice(aggregateID_, procID,
                                [self](OSStatus status) {
                                    const auto tap = self.lock();
                                    if (!tap) {
                                        return;
                                    }
                                    (*tap)->isRunning_ = false;
                                    if ((*tap)->onLateStartFailure) {
                                        (*tap)->onLateStartFailure(
                                            CoreAudioError(status, "Starting audio"));
                                    }
                                }),
          "Starting audio");
}

void AppAudioTap::setRunning(bool running) {
    if (running == isRunning_ || !ioProcID_) {
        return;
    }
    if (running) {
        start(*ioProcID_);
    } else {
        hardware_.stopDevice(aggregateID_, *ioProcID_);
    }
    isRunning_ = running;
}

void AppAudioTap::registerTappedProcesses(TappedProcessCounts& counts, Scheduler& scheduler,
                                          NotificationBus& notifications) {
    if (isGlobal_ || registration_) {
        return;
    }
    counts.registerProcesses(processObjects_, scheduler, notifications);
    registration_.emplace(Registration{counts, scheduler, notifications});
}

void AppAudioTap::render(void* context, std::span<const AudioBufferView> input,
                         std::span<AudioBufferView> output) {
    renderTap(*static_cast<const TapRenderContext*>(context), input, output);
}

}  // namespace quorvane
