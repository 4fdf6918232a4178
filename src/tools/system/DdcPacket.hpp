#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvane {

// DDC/CI messages, the monitor-control protocol spoken over a display's I2C bus, as bytes. A
// message from the host goes to chip 0x37 at register 0x51 (the host's own address) and holds
// a length byte (0x80 | payload size), the payload and a checksum: the XOR of the display's
// write address 0x6E, 0x51 and every byte before it. A display's answer starts with its address
// 0x6E and is checked the same way from the host's read address 0x50.
struct DdcPacket {
    static constexpr std::uint8_t kChip = 0x37;
    static constexpr std::uint8_t kHostAddress = 0x51;
    static constexpr std::uint8_t kDisplayAddress = 0x6E;
    static constexpr std::uint8_t kHostReadAddress = 0x50;
    // VCP feature code of the luminance ("brightness") control.
    static constexpr std::uint8_t kBrightness = 0x10;
    // A VCP feature reply: address, length, opcode 0x02, result, code, type, maximum (2 bytes),
    // current value (2 bytes) and the checksum.
    static constexpr std::size_t kReplySize = 11;

    struct Value {
        std::uint16_t current = 0;
        std::uint16_t maximum = 0;
        friend bool operator==(const Value&, const Value&) = default;
    };

    // "Get VCP feature" (opcode 0x01) for a code.
    static std::vector<std::uint8_t> getVCP(std::uint8_t code);
    // "Set VCP feature" (opcode 0x03): a code and its new value.
    static std::vector<std::uint8_t> setVCP(std::uint8_t code, std::uint16_t value);
    // The value in a display's reply about `code`; nothing when the reply is short, garbled,
    // about another code, refuses the code, or has a maximum of 0.
    static std::optional<Value> reply(const std::vector<std::uint8_t>& bytes, std::uint8_t code);
};

}  // namespace quorvane
