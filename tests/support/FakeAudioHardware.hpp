#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "audio/AudioCodes.hpp"
#include "audio/AudioStreamFormat.hpp"
#include "platform/AudioHardware.hpp"

namespace quorvane {

// The HAL as a table of objects and their properties, with failures a test can inject, a
// journal of the calls that create and destroy things, listeners a test fires, and I/O
// procedures a test runs by hand.
class FakeAudioHardware : public AudioHardware {
public:
    enum class Call {
        size,
        read,
        write,
        addListener,
        createTap,
        createDevice,
        createIOProc,
        start
    };
    struct Listener {
        AudioObjectID object;
        AudioPropertyAddress address;
        ListenerID id;
        std::shared_ptr<std::function<void()>> handler;
    };
    struct IOProcRecord {
        AudioObjectID device;
        IOProc proc;
        void* clientData;
        bool running = false;
    };

    // --- Building the table -------------------------------------------------------------
    template <typename T>
    void set(AudioObjectID object, std::uint32_t selector, const T& value,
             std::uint32_t scope = hal::kScopeGlobal) {
        std::vector<std::uint8_t> bytes(sizeof(T));
        std::memcpy(bytes.data(), &value, sizeof(T));
        data[{object, {selector, scope, 0}}] = std::move(bytes);
    }
    void setIDs(AudioObjectID object, std::uint32_t selector,
                const std::vector<std::uint32_t>& ids) {
        std::vector<std::uint8_t> bytes(ids.size() * 4);
        if (!ids.empty()) {
            std::memcpy(bytes.data(), ids.data(), bytes.size());
        }
        data[{object, hal::globalAddress(selector)}] = std::move(bytes);
    }
    void setString(AudioObjectID object, std::uint32_t selector, std::optional<std::string> text) {
        strings[{object, hal::globalAddress(selector)}] = std::move(text);
    }
    void fail(Call call, AudioObjectID object, std::uint32_t selector, OSStatus status) {
        failures[{call, object, selector}] = status;
    }
    void fail(Call call, OSStatus status) { fail(call, 0, 0, status); }

    // A device with a uid, name, transport and the given numbers of streams (0: none).
    void addDevice(AudioObjectID id, const std::string& uid, const std::string& name,
                   std::uint32_t transport = 0, std::uint32_t outputStreams = 1,
                   std::uint32_t inputStreams = 0) {
        deviceIDs.push_back(id);
        setIDs(hal::kSystemObject, hal::kDevices, deviceIDs);
        setString(id, hal::kDeviceUID, uid);
        setString(id, hal::kName, name);
        set(id, hal::kTransportType, transport);
        data[{id, {hal::kStreams, hal::kScopeOutput, 0}}] =
            std::vector<std::uint8_t>(outputStreams * 4);
        data[{id, {hal::kStreams, hal::kScopeInput, 0}}] =
            std::vector<std::uint8_t>(inputStreams * 4);
    }
    void setDefaultOutput(AudioObjectID device, double sampleRate = 48000) {
        set(hal::kSystemObject, hal::kDefaultOutputDevice, device);
        set(device, hal::kNominalSampleRate, sampleRate);
    }
    // A process object in the HAL's process list.
    void addProcess(AudioObjectID object, std::int32_t pid, std::optional<std::string> bundleID,
                    bool playing = false) {
        processIDs.push_back(object);
        setIDs(hal::kSystemObject, hal::kProcessObjectList, processIDs);
        set(object, hal::kProcessPID, pid);
        setString(object, hal::kProcessBundleID, std::move(bundleID));
        setPlaying(object, playing);
    }
    void setPlaying(AudioObjectID object, bool playing) {
        set(object, hal::kProcessIsRunningOutput, std::uint32_t{playing ? 1u : 0u});
    }
    void removeProcess(AudioObjectID object) {
        std::erase(processIDs, object);
        setIDs(hal::kSystemObject, hal::kProcessObjectList, processIDs);
    }

    // Runs the handlers of every listener on this object and address, as the HAL would.
    void fire(AudioObjectID object, const AudioPropertyAddress& address) {
        const auto snapshot = listeners;
        for (const Listener& listener : snapshot) {
            const bool stillThere =
                std::any_of(listeners.begin(), listeners.end(),
                            [&](const Listener& l) { return l.id == listener.id; });
            if (stillThere && listener.object == object && listener.address == address) {
                (*listener.handler)();
            }
        }
    }
    std::size_t listenerCount(AudioObjectID object, const AudioPropertyAddress& address) const {
        return static_cast<std::size_t>(std::count_if(
            listeners.begin(), listeners.end(),
            [&](const Listener& l) { return l.object == object && l.address == address; }));
    }
    // Runs one I/O cycle of the procedure on `device`.
    void render(AudioObjectID device, std::span<const AudioBufferView> input,
                std::span<AudioBufferView> output) {
        for (auto& [id, record] : ioProcs) {
            if (record.device == device) {
                record.proc(record.clientData, input, output);
            }
        }
    }
    AudioObjectID lastTap() const { return taps.empty() ? 0 : taps.rbegin()->first; }
    AudioObjectID lastDevice() const { return devices.empty() ? 0 : devices.rbegin()->first; }

