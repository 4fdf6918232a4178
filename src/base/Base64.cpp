#include "base/Base64.hpp"

#include <algorithm>
#include <array>

namespace quorvane::base64 {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// Each character's six bits, or -1 for a character outside the alphabet ('=' included).
constexpr std::array<std::int8_t, 256> kValues = [] {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < kAlphabet.size(); ++i) {
        values[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::int8_t>(i);
    }
    return values;
}();

}  // namespace

std::string encode(std::span<const std::uint8_t> bytes) {
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = std::uint32_t{bytes[i]} << 16;
        if (count > 1) {
            group |= std::uint32_t{bytes[i + 1]} << 8;
        }
        if (count > 2) {
            group |= bytes[i + 2];
        }
        for (std::size_t j = 0; j < 4; ++j) {
            out += j <= count ? kAlphabet[(group >> (18 - 6 * j)) & 0x3F] : '=';
        }
    }
    return out;
}

std::optional<std::vector<std::uint8_t>> decode(std::string_view text) {
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    std::size_t padding = 0;
    if (!text.empty() && text.back() == '=') {
        padding = text[text.size() - 2] == '=' ? 2 : 1;
    }
    std::vector<std::uint8_t> out;
    out.reserve(text.size() / 4 * 3);
    for (std::size_t i = 0; i < text.size(); i += 4) {
        const bool isLast = i + 4 == text.size();
        const std::size_t characters = isLast ? 4 - padding : 4;
        std::uint32_t group = 0;
        for (std::size_t j = 0; j < 4; ++j) {
            group <<= 6;
            if (j < characters) {
                const std::int8_t value = kValues[static_cast<unsigned char>(text[i + j])];
                if (value < 0) {
                    return std::nullopt;
                }
                group |= static_cast<std::uint32_t>(value);
            }
        }
        // The bits the padding stands in for must be zero, or two texts would decode alike.
        const std::uint32_t unusedBits = padding == 2 ? 0xFFFF : 0xFF;
        if (isLast && padding != 0 && (group & unusedBits) != 0) {
            return std::nullopt;
        }
        const std::size_t bytes = characters - 1;
        for (std::size_t j = 0; j < bytes; ++j) {
            out.push_back(static_cast<std::uint8_t>(group >> (16 - 8 * j)));
        }
    }
    return out;
}

}  // namespace quorvane::base64
