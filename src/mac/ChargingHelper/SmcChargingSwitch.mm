#include "mac/ChargingHelper/SmcChargingSwitch.hpp"

#include <IOKit/IOKitLib.h>
#include <mach/mach.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quorvane {

namespace {

constexpr int kTaken = 0;
constexpr int kRefused = -2;

// None of the facts below is in Apple's documentation. They are what the open-source SMC
// tools have long made public knowledge, written here from that description, not from their
// code. unconfirmed: check on a Mac first (every one of them).

// The AppleSMC user client takes every request through one structure method; what it does
// is chosen by `command` inside the block.
constexpr uint32_t kSmcUserClientType = 0;        // unconfirmed: check on a Mac first
constexpr uint32_t kSmcStructMethodSelector = 2;  // unconfirmed: check on a Mac first
constexpr uint8_t kSmcCommandKeyInfo = 9;         // unconfirmed: check on a Mac first
constexpr uint8_t kSmcCommandWriteKey = 6;        // unconfirmed: check on a Mac first

// The request and answer block, the same layout both ways. Only the fields this helper reads
// or writes are named; the rest (firmware version and power limits) stay zero.
// unconfirmed: check on a Mac first (the order, sizes and natural alignment of every field).
struct SmcParameterBlock {
    uint32_t key = 0;                       // four-character code, first character highest
    std::array<uint8_t, 6> version{};       // unused here
    std::array<uint32_t, 4> powerLimits{};  // unused here (16 bytes, after 2 bytes of padding)
    uint32_t keyDataSize = 0;               // key info: the value's size in bytes
    uint32_t keyDataType = 0;               // key info: the value's type code
    uint8_t keyAttributes = 0;              // key info
    std::array<uint8_t, 3> keyInfoEnd{};    // key info is padded to 12 bytes
    uint8_t result = 0;                     // the controller's answer: 0 when it did as asked
    uint8_t status = 0;
    uint8_t command = 0;  // kSmcCommand…
    uint32_t data32 = 0;
    std::array<uint8_t, 32> bytes{};  // the value written or read
};
// unconfirmed: check on a Mac first (an 80-byte block, the answer at 40, the value at 48).
static_assert(sizeof(SmcParameterBlock) == 80);
static_assert(offsetof(SmcParameterBlock, result) == 40);
static_assert(offsetof(SmcParameterBlock, bytes) == 48);

constexpr uint32_t fourCharCode(const char (&code)[5]) {
    return (static_cast<uint32_t>(static_cast<uint8_t>(code[0])) << 24) |
           (static_cast<uint32_t>(static_cast<uint8_t>(code[1])) << 16) |
           (static_cast<uint32_t>(static_cast<uint8_t>(code[2])) << 8) |
           static_cast<uint32_t>(static_cast<uint8_t>(code[3]));
}

// The charging keys. unconfirmed: check on a Mac first (names, sizes and values).
// CHTE, on current Apple silicon firmware: four bytes, 0 to charge, 1 to hold, the low byte
// first.
constexpr uint32_t kChargeInhibitKey = fourCharCode("CHTE");
constexpr std::size_t kChargeInhibitSize = 4;
constexpr uint8_t kChargeInhibitHold = 1;
// CH0B and CH0C, on older firmware: one byte each, 0 to charge, 2 to hold.
constexpr std::array<uint32_t, 2> kLegacyChargeKeys = {fourCharCode("CH0B"), fourCharCode("CH0C")};
constexpr std::size_t kLegacyChargeSize = 1;
constexpr uint8_t kLegacyChargeHold = 2;

// The controller's user client for the length of one request.
class SmcConnection {
public:
    SmcConnection() {
        io_service_t service =
            IOServiceGetMatchingService(kIOMainPortDefault, IOServiceMatching("AppleSMC"));
        if (service == IO_OBJECT_NULL) {
            return;
        }
        if (IOServiceOpen(service, mach_task_self(), kSmcUserClientType, &connection_) !=
            KERN_SUCCESS) {
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
        SmcParameterBlock request;
        request.key = key;
        request.command = kSmcCommandKeyInfo;
        SmcParameterBlock answer;
        return call(request, answer) ? answer.keyDataSize : 0;
    }

    bool write(uint32_t key, const uint8_t* value, std::size_t size) const {
        SmcParameterBlock request;
        request.key = key;
        request.command = kSmcCommandWriteKey;
        request.keyDataSize = static_cast<uint32_t>(size);
        std::memcpy(request.bytes.data(), value, size);
        SmcParameterBlock answer;
        return call(request, answer);
    }

private:
    bool call(const SmcParameterBlock& request, SmcParameterBlock& answer) const {
        std::size_t answerSize = sizeof(answer);
        const kern_return_t result = IOConnectCallStructMethod(
            connection_, kSmcStructMethodSelector, &request, sizeof(request), &answer, &answerSize);
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
    // A key whose size differs from the one expected is not the key described above, so it
    // is left alone rather than written with a guess.
    if (smc.keySize(kChargeInhibitKey) == kChargeInhibitSize) {
        const std::array<uint8_t, kChargeInhibitSize> value = {
            enabled ? uint8_t{0} : kChargeInhibitHold, 0, 0, 0};
        return smc.write(kChargeInhibitKey, value.data(), value.size()) ? kTaken : kRefused;
    }
    for (const uint32_t key : kLegacyChargeKeys) {
        if (smc.keySize(key) != kLegacyChargeSize) {
            return kRefused;
        }
    }
    const uint8_t value = enabled ? uint8_t{0} : kLegacyChargeHold;
    bool written = true;
    // Both keys are written even if the first fails, so a half-done change is not left
    // behind on purpose; the answer says it failed and the app asks again.
    for (const uint32_t key : kLegacyChargeKeys) {
        written = smc.write(key, &value, kLegacyChargeSize) && written;
    }
    return written ? kTaken : kRefused;
}

}  // namespace quorvane
