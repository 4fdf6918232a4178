#include <gtest/gtest.h>

#include <random>
#include <string>

#include "base/Base64.hpp"

namespace quorvane {
namespace {

std::vector<std::uint8_t> bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

TEST(Base64, MatchesTheStandardVectorsAndRoundTrips) {
    const std::pair<std::string_view, std::string_view> vectors[] = {{"", ""},
                                                                     {"f", "Zg=="},
                                                                     {"fo", "Zm8="},
                                                                     {"foo", "Zm9v"},
                                                                     {"foob", "Zm9vYg=="},
                                                                     {"fooba", "Zm9vYmE="},
                                                                     {"foobar", "Zm9vYmFy"},
                                                                     {"\xFF\xEF", "/+8="}};
    for (const auto& [plain, encoded] : vectors) {
        EXPECT_EQ(base64::encode(bytesOf(plain)), encoded);
        EXPECT_EQ(base64::decode(encoded), bytesOf(plain)) << encoded;
    }
    std::mt19937 generator(7);
    for (std::size_t length = 0; length < 64; ++length) {
        std::vector<std::uint8_t> bytes(length);
        for (auto& byte : bytes) {
            byte = static_cast<std::uint8_t>(generator());
        }
        EXPECT_EQ(base64::decode(base64::encode(bytes)), bytes);
    }
}

TEST(Base64, RejectsAnythingButTheCanonicalForm) {
    for (const std::string_view text :
         {"Zg", "Zg=", "Zm9", "Zg===", "====", "Z===", "Zg==Zg==", "Zm=v", "Zm9v\n", " Zm9v",
          "Zm9-", "Zh==", "Zm9=", "Zm8_"}) {
        EXPECT_FALSE(base64::decode(text).has_value()) << text;
    }
}

}  // namespace
}  // namespace quorvane
