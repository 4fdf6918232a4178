#include "tools/system/DdcPacket.hpp"

#include <algorithm>

namespace quorvane {

namespace {

std::vector<std::uint8_t> message(std::vector<std::uint8_t> payload) {
    // Built in place: g++ 12 at -O2 misreads an insert into a one-byte vector as out of bounds.
    std::vector<std::uint8_t> bytes(payload.size() + 1);
    bytes[0] = static_cast<std::uint8_t>(0x80 | payload.size());
    std::copy(payload.begin(), payload.end(), bytes.begin() + 1);
    std::uint8_t check = DdcPacket::kDisplayAddress ^ DdcPacket::kHostAddress;
    for (const auto byte : bytes) {
        check ^= byte;
    }
    bytes.push_back(check);
    return bytes;
}

}  // namespace

std::vector<std::uint8_t> DdcPacket::getVCP(std::uint8_t code) {
    return message({0x01, code});
}

std::vector<std::uint8_t> DdcPacket::setVCP(std::uint8_t code, std::uint16_t value) {
    return message({0x03, code, static_cast<std::uint8_t>(value >> 8),
                    static_cast<std::uint8_t>(value & 0xFF)});
}

std::optional<DdcPacket::Value> DdcPacket::reply(const std::vector<std::uint8_t>& bytes,
                                                 std::uint8_t code) {
    if (bytes.size() < kReplySize || bytes[0] != kDisplayAddress || bytes[1] != 0x88 ||
        bytes[2] != 0x02) {
        return std::nullopt;
    }
    std::uint8_t check = kHostReadAddress;
    for (std::size_t index = 0; index + 1 < kReplySize; ++index) {
        check ^= bytes[index];
    }
    // Result 0 is "no error"; 1 means the display does not support the code.
    if (check != bytes[kReplySize - 1] || bytes[3] != 0x00 || bytes[4] != code) {
        return std::nullopt;
    }
    const Value value{static_cast<std::uint16_t>(bytes[8] << 8 | bytes[9]),
                      static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7])};
    if (value.maximum == 0) {
        return std::nullopt;
    }
    return value;
}

}  // namespace quorvane