    // --- The port ---------------------------------------------------------------------------
    OSStatus getPropertyDataSize(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::uint32_t& outSize) override {
        if (const auto status = failure(Call::size, object, address.selector)) {
            return *status;
        }
        if (const auto found = data.find({object, address}); found != data.end()) {
            outSize = static_cast<std::uint32_t>(found->second.size());
            return 0;
        }
        return hal::kUnknownPropertyError;
    }
    OSStatus getPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t& ioSize, void* outData) override {
        if (const auto status = failure(Call::read, object, address.selector)) {
            return *status;
        }
        const auto found = data.find({object, address});
        if (found == data.end()) {
            return hal::kUnknownPropertyError;
        }
        ioSize = std::min(ioSize, static_cast<std::uint32_t>(found->second.size()));
        if (ioSize > 0) {
            std::memcpy(outData, found->second.data(), ioSize);
        }
        return 0;
    }
    OSStatus getStringPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                   std::optional<std::string>& outText) override {
        if (const auto status = failure(Call::read, object, address.selector)) {
            return *status;
        }
        const auto found = strings.find({object, address});
        if (found == strings.end()) {
            return hal::kUnknownPropertyError;
        }
        outText = found->second;
        return 0;
    }
    OSStatus setPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t size, const void* bytes) override {
        if (const auto status = failure(Call::write, object, address.selector)) {
            return *status;
        }
        const auto* first = static_cast<const std::uint8_t*>(bytes);
        data[{object, address}] = std::vector<std::uint8_t>(first, first + size);
        return 0;
    }
    OSStatus addPropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::function<void()> handler, ListenerID& outListener) override {
        if (const auto status = failure(Call::addListener, object, address.selector)) {
            return *status;
        }
        outListener = nextListener++;
        listeners.push_back({object, address, outListener,
                             std::make_shared<std::function<void()>>(std::move(handler))});
        return 0;
    }
    OSStatus removePropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                    ListenerID listener) override {
        const auto found = std::find_if(listeners.begin(), listeners.end(), [&](const Listener& l) {
            return l.id == listener && l.object == object && l.address == address;
        });
        if (found == listeners.end()) {
            ++mismatchedRemovals;
            return hal::kBadObjectError;
        }
        listeners.erase(found);
        return 0;
    }
    OSStatus createProcessTap(const ProcessTapDescription& description,
                              AudioObjectID& outTapID) override {
        if (const auto status = failure(Call::createTap, 0, 0)) {
            return *status;
        }
        outTapID = nextObject++;
        taps[outTapID] = description;
        set(outTapID, hal::kTapFormat, tapFormat);
        journal.push_back("create tap");
        return 0;
    }
    OSStatus destroyProcessTap(AudioObjectID tap) override {
        taps.erase(tap);
        journal.push_back("destroy tap");
        return 0;
    }
    OSStatus createAggregateDevice(const PreferenceValue::Dictionary& description,
                                   AudioObjectID& outDeviceID) override {
        if (const auto status = failure(Call::createDevice, 0, 0)) {
            return *status;
        }
        outDeviceID = nextObject++;
        devices[outDeviceID] = description;
        journal.push_back("create device");
        return 0;
    }
    OSStatus destroyAggregateDevice(AudioObjectID device) override {
        devices.erase(device);
        journal.push_back("destroy device");
        return 0;
    }
    OSStatus createIOProcID(AudioObjectID device, IOProc proc, void* clientData,
                            IOProcID& outProcID) override {
        if (const auto status = failure(Call::createIOProc, 0, 0)) {
            return *status;
        }
        outProcID = nextProc++;
        ioProcs[outProcID] = {device, proc, clientData};
        journal.push_back("create callback");
        return 0;
    }
    OSStatus destroyIOProcID(AudioObjectID, IOProcID proc) override {
        ioProcs.erase(proc);
        journal.push_back("destroy callback");
        return 0;
    }
    OSStatus startDevice(AudioObjectID, IOProcID proc) override {
        if (const auto status = failure(Call::start, 0, 0)) {
            return *status;
        }
        ioProcs.at(proc).running = true;
        journal.push_back("start");
        return 0;
    }
    OSStatus stopDevice(AudioObjectID, IOProcID proc) override {
        ioProcs.at(proc).running = false;
        journal.push_back("stop");
        return 0;
    }

    using Key = std::pair<AudioObjectID, AudioPropertyAddress>;
    std::map<Key, std::vector<std::uint8_t>> data;
    std::map<Key, std::optional<std::string>> strings;
    std::map<std::tuple<Call, AudioObjectID, std::uint32_t>, OSStatus> failures;
    std::vector<AudioObjectID> deviceIDs;
    std::vector<AudioObjectID> processIDs;
    std::vector<Listener> listeners;
    int mismatchedRemovals = 0;
    std::map<AudioObjectID, ProcessTapDescription> taps;
    std::map<AudioObjectID, PreferenceValue::Dictionary> devices;
    std::map<IOProcID, IOProcRecord> ioProcs;
    std::vector<std::string> journal;
    // What every new tap reports: stereo, interleaved 32-bit float.
    AudioStreamFormat tapFormat{48000, hal::fourCharCode("lpcm"), 0x9, 8, 1, 8, 2, 32, 0};

private:
    std::optional<OSStatus> failure(Call call, AudioObjectID object, std::uint32_t selector) const {
        const auto found = failures.find({call, object, selector});
        return found == failures.end() ? std::nullopt : std::optional(found->second);
    }

    ListenerID nextListener = 1;
    IOProcID nextProc = 1;
    AudioObjectID nextObject = 500;
};

}  // namespace quorvane
