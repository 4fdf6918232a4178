#include "base/Uuid.hpp"

#include <random>

#include "base/HexDigit.hpp"

namespace quorvane {
namespace {

// Where the text form has a hyphen, as offsets into the 36 characters.
constexpr std::array<std::size_t, 4> kHyphens = {8, 13, 18, 23};
constexpr std::size_t kTextLength = 36;

bool isHyphenOffset(std::size_t offset) {
    for (const std::size_t hyphen : kHyphens) {
        if (offset == hyphen) {
            return true;
        }
    }
    return false;
}

}  // namespace

Uuid Uuid::random() {
    // One engine per thread: no lock is needed, and each is seeded with far more entropy than a
    // single random_device call gives.
    thread_local std::mt19937_64 engine = [] {
        std::random_device device;
        std::seed_seq seeds{device(), device(), device(), device(),
                            device(), device(), device(), device()};
        return std::mt19937_64(seeds);
    }();
    Bytes bytes{};
    for (std::size_t half = 0; half < 2; ++half) {
        std::uint64_t bits = engine();
        for (std::size_t i = 0; i < 8; ++i) {
            bytes[half * 8 + i] = static_cast<std::uint8_t>(bits);
            bits >>= 8;
        }
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);  // version 4
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);  // variant 10xx
    return Uuid(bytes);
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != kTextLength) {
        return std::nullopt;
    }
    Bytes bytes{};
    std::size_t nibble = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isHyphenOffset(i)) {
            if (text[i] != '-') {
                return std::nullopt;
            }
            continue;
        }
        const int value = hexDigitValue(text[i]);
        if (value < 0) {
            return std::nullopt;
        }
        const int shift = nibble % 2 == 0 ? 4 : 0;
        bytes[nibble / 2] = static_cast<std::uint8_t>(bytes[nibble / 2] | (value << shift));
        ++nibble;
    }
    return Uuid(bytes);
}

std::string Uuid::text() const {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string out;
    out.reserve(kTextLength);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        if (isHyphenOffset(out.size())) {
            out += '-';
        }
        out += kDigits[bytes_[i] >> 4];
        out += kDigits[bytes_[i] & 0x0F];
    }
    return out;
}

}  // namespace quorvane

std::size_t std::hash<quorvane::Uuid>::operator()(const quorvane::Uuid& uuid) const noexcept {
    // FNV-1a over all sixteen bytes: a parsed identifier need not be random, so no one part of
    // it can stand in for the whole.
    std::uint64_t mixed = 0xCBF29CE484222325ULL;
    for (const std::uint8_t byte : uuid.bytes()) {
        mixed = (mixed ^ byte) * 0x100000001B3ULL;
    }
    return static_cast<std::size_t>(mixed);
}
