#pragma once

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "audio/AudioCodes.hpp"
#include "audio/AudioStreamFormat.hpp"
#include "platform/AudioHardware.hpp"
#include "support/FakeMisuse.hpp"

namespace quorvane {

// The HAL as a table of objects and their properties, with failures a test injects, a journal
// of what was created and destroyed, listeners a test fires, and I/O procedures it runs by hand.
// Using a tap, device or callback that does not exist (or no longer does) fails the test.
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
        std::shared_ptr<void> clientData;
        bool running = false;
    };

    template <typename T>
    void set(AudioObjectID object, std::uint32_t selector, const T& value,
             std::uint32_t scope = hal::kScopeGlobal) {
        auto& bytes = data[{object, {selector, scope, 0}}];
        bytes.resize(sizeof(T));
        std::memcpy(bytes.data(), &value, sizeof(T));
    }
    void setIDs(AudioObjectID object, std::uint32_t selector,
                const std::vector<std::uint32_t>& ids) {
        auto& bytes = data[{object, hal::globalAddress(selector)}];
        bytes.resize(ids.size() * 4);
        // An empty vector's data() may be null, which memcpy must never see, even for 0 bytes.
        if (!ids.empty()) {
            std::memcpy(bytes.data(), ids.data(), bytes.size());
        }
    }
    void setString(AudioObjectID object, std::uint32_t selector, std::optional<std::string> text) {
        strings[{object, hal::globalAddress(selector)}] = std::move(text);
    }
    void fail(Call call, AudioObjectID object, std::uint32_t selector, OSStatus status) {
        failures[{call, object, selector}] = status;
    }
    void fail(Call call, OSStatus status) { fail(call, 0, 0, status); }
    // A device with a uid, a name, a transport and so many output and input streams.
    void addDevice(AudioObjectID id, const std::string& uid, const std::string& name,
                   std::uint32_t transport = 0, std::uint32_t outputs = 1,
                   std::uint32_t inputs = 0) {
        deviceIDs.push_back(id);
        setIDs(hal::kSystemObject, hal::kDevices, deviceIDs);
        setString(id, hal::kDeviceUID, uid);
        setString(id, hal::kName, name);
        set(id, hal::kTransportType, transport);
        data[{id, {hal::kStreams, hal::kScopeOutput, 0}}].resize(outputs * 4);
        data[{id, {hal::kStreams, hal::kScopeInput, 0}}].resize(inputs * 4);
    }
    void setDefaultOutput(AudioObjectID device, double sampleRate) {
        set(hal::kSystemObject, hal::kDefaultOutputDevice, device);
        set(device, hal::kNominalSampleRate, sampleRate);
    }
    void addProcess(AudioObjectID object, std::int32_t pid, std::optional<std::string> bundleID,
                    bool playing = false) {
        processIDs.push_back(object);
        setIDs(hal::kSystemObject, hal::kProcessObjectList, processIDs);
        set(object, hal::kProcessPID, pid);
        setString(object, hal::kProcessBundleID, std::move(bundleID));
        set(object, hal::kProcessIsRunningOutput, std::uint32_t{playing});
    }
    void removeProcess(AudioObjectID object) {
        std::erase(processIDs, object);
        setIDs(hal::kSystemObject, hal::kProcessObjectList, processIDs);
    }
    // Runs the handlers listening on this object and address, as the HAL would.
    void fire(AudioObjectID object, const AudioPropertyAddress& address) {
        for (const Listener& listener : std::vector<Listener>(listeners)) {
            if (listener.object == object && listener.address == address &&
                std::any_of(listeners.begin(), listeners.end(),
                            [&](const Listener& l) { return l.id == listener.id; })) {
                (*listener.handler)();
            }
        }
    }
    std::size_t listenerCount(AudioObjectID object, const AudioPropertyAddress& address) const {
        return static_cast<std::size_t>(std::count_if(
            listeners.begin(), listeners.end(),
            [&](const Listener& l) { return l.object == object && l.address == address; }));
    }
    void render(AudioObjectID device, std::span<const AudioBufferView> input,
                std::span<AudioBufferView> output) {
        for (auto& [id, record] : ioProcs) {
            if (record.device == device) {
                record.proc(record.clientData.get(), input, output);
            }
        }
    }

    OSStatus getPropertyDataSize(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::uint32_t& outSize) override {
        const auto found = data.find({object, address});
        outSize = found == data.end() ? 0 : static_cast<std::uint32_t>(found->second.size());
        return status(Call::size, object, address.selector, found != data.end());
    }
    OSStatus getPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t& ioSize, void* outData) override {
        const auto found = data.find({object, address});
        const OSStatus result = status(Call::read, object, address.selector, found != data.end());
        if (result == 0) {
            ioSize = std::min(ioSize, static_cast<std::uint32_t>(found->second.size()));
            if (ioSize > 0) {
                std::memcpy(outData, found->second.data(), ioSize);
            }
        }
        return result;
    }
    OSStatus getStringPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                                   std::optional<std::string>& outText) override {
        const auto found = strings.find({object, address});
        const bool known = found != strings.end();
        outText = known ? found->second : std::nullopt;
        return status(Call::read, object, address.selector, known);
    }
    OSStatus setPropertyData(AudioObjectID object, const AudioPropertyAddress& address,
                             std::uint32_t size, const void* bytes) override {
        const auto* first = static_cast<const std::uint8_t*>(bytes);
        return act(Call::write, object, address.selector, [&] {
            data[{object, address}].assign(first, first + size);
        });
    }
    OSStatus addPropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                 std::function<void()> handler, ListenerID& outListener) override {
        return act(Call::addListener, object, address.selector, [&] {
            outListener = nextID++;
            listeners.push_back({object, address, outListener,
                                 std::make_shared<std::function<void()>>(std::move(handler))});
        });
    }
    // Only the same object, address and registration together remove a listener.
    OSStatus removePropertyListener(AudioObjectID object, const AudioPropertyAddress& address,
                                    ListenerID listener) override {
        const bool removed =
            std::erase_if(listeners, [&](const Listener& l) {
                return l.id == listener && l.object == object && l.address == address;
            }) > 0;
        mismatchedRemovals += removed ? 0 : 1;
        return removed ? 0 : hal::kBadObjectError;
    }
    OSStatus createProcessTap(const ProcessTapDescription& description,
                              AudioObjectID& outTapID) override {
        return act(Call::createTap, 0, 0, [&] {
            taps[outTapID = nextID++] = description;
            set(outTapID, hal::kTapFormat, tapFormat);
            journal.push_back("create tap");
        });
    }
    OSStatus destroyProcessTap(AudioObjectID tap) override {
        return destroy(taps, tap, "destroy tap");
    }
    OSStatus createAggregateDevice(const PreferenceValue::Dictionary& description,
                                   AudioObjectID& outDeviceID) override {
        return act(Call::createDevice, 0, 0, [&] {
            devices[outDeviceID = nextID++] = description;
            journal.push_back("create device");
        });
    }
    OSStatus destroyAggregateDevice(AudioObjectID device) override {
        return destroy(devices, device, "destroy device");
    }
    OSStatus createIOProcID(AudioObjectID device, IOProc proc, std::shared_ptr<void> clientData,
                            IOProcID& outProcID) override {
        if (!devices.contains(device) &&
            std::find(deviceIDs.begin(), deviceIDs.end(), device) == deviceIDs.end()) {
            return misuse("create callback", "a callback for a device that does not exist");
        }
        return act(Call::createIOProc, 0, 0, [&] {
            ioProcs[static_cast<AudioObjectID>(outProcID = nextID++)] = {device, proc,
                                                                         std::move(clientData)};
            journal.push_back("create callback");
        });
    }
    OSStatus destroyIOProcID(AudioObjectID device, IOProcID proc) override {
        if (!callbackOf(device, proc)) {
            return misuse("destroy callback",
                          "destroyed a callback that, or whose device, does not exist");
        }
        return destroy(ioProcs, static_cast<AudioObjectID>(proc), "destroy callback");
    }
    OSStatus startDevice(AudioObjectID device, IOProcID proc,
                         std::function<void(OSStatus)> failedLater) override {
        IOProcRecord* record = callbackOf(device, proc);
        if (!record) {
            return misuse("start", "started a callback that, or whose device, does not exist");
        }
        lateStartFailures.push_back(std::move(failedLater));
        return act(Call::start, 0, 0, [&] {
            record->running = true;
            journal.push_back("start");
        });
    }
    OSStatus stopDevice(AudioObjectID device, IOProcID proc) override {
        IOProcRecord* record = callbackOf(device, proc);
        if (!record) {
            return misuse("stop", "stopped a callback that, or whose device, does not exist");
        }
        record->running = false;
        journal.push_back("stop");
        return 0;
    }

    std::map<std::pair<AudioObjectID, AudioPropertyAddress>, std::vector<std::uint8_t>> data;
    std::map<std::pair<AudioObjectID, AudioPropertyAddress>, std::optional<std::string>> strings;
    std::map<std::tuple<Call, AudioObjectID, std::uint32_t>, OSStatus> failures;
    std::vector<AudioObjectID> deviceIDs;
    std::vector<AudioObjectID> processIDs;
    std::vector<Listener> listeners;
    int mismatchedRemovals = 0;
    std::map<AudioObjectID, ProcessTapDescription> taps;
    std::map<AudioObjectID, PreferenceValue::Dictionary> devices;
    std::map<AudioObjectID, IOProcRecord> ioProcs;
    std::vector<std::string> journal;
    // What each start was given to report a failure found after it answered.
    std::vector<std::function<void(OSStatus)>> lateStartFailures;
    // The starts carried out later all fail, as a device that went away would make them.
    void failStartsLater(OSStatus status) {
        for (auto& failed : std::exchange(lateStartFailures, {})) {
            if (failed) {
                failed(status);
            }
        }
    }
    // What every new tap reports: stereo, interleaved 32-bit float.
    AudioStreamFormat tapFormat{48000, hal::fourCharCode("lpcm"), 0x9, 8, 1, 8, 2, 32, 0};

