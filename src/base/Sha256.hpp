#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace quorvane {

// SHA-256 (FIPS 180-4), fed in pieces of any size.
class Sha256 {
public:
    using Digest = std::array<std::uint8_t, 32>;

    void update(std::span<const std::uint8_t> bytes);
    // The digest of everything fed so far; the object is spent afterwards.
    Digest finish();

    static Digest of(std::span<const std::uint8_t> bytes);
    // Lower-case hexadecimal, two digits a byte.
    static std::string hex(const Digest& digest);

private:
    void compress(const std::uint8_t* block);

    std::array<std::uint32_t, 8> state_{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                        0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<std::uint8_t, 64> buffer_{};
    std::size_t buffered_ = 0;
    std::uint64_t length_ = 0;
};

}  // namespace quorvane
