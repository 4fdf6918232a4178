#include "mac/MacPorts.hpp"

#include <algorithm>

#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

// Digests from CommonCrypto.
class MacHashing final : public Hashing {
public:
    Sha256::Digest sha256(std::span<const std::uint8_t> bytes) override {
        static_assert(CC_SHA256_DIGEST_LENGTH == std::tuple_size_v<Sha256::Digest>);
        CC_SHA256_CTX context;
        CC_SHA256_Init(&context);
        // CC_LONG is 32 bits, so anything past 4 GiB goes in pieces.
        constexpr std::size_t kPiece = 1u << 30;
        for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
            const std::size_t length = std::min(kPiece, bytes.size() - at);
            CC_SHA256_Update(&context, bytes.data() + at, static_cast<CC_LONG>(length));
        }
        Sha256::Digest digest;
        CC_SHA256_Final(digest.data(), &context);
        return digest;
    }
};

}  // namespace

std::unique_ptr<Hashing> makeMacHashing() { return std::make_unique<MacHashing>(); }

}  // namespace quorvane
