#include <gtest/gtest.h>

#include <string>

#include "base/Sha256.hpp"

namespace quorvane {
namespace {

std::string hexOf(const std::string& text) {
    return Sha256::hex(
        Sha256::of(std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size())));
}

// The published test vectors, plus lengths on both sides of the padding boundary.
TEST(Sha256, MatchesPublishedVectors) {
    EXPECT_EQ(hexOf(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(hexOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(hexOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(hexOf(std::string(1'000'000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
    EXPECT_EQ(hexOf(std::string(55, 'a')),
              "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318");
    EXPECT_EQ(hexOf(std::string(56, 'a')),
              "b35439a4ac6f0948b6d6f9e3c6af0f5f590ce20f1bde7090ef7970686ec6738a");
    EXPECT_EQ(hexOf(std::string(64, 'a')),
              "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb");
}

TEST(Sha256, PiecesOfAnySizeGiveTheWholeDigest) {
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += static_cast<char>(i * 7);
    }
    const auto whole = hexOf(text);
    for (const std::size_t piece : {1u, 3u, 63u, 64u, 65u, 200u}) {
        Sha256 hash;
        for (std::size_t at = 0; at < text.size(); at += piece) {
            const std::size_t n = std::min(piece, text.size() - at);
            hash.update(std::span(reinterpret_cast<const std::uint8_t*>(text.data()) + at, n));
        }
        EXPECT_EQ(Sha256::hex(hash.finish()), whole) << piece;
    }
}

}  // namespace
}  // namespace quorvane