private:
    // An injected status, else "unknown property" for what the table lacks, else success.
    OSStatus status(Call call, AudioObjectID object, std::uint32_t selector, bool known) const {
        const auto found = failures.find({call, object, selector});
        return found != failures.end() ? found->second : known ? 0 : hal::kUnknownPropertyError;
    }
    template <typename Action>
    OSStatus act(Call call, AudioObjectID object, std::uint32_t selector, Action action) {
        const OSStatus result = status(call, object, selector, true);
        if (result == 0) {
            action();
        }
        return result;
    }
    template <typename Table>
    OSStatus destroy(Table& table, AudioObjectID object, const char* entry) {
        if (table.erase(object) == 0) {
            return misuse(entry, std::string(entry) + ": no such object, or destroyed already");
        }
        journal.push_back(entry);
        return 0;
    }
    // A callback of a device, both still there.
    IOProcRecord* callbackOf(AudioObjectID device, IOProcID proc) {
        const auto found = ioProcs.find(static_cast<AudioObjectID>(proc));
        if (found == ioProcs.end() || found->second.device != device ||
            (!devices.contains(device) &&
             std::find(deviceIDs.begin(), deviceIDs.end(), device) == deviceIDs.end())) {
            return nullptr;
        }
        return &found->second;
    }
    // The journal keeps the call, so a test reading it sees where the order went wrong.
    OSStatus misuse(const char* entry, std::string_view what) {
        journal.push_back(entry);
        reportFakeMisuse(what);
        return hal::kBadObjectError;
    }

    std::uint32_t nextID = 500;
};

}  // namespace quorvane
