#include "mac/ChargingHelper/SmcChargingSwitch.hpp"

#include <IOKit/IOKitLib.h>
#include <mach/mach.h>

#include <cstddef>
#include <cstdint>

#include "platform/SmcChargingPlan.hpp"
#include "platform/SmcParameterBlock.hpp"

namespace quorvane {

namespace {

constexpr int kTaken = 0;
constexpr int kRefused = -2;

// The controller's user client for the length of one request. None of it is in Apple's
// documentation (see SmcParameterBlock). unconfirmed: check on a Mac first.
class SmcConnection {
public:
    SmcConnection() {
        io_service_t service =
            IOServiceGetMatchingService(kIOMainPortDefault, IOServiceMatching("AppleSMC"));
        if (service == IO_OBJECT_NULL) {
            return;
        }
        if (IOServiceOpen(service, mach_task_self(), SmcParameterBlock::kUserClientType,
                          &connection_) != KERN_SUCCESS) {
            connection_ = IO_OBJECT_NULL;
        }
        IOObjectRelease(service);
    }
    ~SmcConnection() {
        if (connection_ != IO_OBJECT_NULL) {
            IOServiceClose(connection_);
        }
    }
    SmcConnection(const SmcConnection&) = delete;
    SmcConnection& operator=(const SmcConnection&) = delete;

    bool isOpen() const { return connection_ != IO_OBJECT_NULL; }

    // The key's value size, or 0 when the controller has no such key.
    std::size_t keySize(uint32_t key) const {
        SmcParameterBlock answer;
        return call(SmcParameterBlock::keyInfoRequest(key), answer) ? answer.keyDataSize : 0;
    }

    bool write(const SmcChargingPlan::Write& write) const {
        const auto request = SmcParameterBlock::writeRequest(write.key, write.value);
        SmcParameterBlock answer;
        return request && call(*request, answer);
    }

private:
    bool call(const SmcParameterBlock& request, SmcParameterBlock& answer) const {
        std::size_t answerSize = sizeof(answer);
        const kern_return_t result =
            IOConnectCallStructMethod(connection_, SmcParameterBlock::kStructMethodSelector,
                                      &request, sizeof(request), &answer, &answerSize);
        return result == KERN_SUCCESS && answerSize == sizeof(answer) && answer.result == 0;
    }

    io_connect_t connection_ = IO_OBJECT_NULL;
};

}  // namespace

int SmcChargingSwitch::setChargingEnabled(bool enabled) {
    const SmcConnection smc;
    if (!smc.isOpen()) {
        return kRefused;
    }
    const bool written = SmcChargingPlan::apply(
        enabled, [&smc](uint32_t key) { return smc.keySize(key); },
        [&smc](const SmcChargingPlan::Write& write) { return smc.write(write); });
    return written ? kTaken : kRefused;
}

}  // namespace quorvane
