#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quorvane {

// Sixteen bytes handled as one value, for loops that look at every byte of large texts. The
// vector extension that g++ and clang share becomes SSE2 on Intel and NEON on Apple silicon;
// operators act on each byte, and a comparison gives all ones in each byte where it holds.
struct ByteBlock {
    using Bytes = std::uint8_t __attribute__((vector_size(16)));
    static constexpr std::size_t kSize = sizeof(Bytes);

    static Bytes load(const char* bytes) {
        Bytes block;
        std::memcpy(&block, bytes, sizeof block);
        return block;
    }

    static Bytes filled(std::uint8_t byte) {
        Bytes block{};
        block += byte;
        return block;
    }

    // Marks come from comparing Bytes; the compilers differ on their exact type.
    template <typename Marks>
    static bool none(Marks marks) {
        const auto words = halves(marks);
        return (words[0] | words[1]) == 0;
    }

    // Calls `visit(index)` for each marked byte, first to last, until it answers true; answers
    // whether one did.
    template <typename Marks, typename Visit>
    static bool anyMarked(Marks marks, Visit&& visit) {
        const auto words = halves(marks);
        for (std::size_t half = 0; half < words.size(); ++half) {
            std::uint64_t word = words[half];
            while (word != 0) {
                const std::size_t index = firstMarkedByte(word);
                if (visit(half * sizeof(std::uint64_t) + index)) {
                    return true;
                }
                const std::size_t shift =
                    std::endian::native == std::endian::little ? index * 8 : (7 - index) * 8;
                word &= ~(std::uint64_t{0xFF} << shift);
            }
        }
        return false;
    }

    // The index of the first marked byte, or kSize when none is.
    template <typename Marks>
    static std::size_t firstMarked(Marks marks) {
        std::size_t first = kSize;
        anyMarked(marks, [&first](std::size_t index) {
            first = index;
            return true;
        });
        return first;
    }

private:
    template <typename Marks>
    static std::array<std::uint64_t, 2> halves(Marks marks) {
        static_assert(sizeof(Marks) == kSize);
        std::array<std::uint64_t, 2> words;
        std::memcpy(words.data(), &marks, sizeof words);
        return words;
    }

    // Bytes in memory order: the lowest on little-endian machines, the highest on big-endian.
    static std::size_t firstMarkedByte(std::uint64_t word) {
        if constexpr (std::endian::native == std::endian::little) {
            return static_cast<std::size_t>(std::countr_zero(word)) / 8;
        } else {
            return static_cast<std::size_t>(std::countl_zero(word)) / 8;
        }
    }
};

}  // namespace quorvane
