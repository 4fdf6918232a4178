#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quorvane {

// The request and answer block of the system management controller's user client, the same
// layout both ways. Only the fields the charging helper reads or writes are named; the rest
// (firmware version and power limits) stay zero.
//
// None of these facts is in Apple's documentation. They are what the open-source SMC tools
// have long made public knowledge, written here from that description, not from their code.
// unconfirmed: check on a Mac first (every one of them: the order, sizes and natural
// alignment of every field, and the numbers below).
struct SmcParameterBlock {
    // The user client takes every request through one structure method; what it does is
    // chosen by `command` inside the block.
    static constexpr std::uint32_t kUserClientType = 0;
    static constexpr std::uint32_t kStructMethodSelector = 2;
    static constexpr std::uint8_t kCommandKeyInfo = 9;
    static constexpr std::uint8_t kCommandWriteKey = 6;

    std::uint32_t key = 0;                       // four-character code, first character highest
    std::array<std::uint8_t, 6> version{};       // unused here
    std::array<std::uint32_t, 4> powerLimits{};  // unused here (16 bytes, after 2 of padding)
    std::uint32_t keyDataSize = 0;               // key info: the value's size in bytes
    std::uint32_t keyDataType = 0;               // key info: the value's type code
    std::uint8_t keyAttributes = 0;              // key info
    std::array<std::uint8_t, 3> keyInfoEnd{};    // key info is padded to 12 bytes
    std::uint8_t result = 0;                     // the controller's answer: 0 when it did as asked
    std::uint8_t status = 0;
    std::uint8_t command = 0;  // kCommand…
    std::uint32_t data32 = 0;
    std::array<std::uint8_t, 32> bytes{};  // the value written or read

    // A request for a key's size and type.
    static SmcParameterBlock keyInfoRequest(std::uint32_t key) {
        SmcParameterBlock request;
        request.key = key;
        request.command = kCommandKeyInfo;
        return request;
    }

    // A request to write a key's value; nothing for a value longer than the block holds.
    static std::optional<SmcParameterBlock> writeRequest(std::uint32_t key,
                                                         std::span<const std::uint8_t> value) {
        SmcParameterBlock request;
        if (value.size() > request.bytes.size()) {
            return std::nullopt;
        }
        request.key = key;
        request.command = kCommandWriteKey;
        request.keyDataSize = static_cast<std::uint32_t>(value.size());
        std::copy(value.begin(), value.end(), request.bytes.begin());
        return request;
    }
};
// An 80-byte block, the answer at 40, the value at 48: checked on every platform, since the
// layout follows from the C++ rules alone.
static_assert(sizeof(SmcParameterBlock) == 80);
static_assert(offsetof(SmcParameterBlock, result) == 40);
static_assert(offsetof(SmcParameterBlock, bytes) == 48);

constexpr std::uint32_t fourCharCode(const char (&code)[5]) {
    return (static_cast<std::uint32_t>(static_cast<std::uint8_t>(code[0])) << 24) |
           (static_cast<std::uint32_t>(static_cast<std::uint8_t>(code[1])) << 16) |
           (static_cast<std::uint32_t>(static_cast<std::uint8_t>(code[2])) << 8) |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(code[3]));
}

}  // namespace quorvane
